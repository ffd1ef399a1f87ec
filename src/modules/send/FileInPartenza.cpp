// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/send/FileInPartenza.h"

#include <algorithm>
#include <QFileInfo>

#include "platform/mail/LocalImages.h"
#include "platform/system/HomeFolder.h"

namespace {

QList<FileInPartenza> Giudica(const QStringList& percorsi, bool immagine,
                              const std::optional<messaggiNoti::Noto>& noto) {
    QList<FileInPartenza> file;
    for (const QString& percorso : percorsi) {
        const QFileInfo trovato(percorso);
        if (!trovato.isFile()) continue;
        FileInPartenza uno{immagine, percorso, trovato.canonicalFilePath(), trovato.size(), false, true};
        uno.riposto = Riposto(uno.risolto);
        uno.daChiedere = !noto || noto->daConfermare.contains(percorso) ||
                         (uno.riposto && !noto->confermati.contains(uno.risolto));
        file.append(uno);
    }
    return file;
}

}  // namespace

QList<FileInPartenza> AllegatiInPartenza(const QStringList& percorsi,
                                         const std::optional<messaggiNoti::Noto>& noto) {
    return Giudica(percorsi, false, noto);
}

QList<FileInPartenza> ImmaginiInPartenza(const QString& corpo,
                                         const std::optional<messaggiNoti::Noto>& noto) {
    return Giudica(mail::localImagePaths(corpo), true, noto);
}

bool Riposto(const QString& risolto) {
    const QString casa = sys::homeFolder();
    if (casa.isEmpty() || !risolto.startsWith(casa + u'/')) return true;
    return QStringView(risolto).sliced(casa.size()).contains(u"/.");
}

QString PercorsoMostrato(const QString& percorso) {
    QString mostrato;
    for (const QChar carattere : percorso) {
        const QChar::Category genere = carattere.category();
        const bool invisibile = genere == QChar::Other_Control || genere == QChar::Other_Format ||
                                genere == QChar::Separator_Line || genere == QChar::Separator_Paragraph;
        mostrato += invisibile ? QStringLiteral("\\u%1").arg(carattere.unicode(), 4, 16, QChar(u'0'))
                               : QString(carattere);
    }
    return mostrato;
}
