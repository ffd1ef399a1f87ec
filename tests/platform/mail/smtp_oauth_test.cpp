// SPDX-License-Identifier: GPL-3.0-or-later
// Logins with an access token: what is sent, to which server, and what happens to a message
// meanwhile.
#include <QFile>
#include <QNetworkProxy>
#include <QTemporaryDir>

#include "platform/mail/smtp_run_fixture.h"
#include "platform/oauth/TokenFile.h"
#include "support/AuthorizationServer.h"

namespace smtp_oauth_test {

using testing_support::AuthorizationServer;
using testing_support::ScriptedServer;
using testing_support::TestCertificates;

namespace {

const QString user = QStringLiteral("rossi@example.it");

const QByteArrayList tls{"S: 220 ready", "C: EHLO *",       "S: 250-ready", "S: 250 STARTTLS",
                         "C: STARTTLS",  "S: 220 go ahead", "TLS"};

QByteArrayList offers(const QByteArray& mechanisms) {
    return tls + QByteArrayList{"C: EHLO *", "S: 250-ready", "S: 250 AUTH " + mechanisms};
}

QByteArray xoauth2(const QByteArray& token) {
    return ("user=rossi@example.it\x01"
            "auth=Bearer " +
            token + "\x01\x01")
        .toBase64();
}

const QByteArray errorChallenge = "S: 334 " + QByteArray(R"({"status":"401","schemes":"bearer"})").toBase64();

/// A login whose token the server refuses, to the end of the connection.
QByteArrayList refusedLogin(const QByteArray& token) {
    return offers("XOAUTH2") + QByteArrayList{"C: AUTH XOAUTH2 " + xoauth2(token), errorChallenge,
                                              "C: ", "S: 535 5.7.8 bad user or password", "C: QUIT"};
}

QByteArrayList login(const QByteArray& token) {
    return offers("PLAIN XOAUTH2") + QByteArrayList{"C: AUTH XOAUTH2 " + xoauth2(token), "S: 235 welcome"};
}

class SmtpOAuth : public testing::Test {
  protected:
    SmtpOAuth() {
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        writeProviders(provider.providers());
        giveToken(3600);
    }

