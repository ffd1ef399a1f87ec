// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/DominioMittente.h"

#include <algorithm>
#include <optional>

#include "platform/text/Words.h"

namespace {

using dns::Answer;
using dns::Question;
using dns::Type;

RigaControllo rigaDominio(const QString& controllo, Semaforo semaforo, const QString& frase,
                          const QStringList& dettagli = {}) {
    return {controllo, semaforo, frase, dettagli};
}

const Answer* nota(const Risposte& risposte, const Question& domanda) {
    const auto trovata = risposte.find(domanda);
    return trovata == risposte.end() ? nullptr : &trovata->second;
}

QStringList elencoIndirizzi(const QList<QHostAddress>& indirizzi) {
    QStringList testi;
    for (const QHostAddress& uno : indirizzi)
        testi.append(uno.toString());
    return testi;
}

RigaControllo rigaRicercaFallita(const QString& controllo, const Question& domanda, const Answer& risposta) {
    return rigaDominio(controllo, Semaforo::Giallo, FraseRicercaFallita(domanda.name, risposta));
}

}  // namespace

QString FraseRicercaFallita(const QByteArray& nome, const Answer& risposta) {
    return Words::tr("Ricerca di %1 nel DNS non riuscita: %2. Riprovare più tardi.")
        .arg(Mostrabile(nome), risposta.why);
}

QString FraseRicercaFallita(const QByteArray& nome, const Risposte& risposte) {
    const auto fallita = std::ranges::find_if(
        risposte, [&](const auto& una) { return una.first.name == nome && una.second.failed(); });
    return FraseRicercaFallita(nome, fallita == risposte.end() ? Answer() : fallita->second);
}

RigaODomanda RigaMX(const DominioMittente& mittente, const Risposte& risposte) {
    const QString controllo = Words::tr("Posta in arrivo (MX)");
    const Question domanda{mittente.dominio, Type::Mx};
    const Answer* const mx = nota(risposte, domanda);
    if (!mx) return domanda;
    if (mx->failed()) return rigaRicercaFallita(controllo, domanda, *mx);
    if (mx->kind == Answer::Kind::NoName)
        return rigaDominio(
            controllo, Semaforo::Rosso,
            Words::tr("Il dominio non esiste nel DNS: correggere l'indirizzo dell'account o registrare "
                      "il dominio."));
    if (mx->kind == Answer::Kind::NoRecords)
        return rigaDominio(
            controllo, Semaforo::Giallo,
            Words::tr("Il dominio non ha un record MX: pubblicarne uno, perché risposte e avvisi di "
                      "mancata consegna arrivino."));
    auto elencati = mx->exchangers.mid(0, 10);
    std::stable_sort(
        elencati.begin(), elencati.end(),
        [](const dns::Exchanger& uno, const dns::Exchanger& due) { return uno.preference < due.preference; });
    QStringList dettagli;
    bool raggiungibile = false;
    std::optional<Question> fallita;
    for (const dns::Exchanger& uno : elencati) {
        if (uno.host.isEmpty()) continue;
        QStringList indirizzi;
        for (const Type tipo : {Type::A, Type::Aaaa}) {
            const Question indirizzo{uno.host, tipo};
            const Answer* const risposta = nota(risposte, indirizzo);
            if (!risposta) return indirizzo;
            if (risposta->failed()) fallita = indirizzo;
            raggiungibile = raggiungibile || !risposta->addresses.isEmpty();
            indirizzi += elencoIndirizzi(risposta->addresses);
        }
        dettagli.append(QStringLiteral("%1 %2: %3")
                            .arg(QString::number(uno.preference), Mostrabile(uno.host),
                                 indirizzi.isEmpty() ? Words::tr("nessun indirizzo") : indirizzi.join(", ")));
    }
    if (dettagli.isEmpty())
        return rigaDominio(
            controllo, Semaforo::Rosso,
            Words::tr("Il dominio dichiara di non ricevere posta (MX nullo): molti server rifiutano i "
                      "messaggi di un mittente a cui non si può rispondere."));
    if (!raggiungibile && fallita) return rigaRicercaFallita(controllo, *fallita, risposte.at(*fallita));
    if (!raggiungibile)
        return rigaDominio(controllo, Semaforo::Rosso,
                           Words::tr("Nessun server del record MX ha un indirizzo: correggere il record."),
                           dettagli);
    return rigaDominio(controllo, Semaforo::Verde, Words::tr("Il dominio riceve posta."), dettagli);
}

