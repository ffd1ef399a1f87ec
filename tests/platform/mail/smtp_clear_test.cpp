// SPDX-License-Identifier: GPL-3.0-or-later
// What never goes in the clear: a password to a server beyond this machine and its network, and anything to
// an account's server that has offered TLS before. In a private network, where posta.example is a name of
// 127.0.0.1.
#include <QFile>
#include <QTemporaryDir>

#include "platform/mail/scram_server.h"
#include "platform/mail/smtp_fixture.h"
#include "support/NameServer.h"
#include "support/PrivateNetwork.h"

namespace smtp_clear_test {

using testing_support::NameServer;
using testing_support::ScriptedServer;
using testing_support::TestCertificates;
using testing_support::TlsIdentity;

namespace {

const bool isolated = testing_support::enterPrivateNetwork(__FILE__);
const QString name = QStringLiteral("posta.example");

const QByteArrayList quit{"C: QUIT", "S: 221 bye"};
const QByteArrayList helo{"S: 220 ready", "C: HELO *", "S: 250 ready"};
const QByteArrayList offer{"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 STARTTLS", "C: STARTTLS"};
const QByteArrayList startTls = offer + QByteArrayList{"S: 220 go ahead", "TLS"};
const QByteArrayList helloAgain{"C: EHLO *", "S: 250 ready"};

QByteArrayList helloWithAuth(const QByteArray& mechanisms) {
    return {"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 AUTH " + mechanisms};
}

class InTheClear : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        if (!isolated || !testing_support::replaceResolverConfiguration("nameserver 127.0.0.1\n")) return;
        s_names = new NameServer(NameServer::Program::Dnsmasq, {{}, {{"posta.example", "127.0.0.1"}}, {}});
    }
    static void TearDownTestSuite() {
        delete s_names;
        s_names = nullptr;
    }
    void SetUp() override {
        if (!isolated) GTEST_SKIP() << "the system allows no private network";
        ASSERT_TRUE(s_names && s_names->problem().isEmpty());
    }

    void prepare(Client& client, bool login = true) const {
        client.smtp.ServerName = name;
        client.smtp.CertificateFolder = TestCertificates::get().trustFolder();
        client.smtp.ClearListFile = m_folder.filePath(QStringLiteral("senza-tls.txt"));
        client.smtp.TlsListFile = m_folder.filePath(QStringLiteral("tls.txt"));
        client.smtp.UseAuth = login;
        client.smtp.UserName = QStringLiteral("utente");
        client.smtp.UserPassword = QStringLiteral("segreto-più");
    }
    void write(const char* file, const QByteArray& text) const {
        QFile list(m_folder.filePath(QString::fromLatin1(file)));
        ASSERT_TRUE(list.open(QIODevice::WriteOnly));
        list.write(text);
    }
    QByteArray remembered() const {
        QFile list(m_folder.filePath(QStringLiteral("tls.txt")));
        return list.open(QIODevice::ReadOnly) ? list.readAll() : QByteArray();
    }
    static QByteArray entry(const ScriptedServer& server) {
        return "posta.example " + QByteArray::number(server.port()) + "\r\n";
    }

    /// Two messages fail, and the password is not sent for either.
    void refuses(const QByteArrayList& login, int heloMode = 0) {
        ScriptedServer server({login + quit, login + quit});
        Client client(server.port());
        prepare(client);
        client.smtp.HeloMode = heloMode;
        for (int i = 0; i < 2; ++i) {
            const Heard heard = client.send();
            EXPECT_FALSE(heard.done);
            EXPECT_EQ(heard.code, 0);
            EXPECT_TRUE(heard.text.contains(client.smtp.ClearListFile)) << qPrintable(heard.text);
        }
        EXPECT_EQ(server.remainder(), "");
    }

    QTemporaryDir m_folder;

  private:
    static NameServer* s_names;
};

NameServer* InTheClear::s_names = nullptr;

TEST_F(InTheClear, PasswordIsNotSentAndTheRefusalNamesTheFile) {
    refuses(helloWithAuth("PLAIN LOGIN"));
}

TEST_F(InTheClear, PasswordIsNotSentWhereADigestIsOfferedThatTheServerDoesNotKnow) {
    refuses(helloWithAuth("CRAM-MD5 PLAIN") + QByteArrayList{"C: AUTH CRAM-MD5", "S: 504 what"});
}

TEST_F(InTheClear, PasswordIsNotGuessedAfterAHelo) {
    refuses(
        helo + QByteArrayList{"C: STARTTLS", "S: 502 what", "C: AUTH SCRAM-SHA-256 *", "S: 535 no mechanism",
                              "C: AUTH SCRAM-SHA-1 *", "S: 504 what", "C: AUTH CRAM-MD5", "S: 504 what"},
        1);
}