    void writeProviders(const QByteArray& content) const {
        QFile file(folder.filePath(QStringLiteral("providers.json")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    void giveToken(int secs, const QByteArray& token = "accesso-0") const {
        const QString path = oauth::tokenPath(folder.path(), QStringLiteral("prova"), user);
        const QDateTime end = QDateTime::currentDateTimeUtc().addSecs(secs);
        ASSERT_TRUE(oauth::writeToken(folder.path(), path, {token, "rinnovo-0", end}).ok());
    }
    void prepare(Client& client) const {
        client.smtp.ServerName = QStringLiteral("localhost");
        client.smtp.CertificateFolder = TestCertificates::get().trustFolder();
        client.smtp.OAuthFolder = folder.path();
        client.smtp.UseAuth = true;
        client.smtp.UserName = user;
        client.smtp.UserPassword = QStringLiteral("OAuth2");
    }
    void delivers(const QByteArrayList& dialogue) const {
        ScriptedServer server({dialogue + message}, TestCertificates::get().good());
        Client client(server.port());
        prepare(client);
        const Heard heard = client.send();
        EXPECT_TRUE(heard.done) << qPrintable(heard.text);
        EXPECT_EQ(server.remainder(), "");
    }
    /// Expects a failure with this text, and the dialogue played.
    void fails(const QByteArrayList& dialogue, const char* why) const {
        ScriptedServer server({dialogue}, TestCertificates::get().good());
        Client client(server.port());
        prepare(client);
        const Heard heard = client.send();
        EXPECT_FALSE(heard.done);
        EXPECT_TRUE(heard.text.contains(QString::fromUtf8(why))) << qPrintable(heard.text);
        EXPECT_EQ(server.remainder(), "");
    }

    QTemporaryDir folder;
    AuthorizationServer provider;
};

TEST_F(SmtpOAuth, TokenGoesByXoauth2) {
    delivers(login("accesso-0"));
}

TEST_F(SmtpOAuth, TokenGoesByOauthbearerWhereThatIsOffered) {
    ScriptedServer server({offers("LOGIN XOAUTH2 OAUTHBEARER") +
                           QByteArrayList{"C: AUTH OAUTHBEARER *", "S: 235 welcome"} + message},
                          TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    EXPECT_TRUE(client.send().done);
    ASSERT_EQ(server.remainder(), "");
    const QByteArray wanted =
        "n,a=rossi@example.it,\x01host=localhost\x01port=" + QByteArray::number(server.port()) +
        "\x01"
        "auth=Bearer accesso-0\x01\x01";
    EXPECT_TRUE(server.lines().contains("AUTH OAUTHBEARER " + wanted.toBase64()));
}

TEST_F(SmtpOAuth, TokenTooLongForTheCommandGoesInALineOfItsOwn) {
    const QByteArray token(2000, 'x');
    giveToken(3600, token);
    delivers(offers("XOAUTH2") +
             QByteArrayList{"C: AUTH XOAUTH2", "S: 334 ", "C: " + xoauth2(token), "S: 235 welcome"});
    fails(offers("XOAUTH2") + QByteArrayList{"C: AUTH XOAUTH2", "S: 334 ", "C: " + xoauth2(token),
                                             errorChallenge, "C: ", "S: 535 no", "C: QUIT"},
          "non accetta il consenso");
}

TEST_F(SmtpOAuth, ServerThatSkipsTheFirstResponseGetsItAgain) {
    delivers(offers("XOAUTH2") +
             QByteArrayList{"C: AUTH XOAUTH2 *", "S: 334 ", "C: " + xoauth2("accesso-0"), "S: 235 welcome"});
}

TEST_F(SmtpOAuth, ErrorChallengeOfOauthbearerIsAnsweredAsTheStandardHasIt) {
    fails(offers("OAUTHBEARER") + QByteArrayList{"C: AUTH OAUTHBEARER *", errorChallenge,
                                                 "C: AQ==", "S: 535 5.7.8 no", "C: QUIT"},
          "non accetta il consenso di OAuth 2.0 per l'utente rossi@example.it: 5.7.8 no");
}

TEST_F(SmtpOAuth, ServerWithEndlessErrorRepliesIsLeft) {
    fails(offers("XOAUTH2") +
              QByteArrayList{"C: AUTH XOAUTH2 *", errorChallenge, "C: ", errorChallenge, "WAIT"},
          "non ha completato");
}

TEST_F(SmtpOAuth, SuccessAfterAnErrorChallengeIsNotAccepted) {
    fails(offers("XOAUTH2") + QByteArrayList{"C: AUTH XOAUTH2 *", errorChallenge, "C: ", "S: 235 ok", "WAIT"},
          "non ha completato");
}

TEST_F(SmtpOAuth, AfterHeloXoauth2IsGuessed) {
    ScriptedServer server({QByteArrayList{"S: 220 ready", "C: HELO *", "S: 250 ready", "C: STARTTLS",
                                          "S: 220 go", "TLS", "C: HELO *", "S: 250 ready"} +
                           QByteArrayList{"C: AUTH XOAUTH2 *", "S: 235 welcome"} + message},
                          TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    client.smtp.HeloMode = 1;
    const Heard heard = client.send();
    EXPECT_TRUE(heard.done) << qPrintable(heard.text);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpOAuth, ServerWithoutOauthIsReported) {
    fails(offers("PLAIN LOGIN") + QByteArrayList{"C: QUIT"}, "non offre l'accesso con OAuth 2.0");
}

TEST_F(SmtpOAuth, OnlyTheWholeWordSelectsIt) {
    ScriptedServer server(
        {offers("PLAIN XOAUTH2") + QByteArrayList{"C: AUTH PLAIN *", "S: 235 welcome"} + message},
        TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    client.smtp.UserPassword = QStringLiteral("oauth2");
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

// Where a token never goes

TEST_F(SmtpOAuth, ForeignHostIsNotEvenConnectedTo) {
    Unasked server;
    Client client(server.port());
    prepare(client);
    for (const char* host : {"127.0.0.1", "localhost.localdomain", "smtp.localhost"}) {
        client.smtp.ServerName = QString::fromLatin1(host);
        const Heard heard = client.send();
        EXPECT_FALSE(heard.done);
        EXPECT_TRUE(heard.text.contains(QStringLiteral("nessun token gli viene inviato")))
            << qPrintable(heard.text);
    }
    EXPECT_FALSE(server.wasAsked());
    EXPECT_TRUE(provider.requests().isEmpty());
}

TEST_F(SmtpOAuth, WithoutTlsNoTokenIsSent) {
    fails({"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 AUTH XOAUTH2 PLAIN", "C: QUIT"},
          "non è protetta da TLS con un certificato valido");
    fails({"S: 220 ready", "C: EHLO *", "S: 502 no", "C: HELO *", "S: 250 ready", "C: STARTTLS", "S: 502 no",
           "C: QUIT"},
          "non è protetta da TLS con un certificato valido");
}

TEST_F(SmtpOAuth, UnverifiedTlsGetsNoToken) {
    for (const auto identity :
         {&TestCertificates::selfSigned, &TestCertificates::expired, &TestCertificates::wrongName}) {
        QByteArrayList dialogue = tls;
        dialogue.last() = "TLSFAIL";
        ScriptedServer server({dialogue}, (TestCertificates::get().*identity)());
        Client client(server.port());
        prepare(client);
        EXPECT_TRUE(client.send().text.contains(QStringLiteral("TLS")));
        EXPECT_EQ(server.remainder(), "");
    }
    ScriptedServer server({offers("XOAUTH2") + QByteArrayList{"C: QUIT"}},
                          TestCertificates::get().selfSigned());
    Client client(server.port());
    prepare(client);
    client.smtp.OpportunisticTls = true;
    EXPECT_TRUE(client.send().text.contains(QStringLiteral("con un certificato valido")));
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpOAuth, NoLogContainsAToken) {
    const QString log = folder.filePath(QStringLiteral("prova.xt1"));
    giveToken(0);
    ScriptedServer server({offers("XOAUTH2") + QByteArrayList{"C: AUTH XOAUTH2 *",
                                                              "S: 334 " + QByteArray("accesso-1").toBase64(),
                                                              "C: ", "S: 535 accesso-1 no", "C: QUIT"}},
                          TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    client.smtp.LogFile = log;
    client.smtp.LogEnabled = true;
    EXPECT_FALSE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
    QFile file(log);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    EXPECT_TRUE(text.contains("Token di Prova rinnovato")) << text.constData();
    for (const QByteArray& secret : {QByteArray("accesso"), QByteArray("rinnovo-"),
                                     QByteArray("accesso-1").toBase64(), xoauth2("accesso-1")})
        EXPECT_FALSE(text.contains(secret)) << secret.constData();
}

// Renewal during a run

TEST_F(SmtpOAuth, ExpiredTokenIsRenewedBeforeTheLoginAndTheConnectionIsKept) {
    giveToken(0);
    ScriptedServer server({login("accesso-1") + message + message + message}, TestCertificates::get().good());
    RunClient client(server.port());
    prepare(client);
    for (int number = 1; number <= 3; ++number)
        EXPECT_TRUE(client.tick(number).done);
    EXPECT_EQ(server.remainder(), "");
    EXPECT_EQ(provider.requests().size(), 1);
}

TEST_F(SmtpOAuth, WithdrawnConsentIsReportedToEveryRecipientAndAskedAboutOnce) {
    giveToken(0);
    provider.withdraw();
    Unasked server;
    RunClient client(server.port());
    prepare(client);
    for (int number = 1; number <= 5; ++number) {
        const Heard heard = client.tick(number);
        EXPECT_FALSE(heard.done);
        EXPECT_TRUE(heard.text.contains(QStringLiteral("scaduto o è stato ritirato")))
            << qPrintable(heard.text);
    }
    EXPECT_FALSE(server.wasAsked());
    EXPECT_EQ(provider.requests().size(), 1);
}

TEST_F(SmtpOAuth, TokenThatWasEndedBeforeItsTimeIsRenewedOnce) {
    ScriptedServer server({refusedLogin("accesso-0"), login("accesso-1") + message},
                          TestCertificates::get().good());
    RunClient client(server.port());
    prepare(client);
    EXPECT_FALSE(client.tick(1).done);
    EXPECT_TRUE(client.tick(2).done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpOAuth, UserWhomTheServerRefusesCostsTwoLoginsHoweverManyRecipientsFollow) {
    ScriptedServer server({refusedLogin("accesso-0"), refusedLogin("accesso-1")},
                          TestCertificates::get().good());
    RunClient client(server.port());
    prepare(client);
    for (int number = 1; number <= 20; ++number) {
        const Heard heard = client.tick(number);
        EXPECT_EQ(heard.code, 535);
        EXPECT_TRUE(heard.text.contains(QStringLiteral("non accetta il consenso"))) << qPrintable(heard.text);
    }
    EXPECT_EQ(server.remainder(), "");
    EXPECT_EQ(provider.requests().size(), 1);
}

TEST_F(SmtpOAuth, SilentProviderEndsTheMessageAfterTheTimeOut) {
    giveToken(0);
    provider.hold();
    Unasked server;
    RunClient client(server.port());
    prepare(client);
    client.smtp.TimeoutSecs = 1;
    const Heard heard = client.tick(1);
    EXPECT_FALSE(heard.done);
    EXPECT_TRUE(heard.text.contains(QStringLiteral("tempo scaduto"))) << qPrintable(heard.text);
    EXPECT_FALSE(server.wasAsked());
}

TEST_F(SmtpOAuth, AbortDuringTheRenewalEndsTheMessageAtOnceAndForGood) {
    giveToken(0);
    provider.hold();
    ScriptedServer server({login("accesso-1") + message}, TestCertificates::get().good());
    RunClient client(server.port());
    prepare(client);
    client.begin(1);
    ASSERT_TRUE(Client::turnUntil([&] { return !provider.requests().isEmpty(); }));
    client.smtp.Abort();
    ASSERT_EQ(client.heard.size(), 1);
    EXPECT_EQ(client.heard.first().text, QStringLiteral("Invio interrotto."));
    EXPECT_TRUE(client.tick(2).text.contains(QStringLiteral("fermato")));
    giveToken(3600, "accesso-1");
    client.smtp.BeginRun();
    EXPECT_TRUE(client.tick(3).done);
    EXPECT_EQ(client.heard.size(), 1);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpOAuth, TokenThatComesAfterAnAbortSendsNothing) {
    giveToken(0);
    provider.hold();
    Unasked server;
    RunClient client(server.port());
    prepare(client);
    client.begin(1);
    ASSERT_TRUE(Client::turnUntil([&] { return !provider.requests().isEmpty(); }));
    client.smtp.Abort();
    provider.goOn();
    // The whole login of a later client takes longer than the answer in transit.
    giveToken(3600, "accesso-9");
    delivers(login("accesso-9"));
    EXPECT_EQ(client.heard.size(), 1);
    EXPECT_FALSE(server.wasAsked());
}

TEST_F(SmtpOAuth, NextSendDropsAMessageThatWaitsForItsToken) {
    giveToken(0);
    provider.hold();
    ScriptedServer server({login("accesso-1") + message}, TestCertificates::get().good());
    RunClient client(server.port());
    prepare(client);
    client.begin(1);
    ASSERT_TRUE(Client::turnUntil([&] { return !provider.requests().isEmpty(); }));
    giveToken(3600, "accesso-1");
    EXPECT_TRUE(client.tick(2).done);
    EXPECT_EQ(server.remainder(), "");
    EXPECT_FALSE(client.remembers(1));
    EXPECT_TRUE(client.remembers(2));
}

TEST_F(SmtpOAuth, ControlThatGoesDuringTheRenewalWaitsForNothing) {
    giveToken(0);
    provider.hold();
    auto client = std::make_unique<RunClient>(25);
    prepare(*client);
    client->begin(1);
    ASSERT_TRUE(Client::turnUntil([&] { return !provider.requests().isEmpty(); }));
    client.reset();
}

TEST_F(SmtpOAuth, UserNameWithControlCharactersIsRefused) {
    const QString odd = QStringLiteral(
        "rossi\x01"
        "auth=Bearer altro");
    const QString path = oauth::tokenPath(folder.path(), QStringLiteral("prova"), odd);
    ASSERT_TRUE(
        oauth::writeToken(folder.path(), path, {"a", "", QDateTime::currentDateTimeUtc().addSecs(3600)})
            .ok());
    ScriptedServer server({offers("XOAUTH2") + QByteArrayList{"C: QUIT"}}, TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    client.smtp.UserName = odd;
    EXPECT_TRUE(client.send().text.contains(QStringLiteral("carattere non ammesso")));
    EXPECT_EQ(server.remainder(), "");
}

}  // namespace

}  // namespace smtp_oauth_test
