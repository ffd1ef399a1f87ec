// SPDX-License-Identifier: GPL-3.0-or-later
// Messages that were abandoned after their final point: the server may still have accepted them.
#include <QTcpServer>

#include "platform/mail/smtp_run_fixture.h"
#include "support/SmtpSink.h"

namespace smtp_late_test {

using testing_support::SmtpSink;

namespace {

const QString bianchi = QStringLiteral("bianchi@example.it");
const QString verdi = QStringLiteral("verdi@example.it");

class LateReply : public testing::Test {
  protected:
    LateReply() {
        for (const char* name : {"rossi", "bianchi", "verdi"})
            sink.treat(QByteArray(name) + "@example.it", SmtpSink::Treatment::Hold);
        client.smtp.StageTimes.finalReply = 20000;
    }

    /// Lets the loop run until as many messages are held.
    void waitForHeld(qsizetype count) {
        until([&] { return sink.held().size() >= count; });
        ASSERT_EQ(sink.held().size(), count);
    }

    /// Sends, and stops when the server has received the message.
    void stopAfterFinalPoint(qint64 number, const QString& address = rossi) {
        const qsizetype before = sink.held().size();
        client.begin(number, address);
        waitForHeld(before + 1);
        client.smtp.Abort();
        ASSERT_EQ(client.heard.size(), 1);
        EXPECT_FALSE(client.heard.first().done);
    }

    /// Waits until the answers have arrived.
    template <class Condition>
    bool until(Condition condition) {
        return client.turnUntil(condition);
    }

    /// Returns when everything that the client has started has reached the server: a message that began
    /// later, and is refused at its end, was answered.
    static void letAnotherPass(SmtpSink& server) {
        server.treat("altri@example.it", SmtpSink::Treatment::RefuseData);
        Client other(server.port());
        other.smtp.ToAddress = QStringLiteral("altri@example.it");
        EXPECT_EQ(other.send().code, 452);
    }

    /// As many connections as the sink has greeted.
    qsizetype connections() const { return sink.greetings().size(); }

