// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/core/Guasti.h"

#include <QFile>
#include <QRegularExpression>

#include "modules/core/bImpostazioni.h"
#include "modules/core/Prodotto.h"
#include "platform/system/Clock.h"
#include "platform/system/OwnFile.h"

namespace guasti {

namespace {

constexpr qsizetype rigaPiuLunga = 1000;
const QByteArray titolo = "[Guasti di Vestrola]\r\n";
const QByteArray fineVoce = "\r\n\r\n";

QString suUnaRiga(QString testo) {
    for (QChar& carattere : testo)
        if (carattere.category() == QChar::Other_Control) carattere = u' ';
    return testo.left(rigaPiuLunga);
}

QByteArray voce(const Fallimento& fallimento) {
    const Circostanze& circostanze = fallimento.circostanze();
    QStringList righe{sys::clock().now().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss ")) + prodotto::nome() +
                          u' ' + prodotto::versione(),
                      QStringLiteral("Errore %1: ").arg(fallimento.numero()) + Ripulito(fallimento.testo())};
    if (!circostanze.operazione.isEmpty())
        righe << QStringLiteral("Operazione: ") + Ripulito(circostanze.operazione);
    if (!circostanze.file.isEmpty()) righe << QStringLiteral("File: ") + Ripulito(circostanze.file);
    for (QString& riga : righe)
        riga = suUnaRiga(riga);
    return righe.join(QStringLiteral("\r\n")).toUtf8() + fineVoce;
}

/// The entries that are there already; none where the file is something else.
QByteArray vociPresenti(const QString& percorso) {
    const Result<QByteArray> letto = sys::readOwnFile(percorso, limite);
    if (letto.ok() && letto.value().startsWith(titolo)) return letto.value().sliced(titolo.size());
    if (letto.ok() || letto.status().code() != ErrorCode::FileNotFound)
        QFile::rename(percorso, percorso + QStringLiteral(".rovinato"));
    return {};
}

}  // namespace

QString Ripulito(QString testo) {
    static const QRegularExpression citato(
        QStringLiteral("\"[^\"]*\"|'[^']*'|«[^»]*»|„[^“]*“|“[^”]*”|#[^#]*#|(?<=column: ).*"));
    static const QRegularExpression indirizzo(QStringLiteral("[^\\s/\\\\]*@[^\\s/\\\\]*"));
    const QString omesso = QStringLiteral("(omesso)");
    return testo.replace(citato, omesso).replace(indirizzo, omesso);
}

void Annota(const Fallimento& fallimento) {
    Prosegui prosegui;
    prosegui([&] {
        const QString percorso = cartellaDati() + QStringLiteral("guasti.txt");
        QByteArray voci = vociPresenti(percorso) + voce(fallimento);
        while (titolo.size() + voci.size() > limite)
            voci.remove(0, voci.indexOf(fineVoce) + fineVoce.size());
        esigi(sys::replaceOwnFile(percorso, titolo + voci));
    });
}

}  // namespace guasti
