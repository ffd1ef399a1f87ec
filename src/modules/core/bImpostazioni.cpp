// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/core/bImpostazioni.h"

#include "platform/system/ProgramFolder.h"

QString PercorsoApp() {
    const QString cartella = sys::programFolder();
    return cartella.endsWith(u'/') ? cartella : cartella + u'/';
}

QString cartellaDati() {
    return PercorsoApp() + QStringLiteral("data/");
}

QString fileAccount() {
    return cartellaDati() + QStringLiteral("Account.imp");
}

QString cartellaDkim() {
    return cartellaDati() + QStringLiteral("dkim");
}

QString cartellaOAuth() {
    return cartellaDati() + QStringLiteral("oauth");
}

QString cartellaCertificati() {
    return cartellaDati() + QStringLiteral("certificati");
}

QString fileServerConTls() {
    return cartellaDati() + QStringLiteral("tls.txt");
}

QString fileServerSenzaTls() {
    return cartellaDati() + QStringLiteral("senza-tls.txt");
}