    SmtpSink sink;
    RunClient client{sink.port()};
};

TEST_F(LateReply, AcceptanceIsRemembered) {
    stopAfterFinalPoint(7);
    EXPECT_FALSE(client.remembers(7));
    sink.answerHeld("250 taken");
    EXPECT_TRUE(until([&] { return client.remembers(7); }));
    EXPECT_EQ(client.heard.size(), 1);
    client.smtp.BeginRun();
    EXPECT_FALSE(client.tick(7).done);
    EXPECT_EQ(sink.messages().size(), 1);
}

TEST_F(LateReply, AcceptanceThatHasComeUnreadIsRemembered) {
    client.begin(7);
    waitForHeld(1);
    sink.answerHeld("250 taken");
    client.smtp.Abort();
    EXPECT_EQ(client.heard.size(), 1);
    EXPECT_FALSE(client.heard.first().done);
    EXPECT_TRUE(until([&] { return client.remembers(7); }));
}

TEST_F(LateReply, RefusalLeavesTheRecipientToTheNextRun) {
    int sent = 0;
    for (const char* reply : {"550 no", "451 later", "354 go on", "what?", ""}) {
        sink.treat("rossi@example.it", SmtpSink::Treatment::Hold);
        stopAfterFinalPoint(7);
        client.smtp.BeginRun();
        client.begin(7);
        sink.answerHeld(reply);
        const Heard heard = client.outcome();
        EXPECT_FALSE(heard.done) << reply;
        EXPECT_EQ(heard.code, QByteArray(reply).left(3).toInt()) << reply;
        EXPECT_FALSE(client.remembers(7)) << reply;
        sink.treat("rossi@example.it", SmtpSink::Treatment::Accept);
        client.smtp.BeginRun();
        EXPECT_TRUE(client.tick(7).done) << reply;
        client.smtp.Marked(7);
        client.smtp.BeginRun();
        sent += 2;
        EXPECT_EQ(sink.messages().size(), sent) << reply;
    }
}

TEST_F(LateReply, NextMessageForTheRowTakesItsOutcome) {
    for (const bool taken : {true, false}) {
        stopAfterFinalPoint(7);
        client.smtp.BeginRun();
        client.begin(7);
        letAnotherPass(sink);
        EXPECT_TRUE(client.heard.isEmpty());
        sink.answerHeld(taken ? "250 taken" : "554 spam");
        const Heard heard = client.outcome();
        EXPECT_EQ(heard.done, taken);
        EXPECT_EQ(heard.code, taken ? 0 : 554);
        EXPECT_EQ(client.remembers(7), taken);
        client.smtp.Marked(7);
        client.smtp.BeginRun();
        client.smtp.BeginTick();
    }
    EXPECT_EQ(sink.messages().size(), 2);
}

TEST_F(LateReply, NextMessageByAnotherAccountWaitsAsWell) {
    SmtpSink otherSink;
    stopAfterFinalPoint(7);
    client.smtp.BeginRun();
    client.smtp.ServerPort = otherSink.port();
    client.smtp.FromAddress = QStringLiteral("altro@example.it");
    client.begin(7);
    letAnotherPass(otherSink);
    EXPECT_TRUE(client.heard.isEmpty());
    sink.answerHeld("250 taken");
    EXPECT_TRUE(client.outcome().done);
    EXPECT_EQ(sink.messages().size(), 1);
    EXPECT_TRUE(otherSink.messages().isEmpty());
}

TEST_F(LateReply, NextMessageThatWaitsCanBeStopped) {
    stopAfterFinalPoint(7);
    client.smtp.BeginRun();
    client.begin(7);
    client.smtp.Abort();
    EXPECT_EQ(client.heard.size(), 1);
    sink.answerHeld("250 taken");
    EXPECT_TRUE(until([&] { return client.remembers(7); }));
    EXPECT_EQ(client.heard.size(), 1);
    EXPECT_EQ(sink.messages().size(), 1);
}

TEST_F(LateReply, OthersAreServedMeanwhileOnAnotherConnection) {
    sink.treat("bianchi@example.it", SmtpSink::Treatment::Accept);
    stopAfterFinalPoint(7);
    client.smtp.BeginRun();
    EXPECT_TRUE(client.tick(8, bianchi).done);
    EXPECT_EQ(connections(), 2);
    client.smtp.Database = QStringLiteral("/nessuna/altri.mdb");
    EXPECT_TRUE(client.tick(7, bianchi).done);
    EXPECT_EQ(sink.messages().size(), 3);
}

TEST_F(LateReply, SameRowOfAnotherDatabaseDoesNotWait) {
    stopAfterFinalPoint(7);
    sink.treat("rossi@example.it", SmtpSink::Treatment::Accept);
    client.smtp.BeginRun();
    client.smtp.Database = QStringLiteral("/nessuna/altri.mdb");
    EXPECT_TRUE(client.tick(7).done);
    EXPECT_EQ(sink.messages().size(), 2);
}

TEST_F(LateReply, NoMessageIsStartedWhileTwoAreAwaited) {
    sink.treat("verdi@example.it", SmtpSink::Treatment::Accept);
    stopAfterFinalPoint(7);
    client.smtp.BeginRun();
    stopAfterFinalPoint(8, bianchi);
    client.smtp.BeginRun();
    client.begin(9, verdi);
    letAnotherPass(sink);
    EXPECT_TRUE(client.heard.isEmpty());
    EXPECT_EQ(sink.messages().size(), 2);
    sink.answerHeld("250 taken");
    EXPECT_TRUE(client.outcome().done);
    EXPECT_TRUE(client.remembers(7));
    EXPECT_FALSE(client.remembers(8));
    EXPECT_EQ(sink.messages().size(), 3);
}

TEST_F(LateReply, MessageThatIsNotStartedYetCanBeStopped) {
    stopAfterFinalPoint(7);
    client.smtp.BeginRun();
    stopAfterFinalPoint(8, bianchi);
    client.smtp.BeginRun();
    client.begin(9, verdi);
    client.smtp.Abort();
    EXPECT_EQ(client.heard.size(), 1);
    sink.answerHeld("250 taken");
    EXPECT_TRUE(until([&] { return client.remembers(7); }));
    letAnotherPass(sink);
    EXPECT_EQ(sink.messages().size(), 2);
    EXPECT_EQ(client.heard.size(), 1);
}

TEST_F(LateReply, OfAMessageThatWasSentOverIsAwaitedToo) {
    sink.treat("bianchi@example.it", SmtpSink::Treatment::Accept);
    client.begin(7);
    waitForHeld(1);
    EXPECT_TRUE(client.tick(8, bianchi).done);
    sink.answerHeld("250 taken");
    EXPECT_TRUE(until([&] { return client.remembers(7); }));
    EXPECT_EQ(client.heard.size(), 1);
}

TEST_F(LateReply, SendOverAMessageForTheSameRowWaits) {
    client.begin(7);
    waitForHeld(1);
    client.begin(7);
    letAnotherPass(sink);
    EXPECT_TRUE(client.heard.isEmpty());
    sink.answerHeld("250 taken");
    EXPECT_TRUE(client.outcome().done);
    EXPECT_EQ(sink.messages().size(), 1);
}

TEST_F(LateReply, IsNoLongerAwaitedForARecipientWhoIsChosenAgain) {
    stopAfterFinalPoint(7);
    client.smtp.Forget(database, {7});
    EXPECT_TRUE(until([&] { return sink.held().isEmpty(); }));
    sink.treat("rossi@example.it", SmtpSink::Treatment::Accept);
    client.smtp.BeginRun();
    EXPECT_TRUE(client.tick(7).done);
    EXPECT_EQ(sink.messages().size(), 2);
}

TEST_F(LateReply, MessageThatWaitsForItFailsWhenItsRecipientIsChosenAgain) {
    stopAfterFinalPoint(7);
    client.smtp.BeginRun();
    client.begin(7);
    client.smtp.Forget(database, {7});
    EXPECT_FALSE(client.outcome().done);
    EXPECT_FALSE(client.smtp.Awaiting());
    EXPECT_FALSE(client.remembers(7));
    sink.treat("rossi@example.it", SmtpSink::Treatment::Accept);
    EXPECT_TRUE(client.tick(7).done);
}

TEST_F(LateReply, OfOthersIsStillAwaitedWhenSomebodyIsChosenAgain) {
    stopAfterFinalPoint(7);
    client.smtp.Forget(database, {6, 8});
    client.smtp.Forget(QStringLiteral("/nessuna/altri.mdb"), {7});
    sink.answerHeld("250 taken");
    EXPECT_TRUE(until([&] { return client.remembers(7); }));
}

TEST_F(LateReply, ControlSaysWhoIsAwaitedAndWhenNobodyIs) {
    int ended = 0;
    QObject::connect(&client.smtp, &mail::DeliveryControl::AwaitedEnded, [&] { ++ended; });
    EXPECT_FALSE(client.smtp.Awaiting());
    stopAfterFinalPoint(7);
    client.smtp.BeginRun();
    stopAfterFinalPoint(8, bianchi);
    EXPECT_TRUE(client.smtp.Awaiting());
    EXPECT_EQ(client.smtp.Awaited(database), (QList<qint64>{7, 8}));
    EXPECT_TRUE(client.smtp.Awaited(QStringLiteral("/nessuna/altri.mdb")).isEmpty());
    sink.answerHeld("250 taken");
    EXPECT_TRUE(until([&] { return client.remembers(7); }));
    EXPECT_EQ(client.smtp.Awaited(database), QList<qint64>{8});
    EXPECT_EQ(ended, 0);
    sink.answerHeld("550 no");
    EXPECT_TRUE(until([&] { return ended == 1; }));
    EXPECT_FALSE(client.smtp.Awaiting());
}

TEST_F(LateReply, AwaitedConnectionLeavesTheLocalPortToNobody) {
    QTcpServer probe;
    ASSERT_TRUE(probe.listen(QHostAddress::LocalHost));
    client.smtp.OutPort = probe.serverPort();
    probe.close();
    sink.treat("bianchi@example.it", SmtpSink::Treatment::Accept);
    stopAfterFinalPoint(7);
    client.smtp.BeginRun();
    EXPECT_TRUE(client.tick(8, bianchi).done);
}

TEST_F(LateReply, IsGivenUpAtItsLimit) {
    client.smtp.TimeoutSecs = 1;
    client.smtp.StageTimes.finalReply = 0;
    stopAfterFinalPoint(7);
    client.smtp.BeginRun();
    const Heard heard = client.tick(7);
    EXPECT_FALSE(heard.done);
    EXPECT_EQ(heard.code, 0);
    EXPECT_FALSE(client.remembers(7));
}

TEST_F(LateReply, RoomIsKeptForEachThatIsAwaited) {
    sink.treat("verdi@example.it", SmtpSink::Treatment::Accept);
    for (qint64 number = 1; client.accepted.room() > 1; ++number)
        client.accepted.add(mail::DatabaseFile::at(database), -number, rossi);
    stopAfterFinalPoint(7);
    client.smtp.BeginRun();
    EXPECT_FALSE(client.tick(9, verdi).done);
    EXPECT_EQ(sink.messages().size(), 1);
    sink.answerHeld("250 taken");
    EXPECT_TRUE(until([&] { return client.remembers(7); }));
}

TEST_F(LateReply, BeforeTheFinalPointNothingIsAwaited) {
    client.smtp.BodyText = QString(20000000, u'x');
    client.begin(7);
    until([&] { return sink.attempts().size() == 1; });
    client.smtp.Abort();
    sink.treat("rossi@example.it", SmtpSink::Treatment::Accept);
    client.smtp.BodyText = QStringLiteral("breve");
    client.smtp.BeginRun();
    EXPECT_TRUE(client.tick(7).done);
    EXPECT_TRUE(until([&] { return sink.connected() == 1; }));  // what was aborted has been read
    EXPECT_EQ(sink.messages().size(), 1);
}

/// The server answers in a thread of its own, since no event loop runs any more.
TEST(LateReplyAtTheEnd, IsStillReadWhenTheControlGoes) {
    testing_support::ScriptedServer server({hello + message.mid(0, message.indexOf("BODY") + 1) +
                                            QByteArrayList{"GATE", "PAUSE 300", "S: 250 taken", "WAIT"}});
    mail::AcceptedList accepted;
    {
        Client client(server.port());
        client.smtp.StageTimes.farewell = 10000;
        client.smtp.Accepted = &accepted;
        client.smtp.Database = database;
        client.smtp.ToAddress = rossi;
        client.smtp.RecipientNumber = 7;
        client.smtp.Send();
        ASSERT_TRUE(client.turnUntil([&] { return server.waits() == 1; }));
        EXPECT_TRUE(client.heard.isEmpty());
        server.goOn();
    }
    EXPECT_TRUE(accepted.holds(mail::DatabaseFile::at(database), 7, rossi));
    EXPECT_EQ(server.remainder(), "");
}

}  // namespace

}  // namespace smtp_late_test
