// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/DominioMittente_spf.h"

#include <algorithm>

#include "platform/mail/InsideAddress.h"
#include "platform/text/Words.h"

using policy::spf::Fault;
using policy::spf::Verdict;
using RisultatoSpf = policy::spf::Result;

namespace {

constexpr qsizetype indirizziMassimi = 8;
const char* const controlloSpf = "SPF";

QString parolaSpf(const Verdict& esito) {
    switch (esito.result) {
        case RisultatoSpf::Pass:
            return Words::tr("autorizzato");
        case RisultatoSpf::Fail:
            return Words::tr("vietato");
        case RisultatoSpf::SoftFail:
            return Words::tr("non autorizzato");
        default:
            return Words::tr("né autorizzato né vietato");
    }
}

QString dettaglioSpf(const QHostAddress& indirizzo, const Verdict& esito) {
    QString testo = indirizzo.toString() + ": " + parolaSpf(esito);
    if (!esito.term.isEmpty())
        testo += Words::tr(" da \"%1\" di %2").arg(Mostrabile(esito.term), Mostrabile(esito.domain));
    testo += Words::tr(", %1 ricerche su 10").arg(esito.lookups);
    if (!esito.explanation.isEmpty())
        testo += Words::tr("; il dominio dice: %1").arg(Mostrabile(esito.explanation));
    return testo;
}

RigaControllo rigaSpf(Semaforo semaforo, const QString& frase, const QStringList& dettagli = {}) {
    return {QString::fromUtf8(controlloSpf), semaforo, frase, dettagli};
}

RigaControllo rigaSenzaEsito(const DominioMittente& mittente, const Verdict& esito,
                             const Risposte& risposte) {
    if (esito.result == RisultatoSpf::TempError || esito.result == RisultatoSpf::PermError)
        return rigaSpf(esito.result == RisultatoSpf::TempError ? Semaforo::Giallo : Semaforo::Rosso,
                       PercheSpf(esito, risposte));
    return rigaSpf(
        Semaforo::Rosso,
        mittente.diretto
            ? Words::tr("Pubblicare un record SPF che nomini l'indirizzo di questo computer: senza, molti "
                        "server non si fidano dei messaggi.")
            : Words::tr(
                  "Pubblicare un record SPF con la riga che indica il fornitore del server: senza, molti "
                  "server non si fidano dei messaggi."));
}

}  // namespace

QHostAddress IndirizzoDiNessuno() {
    return QHostAddress(QStringLiteral("192.0.2.1"));
}

bool SenzaEsito(const Verdict& esito) {
    return esito.result == RisultatoSpf::None || esito.fault != Fault::None;
}

QString PercheSpf(const Verdict& esito, const Risposte& risposte) {
    const QString dominio = Mostrabile(esito.domain), termine = Mostrabile(esito.term);
    switch (esito.fault) {
        case Fault::SeveralRecords:
            return Words::tr("%1 ha più di un record SPF e nessuno vale: unirli in uno solo.").arg(dominio);
        case Fault::TooLong:
            return Words::tr("Il record SPF di %1 è troppo lungo: accorciarlo.").arg(dominio);
        case Fault::Syntax:
            return Words::tr("Il record SPF di %1 non vale per un errore in \"%2\": correggerlo.")
                .arg(dominio, termine);
        case Fault::TooManyLookups:
            return Words::tr(
                       "Il record SPF richiede più di 10 ricerche nel DNS e non vale: togliere "
                       "meccanismi, per esempio %1.")
                .arg(termine);
        case Fault::TooManyVoids:
            return Words::tr(
                       "Il record SPF di %1 nomina più di 2 domini senza record e non vale: togliere "
                       "quelli che non esistono più, per esempio %2.")
                .arg(dominio, termine);
        case Fault::TooManyExchangers:
            return Words::tr(
                       "Nel record SPF di %1 \"%2\" porta a più di 10 server e non vale: indicare gli "
                       "indirizzi con ip4 o ip6.")
                .arg(dominio, termine);
        case Fault::IncludedNone:
        case Fault::RedirectedNone:
            return Words::tr(
                       "Nel record SPF di %1 \"%2\" porta a un dominio senza record SPF, e tutto il "
                       "record non vale: toglierlo o correggerlo.")
                .arg(dominio, termine);
        case Fault::NoAnswer:
        case Fault::None:
            break;
    }
    return FraseRicercaFallita(esito.domain, risposte);
}

