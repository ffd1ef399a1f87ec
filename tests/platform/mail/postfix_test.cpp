// SPDX-License-Identifier: GPL-3.0-or-later
// A real mail server with all its parts: login, TLS, delivery to a Maildir, and relaying of what was signed.
#include <QMap>
#include <QTemporaryDir>

#include "platform/mail/dkim_support.h"
#include "platform/mail/hostile_values.h"
#include "platform/mail/smtp_fixture.h"
#include "platform/mail/wire_reader.h"
#include "support/Postfix.h"
#include "support/PrivateNetwork.h"
#include "support/WholeText.h"

namespace postfix_test {

using testing_support::Postfix;
using testing_support::ScriptedServer;
using testing_support::TestCertificates;

namespace {

constexpr quint16 relayPort = 2500;
const bool isolated = testing_support::enterPrivateNetwork(__FILE__);

class RealServer : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        if (isolated) s_server = new Postfix(relayPort);
    }
    static void TearDownTestSuite() {
        delete s_server;
        s_server = nullptr;
    }
    void SetUp() override {
        if (!isolated || !s_server->isPossible())
            GTEST_SKIP() << "only the superuser can give a whole mail server its users and its network";
        ASSERT_EQ(s_server->problem().toStdString(), "");
        s_taken = s_server->mail(0).size();
    }

    static void logIn(mail::Route& route, quint16 port) {
        route.host = QStringLiteral("localhost");
        route.port = port;
        route.certificateFolder = TestCertificates::get().trustFolder();
        route.login = true;
        route.user = Postfix::user;
        route.password = Postfix::password;
    }

    static void logIn(Client& client) {
        client.smtp.ServerName = QStringLiteral("localhost");
        client.smtp.CertificateFolder = TestCertificates::get().trustFolder();
        client.smtp.UseAuth = true;
        client.smtp.UserName = Postfix::user;
        client.smtp.UserPassword = Postfix::password;
    }

    // Delivers composed messages one after the other over one session
    static void deliver(const QList<mail::ComposedMessage>& messages, quint16 port) {
        mail::Route route;
        logIn(route, port);
        mail::Transcript transcript;
        mail::SmtpSession session(transcript);
        QEventLoop loop;
        mail::DeliveryOutcome outcome;
        QObject::connect(&session, &mail::SmtpSession::finished, &loop,
                         [&](const mail::DeliveryOutcome& told) {
                             outcome = told;
                             loop.quit();
                         });
        for (const auto& message : messages) {
            QTimer::singleShot(0, &session, [&] { session.deliver(route, message, {.stall = 20000}); });
            loop.exec();
            EXPECT_TRUE(outcome.delivered) << outcome.text.toStdString() << s_server->log().toStdString();
        }
    }

    // What arrived since the test began, by Message-ID and without the lines that the server wrote above
    static QMap<QByteArray, QByteArray> arrived(qsizetype count) {
        QMap<QByteArray, QByteArray> all;
        for (QByteArray text : s_server->mail(s_taken + count)) {
            text.replace("\n", "\r\n");
            const qsizetype own = text.indexOf("\r\nDKIM-Signature: ");
            const QByteArray data = text.mid((own >= 0 ? own : text.indexOf("\r\nFrom: ")) + 2);
            all['<' + wire::read(data).messageId + '>'] = data;
        }
        return all;
    }

    static void expectArrived(const QList<mail::ComposedMessage>& messages) {
        const auto all = arrived(messages.size());
        for (const auto& message : messages)
            EXPECT_EQ(all[message.messageId].toStdString(), wholeOf(message.text).toStdString());
    }

    static Postfix* s_server;
    static qsizetype s_taken;
};

Postfix* RealServer::s_server = nullptr;
qsizetype RealServer::s_taken = 0;

