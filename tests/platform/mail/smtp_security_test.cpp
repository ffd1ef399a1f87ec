// SPDX-License-Identifier: GPL-3.0-or-later
// TLS: what is accepted, and what is refused.
#include "platform/mail/smtp_fixture.h"

namespace smtp_security_test {

using testing_support::ScriptedServer;
using testing_support::TestCertificates;
using testing_support::TlsIdentity;

namespace {

const QByteArrayList offer{"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 STARTTLS", "C: STARTTLS"};
const QByteArrayList startTls = offer + QByteArrayList{"S: 220 go ahead", "TLS"};
const QByteArrayList helloAgain{"C: EHLO *", "S: 250 ready"};
const QByteArrayList failedStartTls = offer + QByteArrayList{"S: 220 go ahead", "TLSFAIL"};

class SmtpTls : public testing::Test {
  protected:
    static void prepare(Client& client) {
        client.smtp.ServerName = QStringLiteral("localhost");
        client.smtp.CertificateFolder = TestCertificates::get().trustFolder();
    }
};

TEST_F(SmtpTls, IsUsedWheneverItIsOffered) {
    ScriptedServer server({startTls + helloAgain + message + message}, TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    EXPECT_TRUE(client.send().done);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpTls, ExtensionsFromBeforeTheHandshakeAreForgotten) {
    ScriptedServer server(
        {QByteArrayList{"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250-PIPELINING", "S: 250-SIZE",
                        "S: 250 STARTTLS", "C: STARTTLS", "S: 220 go", "TLS"} +
         helloAgain + message},
        TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpTls, LargeMessagePasses) {
    ScriptedServer server({startTls + helloAgain + message}, TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    client.smtp.BodyText = QStringLiteral("una riga di testo come tante\n").repeated(200000);
    EXPECT_TRUE(client.send().done);
    ASSERT_EQ(server.remainder(), "");
    EXPECT_GT(server.bodies().at(0).size(), 5000000);
}

struct BadCertificate {
    const char* name;
    const TlsIdentity& (TestCertificates::*identity)() const;
    const char* text;
};

class SmtpCertificate : public testing::TestWithParam<BadCertificate> {};

TEST_P(SmtpCertificate, IsRefusedAndNothingIsSentInTheClear) {
    ScriptedServer server({failedStartTls, failedStartTls}, (TestCertificates::get().*GetParam().identity)());
    Client client(server.port());
    client.smtp.ServerName = QStringLiteral("localhost");
    client.smtp.CertificateFolder = TestCertificates::get().trustFolder();
    for (int i = 0; i < 2; ++i) {
        const Heard heard = client.send();
        EXPECT_FALSE(heard.done);
        EXPECT_EQ(heard.code, 0);
        EXPECT_TRUE(heard.text.contains(QString::fromUtf8(GetParam().text))) << qPrintable(heard.text);
    }
    EXPECT_EQ(server.remainder(), "");
}

TEST_P(SmtpCertificate, IsTakenAsItComesOnAnOpportunisticRoute) {
    ScriptedServer server({startTls + helloAgain + message},
                          (TestCertificates::get().*GetParam().identity)());
    Client client(server.port());
    client.smtp.ServerName = QStringLiteral("localhost");
    client.smtp.OpportunisticTls = true;
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Bad, SmtpCertificate,
    testing::Values(BadCertificate{"SelfSigned", &TestCertificates::selfSigned, "autofirmato"},
                    BadCertificate{"Expired", &TestCertificates::expired, "scaduto"},
                    BadCertificate{"WrongName", &TestCertificates::wrongName, "di un altro server"}),
    [](const auto& row) { return row.param.name; });

TEST_F(SmtpTls, UntrustedAuthorityIsRefused) {
    ScriptedServer server({failedStartTls}, TestCertificates::get().good());
    Client client(server.port());
    client.smtp.ServerName = QStringLiteral("localhost");
    const Heard heard = client.send();
    EXPECT_FALSE(heard.done);
    EXPECT_TRUE(heard.text.contains(QStringLiteral("TLS"))) << qPrintable(heard.text);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpTls, PlainTextAfterStartTlsIsRefused) {
    ScriptedServer server({offer + QByteArrayList{"S- 220 go ahead\\r\\n250 ready\\r\\n", "WAIT"}},
                          TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    const Heard heard = client.send();
    EXPECT_FALSE(heard.done);
    EXPECT_EQ(heard.code, 0);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpTls, PlainTextInFrontOfTheHandshakeIsRefused) {
    ScriptedServer server({offer + QByteArrayList{"S: 220 go ahead", "PAUSE 100", "S: 250 ready", "WAIT"}},
                          TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    EXPECT_FALSE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpTls, RefusedStartTlsThatWasOfferedIsAFailure) {
    ScriptedServer server({offer + QByteArrayList{"S: 454 not now", "C: QUIT"}});
    Client client(server.port());
    prepare(client);
    const Heard heard = client.send();
    EXPECT_FALSE(heard.done);
    EXPECT_EQ(heard.code, 454);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpTls, ServerThatOfferedItOnceMustOfferItAgain) {
    ScriptedServer server({startTls + helloAgain + message + QByteArrayList{"C: MAIL*", "DROP"},
                           hello + QByteArrayList{"C: QUIT"}},
                          TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    EXPECT_TRUE(client.send().done);
    const Heard heard = client.send();
    EXPECT_FALSE(heard.done);
    EXPECT_TRUE(heard.text.contains(QStringLiteral("TLS"))) << qPrintable(heard.text);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpTls, SilenceInTheHandshakeEndsInTheTimeout) {
    ScriptedServer server({offer + QByteArrayList{"S: 220 go ahead", "WAIT"}});
    Client client(server.port());
    prepare(client);
    client.smtp.TimeoutSecs = 1;
    EXPECT_FALSE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpTls, AbortInTheHandshakeEndsTheDelivery) {
    ScriptedServer server(
        {offer + QByteArrayList{"S: 220 go ahead", "WAIT"}, startTls + helloAgain + message},
        TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    client.smtp.Send();
    client.turn(100);
    client.smtp.Abort();
    EXPECT_EQ(client.heard.size(), 1);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpTls, DropInTheHandshakeIsAFailure) {
    ScriptedServer server({offer + QByteArrayList{"S: 220 go ahead", "DROP"}});
    Client client(server.port());
    prepare(client);
    EXPECT_FALSE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpTls, FailedHandshakeOnAnOpportunisticRouteIsFollowedByOnePlainAttempt) {
    ScriptedServer server(
        {offer + QByteArrayList{"S: 220 go ahead", "DROP"},
         QByteArrayList{"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 STARTTLS"} + message});
    Client client(server.port());
    client.smtp.OpportunisticTls = true;
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpTls, RefusedStartTlsOnAnOpportunisticRouteIsIgnored) {
    ScriptedServer server({offer + QByteArrayList{"S: 454 not now"} + message});
    Client client(server.port());
    client.smtp.OpportunisticTls = true;
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

}  // namespace

}  // namespace smtp_security_test
