// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/RecordChiave.h"

#include <QStringList>

#include "platform/policy/DkimRecord.h"

RecordChiave RecordDi(const QByteArray& dominio, const mail::DkimKey& chiave) {
    constexpr qsizetype pezzo = 250;
    const QByteArray nome = policy::dkimRecordName(chiave.selector, dominio);
    const QByteArray valore = policy::dkimRecordText(chiave.publicKey);
    QStringList pezzi;
    for (qsizetype da = 0; da < valore.size(); da += pezzo)
        pezzi.append('"' + QString::fromLatin1(valore.mid(da, pezzo)) + '"');
    return {QString::fromLatin1(nome), QString::fromLatin1(valore),
            QString::fromLatin1(nome) + ". IN TXT ( " + pezzi.join(' ') + " )"};
}
