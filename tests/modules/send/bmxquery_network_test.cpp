// SPDX-License-Identifier: GPL-3.0-or-later
#include <sys/resource.h>

#include <QDir>

#include "modules/send/bmxquery_server.h"

namespace bmxquery_network_test {

using namespace std::chrono_literals;
using namespace testing_support;

namespace {

class MXNetwork : public MXLookup {};

qsizetype descrittori() {
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System).size();
}

TEST_F(MXNetwork, WithoutASocketTheResultIsEmpty) {
    server(1);
    // The sanitizer opens a descriptor when it meets the type of an object for the first time.
    fallimentoDi([] { throw Fallimento(1, QString()); });
    rlimit prima{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &prima), 0);
    const rlimit nessuna{0, prima.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &nessuna), 0);
    const Fallimento fallimento =
        fallimentoDi([] { EXPECT_EQ(MXQuery(QStringLiteral("libero.it")), QString()); });
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &prima), 0);
    EXPECT_EQ(fallimento.numero(), 0);
}

TEST_F(MXNetwork, QueryThatCannotBeSentIsTheThirdError) {
    server(1);
    // More than a datagram can contain.
    const QString lungo = QStringLiteral("aaaaaaa.").repeated(9000);
    aspettaFallimento(fallimentoDi([&] { MXQuery(lungo); }), "Problem sending MX query");
    aspettaFallimento(fallimentoDi([] { MXQuery(QString(256, u'a')); }), "Problem sending MX query");
}

TEST_F(MXNetwork, RefusalIsTheFourthErrorAtOnce) {
    const RefusingPort rifiuta;
    server(rifiuta.port());
    aspettaFallimento(fallimentoDi([] { MXQuery(QStringLiteral("libero.it")); }),
                      "Problem receiving MX query");
}

TEST_F(MXNetwork, SilenceIsTheFourthErrorAfterOneRepeat) {
    UdpResponder responder(silence);
    server(responder.port());
    reteDNS.attesa = 50ms;
    aspettaFallimento(fallimentoDi([] { MXQuery(QStringLiteral("libero.it")); }),
                      "Problem receiving MX query");
    const auto ricevuti = responder.received(2);
    ASSERT_EQ(ricevuti.size(), 2U);
    EXPECT_EQ(ricevuti[0].bytes, ricevuti[1].bytes);
}

TEST_F(MXNetwork, EmptyDatagramIsTheFourthError) {
    UdpResponder responder(always(""));
    server(responder.port());
    aspettaFallimento(fallimentoDi([] { MXQuery(QStringLiteral("libero.it")); }),
                      "Problem receiving MX query");
}

TEST_F(MXNetwork, LostReplyIsMadeGoodByTheRepeat) {
    UdpResponder responder([](const LoopbackSocket& socket, const std::vector<Datagram>& received) {
        if (received.size() == 2) socket.send(received.back().from, rispostaA(received.back(), "mail"));
    });
    server(responder.port());
    reteDNS.attesa = 1000ms;
    EXPECT_EQ(MXQuery(QStringLiteral("libero.it")), QStringLiteral("mail.libero.it"));
}

TEST_F(MXNetwork, FirstOfDoubledRepliesCounts) {
    UdpResponder responder([](const LoopbackSocket& socket, const std::vector<Datagram>& received) {
        socket.send(received.back().from, rispostaA(received.back(), "uno"));
        socket.send(received.back().from, rispostaA(received.back(), "due"));
    });
    server(responder.port());
    EXPECT_EQ(MXQuery(QStringLiteral("libero.it")), QStringLiteral("uno.libero.it"));
    EXPECT_EQ(MXQuery(QStringLiteral("virgilio.it")), QStringLiteral("uno.virgilio.it"));
}

TEST_F(MXNetwork, LateReplyDoesNotReachTheNextLookup) {
    // Silent to the first look-up and its repeat; answers both when the second one comes, the late reply
    // first.
    UdpResponder responder([](const LoopbackSocket& socket, const std::vector<Datagram>& received) {
        if (received.size() != 3) return;
        socket.send(received[0].from, rispostaA(received[0], "tardi"));
        socket.send(received[2].from, rispostaA(received[2], "mail"));
    });
    server(responder.port());
    reteDNS.attesa = 50ms;
    aspettaFallimento(fallimentoDi([] { MXQuery(QStringLiteral("libero.it")); }),
                      "Problem receiving MX query");
    responder.received(2);
    reteDNS.attesa = senzaFine;
    EXPECT_EQ(MXQuery(QStringLiteral("virgilio.it")), QStringLiteral("mail.virgilio.it"));
}

TEST_F(MXNetwork, DatagramOfAStrangerIsNotHeard) {
    const LoopbackSocket estraneo;
    UdpResponder responder([&](const LoopbackSocket& socket, const std::vector<Datagram>& received) {
        estraneo.send(received.back().from, rispostaA(received.back(), "falso"));
        socket.send(received.back().from, rispostaA(received.back(), "mail"));
    });
    server(responder.port());
    EXPECT_EQ(MXQuery(QStringLiteral("libero.it")), QStringLiteral("mail.libero.it"));
}

TEST_F(MXNetwork, CutReplyIsReadOnIntoZeros) {
    // Cut after the first label of the exchanger.
    UdpResponder responder([](const LoopbackSocket& socket, const std::vector<Datagram>& received) {
        socket.send(received.back().from, rispostaA(received.back(), "mail").chopped(2));
    });
    server(responder.port());
    EXPECT_EQ(MXQuery(QStringLiteral("libero.it")), QStringLiteral("mail"));
}

TEST_F(MXNetwork, ReplyShorterThanItsHeaderHasNoAnswers) {
    UdpResponder responder(always("\x11\xDF"));
    server(responder.port());
    EXPECT_EQ(MXQuery(QStringLiteral("libero.it")), QString());
}

TEST_F(MXNetwork, PointerLoopEndsTheLookup) {
    UdpResponder responder([](const LoopbackSocket& socket, const std::vector<Datagram>& received) {
        QByteArray risposta = rispostaA(received.back(), "mail");
        risposta.chop(1);
        socket.send(received.back().from, risposta + static_cast<char>(risposta.size() - 1));
    });
    server(responder.port());
    bestMX = QStringLiteral("earlier");
    EXPECT_EQ(fallimentoDi([] { MXQuery(QStringLiteral("libero.it")); }).numero(), indiceOltre);
    EXPECT_EQ(bestMX, QString());
}

TEST_F(MXNetwork, SocketsAreClosedHoweverALookupEnds) {
    UdpResponder responder(unServer("mail"));
    const RefusingPort rifiuta;
    server(responder.port());
    const qsizetype prima = descrittori();
    MXQuery(QStringLiteral("libero.it"));
    EXPECT_EQ(descrittori(), prima);
    reteDNS.porta = rifiuta.port();
    fallimentoDi([] { MXQuery(QStringLiteral("libero.it")); });
    EXPECT_EQ(descrittori(), prima);
    dnsServers[0].clear();
    MXQuery(QStringLiteral("libero.it"));
    EXPECT_EQ(descrittori(), prima);
}

}  // namespace

}  // namespace bmxquery_network_test
