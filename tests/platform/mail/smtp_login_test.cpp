// SPDX-License-Identifier: GPL-3.0-or-later
// Login: which mechanisms are tried, what is refused, and what never appears in a log. User "utente",
// password "segreto-più".
#include <algorithm>
#include <QCryptographicHash>
#include <QFile>
#include <QMessageAuthenticationCode>
#include <QTemporaryDir>

#include "platform/mail/smtp_fixture.h"

namespace smtp_login_test {

using testing_support::ScriptedServer;
using testing_support::TestCertificates;

namespace {

QByteArrayList helloWithAuth(const QByteArray& mechanisms) {
    return {"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 AUTH " + mechanisms};
}

const QByteArray plainToken = (QByteArray(1, '\0') + "utente" + '\0' + "segreto-più").toBase64();
const QByteArray userToken = QByteArray("utente").toBase64();
const QByteArray passwordToken = QByteArray("segreto-più").toBase64();
// The answer of CRAM-MD5 to the challenge "<1.2@example.it>".
const QByteArray cramChallenge = QByteArray("<1.2@example.it>").toBase64();

class SmtpLogin : public testing::Test {
  protected:
    static void prepare(Client& client) {
        client.smtp.UseAuth = true;
        client.smtp.UserName = QStringLiteral("utente");
        client.smtp.UserPassword = QStringLiteral("segreto-più");
    }

    static void delivers(const QByteArrayList& login) {
        ScriptedServer server({login + message + message});
        Client client(server.port());
        prepare(client);
        EXPECT_TRUE(client.send().done);
        EXPECT_TRUE(client.send().done);
        EXPECT_EQ(server.remainder(), "");
    }

