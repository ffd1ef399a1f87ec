// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/send/bMXQuery.h"

#include <optional>
#include <QSet>
#include <utility>

#include "modules/core/Fallimento.h"
#include "platform/dns/HostLookup.h"
#include "platform/text/AnsiCodec.h"
#include "platform/text/Blanks.h"

namespace {

constexpr qsizetype caratteriDominio = 5;   // a shorter domain is refused
constexpr qsizetype caratteriNome = 256;    // room for the name of a host
constexpr qsizetype posizioneRisposte = 6;  // of the number of answers in a reply
constexpr qsizetype posizioneDomanda = 12;  // of the question, after the header

/// The domains about which the server was silent in this run, in lower case.
QSet<QString>& dominiMuti() {
    static QSet<QString> muti;
    return muti;
}

/// On the way up to the parent domains a temporary reason is kept: the domain itself may be reachable later.
void NotaMotivo(MotivoMX motivo) {
    if (!MotivoTemporaneo(motivoMX)) motivoMX = motivo;
}

[[noreturn]] void fallisciMX(MotivoMX motivo, const QString& testo) {
    NotaMotivo(motivo);
    fallisci(erroreMX, testo, QStringLiteral("MXQuery"));
}

// inet_addr, and for a text that is no address the system's own look-up.
std::optional<std::uint32_t> IndirizzoIP(const QString& host) {
    const std::optional<std::uint32_t> indirizzo = dns::addressFromText(host);
    return indirizzo ? indirizzo : dns::addressOfHost(host);
}

// One query for queryDomain: the buffer with the reply, or none without a socket or an address of the server.
std::optional<QByteArray> Interroga() {
    const QString dominio = queryDomain.toLower();
    const bool muto = dominiMuti().contains(dominio);
    dns::UdpQuery query(muto ? reteDNS.attesaBreve : reteDNS.attesa, muto ? 1 : 2);
    if (!query.isOpen()) return std::nullopt;
    const std::optional<std::uint32_t> server = IndirizzoIP(dnsServers.at(0));
    if (!server) return std::nullopt;
    if (!query.send(*server, reteDNS.porta, ComponiQuery(queryDomain)).ok()) {
        fallisciMX(MotivoMX::NonInterrogato, QStringLiteral("Problem sending MX query"));
    }
    Result<QByteArray> risposta = query.receive(dimensioneRisposta);
    const bool silenzio = risposta.status().code() == ErrorCode::Timeout;
    if (silenzio)
        dominiMuti().insert(dominio);
    else
        dominiMuti().remove(dominio);
    if (!risposta.ok() || risposta.value().isEmpty())
        fallisciMX(silenzio ? MotivoMX::Silenzio : MotivoMX::NonInterrogato,
                   QStringLiteral("Problem receiving MX query"));
    return std::move(risposta).value().leftJustified(dimensioneRisposta, '\0');
}

}  // namespace

QString DominioDi(const QString& indirizzo) {
    return text::trimBlanks(QStringView(indirizzo).mid(indirizzo.indexOf(u'@') + 1)).toString();
}

void NuovoGiroMX() {
    dominiMuti().clear();
}

QString MXQuery(QString domain) {
    motivoMX = MotivoMX::Nessuno;
    for (;;) {
        mxCount = 0;
        bestMX.clear();
        mxList.assign(1, {});
        if (dnsCount == 0) TrovaDNS();
        if (dnsCount == 0)
            fallisciMX(MotivoMX::SenzaDNS, QStringLiteral("No DNS entries found, MX Query cannot contine."));
        if (domain.isEmpty()) domain = dnsDomain;
        if (domain.size() < caratteriDominio)
            fallisciMX(MotivoMX::NonValido, QStringLiteral("No Valid Domain Specified"));
        queryDomain = domain;

        const std::optional<QByteArray> risposta = Interroga();
        if (!risposta) {
            NotaMotivo(MotivoMX::NonInterrogato);
            return {};
        }
        NotaMotivo(MotivoDiRisposta(*risposta));
        qsizetype posizione = posizioneRisposte;
        const std::uint16_t risposte = LeggiParola(*risposta, posizione);
        if (risposte != 0) {
            LeggiRisposta(*risposta, posizioneDomanda, risposte);
            if (!bestMX.isEmpty()) motivoMX = MotivoMX::Nessuno;
            return bestMX;
        }

        // No exchanger: below the own base domain the parent is asked.
        const qsizetype punto = queryDomain.indexOf(u'.');
        if (queryDomain.indexOf(dnsBaseDomain) <= 0 || punto < 0) return {};
        queryDomain.remove(0, punto + 1);
        domain = queryDomain;
    }
}

void TrovaDNS() {
    const dns::ResolverConfig configurazione = dns::readResolverConfig(reteDNS.configurazione);
    ImpostaDNS(configurazione.servers.join(u','), configurazione.domain);
}

QString TagliaNul(const QString& testo) {
    const qsizetype nul = testo.indexOf(QChar(0));
    return nul < 0 ? testo : text::trimBlanks(QStringView(testo).left(nul)).toString();
}

QString NomeDaIP(const QString& indirizzo) {
    const std::optional<std::uint32_t> numero = dns::addressFromText(indirizzo);
    if (!numero) return {};
    const QByteArray nome = dns::nameOfAddress(*numero).leftJustified(caratteriNome, '\0', true);
    return TagliaNul(text::fromAnsi(nome));
}

void ImpostaDNS(QString lista, QString dominio, const std::function<QString(const QString&)>& nome) {
    lista.replace(u' ', u',');
    if (lista.endsWith(u',')) lista.chop(1);
    dnsServers = lista.isEmpty() ? QStringList() : lista.split(u',');
    dnsCount = static_cast<int>(dnsServers.size());
    dnsDomain = dominio;
    if (dominio.isEmpty() && dnsCount > 0) {
        dominio = nome(dnsServers.at(0));
        const qsizetype punto = dominio.indexOf(u'.');
        if (punto >= 0) dnsDomain = dominio.mid(punto + 1);
    }
    dnsBaseDomain = dominio.section(u'.', -2);
}
