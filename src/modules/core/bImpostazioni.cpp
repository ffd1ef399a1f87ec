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