RigaODomanda RigaIndirizzo(const DominioMittente& mittente, const Risposte& risposte) {
    const QString controllo = Words::tr("Indirizzo del dominio (A)");
    QList<QHostAddress> indirizzi;
    for (const Type tipo : {Type::A, Type::Aaaa}) {
        const Question domanda{mittente.dominio, tipo};
        const Answer* const risposta = nota(risposte, domanda);
        if (!risposta) return domanda;
        if (risposta->failed()) return rigaRicercaFallita(controllo, domanda, *risposta);
        indirizzi += risposta->addresses;
    }
    if (!indirizzi.isEmpty())
        return rigaDominio(controllo, Semaforo::Verde, Words::tr("Il dominio ha un indirizzo."),
                           elencoIndirizzi(indirizzi));
    const Question domanda{mittente.dominio, Type::Mx};
    const Answer* const mx = nota(risposte, domanda);
    if (!mx) return domanda;
    if (mx->failed()) return rigaRicercaFallita(controllo, domanda, *mx);
    if (mx->kind == Answer::Kind::Records)
        return rigaDominio(
            controllo, Semaforo::Verde,
            Words::tr("Il dominio non ha un indirizzo suo, e non gli serve: ha un record MX."));
    return rigaDominio(
        controllo, Semaforo::Rosso,
        Words::tr("Il dominio non ha né un record MX né un indirizzo: molti server rifiutano i suoi "
                  "messaggi; pubblicare un record MX."));
}

RigaODomanda RigaNomeInverso(const DominioMittente& mittente, const Risposte& risposte) {
    const QString controllo = Words::tr("Nome inverso di questo computer");
    if (mittente.questoComputer.isEmpty())
        return rigaDominio(
            controllo, Semaforo::Giallo,
            Words::tr("L'indirizzo pubblico di questo computer non si può conoscere da qui: verificare "
                      "con il fornitore di rete che abbia un nome inverso."));
    QStringList dettagli;
    bool tutti = true;
    for (const QHostAddress& indirizzo : mittente.questoComputer) {
        const Question inversa{dns::reverseName(indirizzo), Type::Ptr};
        const Answer* const nomi = nota(risposte, inversa);
        if (!nomi) return inversa;
        if (nomi->failed()) return rigaRicercaFallita(controllo, inversa, *nomi);
        QString confermato;
        std::optional<Question> fallita;
        for (const QByteArray& nome : nomi->names.mid(0, 10)) {
            const bool ipv4 = indirizzo.protocol() == QAbstractSocket::IPv4Protocol;
            const Question diretta{nome, ipv4 ? Type::A : Type::Aaaa};
            const Answer* const indietro = nota(risposte, diretta);
            if (!indietro) return diretta;
            if (indietro->failed()) fallita = diretta;
            if (indietro->addresses.contains(indirizzo)) confermato = Mostrabile(nome);
        }
        if (confermato.isEmpty() && fallita)
            return rigaRicercaFallita(controllo, *fallita, risposte.at(*fallita));
        tutti = tutti && !confermato.isEmpty();
        dettagli.append(indirizzo.toString() + ": " +
                        (!confermato.isEmpty()   ? confermato
                         : nomi->names.isEmpty() ? Words::tr("nessun nome")
                                                 : Mostrabile(nomi->names.front()) +
                                                       Words::tr(", che non riporta a questo indirizzo")));
    }
    if (tutti)
        return rigaDominio(controllo, Semaforo::Verde, Words::tr("Nome e indirizzo si confermano."),
                           dettagli);
    return rigaDominio(
        controllo, Semaforo::Rosso,
        Words::tr("Chiedere al fornitore di rete un nome inverso che riporti allo stesso indirizzo: senza, "
                  "molti server rifiutano l'invio diretto."),
        dettagli);
}
