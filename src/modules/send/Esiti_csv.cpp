// SPDX-License-Identifier: GPL-3.0-or-later
// The book for spreadsheets.
#include <QStringList>

#include "modules/send/Esiti.h"
#include "platform/mail/SmtpReply.h"
#include "platform/text/Words.h"

namespace {

QStringList Campi(const esiti::Riga& riga) {
    const mail::OutcomeLine& esito = riga.esito;
    return {esito.time.toLocalTime().toString("dd/MM/yyyy HH:mm:ss"),
            mail::printable(esito.address.toUtf8()),
            TestoEsito(esito.kind),
            TestoMotivo(riga.motivo),
            esito.code ? QString::number(esito.code) : QString(),
            esito.status,
            esito.words};
}

QStringList Teste() {
    return {Words::tr("Data e ora"),
            Words::tr("Indirizzo"),
            Words::tr("Esito"),
            Words::tr("Motivo"),
            Words::tr("Codice"),
            Words::tr("Stato"),
            Words::tr("Risposta del server")};
}

}  // namespace

QString esiti::SenzaFormule(const QString& campo) {
    static const QString inizi = QString::fromUtf8("=+-@|%＝＋－＠");
    const QString senzaVuoti = campo.trimmed();
    const bool comeFormula = (!senzaVuoti.isEmpty() && inizi.contains(senzaVuoti.at(0))) ||
                             campo.startsWith('\t') || campo.startsWith('\r') || campo.startsWith('\n');
    return comeFormula ? '\'' + campo : campo;
}

QByteArray esiti::Csv(const QList<Riga>& righe) {
    QByteArray csv("\xEF\xBB\xBF");
    const auto aggiungi = [&csv](const QStringList& campi) {
        for (qsizetype i = 0; i < campi.size(); ++i) {
            if (i > 0) csv += ';';
            csv += '"' + SenzaFormule(campi[i]).replace('"', "\"\"").toUtf8() + '"';
        }
        csv += "\r\n";
    };
    aggiungi(Teste());
    for (const Riga& riga : righe)
        aggiungi(Campi(riga));
    return csv;
}

QString esiti::Tabella(const QList<Riga>& righe) {
    QString tabella;
    const auto aggiungi = [&tabella](const QStringList& campi) {
        for (qsizetype i = 0; i < campi.size(); ++i) {
            if (i > 0) tabella += '\t';
            tabella += SenzaFormule(campi[i]).replace('\t', ' ');
        }
        tabella += '\n';
    };
    aggiungi(Teste());
    for (const Riga& riga : righe)
        aggiungi(Campi(riga));
    return tabella;
}
