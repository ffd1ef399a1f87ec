// SPDX-License-Identifier: GPL-3.0-or-later
// TLS from the start belongs to port 465 alone, so these tests run in a private network.
#include "platform/mail/smtp_fixture.h"
#include "support/PrivateNetwork.h"

namespace smtp_implicit_tls_test {

using testing_support::ScriptedServer;
using testing_support::TestCertificates;

namespace {

constexpr quint16 implicitTls = 465;
const bool isolated = testing_support::enterPrivateNetwork(__FILE__);

class ImplicitTls : public testing::Test {
  protected:
    void SetUp() override {
        if (!isolated) GTEST_SKIP() << "the system allows no private network";
    }

    static void prepare(Client& client) {
        client.smtp.ServerName = QStringLiteral("localhost");
        client.smtp.CertificateFolder = TestCertificates::get().trustFolder();
    }
};

TEST_F(ImplicitTls, HandshakeComesBeforeTheGreeting) {
    ScriptedServer server({QByteArrayList{"TLS"} + hello + message + message}, TestCertificates::get().good(),
                          implicitTls);
    Client client(implicitTls);
    prepare(client);
    EXPECT_TRUE(client.send().done);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(ImplicitTls, StartTlsIsNotAskedForAgain) {
    ScriptedServer server(
        {QByteArrayList{"TLS", "S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 STARTTLS"} + message},
        TestCertificates::get().good(), implicitTls);
    Client client(implicitTls);
    prepare(client);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(ImplicitTls, GreetingByHeloWithLogin) {
    ScriptedServer server(
        {QByteArrayList{"TLS", "S: 220 ready", "C: HELO *", "S: 250 ready", "C: AUTH PLAIN *", "S: 235 ok"} +
         message},
        TestCertificates::get().good(), implicitTls);
    Client client(implicitTls);
    prepare(client);
    client.smtp.HeloMode = 1;
    client.smtp.UseAuth = true;
    client.smtp.UserName = client.smtp.UserPassword = QStringLiteral("x");
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(ImplicitTls, BadCertificateIsRefused) {
    ScriptedServer server({{"TLSFAIL"}}, TestCertificates::get().expired(), implicitTls);
    Client client(implicitTls);
    prepare(client);
    const Heard heard = client.send();
    EXPECT_FALSE(heard.done);
    EXPECT_TRUE(heard.text.contains(QStringLiteral("scaduto"))) << qPrintable(heard.text);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(ImplicitTls, PlainServerIsAFailure) {
    ScriptedServer server({{"S: 220 ready", "WAIT"}}, TestCertificates::get().good(), implicitTls);
    Client client(implicitTls);
    prepare(client);
    EXPECT_FALSE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(ImplicitTls, SilenceInTheHandshakeEndsInTheTimeout) {
    ScriptedServer server({{"WAIT"}}, TestCertificates::get().good(), implicitTls);
    Client client(implicitTls);
    prepare(client);
    client.smtp.TimeoutSecs = 1;
    EXPECT_FALSE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

}  // namespace

}  // namespace smtp_implicit_tls_test
