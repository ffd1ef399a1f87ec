// SPDX-License-Identifier: GPL-3.0-or-later
// The lines of DKIM and DMARC.
#include "modules/strumenti/DominioMittente_spf.h"
#include "platform/policy/DkimRecord.h"
#include "platform/policy/DmarcRecord.h"
#include "platform/policy/OrganizationalDomain.h"
#include "platform/text/Words.h"

using policy::dmarc::Finding;
using policy::dmarc::Policy;

namespace {

RigaControllo rigaDkim(Semaforo semaforo, const QString& frase, const QStringList& dettagli = {}) {
    return {Words::tr("Firma DKIM"), semaforo, frase, dettagli};
}

RigaControllo rigaDmarc(Semaforo semaforo, const QString& frase, const QStringList& dettagli = {}) {
    return {QStringLiteral("DMARC"), semaforo, frase, dettagli};
}

/// What is wrong with a record that was read; empty: nothing.
QString difettoDi(const policy::DkimRecord& record, const mail::DkimKey& chiave) {
    if (record.key.isEmpty())
        return Words::tr("Il record dichiara la chiave ritirata (p= vuoto): pubblicare quella nuova.");
    if (record.keyType != "rsa" || !mail::isSameKey(chiave.publicKey, record.key))
        return Words::tr(
            "Il record pubblicato è di un'altra chiave, e le firme non valgono: pubblicare "
            "il record della chiave di questo programma.");
    if (!record.takesSha256) return Words::tr("Il record non ammette SHA-256: togliere il campo h=.");
    if (!record.forMail) return Words::tr("Il record non vale per la posta: togliere il campo s=.");
    return {};
}

/// Whether SPF passes for every address that is known, or none where it cannot be known.
std::variant<std::optional<bool>, dns::Question> spfPassa(const DominioMittente& mittente,
                                                          const Risposte& risposte) {
    const auto partenza = IndirizziDiPartenza(mittente, risposte);
    if (const auto* domanda = std::get_if<dns::Question>(&partenza)) return *domanda;
    auto indirizzi = std::get<QList<QHostAddress>>(partenza);
    const bool ignoti = indirizzi.isEmpty();
    if (ignoti) indirizzi.append(IndirizzoDiNessuno());
    for (const QHostAddress& indirizzo : indirizzi) {
        const auto passo = EsitoSpf(mittente, indirizzo, risposte);
        if (const auto* domanda = std::get_if<dns::Question>(&passo)) return *domanda;
        const auto& esito = std::get<policy::spf::Verdict>(passo);
        if (esito.result == policy::spf::Result::TempError) return std::optional<bool>();
        if (SenzaEsito(esito) || (!ignoti && esito.result != policy::spf::Result::Pass))
            return std::optional<bool>(false);
    }
    return ignoti ? std::nullopt : std::optional<bool>(true);
}

QString nomeDi(Policy cosa) {
    return cosa == Policy::Reject ? "reject" : cosa == Policy::Quarantine ? "quarantine" : "none";
}

QStringList dettagliDmarc(const DominioMittente& mittente, const Finding& trovato,
                          const std::optional<bool>& spf, bool dkim) {
    const auto& record = trovato.record;
    const auto modo = [&](bool stretto) {
        const bool allineato = policy::isAligned(mittente.dominio, mittente.dominio, stretto);
        return QStringLiteral("%1, %2").arg(stretto ? Words::tr("stretto") : Words::tr("rilassato"),
                                            allineato ? Words::tr("allineato") : Words::tr("non allineato"));
    };
    return {Words::tr("Record di %1, p=%2 per questo dominio, %3 % dei messaggi")
                .arg(Mostrabile(trovato.domain), nomeDi(trovato.applied), QString::number(record.percent)),
            Words::tr("SPF: %1 (%2)")
                .arg(modo(record.strictSpf), !spf   ? Words::tr("non si può sapere")
                                             : *spf ? Words::tr("passa")
                                                    : Words::tr("non passa")),
            Words::tr("DKIM: %1 (%2)")
                .arg(modo(record.strictDkim), dkim ? Words::tr("passa") : Words::tr("non passa")),
            record.reportsTo.isEmpty() ? Words::tr("Nessun rapporto richiesto")
                                       : Words::tr("Rapporti a %1").arg(Mostrabile(record.reportsTo))};
}

RigaControllo giudicaDmarc(const DominioMittente& mittente, const Finding& trovato,
                           const std::optional<bool>& spf, bool dkim) {
    const QStringList dettagli = dettagliDmarc(mittente, trovato, spf, dkim);
    const bool chiede = trovato.applied != Policy::None && trovato.record.percent > 0;
    if (chiede && !dkim && spf == false)
        return rigaDmarc(
            Semaforo::Rosso,
            Words::tr("Con p=%1 i messaggi sono %2, perché non passano né SPF né DKIM: "
                      "correggere prima quelle righe.")
                .arg(nomeDi(trovato.applied), trovato.applied == Policy::Reject
                                                  ? Words::tr("rifiutati")
                                                  : Words::tr("messi fra la posta indesiderata")),
            dettagli);
    if (!dkim && !spf)
        return rigaDmarc(
            Semaforo::Giallo,
            Words::tr("Se SPF passa non si può sapere da qui: firmare con DKIM, perché DMARC passi in ogni "
                      "caso."),
            dettagli);
    if (!dkim && spf == false)
        return rigaDmarc(
            Semaforo::Giallo,
            Words::tr("Il record osserva soltanto, e per ora non passano né SPF né DKIM: correggere quelle "
                      "righe."),
            dettagli);
    if (!chiede)
        return rigaDmarc(
            Semaforo::Giallo,
            Words::tr("Il record osserva soltanto (p=none): quando i rapporti sono buoni, passare a "
                      "p=quarantine."),
            dettagli);
    return rigaDmarc(Semaforo::Verde, Words::tr("Il record protegge il dominio, e i messaggi lo rispettano."),
                     dettagli);
}

}  // namespace

