// SPDX-License-Identifier: GPL-3.0-or-later
// Real name servers, in a private network.
#include "platform/dns/Resolver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <QEventLoop>

#include "support/NameServer.h"
#include "support/PrivateNetwork.h"

namespace resolver_test {

using dns::Answer;
using dns::Type;
using testing_support::NameServer;

namespace {

const bool isolated = testing_support::enterPrivateNetwork(__FILE__);

QByteArray longText() {
    return QByteArray(250, 'a');
}

class RealNames : public testing::Test {
  protected:
    void SetUp() override {
        if (!isolated) GTEST_SKIP() << "the system allows no private network";
        ASSERT_TRUE(
            testing_support::replaceResolverConfiguration("search altrove.example\nnameserver 127.0.0.1\n"));
    }

    static Answer ask(const QByteArray& name, Type type) {
        dns::Resolver resolver;
        QEventLoop loop;
        Answer got;
        resolver.ask({name, type}, [&](const Answer& answer) {
            got = answer;
            loop.quit();
        });
        loop.exec();
        return got;
    }
};

NameServer::Records records() {
    QByteArrayList others{R"(Testi.example. TXT "v=spf1 " "-all")", "Testi.example. TXT \"altro\"",
                          "sei.example. AAAA 2001:db8::25",
                          "25.113.0.203.in-addr.arpa. PTR Posta.Uno.example.",
                          "solo.altrove.example. A 203.0.113.9"};
    QByteArray great = "grande.example. TXT";
    for (int i = 0; i < 20; ++i)
        great += " \"" + longText() + '"';
    others.append(great);
    return {{{"uno.example", 10, "Posta.Uno.example"}, {"uno.example", 20, "altra.uno.example"}},
            {{"posta.uno.example", "203.0.113.25"}, {"posta.uno.example", "203.0.113.26"}},
            {{"nome.uno.example", "posta.uno.example"}},
            others};
}

TEST_F(RealNames, EveryTypeIsAsked) {
    const NameServer server(NameServer::Program::Unbound, records());
    ASSERT_EQ(server.problem(), "");
    const Answer a = ask("posta.uno.example", Type::A);
    EXPECT_EQ(a.kind, Answer::Kind::Records);
    EXPECT_EQ(a.addresses.size(), 2);
    EXPECT_TRUE(a.addresses.contains(QHostAddress("203.0.113.25")));
    EXPECT_EQ(ask("sei.example", Type::Aaaa).addresses, QList{QHostAddress("2001:db8::25")});
    const Answer mx = ask("uno.example", Type::Mx);
    ASSERT_EQ(mx.exchangers.size(), 2);
    EXPECT_TRUE(mx.exchangers.contains(dns::Exchanger{10, "posta.uno.example"}));
    EXPECT_EQ(ask(dns::reverseName(QHostAddress("203.0.113.25")), Type::Ptr).names,
              QByteArrayList{"posta.uno.example"});
    QByteArrayList texts = ask("testi.example", Type::Txt).texts;
    std::sort(texts.begin(), texts.end());
    EXPECT_EQ(texts, (QByteArrayList{"altro", "v=spf1 -all"}));
}

// Unbound does not look up the target of an alias in its own records.
TEST_F(RealNames, AliasIsFollowed) {
    NameServer::Records own = records();
    own.others.clear();
    const NameServer server(NameServer::Program::Dnsmasq, own);
    ASSERT_EQ(server.problem(), "");
    EXPECT_EQ(ask("nome.uno.example", Type::A).addresses.size(), 2);
    EXPECT_EQ(ask("uno.example", Type::Mx).exchangers.size(), 2);
}

TEST_F(RealNames, NameAndRecordThatAreNotThereAreDistinguished) {
    const NameServer server(NameServer::Program::Unbound, records());
    EXPECT_EQ(ask("niente.example", Type::A).kind, Answer::Kind::NoName);
    EXPECT_EQ(ask("posta.uno.example", Type::Txt).kind, Answer::Kind::NoRecords);
}

TEST_F(RealNames, SearchListIsNotUsed) {
    const NameServer server(NameServer::Program::Unbound, records());
    EXPECT_EQ(ask("solo", Type::A).kind, Answer::Kind::NoName);
    EXPECT_EQ(ask("solo.altrove.example", Type::A).kind, Answer::Kind::Records);
}

TEST_F(RealNames, WhatDoesNotFitIntoADatagramComesOverTcp) {
    const NameServer server(NameServer::Program::Unbound, records());
    const Answer answer = ask("grande.example", Type::Txt);
    ASSERT_EQ(answer.texts.size(), 1) << answer.why.toStdString();
    EXPECT_EQ(answer.texts.front(), longText().repeated(20));
}

TEST_F(RealNames, NobodyListeningIsAFailure) {
    const Answer answer = ask("uno.example", Type::A);
    EXPECT_TRUE(answer.failed());
    EXPECT_EQ(answer.why.toStdString(), "nessun server DNS è raggiungibile");
}

}  // namespace
}  // namespace resolver_test
