// SPDX-License-Identifier: GPL-3.0-or-later
// The delivery control as the send window uses it: sending, stopping, hostile values.
#include <QFile>
#include <QTcpServer>
#include <QTemporaryDir>

#include "platform/mail/smtp_fixture.h"
#include "platform/system/Keyring.h"

namespace smtp_control_test {

using testing_support::ScriptedServer;

namespace {

TEST(DeliveryControl, EmptyServerNameIsAnError) {
    Client client(25);
    for (const char* name : {"", "   "}) {
        client.smtp.ServerName = QString::fromLatin1(name);
        const Heard heard = client.send();
        EXPECT_FALSE(heard.done);
        EXPECT_EQ(heard.code, 0);
        EXPECT_FALSE(heard.text.isEmpty());
    }
}

/// A name from the DNS can be anything; no server listens at it.
TEST(DeliveryControl, ServerNameThatIsNoHostEndsBeforeConnectingAndIsNotLogged) {
    Unasked server;
    QTemporaryDir folder;
    Client client(server.port());
    client.smtp.LogFile = folder.filePath(QStringLiteral("prova.xt1"));
    client.smtp.LogEnabled = true;
    const QStringList names{
        QStringLiteral("127.0.0.1\r\nfalso"), QStringLiteral("localhost falso"), QStringLiteral("falso\t"),
        QChar(0) + QStringLiteral("falso"),   QStringLiteral("falso@localhost"), QString(1000000, u'f')};
    for (const QString& name : names) {
        for (const bool direct : {false, true}) {
            client.smtp.OpportunisticTls = direct;
            client.smtp.ServerName = name;
            const Heard heard = client.send();
            EXPECT_FALSE(heard.done);
            EXPECT_EQ(heard.code, 0);
            EXPECT_TRUE(heard.text.contains(QStringLiteral("non è valido"))) << qPrintable(heard.text);
        }
    }
    EXPECT_FALSE(server.wasAsked());
    QFile log(client.smtp.LogFile);
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    const QByteArray text = log.readAll();
    EXPECT_FALSE(text.contains("fals") || text.contains("ffff")) << text.left(2000).constData();
    EXPECT_FALSE(text.contains("Connessione"));
}

TEST(DeliveryControl, NullMxEndsBeforeConnecting) {
    Client client(25);
    client.smtp.OpportunisticTls = true;
    for (const char* name : {"", ".", " . "}) {
        client.smtp.ServerName = QString::fromLatin1(name);
        const Heard heard = client.send();
        EXPECT_FALSE(heard.done);
        EXPECT_TRUE(heard.text.contains(QStringLiteral("non ha un server di posta")))
            << qPrintable(heard.text);
    }
}

/// Refuses internal servers, by any name.
TEST(DeliveryControl, DirectRouteDoesNotConnectToAnInsideAddress) {
    Unasked server;
    Client client(server.port());
    client.smtp.PublicServersOnly = true;
    for (const char* name : {"localhost", "LOCALHOST.", "127.0.0.1", "::1", "::ffff:127.0.0.1"}) {
        client.smtp.ServerName = QString::fromLatin1(name);
        const Heard heard = client.send();
        EXPECT_FALSE(heard.done) << name;
        EXPECT_TRUE(heard.text.contains(QStringLiteral("non ha un server di posta")))
            << name << qPrintable(heard.text);
    }
    EXPECT_FALSE(server.wasAsked());
}

TEST(DeliveryControl, DirectRouteTakesNoAddressForAServerNotEvenAPublicOne) {
    Client client(25);
    client.smtp.PublicServersOnly = true;
    client.smtp.InsideHosts = QStringList{QStringLiteral("127.0.0.1"), QStringLiteral("192.0.2.1")};
    for (const char* name : {"127.0.0.1", "192.0.2.1", "8.8.8.8"}) {
        client.smtp.ServerName = QString::fromLatin1(name);
        EXPECT_TRUE(client.send().text.contains(QStringLiteral("non ha un server di posta"))) << name;
    }
}

TEST(DeliveryControl, DirectRouteReachesAnInsideServerThatIsAllowed) {
    ScriptedServer server({QByteArrayList{"S: 554 chiuso"}});
    Client client(server.port());
    client.smtp.PublicServersOnly = true;
    client.smtp.InsideHosts = QStringList{QStringLiteral("localhost")};
    client.smtp.ServerName = QStringLiteral("LocalHost");
    EXPECT_EQ(client.send().code, 554);
    client.smtp.InsideHosts.clear();
    EXPECT_EQ(client.send().code, 0);
    EXPECT_EQ(server.remainder(), "");
}

TEST(DeliveryControl, MarkerOfTheKeyringIsNeverSentAsAPassword) {
    Unasked server;
    Client client(server.port());
    client.smtp.UseAuth = true;
    client.smtp.UserName = QStringLiteral("ada");
    client.smtp.UserPassword = sys::keyring::newMarker();
    const Heard heard = client.send();
    EXPECT_FALSE(heard.done);
    EXPECT_EQ(heard.code, 0);
    EXPECT_TRUE(heard.text.contains(QStringLiteral("portachiavi")));
    EXPECT_FALSE(server.wasAsked());
}

TEST(DeliveryControl, PortZeroIsAnError) {
    Client client(0);
    EXPECT_FALSE(client.send().done);
}

TEST(DeliveryControl, HostThatDoesNotExistIsAnError) {
    Client client(25);
    client.smtp.ServerName = QStringLiteral("non-esiste.invalid");
    EXPECT_FALSE(client.send().done);
}

TEST(DeliveryControl, RefusedConnectionIsAnError) {
    QTcpServer unused;
    ASSERT_TRUE(unused.listen(QHostAddress::LocalHost));
    const quint16 port = unused.serverPort();
    unused.close();
    Client client(port);
    const Heard heard = client.send();
    EXPECT_FALSE(heard.done);
    EXPECT_TRUE(heard.text.contains(QStringLiteral("rifiutata"))) << qPrintable(heard.text);
}

/// No server listens at the address of a refused message: it must end before connecting.
TEST(DeliveryControl, AddressThatIsNotOnePlainAddressEndsBeforeConnecting) {
    Unasked server;
    Client client(server.port());
    const char* const bad[] = {"",
                               "rossi",
                               "@example.it",
                               "rossi@",
                               "a@example.it,b@example.it",
                               "a@example.it b@example.it",
                               "Rossi <rossi@example.it>",
                               "<rossi@example.it>",
                               "rossi@example.it\r\nRCPT TO:<altro@example.it>",
                               "rossi@example.it>\r\nDATA",
                               "rossi@example.it> NOTIFY=NEVER",
                               "\"rossi\r\n\"@example.it",
                               "gruppo: rossi@example.it;"};
    for (const char* address : bad) {
        client.smtp.ToAddress = QString::fromLatin1(address);
        const Heard heard = client.send();
        EXPECT_FALSE(heard.done) << address;
        EXPECT_EQ(heard.code, 0) << address;
    }
    client.smtp.ToAddress = QStringLiteral("rossi@example.it");
    client.smtp.FromAddress = QStringLiteral("mittente@example.it>\r\nRCPT TO:<altro@example.it");
    EXPECT_FALSE(client.send().done);
    EXPECT_FALSE(server.wasAsked());
}

TEST(DeliveryControl, LineBreaksInAnyValueAddNoCommandAndNoHeader) {
    const QString hostile =
        QStringLiteral("x\r\nRSET\r\n.\r\nMAIL FROM:<a@b>\r\nBcc: altro@example.it\n\r") + QChar::Null;
    ScriptedServer server({hello + message + message});
    Client client(server.port());
    client.smtp.FromName = client.smtp.ToName = client.smtp.Subject = hostile;
    EXPECT_TRUE(client.send().done);
    client.smtp.BodyText = client.smtp.BodyHtml = hostile;
    EXPECT_TRUE(client.send().done);
    ASSERT_EQ(server.remainder(), "");
    for (const QByteArray& body : server.bodies()) {
        const QByteArray headers = body.left(body.indexOf("\r\n\r\n"));
        EXPECT_FALSE(headers.contains("\r\nBcc:"));
        EXPECT_FALSE(headers.contains("\r\nRSET"));
        EXPECT_FALSE(body.contains('\0'));
    }
}

TEST(DeliveryControl, BodyOfDotsArrivesAsItIs) {
    ScriptedServer server({hello + message});
    Client client(server.port());
    client.smtp.BodyHtml.clear();
    client.smtp.BodyText = QStringLiteral(".\n..\n.\r\n.");
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
    for (const QByteArray& line : server.bodies().at(0).split('\n'))
        EXPECT_FALSE(line.startsWith('.') && !line.startsWith("..")) << line.constData();
}

TEST(DeliveryControl, AttachmentsArriveAsTheyAre) {
    const QTemporaryDir folder;
    const auto add = [&folder](Client& client, const QString& name, const QByteArray& content) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
        client.smtp.Attachments.Add(file.fileName(), name);
    };
    const QByteArray small = "From: a@example.it\r\n\r\n.\r\n", large = QByteArray("grande").repeated(100000);
    ScriptedServer server({hello + message});
    Client client(server.port());
    add(client, QStringLiteral("small.eml"), small);
    add(client, QStringLiteral("large.zip"), large);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
    QByteArray body = server.bodies().at(0);
    body.replace("\r\n", "");
    EXPECT_TRUE(body.contains(small.toBase64()));
    EXPECT_TRUE(body.contains(large.toBase64()));
}

TEST(DeliveryControl, AbortWithoutADeliveryDoesNothing) {
    Client client(25);
    client.smtp.Abort();
    letAMessagePass();
    EXPECT_TRUE(client.heard.isEmpty());
}

TEST(DeliveryControl, AbortEndsTheDeliveryBeforeItReturns) {
    const QByteArrayList whole = hello + message;
    // From the end of the message on its connection is kept, until the server has answered.
    for (qsizetype lines = 0; lines <= whole.indexOf("C: DATA"); ++lines) {
        ScriptedServer server({whole.mid(0, lines) + QByteArrayList{"WAIT"}, hello + message});
        Client client(server.port());
        client.smtp.Send();
        ASSERT_TRUE(client.turnUntil([&] { return server.waits() == 1; })) << lines;
        ASSERT_TRUE(client.heard.isEmpty()) << lines;
        client.smtp.Abort();
        ASSERT_EQ(client.heard.size(), 1) << lines;
        EXPECT_FALSE(client.heard[0].done);
        EXPECT_EQ(client.heard[0].code, 0);
        client.smtp.Abort();
        letAMessagePass();
        EXPECT_EQ(client.heard.size(), 1) << lines;
        EXPECT_TRUE(client.send().done) << lines;
        EXPECT_EQ(server.remainder(), "") << lines;
    }
}

TEST(DeliveryControl, AbortRightAfterSend) {
    ScriptedServer server({hello + message});
    Client client(server.port());
    client.smtp.ServerName.clear();
    client.smtp.Send();
    client.smtp.Abort();
    EXPECT_EQ(client.heard.size(), 1);
    letAMessagePass();
    EXPECT_EQ(client.heard.size(), 1);
    client.smtp.ServerName = QStringLiteral("127.0.0.1");
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(DeliveryControl, SendOverARunningMessageDropsThatOneSilently) {
    const QByteArrayList whole = hello + message;
    // From the end of the message on its connection is kept, until the server has answered.
    for (qsizetype lines = 0; lines <= whole.indexOf("C: DATA"); ++lines) {
        ScriptedServer server({whole.mid(0, lines) + QByteArrayList{"WAIT"}, hello + message});
        Client client(server.port());
        client.smtp.Send();
        ASSERT_TRUE(client.turnUntil([&] { return server.waits() == 1; })) << lines;
        EXPECT_TRUE(client.send().done) << lines;
        EXPECT_EQ(server.remainder(), "") << lines;
    }
}

TEST(DeliveryControl, SendOverAnErrorThatIsStillToComeDropsIt) {
    ScriptedServer server({hello + message});
    Client client(server.port());
    client.smtp.ServerName.clear();
    client.smtp.Send();
    client.smtp.ServerName = QStringLiteral("127.0.0.1");
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(DeliveryControl, NextMessageMayBeSentFromTheHandlerOfTheLast) {
    ScriptedServer server({hello + message + message + message});
    Client client(server.port());
    int left = 2;
    QObject::connect(&client.smtp, &mail::DeliveryControl::SendDone, [&] {
        if (left-- > 0) client.smtp.Send();
    });
    client.smtp.Send();
    for (int turns = 0; client.heard.size() < 3 && turns < 2000; ++turns)
        client.turn(5);
    EXPECT_EQ(client.heard.size(), 3);
    EXPECT_EQ(server.remainder(), "");
}

TEST(DeliveryControl, ValuesAreThoseOfTheMomentOfSend) {
    ScriptedServer server({hello + message});
    Client client(server.port());
    client.smtp.Send();
    client.smtp.ToAddress = QStringLiteral("altro@example.it");
    client.smtp.ServerName.clear();
    client.waitForOutcome();
    EXPECT_TRUE(client.heard.first().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(DeliveryControl, EventLoopThatWasHeldIsNoTimeout) {
    ScriptedServer server({hello + message});
    Client client(server.port());
    client.smtp.TimeoutSecs = 1;
    client.smtp.Send();
    QThread::msleep(1500);
    client.waitForOutcome();
    EXPECT_TRUE(client.heard.first().done) << qPrintable(client.heard.first().text);
    EXPECT_EQ(server.remainder(), "");
}

TEST(DeliveryControl, AbortAndSendInTheMiddleOfALargeMessage) {
    const QByteArrayList stuck =
        hello + message.mid(0, message.indexOf("S: 354 go ahead") + 1) + QByteArrayList{"READ 1000", "GATE"};
    ScriptedServer server({stuck, stuck, hello + message});
    Client client(server.port());
    const QString shortText = client.smtp.BodyText;
    client.smtp.BodyText = QString(20000000, u'x');
    client.smtp.Send();
    ASSERT_TRUE(client.turnUntil([&] { return server.waits() == 1; }));
    client.smtp.Abort();
    EXPECT_EQ(client.heard.size(), 1);
    server.goOn();
    client.smtp.Send();
    ASSERT_TRUE(client.turnUntil([&] { return server.waits() == 2; }));
    server.goOn();
    client.smtp.BodyText = shortText;
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(DeliveryControl, AttachmentThatCannotBeReadIsAnError) {
    Unasked server;
    Client client(server.port());
    client.smtp.Attachments.Add(QStringLiteral("/no/such/file.pdf"), QStringLiteral("file.pdf"));
    EXPECT_FALSE(client.send().done);
    EXPECT_FALSE(server.wasAsked());
}

TEST(DeliveryControl, ClearedAttachmentsAreGone) {
    ScriptedServer server({hello + message});
    Client client(server.port());
    client.smtp.Attachments.Add(QStringLiteral("/no/such/file.pdf"), QStringLiteral("file.pdf"));
    client.smtp.Attachments.Clear();
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

quint16 freePort() {
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost);
    return probe.serverPort();
}

TEST(DeliveryControl, OutPortIsTheLocalPort) {
    const quint16 port = freePort();
    ScriptedServer server({hello + message});
    Client client(server.port());
    client.smtp.OutPort = port;
    EXPECT_TRUE(client.send().done);
    ASSERT_EQ(server.remainder(), "");
    EXPECT_EQ(server.peerPorts(), QList<quint16>{port});
}

TEST(DeliveryControl, OutPortThatIsTakenIsReplacedByAnyOther) {
    QTcpServer taken;
    ASSERT_TRUE(taken.listen(QHostAddress::Any));
    ScriptedServer server({hello + message});
    Client client(server.port());
    client.smtp.OutPort = taken.serverPort();
    EXPECT_TRUE(client.send().done);
    ASSERT_EQ(server.remainder(), "");
    EXPECT_NE(server.peerPorts(), QList<quint16>{taken.serverPort()});
}

TEST(DeliveryControl, OutPortServesOneConnectionAfterTheOther) {
    const quint16 port = freePort();
    ScriptedServer server({hello + message, hello + message, hello + message});
    Client client(server.port());
    client.smtp.OutPort = port;
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(client.send().done) << i;
        client.turn(30);
    }
    EXPECT_EQ(server.remainder(), "");
}

}  // namespace

}  // namespace smtp_control_test
