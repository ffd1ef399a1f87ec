// SPDX-License-Identifier: GPL-3.0-or-later
#include <QTemporaryDir>

#include "modules/send/bmxquery_server.h"

namespace bmxquery_lookup_test {

using namespace testing_support;

namespace {

TEST_F(MXLookup, DatagramIsTheQueryWithOneSpareByte) {
    UdpResponder responder(unServer("mail"));
    server(responder.port());
    EXPECT_EQ(MXQuery(QStringLiteral("libero.it")), QStringLiteral("mail.libero.it"));
    const auto ricevuti = responder.received(1);
    ASSERT_EQ(ricevuti.size(), 1U);
    EXPECT_EQ(ricevuti[0].bytes.size(), 28);
    EXPECT_EQ(ricevuti[0].bytes.chopped(1),
              QByteArray::fromHex("11df01000001000000000000066c696265726f02697400000f0001"));
}

TEST_F(MXLookup, ResultStaysInTheState) {
    UdpResponder responder(unServer("mail"));
    server(responder.port());
    MXQuery(QStringLiteral("libero.it"));
    EXPECT_EQ(bestMX, QStringLiteral("mail.libero.it"));
    EXPECT_EQ(queryDomain, QStringLiteral("libero.it"));
    EXPECT_EQ(elencoMX(), (ElencoMX{{QStringLiteral("mail.libero.it"), 10}}));
    EXPECT_EQ(mxCount, 1);
}

TEST_F(MXLookup, RepliesReturnTheirBestExchanger) {
    for (const QJsonValue caso : vectorsOf(QStringLiteral("mx/replies.json"))) {
        SCOPED_TRACE(caso[QStringLiteral("name")].toString().toStdString());
        UdpResponder responder(always(esadecimale(caso[QStringLiteral("reply_hex")])));
        server(responder.port());
        const QString atteso = caso[QStringLiteral("expect")][QStringLiteral("bestMX")].toString();
        EXPECT_EQ(MXQuery(QStringLiteral("libero.it")), atteso);
        EXPECT_EQ(bestMX, atteso);
    }
}

TEST_F(MXLookup, WalksGoUpToTheBaseDomain) {
    const QTemporaryDir cartella;
    for (const QJsonValue caso : vectorsOf(QStringLiteral("mx/walks.json"))) {
        SCOPED_TRACE(caso[QStringLiteral("name")].toString().toStdString());
        const QJsonObject risposte = caso[QStringLiteral("replies_hex")].toObject();
        UdpResponder responder([&](const LoopbackSocket& socket, const std::vector<Datagram>& received) {
            socket.send(received.back().from, esadecimale(risposte[dominioDi(received.back())]));
        });
        const QJsonObject stato = caso[QStringLiteral("state")].toObject();
        dnsServers.clear();
        for (const QJsonValue indirizzo : stato[QStringLiteral("dnsServers")].toArray())
            dnsServers.append(indirizzo.toString());
        dnsCount = static_cast<int>(dnsServers.size());
        dnsDomain = stato[QStringLiteral("dnsDomain")].toString();
        dnsBaseDomain = stato[QStringLiteral("dnsBaseDomain")].toString();
        reteDNS.porta = responder.port();
        reteDNS.configurazione = cartella.filePath(QStringLiteral("none"));

        QString risultato;
        const Fallimento fallimento =
            fallimentoDi([&] { risultato = MXQuery(caso[QStringLiteral("domain")].toString()); });
        if (caso[QStringLiteral("raises")].isNull()) {
            EXPECT_EQ(fallimento.numero(), 0);
        } else {
            aspettaFallimento(fallimento, caso[QStringLiteral("raises")].toString().toLatin1().constData());
        }
        EXPECT_EQ(risultato, caso[QStringLiteral("result")].toString());
        EXPECT_EQ(bestMX, caso[QStringLiteral("bestMX")].toString());
        const QJsonArray attesi = caso[QStringLiteral("queries")].toArray();
        EXPECT_EQ(
            QJsonArray::fromStringList(dominiDi(responder.received(static_cast<size_t>(attesi.size())))),
            attesi);
    }
}

TEST_F(MXLookup, WalkEndsWhereAnExchangerIsFound) {
    UdpResponder responder([](const LoopbackSocket& socket, const std::vector<Datagram>& received) {
        if (received.size() < 2) {
            nessuno(socket, received);
        } else {
            socket.send(received.back().from, rispostaA(received.back(), "mx"));
        }
    });
    server(responder.port());
    dnsBaseDomain = QStringLiteral("example.org");
    EXPECT_EQ(MXQuery(QStringLiteral("x.b.example.org")), QStringLiteral("mx.b.example.org"));
    EXPECT_EQ(queryDomain, QStringLiteral("b.example.org"));
    EXPECT_EQ(responder.received(2).size(), 2U);
}

TEST_F(MXLookup, BaseDomainIsComparedExactly) {
    UdpResponder responder(nessuno);
    server(responder.port());
    dnsBaseDomain = QStringLiteral("example.org");
    EXPECT_EQ(MXQuery(QStringLiteral("x.EXAMPLE.org")), QString());
    EXPECT_EQ(responder.received(1).size(), 1U);
}

TEST_F(MXLookup, WithoutABaseDomainThereIsNoWalk) {
    UdpResponder responder(nessuno);
    server(responder.port());
    EXPECT_EQ(MXQuery(QStringLiteral("x.example.org")), QString());
    EXPECT_EQ(responder.received(1).size(), 1U);
}

TEST_F(MXLookup, DomainWithoutAPointIsNotWalkedFurther) {
    UdpResponder responder(nessuno);
    server(responder.port());
    dnsBaseDomain = QStringLiteral("office");
    EXPECT_EQ(MXQuery(QStringLiteral("myoffice")), QString());
    EXPECT_EQ(responder.received(1).size(), 1U);
}

TEST_F(MXLookup, NothingFoundLeavesOneEmptyRecordThatDoesNotCount) {
    UdpResponder responder(nessuno);
    server(responder.port());
    bestMX = QStringLiteral("earlier");
    mxCount = 3;
    EXPECT_EQ(MXQuery(QStringLiteral("libero.it")), QString());
    EXPECT_EQ(bestMX, QString());
    EXPECT_EQ(mxCount, 0);
    EXPECT_EQ(elencoMX(), (ElencoMX{{QString(), 0}}));
}

TEST_F(MXLookup, EmptyDomainIsTheOwnOne) {
    UdpResponder responder(unServer("mail"));
    server(responder.port());
    dnsDomain = QStringLiteral("ufficio.example.it");
    EXPECT_EQ(MXQuery(QString()), QStringLiteral("mail.ufficio.example.it"));
}

TEST_F(MXLookup, DomainOfLessThanFiveCharactersIsRefusedBeforeAsking) {
    UdpResponder responder(unServer("mail"));
    server(responder.port());
    bestMX = QStringLiteral("earlier");
    aspettaFallimento(fallimentoDi([] { MXQuery(QStringLiteral("a.it")); }), "No Valid Domain Specified");
    aspettaFallimento(fallimentoDi([] { MXQuery(QString()); }), "No Valid Domain Specified");
    EXPECT_EQ(bestMX, QString());
    MXQuery(QStringLiteral("ab.it"));
    EXPECT_EQ(dominiDi(responder.received(1)), QStringList(QStringLiteral("ab.it")));
}

TEST_F(MXLookup, AddressWithoutAnAtIsAskedForAsAWhole) {
    UdpResponder responder(unServer("mail"));
    server(responder.port());
    MXQuery(DominioDi(QStringLiteral("mario rossi")));
    EXPECT_EQ(dominiDi(responder.received(1)), QStringList(QStringLiteral("mario rossi")));
}

TEST_F(MXLookup, EveryLookupAsksAgain) {
    UdpResponder responder(unServer("mail"));
    server(responder.port());
    MXQuery(QStringLiteral("libero.it"));
    MXQuery(QStringLiteral("libero.it"));
    EXPECT_EQ(responder.received(2).size(), 2U);
}

TEST_F(MXLookup, ServersAreSoughtUntilFoundAndThenKept) {
    UdpResponder responder(unServer("mail"));
    const QTemporaryDir cartella;
    reteDNS.porta = responder.port();
    reteDNS.configurazione = cartella.filePath(QStringLiteral("resolv.conf"));
    aspettaFallimento(fallimentoDi([] { MXQuery(QStringLiteral("libero.it")); }),
                      "No DNS entries found, MX Query cannot contine.");
    writeBytes(reteDNS.configurazione, "nameserver 127.0.0.1\ndomain example.it\n");
    EXPECT_EQ(MXQuery(QStringLiteral("libero.it")), QStringLiteral("mail.libero.it"));
    writeBytes(reteDNS.configurazione, "nameserver 192.0.2.1\ndomain example.com\n");
    EXPECT_EQ(MXQuery(QStringLiteral("libero.it")), QStringLiteral("mail.libero.it"));
    EXPECT_EQ(dnsServers, QStringList(QStringLiteral("127.0.0.1")));
    EXPECT_EQ(dnsDomain, QStringLiteral("example.it"));
}

TEST_F(MXLookup, OnlyTheFirstServerIsAsked) {
    UdpResponder responder(unServer("mail"));
    server(responder.port());
    dnsServers.prepend(QString());
    dnsCount = 2;
    EXPECT_EQ(MXQuery(QStringLiteral("libero.it")), QString());
    EXPECT_EQ(bestMX, QString());
    EXPECT_TRUE(responder.received().empty());
}

TEST_F(MXLookup, ServerMayBeAHostName) {
    UdpResponder responder(unServer("mail"));
    server(responder.port());
    dnsServers[0] = QStringLiteral("localhost");
    EXPECT_EQ(MXQuery(QStringLiteral("libero.it")), QStringLiteral("mail.libero.it"));
}

}  // namespace

}  // namespace bmxquery_lookup_test