RigaODomanda RigaDkim(const DominioMittente& mittente, const Risposte& risposte) {
    if (!mittente.chiave.ok()) {
        const Status& perche = mittente.chiave.status();
        if (perche.code() != ErrorCode::FileNotFound) return rigaDkim(Semaforo::Rosso, perche.text());
        return rigaDkim(
            Semaforo::Giallo,
            mittente.diretto
                ? Words::tr("I messaggi partono senza firma: creare una chiave DKIM e pubblicarne il record.")
                : Words::tr("Il programma non firma i messaggi: se non lo fa il server del fornitore, creare "
                            "una chiave DKIM e pubblicarne il record."));
    }
    const mail::DkimKey& chiave = mittente.chiave.value();
    const dns::Question domanda{policy::dkimRecordName(chiave.selector, mittente.dominio), dns::Type::Txt};
    const auto trovata = risposte.find(domanda);
    if (trovata == risposte.end()) return domanda;
    const dns::Answer& risposta = trovata->second;
    const QString nome = Mostrabile(domanda.name);
    if (risposta.failed())
        return rigaDkim(Semaforo::Giallo, FraseRicercaFallita(domanda.name, risposta), {nome});
    if (risposta.texts.isEmpty())
        return rigaDkim(Semaforo::Rosso,
                        Words::tr("Il record della chiave manca: pubblicarlo con il nome %1.").arg(nome),
                        {nome});
    QStringList dettagli{nome};
    for (const QByteArray& testo : risposta.texts)
        dettagli.append(Mostrabile(testo));
    if (risposta.texts.size() > 1)
        return rigaDkim(Semaforo::Rosso,
                        Words::tr("Allo stesso nome ci sono più record: lasciarne uno solo."), dettagli);
    const auto record = policy::readDkimRecord(risposta.texts.front());
    if (!record)
        return rigaDkim(Semaforo::Rosso,
                        Words::tr("Il record non è una chiave DKIM valida: copiarlo di nuovo, intero."),
                        dettagli);
    if (const QString difetto = difettoDi(*record, chiave); !difetto.isEmpty())
        return rigaDkim(Semaforo::Rosso, difetto, dettagli);
    if (record->testing)
        return rigaDkim(
            Semaforo::Giallo,
            Words::tr("La chiave è pubblicata in prova (t=y): togliere il campo quando tutto funziona."),
            dettagli);
    return rigaDkim(Semaforo::Verde, Words::tr("La chiave pubblicata è quella con cui il programma firma."),
                    dettagli);
}

RigaODomanda RigaDmarc(const DominioMittente& mittente, const Risposte& risposte) {
    const auto passo = policy::dmarc::find(mittente.dominio, risposte);
    if (const auto* domanda = std::get_if<dns::Question>(&passo)) return *domanda;
    const auto& trovato = std::get<Finding>(passo);
    const QString nome = QStringLiteral("_dmarc.") + Mostrabile(trovato.domain);
    switch (trovato.kind) {
        case Finding::Kind::NoAnswer:
            return rigaDmarc(Semaforo::Giallo, FraseRicercaFallita("_dmarc." + trovato.domain, risposte));
        case Finding::Kind::None:
            return rigaDmarc(Semaforo::Giallo,
                             Words::tr("Pubblicare un record DMARC con il nome %1, per esempio "
                                       "\"v=DMARC1; p=none; rua=mailto:%2\".")
                                 .arg(nome, Mostrabile(mittente.indirizzo)));
        case Finding::Kind::Several:
            return rigaDmarc(
                Semaforo::Rosso,
                Words::tr("%1 ha più di un record DMARC e nessuno vale: lasciarne uno solo.").arg(nome));
        case Finding::Kind::Invalid:
            return rigaDmarc(Semaforo::Rosso,
                             Words::tr("Il record DMARC di %1 non vale: manca il campo p= con none, "
                                       "quarantine o reject.")
                                 .arg(nome));
        case Finding::Kind::Found:
            break;
    }
    const auto spf = spfPassa(mittente, risposte);
    if (const auto* domanda = std::get_if<dns::Question>(&spf)) return *domanda;
    const auto dkim = RigaDkim(mittente, risposte);
    if (const auto* domanda = std::get_if<dns::Question>(&dkim)) return *domanda;
    return giudicaDmarc(mittente, trovato, std::get<std::optional<bool>>(spf),
                        std::get<RigaControllo>(dkim).semaforo == Semaforo::Verde);
}