// Every kind of message: plain, hostile, large, with files, with dots, with an address beyond ASCII
QList<mail::ComposedMessage> corpus(const QTemporaryDir& folder) {
    mail::Composer composer;
    QList<mail::ComposedMessage> messages;
    const QString logo = compose::makeFile(folder.filePath("logo.png"), compose::pngContent(3000));
    const QString file =
        compose::makeFile(folder.filePath("a.bin"), QByteArray(2000000, '\x02') + "\r\n.\r\n");
    compose::HostileValues values(11);
    for (int i = 0; i < 24; ++i) {
        auto message = compose::plainMessage();
        message.FromAddress = "mittente@example.it";
        message.ToAddress = i == 5 ? QStringLiteral("niccolò@example.it") : "rossi@example.it";
        if (i > 0) {
            message.ToName = values.text(8);
            message.Subject = values.text(i == 7 ? 300 : 10);
            message.BodyText = i == 8 ? ".\r\n..\r\n." : values.text(80);
            message.BodyHtml = i == 8 ? "" : values.text(80);
        }
        if (i % 3 == 1) {
            message.TemplateHtml = "<img src='" + logo + "'>";
            message.BodyHtml += message.TemplateHtml;
        }
        if (i % 4 == 2) message.Attachments = {{file, values.text(4) + "x.pdf"}};
        messages += composer.compose(message).value();
    }
    return messages;
}

TEST_F(RealServer, WhatIsInTheMailboxIsWhatWasComposed) {
    const QTemporaryDir folder;
    const auto messages = corpus(folder);
    deliver(messages, Postfix::submission);
    expectArrived(messages);
}

TEST_F(RealServer, ImplicitTlsDeliversTheSame) {
    const QTemporaryDir folder;
    const auto messages = corpus(folder).mid(0, 6);
    deliver(messages, Postfix::implicitTls);
    expectArrived(messages);
}

TEST_F(RealServer, EachMechanismLogsIn) {
    const QTemporaryDir folder;
    const auto messages = corpus(folder);
    for (qsizetype i = 0; i < Postfix::mechanisms().size(); ++i)
        deliver(messages.mid(i, 1), quint16(Postfix::firstMechanism + i));
    expectArrived(messages.mid(0, Postfix::mechanisms().size()));
    for (const QByteArray& mechanism : Postfix::mechanisms())
        EXPECT_TRUE(s_server->log().contains("sasl_method=" + mechanism)) << mechanism.constData();
}

// After HELO the server names no mechanism, and answers 535 to an unknown one.
TEST_F(RealServer, GreetingByHeloLogsInWhateverTheServerKnows) {
    for (const quint16 port : {Postfix::submission, Postfix::implicitTls, Postfix::onlyPasswords}) {
        Client client(port);
        logIn(client);
        client.smtp.HeloMode = 1;
        for (int i = 0; i < 5; ++i) {
            const Heard heard = client.send();
            EXPECT_TRUE(heard.done) << port << ' ' << heard.code << ' ' << qPrintable(heard.text);
        }
    }
}

TEST_F(RealServer, WrongPasswordCostsOneLoginInARun) {
    const auto logins = [] { return s_server->log().count("authentication failed"); };
    for (const auto& [heloMode, cost] : {std::pair(0, 1), std::pair(1, 2)}) {
        const auto before = logins();
        Client client(Postfix::onlyPasswords);
        logIn(client);
        client.smtp.HeloMode = heloMode;
        client.smtp.UserPassword = "falso";
        for (int i = 0; i < 20; ++i)
            EXPECT_EQ(client.send().code, 535);
        EXPECT_EQ(logins() - before, cost) << s_server->log().constData();
    }
}