    static void fails(const QByteArrayList& login, int code, const char* ending = "C: QUIT") {
        ScriptedServer server({login + QByteArrayList{ending}});
        Client client(server.port());
        prepare(client);
        const Heard heard = client.send();
        EXPECT_FALSE(heard.done);
        EXPECT_EQ(heard.code, code) << qPrintable(heard.text);
        EXPECT_EQ(server.remainder(), "");
    }
};

TEST_F(SmtpLogin, Plain) {
    delivers(helloWithAuth("PLAIN") + QByteArrayList{"C: AUTH PLAIN " + plainToken, "S: 235 welcome"});
}

TEST_F(SmtpLogin, PlainToAServerThatPassesOverTheInitialResponse) {
    delivers(helloWithAuth("PLAIN") +
             QByteArrayList{"C: AUTH PLAIN *", "S: 334 ", "C: " + plainToken, "S: 235 welcome"});
}

TEST_F(SmtpLogin, PlainToAServerThatRefusesTheInitialResponse) {
    delivers(helloWithAuth("PLAIN") + QByteArrayList{"C: AUTH PLAIN *", "S: 501 no initial response",
                                                     "C: AUTH PLAIN", "S: 334 ", "C: " + plainToken,
                                                     "S: 235 welcome"});
}

TEST_F(SmtpLogin, Login) {
    delivers(helloWithAuth("LOGIN") + QByteArrayList{"C: AUTH LOGIN", "S: 334 VXNlcm5hbWU6",
                                                     "C: " + userToken, "S: 334 UGFzc3dvcmQ6",
                                                     "C: " + passwordToken, "S: 235 welcome"});
}

TEST_F(SmtpLogin, PromptsThatAreNotEncoded) {
    delivers(helloWithAuth("LOGIN") + QByteArrayList{"C: AUTH LOGIN", "S: 334 Username:", "C: " + userToken,
                                                     "S: 334 Password:", "C: " + passwordToken,
                                                     "S: 235 welcome"});
}

TEST_F(SmtpLogin, ChallengeThatIsNotEncodedIsNotAnswered) {
    fails(helloWithAuth("CRAM-MD5") + QByteArrayList{"C: AUTH CRAM-MD5", "S: 334 <1.2@example.it>"}, 0,
          "WAIT");
}

TEST_F(SmtpLogin, OldFormOfTheOffer) {
    delivers({"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 AUTH=PLAIN LOGIN",
              "C: AUTH PLAIN " + plainToken, "S: 235 welcome"});
}

TEST_F(SmtpLogin, CramMd5IsPreferredToPlainInTheClear) {
    const QByteArray digest =
        QMessageAuthenticationCode::hash("<1.2@example.it>", "segreto-più", QCryptographicHash::Md5);
    delivers(helloWithAuth("PLAIN LOGIN CRAM-MD5") +
             QByteArrayList{"C: AUTH CRAM-MD5", "S: 334 " + cramChallenge,
                            "C: " + ("utente " + digest.toHex()).toBase64(), "S: 235 welcome"});
}

TEST_F(SmtpLogin, UnknownMechanismIsFollowedByTheNextOne) {
    delivers(helloWithAuth("PLAIN CRAM-MD5") + QByteArrayList{"C: AUTH CRAM-MD5", "S: 504 not really",
                                                              "C: AUTH PLAIN " + plainToken,
                                                              "S: 235 welcome"});
}

TEST_F(SmtpLogin, PasswordThatCannotBeDigestedGoesByAMechanismThatSendsIt) {
    const QByteArray password = "👍\r\nRSET";
    ScriptedServer server(
        {helloWithAuth("SCRAM-SHA-256 CRAM-MD5 PLAIN") +
             QByteArrayList{"C: AUTH PLAIN " + (QByteArray(1, '\0') + "utente" + '\0' + password).toBase64(),
                            "S: 235 welcome"} +
             message + QByteArrayList{"C: QUIT"},
         helloWithAuth("SCRAM-SHA-256") + QByteArrayList{"C: QUIT"}});
    Client client(server.port());
    prepare(client);
    client.smtp.UserPassword = QString::fromUtf8(password);
    EXPECT_TRUE(client.send().done);
    client.smtp.OpportunisticTls = true;  // another route, so another session
    const Heard heard = client.send();
    EXPECT_FALSE(heard.done);
    EXPECT_TRUE(heard.text.contains(QStringLiteral("Autenticazione non riuscita"))) << qPrintable(heard.text);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpLogin, RefusedCredentials) {
    fails(helloWithAuth("PLAIN LOGIN") + QByteArrayList{"C: AUTH PLAIN *", "S: 535 bad credentials"}, 535);
}

TEST_F(SmtpLogin, RefusedInTheMiddle) {
    fails(helloWithAuth("LOGIN") +
              QByteArrayList{"C: AUTH LOGIN", "S: 334 VXNlcm5hbWU6", "C: *", "S: 535 who are you"},
          535);
}

TEST_F(SmtpLogin, NoKnownMechanism) {
    fails(helloWithAuth("GSSAPI NTLM"), 0);
}

TEST_F(SmtpLogin, NoLoginOffered) {
    fails(hello, 0);
}

TEST_F(SmtpLogin, EndlessChallenges) {
    QByteArrayList login = helloWithAuth("LOGIN") + QByteArrayList{"C: AUTH LOGIN"};
    login += {"S: 334 VXNlcm5hbWU6", "C: *", "S: 334 UGFzc3dvcmQ6", "C: *", "S: 334 UGFzc3dvcmQ6"};
    fails(login, 0, "WAIT");
}

TEST_F(SmtpLogin, SuccessBeforeTheServerHasProvedItselfIsAFailure) {
    fails(helloWithAuth("SCRAM-SHA-256") + QByteArrayList{"C: AUTH SCRAM-SHA-256 *", "S: 235 welcome"}, 0,
          "WAIT");
}

TEST_F(SmtpLogin, PasswordWithNulIsAFailure) {
    ScriptedServer server({helloWithAuth("PLAIN") + QByteArrayList{"C: QUIT"}});
    Client client(server.port());
    prepare(client);
    client.smtp.UserPassword = QString(QChar::Null);
    EXPECT_FALSE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpLogin, OverlongTokenIsNotSentWithTheCommand) {
    const QByteArray password(600, 'p');
    ScriptedServer server(
        {helloWithAuth("PLAIN") +
         QByteArrayList{"C: AUTH PLAIN", "S: 334 ",
                        "C: " + (QByteArray(1, '\0') + "utente" + '\0' + password).toBase64(), "S: 235 ok"} +
         message});
    Client client(server.port());
    prepare(client);
    client.smtp.UserPassword = QString::fromLatin1(password);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpLogin, GreetingByHeloTriesStartTlsOnce) {
    ScriptedServer server(
        {{"S: 220 ready", "C: HELO *", "S: 250 ready", "C: STARTTLS", "S: 220 go", "TLS", "C: HELO *",
          "S: 250 ready", "C: AUTH PLAIN *", "S: 235 ok", "C: MAIL*", "S: 250 ok", "C: RCPT*", "S: 250 ok",
          "C: DATA", "S: 354 go", "BODY", "S: 250 ok"}},
        TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    client.smtp.HeloMode = 1;
    client.smtp.ServerName = QStringLiteral("localhost");
    client.smtp.CertificateFolder = TestCertificates::get().trustFolder();
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpLogin, GreetingByHeloContinuesInTheClearWhereStartTlsIsUnknown) {
    ScriptedServer server(
        {QByteArrayList{"S: 220 ready", "C: HELO *", "S: 250 ready", "C: STARTTLS", "S: 502 what",
                        "C: AUTH SCRAM-SHA-256 *", "S: 504 no", "C: AUTH SCRAM-SHA-1 *", "S: 504 no",
                        "C: AUTH CRAM-MD5", "S: 504 no", "C: AUTH PLAIN *", "S: 235 ok"} +
         message});
    Client client(server.port());
    prepare(client);
    client.smtp.HeloMode = 1;
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpLogin, OtherMechanismsAfterAHelo) {
    const QByteArrayList helo{"S: 220 ready", "C: HELO *",
                              "S: 250 ready", "C: STARTTLS",
                              "S: 502 what",  "C: AUTH SCRAM-SHA-256 *",
                              "S: 504 no",    "C: AUTH SCRAM-SHA-1 *",
                              "S: 504 no"};
    const QByteArray digest =
        QMessageAuthenticationCode::hash("<1.2@example.it>", "segreto-più", QCryptographicHash::Md5);
    const QByteArrayList cram{"C: AUTH CRAM-MD5", "S: 334 " + cramChallenge,
                              "C: " + ("utente " + digest.toHex()).toBase64(), "S: 235 welcome"};
    const QByteArrayList plain{"C: AUTH CRAM-MD5", "S: 504 no",        "C: AUTH PLAIN *",
                               "S: 334 ",          "C: " + plainToken, "S: 235 welcome"};
    const QByteArrayList login{"C: AUTH CRAM-MD5", "S: 504 no",           "C: AUTH PLAIN *",
                               "S: 504 no",        "C: AUTH LOGIN",       "S: 334 VXNlcm5hbWU6",
                               "C: " + userToken,  "S: 334 UGFzc3dvcmQ6", "C: " + passwordToken,
                               "S: 235 welcome"};
    for (const QByteArrayList& steps : {cram, plain, login}) {
        ScriptedServer server({helo + steps + message});
        Client client(server.port());
        prepare(client);
        client.smtp.HeloMode = 1;
        EXPECT_TRUE(client.send().done);
        EXPECT_EQ(server.remainder(), "");
    }
}

TEST_F(SmtpLogin, HeloWithoutLoginAsksForNoTls) {
    ScriptedServer server({QByteArrayList{"S: 220 ready", "C: HELO *", "S: 250 ready"} + message});
    Client client(server.port());
    client.smtp.HeloMode = 1;
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpLogin, OtherCredentialsOpenANewSession) {
    const QByteArrayList login = helloWithAuth("PLAIN") + QByteArrayList{"C: AUTH PLAIN *", "S: 235 ok"};
    ScriptedServer server({login + message + QByteArrayList{"C: QUIT"}, login + message});
    Client client(server.port());
    prepare(client);
    EXPECT_TRUE(client.send().done);
    client.smtp.UserPassword = QStringLiteral("altro");
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(SmtpLogin, CredentialsNeverAppearInTheTranscript) {
    const QByteArray digest =
        QMessageAuthenticationCode::hash("<1.2@example.it>", "segreto-più", QCryptographicHash::Md5);
    const QByteArray cramToken = ("utente " + digest.toHex()).toBase64();
    const QList<QByteArrayList> logins{
        helloWithAuth("PLAIN") + QByteArrayList{"C: AUTH PLAIN *", "S: 235 ok"},
        helloWithAuth("PLAIN") + QByteArrayList{"C: AUTH PLAIN *", "S: 334 ", "C: *",
                                                "S: 535 utente/segreto-più is wrong, not " + plainToken},
        helloWithAuth("LOGIN") + QByteArrayList{"C: AUTH LOGIN", "S: 334 VXNlcm5hbWU6", "C: *",
                                                "S: 334 UGFzc3dvcmQ6", "C: *", "S: 535 " + passwordToken},
        helloWithAuth("CRAM-MD5") +
            QByteArrayList{"C: AUTH CRAM-MD5", "S: 334 " + cramChallenge, "C: *", "S: 535 " + cramToken}};
    for (const QByteArrayList& login : logins) {
        QTemporaryDir folder;
        ScriptedServer server(
            {login.last().startsWith("S: 235") ? login + message : login + QByteArrayList{"C: QUIT"}});
        Client client(server.port());
        prepare(client);
        client.smtp.LogFile = folder.filePath(QStringLiteral("prova.xt1"));
        client.smtp.LogEnabled = true;
        client.send();
        EXPECT_EQ(server.remainder(), "");
        QFile file(client.smtp.LogFile);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray log = file.readAll();
        EXPECT_TRUE(log.contains("> AUTH ")) << log.constData();
        for (const QByteArray& secret : {QByteArray("segreto"), plainToken, passwordToken, cramToken,
                                         digest.toHex(), userToken, cramChallenge})
            EXPECT_FALSE(log.contains(secret)) << secret.constData() << '\n' << log.constData();
    }
}

TEST_F(SmtpLogin, NothingThatAServerSaysSteersTheDisplayOfATranscript) {
    const QByteArray hostile = "\x1b[2J\x07\xc2\x9b\xe2\x80\xae\x9b";
    const QByteArrayList greeted{"S: 220 " + hostile, "C: EHLO *", "S: 250-" + hostile,
                                 "S: 250 AUTH PLAIN " + hostile, "C: AUTH PLAIN *"};
    const QList<QByteArrayList> dialogues{
        {"S: 554 " + hostile, "C: QUIT"},
        greeted + QByteArrayList{"S: 535-" + hostile, "S: 535 " + hostile, "C: QUIT"},
        greeted + QByteArrayList{"S: 235 " + hostile, "C: MAIL*", "S: 550 " + hostile},
        {"S: 220 x\r\n250 " + hostile, "WAIT"},  // at once: the second is too early to be an answer
        {"S: 2" + hostile, "WAIT"},
        {"S: 220 x", "C: EHLO *", "S: 421 " + hostile, "DROP"}};
    for (const QByteArrayList& dialogue : dialogues) {
        const QTemporaryDir folder;
        ScriptedServer server({dialogue});
        Client client(server.port());
        prepare(client);
        client.smtp.LogFile = folder.filePath(QStringLiteral("prova.xt1"));
        client.smtp.LogEnabled = true;
        client.send();
        EXPECT_EQ(server.remainder(), "");
        QFile file(client.smtp.LogFile);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray log = file.readAll().replace("\r\n", "");
        EXPECT_TRUE(log.contains("[2J"));
        EXPECT_TRUE(std::none_of(log.begin(), log.end(), [](char c) { return c >= 0 && c < ' '; }));
        EXPECT_FALSE(log.contains("\xc2\x9b") || log.contains("\xe2\x80\xae")) << log.constData();
    }
}

}  // namespace

}  // namespace smtp_login_test
