// SPDX-License-Identifier: GPL-3.0-or-later
// The look-up against real name servers on port 53, found through the test's own /etc/resolv.conf.
#include <memory>

#include "modules/send/bmxquery_state.h"
#include "support/NameServer.h"
#include "support/PrivateNetwork.h"

namespace bmxquery_real_test {

using testing_support::NameServer;
using Program = NameServer::Program;

namespace {

const bool isolated = testing_support::enterPrivateNetwork(__FILE__);

NameServer::Records records() {
    NameServer::Records all{
        {{"multi.example", 20, "b.multi.example"},
         {"multi.example", 10, "a.multi.example"},
         {"multi.example", 10, "c.multi.example"},
         {"uno.example", 10, "mx.uno.example"},
         {"fuori.example", 20, "mx.altrove.test"},
         {"fuori.example", 10, "mx.migliore.test"},
         {"c.sotto.zona.example", 10, "mx.zona.example"},
         {"nullo.example", 0, ""}},
        {{"solo.example", "127.0.0.2"}, {"mx.uno.example", "127.0.0.2"}},
        {{"alias.example", "mx.uno.example"}},
    };
    for (int i = 0; i < 30; ++i) {
        const QByteArray host = "un-nome-davvero-lungo-numero-" + QByteArray::number(i) + ".tanti.example";
        all.exchangers.append({"tanti.example", 100 - i, host});
    }
    return all;
}

class RealNameServer : public ConStatoMX {
  protected:
    static void TearDownTestSuite() { s_server.reset(); }
    void SetUp() override {
        if (!isolated) GTEST_SKIP() << "the system allows no private network";
    }

    void start(Program program, const char* resolver = "nameserver 127.0.0.1\n") {
        ASSERT_TRUE(testing_support::replaceResolverConfiguration(resolver));
        if (s_program == program && s_server) return;
        s_server.reset();
        s_server = std::make_unique<NameServer>(program, records());
        s_program = program;
        ASSERT_EQ(s_server->problem(), "");
    }

    static void expectNothing(const char* domain) {
        EXPECT_EQ(MXQuery(QString::fromLatin1(domain)), QString()) << domain;
        EXPECT_EQ(bestMX, QString()) << domain;
    }

  private:
    static std::unique_ptr<NameServer> s_server;
    static Program s_program;
};

std::unique_ptr<NameServer> RealNameServer::s_server;
Program RealNameServer::s_program = Program::Unbound;

}  // namespace

TEST_F(RealNameServer, CompressedExchangersAreAllReadAndSorted) {
    start(Program::Unbound);
    EXPECT_EQ(MXQuery("multi.example"), "a.multi.example");
    EXPECT_EQ(elencoMX(),
              (ElencoMX{{"a.multi.example", 10}, {"c.multi.example", 10}, {"b.multi.example", 20}}));
    EXPECT_EQ(MXQuery("uno.example"), "mx.uno.example");
}

TEST_F(RealNameServer, ExchangerOutsideTheDomainEndsTheReading) {
    // Its name is written in full, whichever server answers: the record after it is not read.
    start(Program::Unbound);
    EXPECT_EQ(MXQuery("fuori.example"), "mx.altrove.test");
    EXPECT_EQ(mxCount, 1);
}

TEST_F(RealNameServer, ServerThatDoesNotCompressReturnsItsFirstExchanger) {
    start(Program::Dnsmasq);
    const QString first = MXQuery("multi.example");
    EXPECT_TRUE(QStringList({"a.multi.example", "b.multi.example", "c.multi.example"}).contains(first))
        << first.toStdString();
    EXPECT_EQ(mxCount, 1);
    EXPECT_EQ(MXQuery("uno.example"), "mx.uno.example");
}

TEST_F(RealNameServer, DomainsWithoutExchangersHaveNone) {
    for (const Program program : {Program::Unbound, Program::Dnsmasq}) {
        start(program);
        expectNothing("solo.example");    // an address, but no exchanger
        expectNothing("niente.example");  // no such domain
        expectNothing("alias.example");   // an alias comes first
        EXPECT_EQ(mxCount, 0);
    }
}

TEST_F(RealNameServer, NullMxIsNoExchanger) {
    start(Program::Unbound);
    expectNothing("nullo.example");
}

TEST_F(RealNameServer, TruncatedReplyWithoutAnswersIsNoExchanger) {
    start(Program::Unbound);
    expectNothing("tanti.example");
}

TEST_F(RealNameServer, TruncatedReplyWithAnswersCountsAsFarAsItGoes) {
    start(Program::Dnsmasq);
    EXPECT_TRUE(MXQuery("tanti.example").startsWith("un-nome-davvero-lungo-numero-")) << bestMX.toStdString();
    EXPECT_EQ(mxCount, 1);
}

TEST_F(RealNameServer, OwnSubdomainsAreWalkedUp) {
    for (const Program program : {Program::Unbound, Program::Dnsmasq}) {
        start(program, "nameserver 127.0.0.1\nsearch sotto.zona.example\n");
        EXPECT_EQ(MXQuery("x.y.c.sotto.zona.example"), "mx.zona.example");
        EXPECT_EQ(queryDomain, "c.sotto.zona.example");
        EXPECT_EQ(dnsBaseDomain, "zona.example");
        expectNothing("x.y.altro.zona.example");
        EXPECT_EQ(queryDomain, "zona.example");
        expectNothing("x.y.altro.example");
        EXPECT_EQ(queryDomain, "x.y.altro.example");
        dnsCount = 0;
    }
}

TEST_F(RealNameServer, EmptyDomainIsTheOneOfTheConfiguration) {
    start(Program::Unbound, "search uno.example zona.example\nnameserver 127.0.0.1\n");
    EXPECT_EQ(MXQuery(""), "mx.uno.example");
}

TEST_F(RealNameServer, ServerThatIsNotThereIsTheFourthError) {
    start(Program::Unbound, "nameserver 127.0.0.9\nnameserver 127.0.0.1\n");
    const Fallimento failure = fallimentoDi([] { MXQuery("uno.example"); });
    EXPECT_EQ(failure.numero(), 20000);
    EXPECT_EQ(failure.testo(), "Problem receiving MX query");
}

TEST_F(RealNameServer, ConfigurationWithoutServersIsTheFirstError) {
    start(Program::Unbound, "search uno.example\n");
    EXPECT_EQ(fallimentoDi([] { MXQuery("uno.example"); }).testo(),
              "No DNS entries found, MX Query cannot contine.");
}

}  // namespace bmxquery_real_test
