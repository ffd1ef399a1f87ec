// SPDX-License-Identifier: GPL-3.0-or-later
// What is sent besides the message: the greeting, the order of commands, dots, the version of TLS.
#include <QRegularExpression>
#include <QTemporaryDir>

#include "platform/mail/hostile_values.h"
#include "platform/mail/smtp_fixture.h"
#include "platform/mail/wire_reader.h"
#include "support/WholeText.h"

namespace wire_dialogue_test {

using testing_support::ScriptedServer;

namespace {

// Sends one composed text as it is
mail::DeliveryOutcome sendText(const mail::MessageText& text, quint16 port) {
    mail::ComposedMessage composed;
    composed.from = {"mittente", "example.it", false};
    composed.to = {"rossi", "example.it", false};
    composed.text = text;
    mail::Route route;
    route.host = QStringLiteral("127.0.0.1");
    route.port = port;
    mail::Transcript transcript;
    mail::SmtpSession session(transcript);
    QEventLoop loop;
    mail::DeliveryOutcome outcome;
    QObject::connect(&session, &mail::SmtpSession::finished, &loop, [&](const mail::DeliveryOutcome& told) {
        outcome = told;
        loop.quit();
    });
    QTimer::singleShot(0, &session, [&] { session.deliver(route, composed, {.stall = 10000}); });
    loop.exec();
    return outcome;
}

void expectArrives(const mail::MessageText& text, const QByteArray& expected) {
    ScriptedServer server({hello + message + QByteArrayList{"C: QUIT"}});
    EXPECT_TRUE(sendText(text, server.port()).delivered);
    ASSERT_EQ(server.remainder(), "");
    EXPECT_TRUE(wire::unstuffed(server.bodies().at(0)) == expected)
        << server.bodies().at(0).left(300).constData();
}

TEST(WireDialogue, DotsArriveAsTheyAreWhereverTheWritesAreCut) {
    // lines of dots of different lengths around each multiple of the size of a write
    for (int shift = 0; shift < 8; ++shift) {
        QByteArray text(shift, 'x');
        text += "\r\n";
        while (text.size() < 300000)
            text += ".\r\n..\r\n.x\r\n\r\n...\r\nx.\r\n";
        mail::MessageText inOne;
        inOne.end() = text;
        expectArrives(inOne, text);
        mail::MessageText shared;
        shared.end() = "A: b\r\n\r\n";
        shared.append(mail::SharedLines(text));
        shared.append(mail::SharedLines(QByteArray("no dots here\r\n").repeated(20000)));
        shared.end() += ".\r\n..";
        expectArrives(shared, wholeOf(shared) + "\r\n");
    }
}

TEST(WireDialogue, BodiesOfDotsAndWithoutAFinalLineEndArrive) {
    for (const QByteArray& text :
         {QByteArray("."), QByteArray(".\r\n"), QByteArray("..\r\n.\r\n."), QByteArray("a\r\n.b"),
          QByteArray("a"), QByteArray("\r\n.\r\n"), QByteArray(".\r\n.\r\n.\r\n")}) {
        mail::MessageText whole;
        whole.end() = text;
        expectArrives(whole, text.endsWith("\r\n") ? text : text + "\r\n");
    }
}

TEST(WireDialogue, GreetingNamesAHostInFullOrAnAddress) {
    for (const int mode : {0, 1}) {
        ScriptedServer server(
            {QByteArrayList{"S: 220 ready", mode == 0 ? "C: EHLO *" : "C: HELO *", "S: 250 ready"} +
             message});
        Client client(server.port());
        client.smtp.HeloMode = mode;
        EXPECT_TRUE(client.send().done);
        ASSERT_EQ(server.remainder(), "");
        const QRegularExpression form(
            "\\A(EHLO|HELO) "
            "([A-Za-z0-9-]+(\\.[A-Za-z0-9-]+)+|\\[\\d+\\.\\d+\\.\\d+\\.\\d+\\]|\\[IPv6:[0-9a-f:.]+\\])\\z");
        EXPECT_TRUE(form.match(QString::fromLatin1(server.lines().at(0))).hasMatch())
            << server.lines().at(0).constData();
    }
}

TEST(WireDialogue, NothingFollowsDataInItsGroup) {
    ScriptedServer server(
        {helloPipelining + QByteArrayList{"C: MAIL FROM:<mittente@example.it>",
                                          "C: RCPT TO:<rossi@example.it>", "C: DATA", "PAUSE 50", "EMPTY",
                                          "S: 250 ok", "S: 250 ok", "S: 354 go", "BODY", "S: 250 taken"}});
    Client client(server.port());
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(WireDialogue, EachKindOfValueArrivesUnderEachSetOfExtensions) {
    const QList<QByteArrayList> greetings{
        {"S: 250 ready"},
        {"S: 250-ready", "S: 250 SIZE 100000000"},
        {"S: 250-ready", "S: 250-8BITMIME", "S: 250-SMTPUTF8", "S: 250 SIZE"}};
    for (const QByteArrayList& greeting : greetings) {
        for (const compose::ValueKind& kind : compose::valueKinds()) {
            SCOPED_TRACE(kind.name);
            ScriptedServer server({QByteArrayList{"S: 220 ready", "C: EHLO *"} + greeting +
                                   QByteArrayList{"C: MAIL FROM:<mittente@example.it>*", "S: 250 ok",
                                                  "C: RCPT TO:<rossi@example.it>", "S: 250 ok", "C: DATA",
                                                  "S: 354 go", "BODY", "S: 250 ok"}});
            Client client(server.port());
            client.smtp.FromName = client.smtp.ToName = client.smtp.Subject = client.smtp.BodyText =
                kind.value;
            client.smtp.BodyHtml = "<p>" + kind.value + "</p>";
            EXPECT_TRUE(client.send().done);
            ASSERT_EQ(server.remainder(), "");
            EXPECT_EQ(server.lines().size(), 4);
            const QRegularExpression mailLine(greeting.join(' ').contains("SIZE")
                                                  ? greeting.size() > 2
                                                        ? "\\A\\S+ \\S+ SIZE=\\d+ BODY=8BITMIME\\z"
                                                        : "\\A\\S+ \\S+ SIZE=\\d+\\z"
                                                  : "\\AMAIL FROM:<mittente@example.it>\\z");
            EXPECT_TRUE(mailLine.match(QString::fromLatin1(server.lines().at(1))).hasMatch())
                << server.lines().at(1).constData();
            const auto read = wire::read(wire::unstuffed(server.bodies().at(0)));
            EXPECT_EQ(read.complaints.join('\n').toStdString(), "");
            EXPECT_EQ(read.to.address, "rossi@example.it");
        }
    }
}

}  // namespace

}  // namespace wire_dialogue_test
