// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/send/MxInterni.h"

#include "modules/core/bImpostazioni.h"
#include "platform/mail/DomainName.h"
#include "platform/text/TextFile.h"

QStringList MxInterni() {
    constexpr int righeMassime = 1000;
    QStringList nomi;
    text::LineReader file;
    if (!file.open(cartellaDati() + "mx-interni.txt", text::LineEnds::Any, text::Encoding::Detected).ok())
        return nomi;
    QString riga;
    for (int righe = 0; righe < righeMassime && file.nextLine(riga); ++righe) {
        const QString nome = mail::connectableHost(riga.section('#', 0, 0)).toLower();
        if (!nome.isEmpty()) nomi << nome;
    }
    return nomi;
}