TEST_F(RealServer, TranscriptContainsTheWholeDialogueWithoutASecret) {
    const QTemporaryDir folder;
    const QByteArray password = Postfix::password.toUtf8(), user = Postfix::user.toUtf8();
    QByteArrayList ports{QByteArray::number(Postfix::submission), QByteArray::number(Postfix::implicitTls)};
    for (qsizetype i = 0; i < Postfix::mechanisms().size(); ++i)
        ports += QByteArray::number(Postfix::firstMechanism + i);
    for (const QByteArray& port : ports) {
        Client client(port.toUShort());
        logIn(client);
        client.smtp.LogFile = folder.filePath(port + ".xt1");
        client.smtp.LogEnabled = true;
        EXPECT_TRUE(client.send().done);
        client.smtp.UserPassword = Postfix::password + "falso";
        const Heard refused = client.send();
        EXPECT_EQ(refused.code, 535) << refused.text.toStdString();
        QFile file(client.smtp.LogFile);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray log = file.readAll();
        for (const QByteArray& part :
             {QByteArray("invio tramite server, server localhost, porta ") + port, QByteArray("TLSv1.3, "),
              QByteArray("certificato valido"), QByteArray("> AUTH "), QByteArray("< 235 "),
              QByteArray("Message-ID <"), QByteArray("@example.it>, consegnato: 250 "),
              QByteArray(", non consegnato: 535 ")})
            EXPECT_TRUE(log.contains(part)) << part.constData() << '\n' << log.constData();
        for (const QByteArray& secret : {password, password.toBase64(), user.toBase64(),
                                         (QByteArray(1, '\0') + user + '\0' + password).toBase64(),
                                         password.toHex(), QByteArray("biws"), QByteArray("n,,n=")})
            EXPECT_FALSE(log.contains(secret)) << secret.constData() << '\n' << log.constData();
        // after AUTH nothing but the mechanism, and no base64 line anywhere
        for (const QByteArray& line : log.split('\n')) {
            const qsizetype at = line.indexOf("> AUTH ");
            if (at < 0) continue;
            EXPECT_TRUE(Postfix::mechanisms().contains(line.mid(at + 7).trimmed())) << line.constData();
        }
        EXPECT_FALSE(log.contains(" < 334 ") && !log.contains(" < 334 (omesso)")) << log.constData();
    }
}

TEST_F(RealServer, RelayedMessageKeepsItsSignature) {
    const QTemporaryDir folder;
    const QByteArray record = compose::makeDkimKey(folder.path(), "orto.example", "maggio");
    // The record comes from a name server in this network, in pieces of 255 octets at most.
    ASSERT_TRUE(testing_support::replaceResolverConfiguration("nameserver 127.0.0.1\n"));
    QProcess dns;
    dns.start("dnsmasq",
              {"--keep-in-foreground", "--no-resolv", "--no-hosts", "--conf-file=/dev/null", "--user=root",
               "--pid-file=",
               "--txt-record=maggio._domainkey.orto.example," + QString::fromLatin1(record.left(200)) + ',' +
                   QString::fromLatin1(record.mid(200))});
    ASSERT_TRUE(dns.waitForStarted());

    QByteArrayList dialogue{"S: 220 altrove", "C: EHLO *", "S: 250-altrove", "S: 250 8BITMIME"};
    for (const char* line : {"C: MAIL*", "S: 250 ok", "C: RCPT*", "S: 250 ok", "C: DATA", "S: 354 go", "BODY",
                             "S: 250 taken", "C: QUIT", "S: 221 bye"})
        dialogue += line;
    QList<mail::ComposedMessage> messages;
    mail::Composer composer;
    compose::HostileValues values(23);
    const QString file = compose::makeFile(folder.filePath("a.bin"), QByteArray(200000, '\x02'));
    for (int i = 0; i < 4; ++i) {
        auto message = compose::plainMessage();
        message.ToAddress = "rossi@altrove.example";
        message.DkimFolder = folder.path();
        if (i > 0) message.Subject = message.ToName = values.text(20);
        if (i > 1) message.BodyText = message.BodyHtml = values.text(50);
        if (i > 2) message.Attachments = {{file, "a.pdf"}};
        messages += composer.compose(message).value();
    }
    for (const auto& message : messages) {
        ScriptedServer relayed({dialogue}, {}, relayPort);
        deliver({message}, Postfix::submission);
        ASSERT_EQ(relayed.remainder(), "") << s_server->log().toStdString();
        const QByteArray received = wire::unstuffed(relayed.bodies().at(0));
        EXPECT_TRUE(received.contains("\r\nReceived: ") || received.startsWith("Received: "));
        EXPECT_TRUE(received.endsWith(wholeOf(message.text)));
        EXPECT_TRUE(compose::run("dkimverify", {}, received).contains("signature ok"));
    }
    dns.kill();
    dns.waitForFinished();
}

}  // namespace

}  // namespace postfix_test
