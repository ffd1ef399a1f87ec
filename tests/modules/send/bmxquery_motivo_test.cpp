// SPDX-License-Identifier: GPL-3.0-or-later
// Why a look-up found no exchanger, and how long it waits for a silent name server.
#include "modules/send/bmxquery_server.h"

namespace bmxquery_motivo_test {

using namespace std::chrono_literals;
using namespace testing_support;

namespace {

const QString dominio = QStringLiteral("libero.it");

class MXMotivo : public MXLookup {};

/// A reply to the query with these flags and code, and these answers.
UdpResponder::Script risposta(const char* bandiere, int risposte = 0, const QByteArray& record = {}) {
    return [=](const LoopbackSocket& socket, const std::vector<Datagram>& received) {
        QByteArray reply = received.back().bytes.chopped(1);
        reply.replace(2, 2, QByteArray::fromHex(bandiere));
        reply[7] = static_cast<char>(risposte);
        socket.send(received.back().from, reply + record);
    };
}

const QByteArray puntatore = QByteArray::fromHex("c00c");
const QByteArray scritto = QByteArray("\x06") + "libero" + "\x02" + "it" + QByteArray(1, '\0');
const QByteArray tipoMX = QByteArray::fromHex("000f000100000e10");
const QByteArray alias = puntatore + QByteArray::fromHex("000500010000003c0007") + "\x04mail" + puntatore;
const QByteArray null = QByteArray::fromHex("0003000000");
const QByteArray mail = QByteArray::fromHex("0009000a") + "\x04mail" + puntatore;

struct Caso {
    const char* nome;
    UdpResponder::Script script;
    MotivoMX motivo;
    const char* parole;
};

class MXMotivoDi : public MXLookup, public testing::WithParamInterface<Caso> {};

TEST_P(MXMotivoDi, IsReportedAndTheResultStaysEmpty) {
    UdpResponder responder(GetParam().script);
    server(responder.port());
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(MXQuery(dominio), QString());
        EXPECT_EQ(motivoMX, GetParam().motivo);
        EXPECT_TRUE(TestoMotivo(motivoMX).contains(QString::fromUtf8(GetParam().parole)))
            << TestoMotivo(motivoMX).toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Replies, MXMotivoDi,
    testing::Values(Caso{"ServerFailure", risposta("8182"), MotivoMX::ErroreServer, "temporaneo"},
                    Caso{"Refused", risposta("8185"), MotivoMX::Rifiuto, "temporaneo"},
                    Caso{"Truncated", risposta("8380"), MotivoMX::Troncata, "non si può usare"},
                    Caso{"AliasFirst", risposta("8180", 2, alias + puntatore + tipoMX + mail),
                         MotivoMX::Alias, "CNAME"},
                    Caso{"NamesWrittenOut", risposta("8180", 1, scritto + tipoMX + mail),
                         MotivoMX::NonCompressa, "non sono compressi"},
                    Caso{"AddressInstead",
                         risposta("8180", 1, puntatore + QByteArray::fromHex("00010001000000000004c0000201")),
                         MotivoMX::AltraForma, "non si può usare"},
                    Caso{"NotImplemented", risposta("8184"), MotivoMX::AltraForma, "non si può usare"},
                    Caso{"NullExchanger", risposta("8180", 1, puntatore + tipoMX + null),
                         MotivoMX::SenzaPosta, "non accetta posta"},
                    Caso{"NullExchangerWrittenOut", risposta("8180", 1, scritto + tipoMX + null),
                         MotivoMX::SenzaPosta, "non accetta posta"},
                    Caso{"NoSuchDomain", risposta("8183"), MotivoMX::Inesistente, "NXDOMAIN"},
                    Caso{"NoAnswer", risposta("8180"), MotivoMX::Vuota, "non ha un server di posta"}),
    [](const auto& caso) { return caso.param.nome; });

TEST_F(MXMotivo, NoneWhereAnExchangerWasFound) {
    UdpResponder responder([](const LoopbackSocket& socket, const std::vector<Datagram>& received) {
        QByteArray reply = rispostaA(received.back(), "mail");
        if (received.size() == 1) reply = received.back().bytes.chopped(1).replace(3, 1, "\x02");
        if (received.size() == 3) reply[2] = '\x83';  // truncated, although there is an answer
        socket.send(received.back().from, reply);
    });
    server(responder.port());
    EXPECT_EQ(MXQuery(dominio), QString());
    EXPECT_EQ(motivoMX, MotivoMX::ErroreServer);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(MXQuery(dominio), QStringLiteral("mail.libero.it"));
        EXPECT_EQ(motivoMX, MotivoMX::Nessuno);
    }
    EXPECT_EQ(TestoMotivo(motivoMX), QString());
}

TEST_F(MXMotivo, FailuresBeforeAReplyHaveTheirsToo) {
    const auto motivoDi = [](const QString& domain) {
        EXPECT_NE(fallimentoDi([&] { MXQuery(domain); }).numero(), 0);
        return motivoMX;
    };
    const RefusingPort rifiuta;
    server(rifiuta.port());
    EXPECT_EQ(motivoDi(dominio), MotivoMX::NonInterrogato);
    EXPECT_EQ(motivoDi(QStringLiteral("x.it")), MotivoMX::NonValido);
    EXPECT_EQ(motivoDi(QString(256, u'a')), MotivoMX::NonValido);
    dnsServers[0].clear();
    EXPECT_EQ(MXQuery(dominio), QString());
    EXPECT_EQ(motivoMX, MotivoMX::NonInterrogato);
    dnsCount = 0;
    reteDNS.configurazione = QStringLiteral("/dev/null");
    EXPECT_EQ(motivoDi(dominio), MotivoMX::SenzaDNS);
}

TEST(MotivoMX, EachHasASentenceOfItsOwn) {
    QSet<QString> sentences;
    const int reasons = int(MotivoMX::Vuota) + 1;
    for (int i = 0; i < reasons; ++i)
        sentences.insert(TestoMotivo(static_cast<MotivoMX>(i)));
    EXPECT_EQ(sentences.size(), reasons);
    for (const MotivoMX motivo : {MotivoMX::NonInterrogato, MotivoMX::Silenzio, MotivoMX::ErroreServer})
        EXPECT_TRUE(TestoMotivo(motivo).contains("problema temporaneo")) << int(motivo);
}

TEST_F(MXMotivo, TemporaryOneOfAChildDomainStaysOnTheWayUp) {
    UdpResponder responder([](const LoopbackSocket& socket, const std::vector<Datagram>& received) {
        QByteArray reply = received.back().bytes.chopped(1);
        reply[3] = received.size() == 1 ? '\x82' : '\x83';
        socket.send(received.back().from, reply);
    });
    server(responder.port());
    dnsBaseDomain = QStringLiteral("example.org");
    EXPECT_EQ(MXQuery(QStringLiteral("a.example.org")), QString());
    EXPECT_EQ(dominiDi(responder.received(2)),
              (QStringList{QStringLiteral("a.example.org"), QStringLiteral("example.org")}));
    EXPECT_EQ(motivoMX, MotivoMX::ErroreServer);
}

TEST_F(MXMotivo, AnyBytesLeadToOne) {
    const QByteArray whole = QByteArray::fromHex("11df818000010001000000000000") + tipoMX + null;
    for (qsizetype size = 0; size <= whole.size(); ++size)
        EXPECT_NE(MotivoDiRisposta(whole.left(size)), MotivoMX::Nessuno);
    for (int fill = 0; fill < 256; ++fill)
        EXPECT_NE(MotivoDiRisposta(QByteArray(2048, static_cast<char>(fill))), MotivoMX::Nessuno);
    QByteArray loop = QByteArray::fromHex("11df8180ffff0001ffff0000c00c");
    EXPECT_EQ(MotivoDiRisposta(loop), MotivoMX::AltraForma);
}

TEST_F(MXMotivo, SilentDomainIsAskedOnceAndShortlyForTheRestOfTheRun) {
    UdpResponder responder(silence);
    server(responder.port());
    reteDNS.attesa = 20ms;
    reteDNS.attesaBreve = 20ms;
    const auto cerca = [](const char* domain) {
        aspettaFallimento(fallimentoDi([&] { MXQuery(QString::fromLatin1(domain)); }),
                          "Problem receiving MX query");
        EXPECT_EQ(motivoMX, MotivoMX::Silenzio);
    };
    EXPECT_EQ(ReteDNS().attesaBreve, 1000ms);
    for (const char* domain : {"libero.it", "Libero.it", "libero.it", "virgilio.it"})
        cerca(domain);
    NuovoGiroMX();
    cerca("libero.it");
    const QStringList asked = dominiDi(responder.received(8));
    EXPECT_EQ(asked.join(u' '),
              QStringLiteral("libero.it libero.it Libero.it libero.it virgilio.it virgilio.it "
                             "libero.it libero.it"));
}

TEST_F(MXMotivo, DomainThatAnswersAgainIsWaitedForInFullLength) {
    // Silent for the first look-up, then one answer, then silent again.
    UdpResponder responder([](const LoopbackSocket& socket, const std::vector<Datagram>& received) {
        if (received.size() == 3) socket.send(received.back().from, rispostaA(received.back(), "mail"));
    });
    server(responder.port());
    reteDNS.attesa = 20ms;
    reteDNS.attesaBreve = senzaFine;
    fallimentoDi([] { MXQuery(dominio); });
    EXPECT_EQ(MXQuery(dominio), QStringLiteral("mail.libero.it"));
    fallimentoDi([] { MXQuery(dominio); });
    EXPECT_EQ(responder.received(5).size(), 5U);
}

}  // namespace

}  // namespace bmxquery_motivo_test