std::variant<QList<QHostAddress>, dns::Question> IndirizziDiPartenza(const DominioMittente& mittente,
                                                                     const Risposte& risposte) {
    if (mittente.diretto) return mittente.questoComputer.mid(0, indirizziMassimi);
    QList<QHostAddress> indirizzi;
    const QHostAddress scritto(QString::fromLatin1(mittente.server));
    if (!scritto.isNull()) indirizzi.append(scritto);
    if (scritto.isNull() && !mittente.server.isEmpty()) {
        for (const dns::Type tipo : {dns::Type::A, dns::Type::Aaaa}) {
            const dns::Question domanda{mittente.server, tipo};
            const auto trovata = risposte.find(domanda);
            if (trovata == risposte.end()) return domanda;
            indirizzi += trovata->second.addresses;
        }
    }
    indirizzi.removeIf([](const QHostAddress& uno) { return !mail::isPublicAddress(uno); });
    return indirizzi.mid(0, indirizziMassimi);
}

std::variant<Verdict, dns::Question> EsitoSpf(const DominioMittente& mittente, const QHostAddress& indirizzo,
                                              const Risposte& risposte) {
    policy::spf::Client chi;
    chi.address = indirizzo;
    chi.sender = mittente.indirizzo;
    chi.when = QDateTime::currentDateTimeUtc();
    return policy::spf::check(chi, mittente.dominio, risposte);
}

RigaODomanda RigaSpf(const DominioMittente& mittente, const Risposte& risposte) {
    const auto partenza = IndirizziDiPartenza(mittente, risposte);
    if (const auto* domanda = std::get_if<dns::Question>(&partenza)) return *domanda;
    auto indirizzi = std::get<QList<QHostAddress>>(partenza);
    const bool ignoti = indirizzi.isEmpty();
    if (ignoti) indirizzi.append(IndirizzoDiNessuno());
    QStringList dettagli;
    qsizetype autorizzati = 0, vietati = 0;
    for (const QHostAddress& indirizzo : indirizzi) {
        const auto passo = EsitoSpf(mittente, indirizzo, risposte);
        if (const auto* domanda = std::get_if<dns::Question>(&passo)) return *domanda;
        const auto& esito = std::get<Verdict>(passo);
        if (SenzaEsito(esito)) return rigaSenzaEsito(mittente, esito, risposte);
        if (esito.result == RisultatoSpf::Pass) ++autorizzati;
        if (esito.result == RisultatoSpf::Fail) ++vietati;
        if (!ignoti) dettagli.append(dettaglioSpf(indirizzo, esito));
    }
    if (ignoti)
        return rigaSpf(
            Semaforo::Giallo,
            mittente.diretto
                ? Words::tr("Il record c'è e si legge, ma l'indirizzo pubblico di questo computer non si può "
                            "conoscere da qui: verificare che il record lo nomini.")
                : Words::tr("Il record c'è e si legge, ma il server non ha un indirizzo pubblico noto: "
                            "chiedere al fornitore se è compreso nel record."));
    if (autorizzati == indirizzi.size())
        return rigaSpf(Semaforo::Verde,
                       mittente.diretto
                           ? Words::tr("Il record autorizza l'indirizzo di questo computer.")
                           : Words::tr("Il record autorizza il server, per gli indirizzi che si conoscono."),
                       dettagli);
    if (mittente.diretto)
        return rigaSpf(
            vietati > 0 ? Semaforo::Rosso : Semaforo::Giallo,
            Words::tr("Il record non autorizza l'indirizzo di questo computer: aggiungerlo con ip4 o ip6."),
            dettagli);
    return rigaSpf(
        Semaforo::Giallo,
        autorizzati > 0
            ? Words::tr("Il record autorizza solo alcuni indirizzi del server: aggiungere gli altri, o "
                        "verificare con il fornitore da quali spedisce.")
            : Words::tr("Il record non autorizza gli indirizzi noti del server: se il fornitore non spedisce "
                        "da altri, aggiungere al record la riga che lui indica."),
        dettagli);
}
