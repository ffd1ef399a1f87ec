// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/core/SenzaPermessi.h"

#include <QFile>

#include "modules/core/bImpostazioni.h"
#include "platform/system/FileModes.h"
#include "platform/system/OwnFile.h"
#include "platform/text/Words.h"

QString AvvisoSenzaPermessi() {
    const QString detto = cartellaDati() + QStringLiteral("senzapermessi.imp");
    if (sys::keepsModes(cartellaDati()) || QFile::exists(detto)) return {};
    static_cast<void>(sys::replaceOwnFile(detto, QByteArray()));
    return Words::tr(
        "La cartella del programma si trova su un disco che non conserva i permessi dei file.\r\n"
        "Chi può leggere il disco può leggere anche i destinatari e le password degli account.");
}
