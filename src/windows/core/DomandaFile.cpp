// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/core/DomandaFile.h"

#include <algorithm>
#include <iterator>
#include <QLocale>

#include "modules/lang/bVAR.h"
#include "platform/text/Words.h"

QList<FileInPartenza> DaChiedere(const QList<FileInPartenza>& tutti) {
    QList<FileInPartenza> alcuni;
    std::ranges::copy_if(tutti, std::back_inserter(alcuni), &FileInPartenza::daChiedere);
    return alcuni;
}

namespace {

QStringList RigaDi(const FileInPartenza& file) {
    QString luogo = PercorsoMostrato(file.percorso);
    if (file.risolto != file.percorso) luogo += " → " + PercorsoMostrato(file.risolto);
    return {luogo, QLocale().formattedDataSize(file.byte),
            file.immagine ? Words::tr("Immagine") : Words::tr("Allegato"),
            file.riposto ? Words::tr("Cartella nascosta o fuori da quella personale") : ""};
}

}  // namespace

ui::ListQuestion::Content DomandaFile(QList<FileInPartenza> file, const QString& testo) {
    std::stable_partition(file.begin(), file.end(), [](const FileInPartenza& uno) { return uno.riposto; });
    ui::ListQuestion::Content domanda{
        bVAR::Attenzione,
        testo,
        {Words::tr("File"), Words::tr("Dimensione"), Words::tr("Tipo"), Words::tr("Nota")},
        {},
        {}};
    for (const FileInPartenza& uno : file)
        domanda.rows << RigaDi(uno);
    return domanda;
}