TEST_F(InTheClear, DigestsAreSent) {
    ScramServer scram("segreto-più");
    ScriptedServer server(
        {helloWithAuth("SCRAM-SHA-256 PLAIN") +
             QByteArrayList{"A: first", "A: final", "C: ", "S: 235 welcome"} + message + quit,
         helloWithAuth("CRAM-MD5 PLAIN") +
             QByteArrayList{"C: AUTH CRAM-MD5", "S: 334 " + QByteArray("<1@x>").toBase64(), "C: *",
                            "S: 235 ok"} +
             message},
        TlsIdentity(), 0, scram.answers());
    Client client(server.port());
    prepare(client);
    EXPECT_TRUE(client.send().done);
    client.smtp.CertificateFolder.clear();  // another route, so another session
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(InTheClear, PasswordIsSentUnderTls) {
    ScriptedServer server({startTls + helloWithAuth("PLAIN").mid(1) +
                           QByteArrayList{"C: AUTH PLAIN *", "S: 235 welcome"} + message},
                          TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(InTheClear, PasswordIsSentToAListedServerFromTheNextMessageOn) {
    const QByteArrayList offered = helloWithAuth("PLAIN");
    ScriptedServer server(
        {offered + quit, offered + QByteArrayList{"C: AUTH PLAIN *", "S: 235 welcome"} + message});
    Client client(server.port());
    prepare(client);
    EXPECT_FALSE(client.send().done);
    write("senza-tls.txt", "Posta.Example\r\n");
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(InTheClear, PasswordIsSentToTheMachineItself) {
    for (const char* host : {"127.0.0.1", "localhost"}) {
        ScriptedServer server(
            {helloWithAuth("PLAIN") + QByteArrayList{"C: AUTH PLAIN *", "S: 235 welcome"} + message});
        Client client(server.port());
        prepare(client);
        client.smtp.ServerName = QString::fromLatin1(host);
        EXPECT_TRUE(client.send().done) << host;
        EXPECT_EQ(server.remainder(), "");
    }
}

TEST_F(InTheClear, PasswordIsNotSentUnderTlsThatNobodyVerifies) {
    ScriptedServer server({startTls + helloWithAuth("PLAIN").mid(1) + quit},
                          TestCertificates::get().selfSigned());
    Client client(server.port());
    prepare(client);
    client.smtp.OpportunisticTls = true;
    EXPECT_FALSE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(InTheClear, ServerThatOfferedTlsMayNotGoBackInTheNextProgram) {
    ScriptedServer server({startTls + helloAgain + message + quit, hello + quit, hello + quit},
                          TestCertificates::get().good());
    for (int program = 0; program < 2; ++program) {
        Client client(server.port());
        prepare(client, false);
        EXPECT_EQ(client.send().done, program == 0);
        if (program == 0) continue;
        const Heard heard = client.send();
        EXPECT_TRUE(heard.text.contains(client.smtp.TlsListFile)) << qPrintable(heard.text);
    }
    EXPECT_EQ(remembered(), entry(server));
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(InTheClear, ServerMayGoBackOnceItsLineIsDeleted) {
    ScriptedServer server(
        {startTls + helloAgain + message + QByteArrayList{"C: MAIL*", "DROP"}, hello + quit, hello + message},
        TestCertificates::get().good());
    Client client(server.port());
    prepare(client, false);
    EXPECT_TRUE(client.send().done);
    EXPECT_FALSE(client.send().done);
    write("tls.txt", "");
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(remembered(), "");
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(InTheClear, OfferIsRememberedThoughItsCertificateIsRefused) {
    ScriptedServer server({offer + QByteArrayList{"S: 220 go ahead", "TLSFAIL"}, hello + quit},
                          TestCertificates::get().wrongName());
    Client client(server.port());
    prepare(client, false);
    for (int i = 0; i < 2; ++i)
        EXPECT_FALSE(client.send().done);
    EXPECT_EQ(remembered(), entry(server));
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(InTheClear, RefusedEhloIsNoWayBack) {
    const QByteArrayList stripped{"S: 220 ready", "C: EHLO *",   "S: 502 what", "C: HELO *",
                                  "S: 250 ready", "C: STARTTLS", "S: 502 what"};
    ScriptedServer server({stripped + quit, stripped + quit});
    write("tls.txt", entry(server));
    for (const bool login : {false, true}) {
        Client client(server.port());
        prepare(client, login);
        EXPECT_FALSE(client.send().done);
    }
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(InTheClear, AccountThatGreetsWithHeloUsesTlsWhereItWasOfferedBefore) {
    const QByteArrayList inTls = helo.mid(1) + message + quit;
    ScriptedServer server({startTls + helloAgain + message + quit,
                           helo + QByteArrayList{"C: STARTTLS", "S: 220 go ahead", "TLS"} + inTls,
                           helo + QByteArrayList{"C: STARTTLS", "S: 502 what"} + quit},
                          TestCertificates::get().good());
    for (int program = 0; program < 3; ++program) {
        Client client(server.port());
        prepare(client, false);
        client.smtp.HeloMode = program == 0 ? 0 : 1;
        EXPECT_EQ(client.send().done, program < 2) << program;
    }
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(InTheClear, StartTlsThatIsTakenAfterAHeloIsRemembered) {
    ScriptedServer server({helo + QByteArrayList{"C: STARTTLS", "S: 220 go ahead", "TLS"} + helo.mid(1) +
                           QByteArrayList{"C: AUTH PLAIN *", "S: 235 welcome"} + message},
                          TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    client.smtp.HeloMode = 1;
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(remembered(), entry(server));
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(InTheClear, DirectRouteIsNeitherRememberedNorBound) {
    ScriptedServer server({startTls + helloAgain + message + quit, hello + message},
                          TestCertificates::get().selfSigned());
    {
        Client client(server.port());
        prepare(client, false);
        client.smtp.OpportunisticTls = true;
        EXPECT_TRUE(client.send().done);
    }
    EXPECT_EQ(remembered(), "");
    write("tls.txt", entry(server));
    Client client(server.port());
    prepare(client, false);
    client.smtp.OpportunisticTls = true;
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(InTheClear, OtherPortsOfTheServerAreNotBound) {
    ScriptedServer server({hello + message});
    write("tls.txt", "posta.example 1\r\naltra.example " + QByteArray::number(server.port()) + "\r\n");
    Client client(server.port());
    prepare(client, false);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

}  // namespace

}  // namespace smtp_clear_test
