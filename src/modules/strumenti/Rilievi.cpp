// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/Rilievi.h"

#include <algorithm>
#include <QLocale>
#include <QRegularExpression>

#include "modules/strumenti/Rilievi_html.h"
#include "platform/mail/TextPart.h"
#include "platform/text/NumberText.h"
#include "platform/text/Words.h"

using Peso = Rilievo::Peso;

QString NomePeso(Peso peso) {
    switch (peso) {
        case Peso::Grave:
            return Words::tr("Grave");
        case Peso::Attenzione:
            return Words::tr("Attenzione");
        case Peso::Consiglio:
            break;
    }
    return Words::tr("Consiglio");
}

namespace {

QString numero(qint64 n) {
    return text::formatGrouped(static_cast<double>(n));
}

QString traPunti(const QString& nome) {
    return QStringLiteral("\":::") + nome + QStringLiteral(":::\"");
}

/// ":::name:::" where no column is called like that, each once.
QStringList sconosciuti(const TestiMessaggio& testi) {
    static const QRegularExpression forma(QStringLiteral(":::([^:<>\\s]{1,40}):::"));
    QStringList nomi;
    for (const QString* testo : {&testi.oggetto, &testi.corpoHtml, &testi.corpoTesto}) {
        auto trovati = forma.globalMatch(*testo);
        while (trovati.hasNext()) {
            const QString nome = trovati.next().captured(1);
            if (std::ranges::find(colonneSegnaposto, nome) == colonneSegnaposto.end()) nomi << nome;
        }
    }
    nomi.removeDuplicates();
    return nomi;
}

void rilievaSegnaposto(const TestiMessaggio& testi, QList<Rilievo>& rilievi) {
    for (const QString& nome : sconosciuti(testi)) {
        const QString giusto = nome.toLower();
        const bool soloMaiuscole = std::ranges::find(colonneSegnaposto, giusto) != colonneSegnaposto.end();
        rilievi.append(
            {Peso::Grave,
             soloMaiuscole
                 ? Words::tr("%1 non viene sostituito: si scrive %2.").arg(traPunti(nome), traPunti(giusto))
                 : Words::tr("%1 non viene sostituito: nessuna colonna ha questo nome.")
                       .arg(traPunti(nome))});
    }
    // Text that looks like a placeholder but is split by a change of format is none.
    for (std::size_t i = 0; i < numeroSegnaposto; ++i)
        if (testi.corpoTesto.contains(Segnaposto(i)) && !testi.corpoHtml.contains(Segnaposto(i)))
            rilievi.append(
                {Peso::Grave, Words::tr("%1 non viene sostituito nella forma HTML: è spezzato da un cambio "
                                        "di formato. Riscriverlo tutto di seguito.")
                                  .arg(traPunti(colonneSegnaposto[i]))});
}

}  // namespace

QList<Rilievo> RilieviModello(const ModelloProva& modello) {
    QList<Rilievo> rilievi;
    rilievaSegnaposto(modello.testi, rilievi);
    for (const AllegatoMss& allegato : modello.allegati)
        if (!allegato.presente)
            rilievi.append({Peso::Grave, Words::tr("L'allegato %1 non c'è: il messaggio parte senza.")
                                             .arg(PercorsoMostrato(allegato.percorso))});
    rilievi += RilieviHtml(modello.testi.corpoHtml);
    if (modello.testi.oggetto.trimmed().isEmpty())
        rilievi.append({Peso::Attenzione, Words::tr("L'oggetto è vuoto.")});
    if (mail::isBlankText(modello.testi.corpoTesto))
        rilievi.append({Peso::Attenzione,
                        Words::tr("Manca la forma di solo testo: il messaggio non contiene testo, e chi "
                                  "non vede le immagini non legge niente.")});
    if (modello.testi.disiscrizione.isEmpty())
        rilievi.append(
            {Peso::Consiglio, Words::tr("Manca un collegamento di disiscrizione: chi non vuole più "
                                        "messaggi li segnala come indesiderati. "
                                        "Si crea nell'editor con il comando \"Collegamento\".")});
    return rilievi;
}

QList<Rilievo> RilieviCampi(const ControlloCampi& controllo) {
    QList<Rilievo> rilievi;
    for (std::size_t i = 0; i < numeroSegnaposto; ++i) {
        const ControlloCampi::Campo& campo = controllo.campi()[i];
        const QString segno = traPunti(colonneSegnaposto[i]);
        if (campo.nulli + campo.vuoti > 0) {
            QString testo = Words::tr("%1 è vuoto per %2 di %3 destinatari selezionati")
                                .arg(segno, numero(campo.nulli + campo.vuoti), numero(controllo.righe()));
            testo += campo.nulli > 0 ? Words::tr("; per %1 di loro si legge %2 al posto del valore.")
                                           .arg(numero(campo.nulli), segno)
                                     : QStringLiteral(".");
            rilievi.append({campo.nulli > 0 ? Peso::Grave : Peso::Attenzione, testo, campo.primoVuoto});
        }
        if (campo.html > 0)
            rilievi.append({Peso::Attenzione,
                            Words::tr("I caratteri <, & o \" di %1 cambiano il messaggio per %2 di %3 "
                                      "destinatari selezionati.")
                                .arg(segno, numero(campo.html), numero(controllo.righe())),
                            campo.primoHtml});
    }
    return rilievi;
}

QList<Rilievo> RilieviCopia(const TestiMessaggio& copia) {
    const qsizetype byte = copia.corpoHtml.toUtf8().size();
    if (byte <= corpoMassimo) return {};
    return {
        {Peso::Attenzione, Words::tr("Il corpo è di %1: oltre 100 kB i grandi gestori di posta lo tagliano.")
                               .arg(QLocale().formattedDataSize(byte))}};
}

QList<Rilievo> PerPeso(QList<Rilievo> rilievi) {
    std::ranges::stable_sort(rilievi, {}, &Rilievo::peso);
    return rilievi;
}
