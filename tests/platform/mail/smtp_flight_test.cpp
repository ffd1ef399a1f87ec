// SPDX-License-Identifier: GPL-3.0-or-later
// A message and its envelope in one flight: when it is done, and the outcome of each fault of the server.
#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <utility>

#include "platform/mail/OutcomeLine.h"
#include "platform/mail/smtp_run_fixture.h"

namespace smtp_flight_test {

using testing_support::ScriptedServer;

namespace {

const QByteArrayList helloChunking{"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250-PIPELINING",
                                   "S: 250 CHUNKING"};
/// Nothing is answered before all has arrived: a client that waits for a reply in between fails.
const QByteArrayList asked{"C: MAIL FROM:<mittente@example.it>", "C: RCPT TO:<rossi@example.it>",
                           "C: BDAT * LAST", "CHUNK"};
const QByteArrayList answers{"S: 250 sender fine", "S: 250 recipient fine", "S: 250 message taken"};
const QByteArrayList flight = asked + answers;
const QByteArrayList first = helloChunking + groupedMessage;
const QByteArrayList afterRefusal =
    reset.mid(0, 1) + groupedMessage.mid(0, 3) + reset.mid(1) + groupedMessage.mid(3);

class LoggedClient : public RunClient {
  public:
    explicit LoggedClient(quint16 port) : RunClient(port) {
        smtp.LogFile = m_folder.filePath("log.xt1");
        smtp.LogEnabled = true;
    }
    /// Lets the event loop run until the log contains the text.
    void waitForLogged(const QByteArray& text) {
        EXPECT_TRUE(turnUntil([&] {
            smtp.Remark(QStringLiteral("waiting"));
            QFile log(smtp.LogFile);
            return log.open(QIODevice::ReadOnly) && log.readAll().contains(text);
        })) << text.constData();
    }

  private:
    QTemporaryDir m_folder;
};

TEST(Flight, FollowsAMessageOnTheSameConnection) {
    ScriptedServer server({first + flight + flight});
    Client client(server.port());
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
    ASSERT_EQ(server.bodies().size(), 3);
    for (const QByteArray& body : server.bodies()) {
        EXPECT_EQ(body.size(), server.bodies()[0].size());
        EXPECT_TRUE(body.startsWith("From: Mittente <mittente@example.it>\r\n"));
        EXPECT_TRUE(body.endsWith("--\r\n"));
    }
}

TEST(Flight, GoesThroughTls) {
    const auto& identity = testing_support::TestCertificates::get().selfSigned();
    QByteArrayList hello =
        helloChunking.mid(0, 3) + QByteArrayList{"S: 250 STARTTLS", "C: STARTTLS", "S: 220 go", "TLS"};
    ScriptedServer server({hello + helloChunking.mid(1) + groupedMessage + flight + flight}, identity);
    Client client(server.port());
    client.smtp.OpportunisticTls = true;
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Flight, NeedsBothExtensions) {
    ScriptedServer pipelining({helloPipelining + groupedMessage + groupedMessage});
    ScriptedServer chunking(
        {QByteArrayList{"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 CHUNKING"} + message + message});
    for (ScriptedServer* server : {&pipelining, &chunking}) {
        Client client(server->port());
        EXPECT_TRUE(client.send().done);
        EXPECT_TRUE(client.send().done);
        EXPECT_EQ(server->remainder(), "");
    }
}

TEST(Flight, NeedsAMessageThatWasTakenShortlyBefore) {
    ScriptedServer server({first + groupedMessage});
    Client client(server.port());
    client.smtp.StageTimes.flight = 1;
    EXPECT_TRUE(client.send().done);
    QThread::msleep(2);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
    EXPECT_EQ(mail::SmtpTimes().flight, 5000);
}

TEST(Flight, IsNotForALargeMessage) {
    ScriptedServer server({first + groupedMessage + flight});
    Client client(server.port());
    EXPECT_TRUE(client.send().done);
    const QString small = client.smtp.BodyText;
    client.smtp.BodyText = QString(200000, u'x');
    EXPECT_TRUE(client.send().done);
    client.smtp.BodyText = small;
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

/// The server's end of the connection has arrived, but no event has reported it.
TEST(Flight, IsNotGivenToAConnectionThatTheServerHasClosed) {
    for (const char* farewell : {"DROP", "RESET"}) {
        ScriptedServer server({first + QByteArrayList{farewell}, first + flight});
        Client client(server.port());
        bool again = true;
        QObject::connect(&client.smtp, &mail::DeliveryControl::SendDone, [&] {
            while (server.ended() == 0)
                QThread::msleep(1);
            if (std::exchange(again, false)) client.smtp.Send();
        });
        client.smtp.Send();
        EXPECT_TRUE(Client::turnUntil([&] { return client.heard.size() == 2; }));
        EXPECT_TRUE(client.heard.last().done) << farewell;
        EXPECT_TRUE(client.send().done);
        EXPECT_EQ(server.remainder(), "") << farewell;
    }
}

/// Which of the three replies a fault replaces.
class At : public testing::TestWithParam<int> {
  protected:
    QByteArrayList faulty(const QByteArrayList& fault) const {
        return asked + answers.mid(0, GetParam()) + fault;
    }
};

TEST_P(At, FarewellProvesThatNothingWasTakenAndTheMessageIsTriedOnceMore) {
    ScriptedServer server({first + faulty({"S: 421 bye", "WAIT"}), first + flight});
    Client client(server.port());
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_P(At, SecondFarewellIsTheOutcome) {
    ScriptedServer server({first + faulty({"S: 421-bye", "S: 421 now", "DROP"}),
                           helloChunking + groupedMessage.mid(0, 3) + QByteArrayList{"S: 421 again", "WAIT"},
                           first});
    Client client(server.port());
    EXPECT_TRUE(client.send().done);
    const Heard outcome = client.send();
    EXPECT_FALSE(outcome.done);
    EXPECT_EQ(outcome.code, 421);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

/// Silence, a drop, a reset, half a 421, no SMTP, a 3xx reply.
TEST_P(At, LossIsNotTriedAgainAndEndsTheFlightsOfTheRun) {
    for (const QByteArrayList& loss : QList<QByteArrayList>{{"WAIT"},
                                                            {"DROP"},
                                                            {"PAUSE 20", "RESET"},
                                                            {"S- 421 by", "DROP"},
                                                            {"S: 421-bye", "DROP"},
                                                            {"S: what?", "WAIT"},
                                                            {"S: 354 go on", "WAIT"}}) {
        ScriptedServer server({first + faulty(loss), first + groupedMessage + flight});
        Client client(server.port());
        EXPECT_TRUE(client.send().done);
        client.smtp.TimeoutSecs = 1;
        EXPECT_FALSE(client.send().done) << loss[0].constData();
        client.smtp.TimeoutSecs = 10;
        EXPECT_TRUE(client.send().done);
        EXPECT_TRUE(client.send().done);
        client.smtp.BeginRun();
        EXPECT_TRUE(client.send().done);
        EXPECT_EQ(server.remainder(), "") << loss[0].constData();
    }
}

/// A server may keep all of its replies until it has read the message.
TEST_P(At, ReplyGetsTheTimeOfTheFinalOne) {
    ScriptedServer server({first + faulty({"PAUSE 1300"}) + answers.mid(GetParam()) + flight});
    Client client(server.port());
    client.smtp.TimeoutSecs = 1;
    client.smtp.StageTimes.finalReply = 20000;
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_P(At, StopLeavesTheRepliesToBeAwaitedAside) {
    ScriptedServer server({first + asked + answers.mid(0, GetParam()) + QByteArrayList{"GATE"} +
                           answers.mid(GetParam()) + QByteArrayList{"WAIT"}});
    LoggedClient client(server.port());
    EXPECT_TRUE(client.tick(1).done);
    client.begin(2);
    ASSERT_TRUE(Client::turnUntil([&] { return server.waits() == 1; }));
    if (GetParam() > 0) client.waitForLogged(answers[GetParam() - 1].mid(3));
    client.smtp.Abort();
    EXPECT_FALSE(client.outcome().done);
    EXPECT_TRUE(client.smtp.LastOutcome().unanswered);
    EXPECT_EQ(mail::OutcomeLine::of(client.smtp.LastOutcome(), {}).kind, mail::OutcomeKind::NoAnswer);
    EXPECT_TRUE(client.smtp.Awaiting());
    server.goOn();
    EXPECT_TRUE(Client::turnUntil([&] { return !client.smtp.Awaiting(); }));
    EXPECT_TRUE(client.remembers(2));
    EXPECT_EQ(server.remainder(), "");
}

TEST_P(At, RefusalAfterAStopIsNoAcceptance) {
    ScriptedServer server({first + asked + answers.mid(0, GetParam()) + QByteArrayList{"GATE", "S: 550 no"} +
                           answers.mid(GetParam() + 1) + QByteArrayList{"WAIT"}});
    RunClient client(server.port());
    EXPECT_TRUE(client.tick(1).done);
    client.begin(2);
    ASSERT_TRUE(Client::turnUntil([&] { return server.waits() == 1; }));
    client.smtp.Abort();
    EXPECT_TRUE(client.smtp.Awaiting());
    server.goOn();
    EXPECT_TRUE(Client::turnUntil([&] { return !client.smtp.Awaiting(); }));
    EXPECT_FALSE(client.remembers(2));
    EXPECT_EQ(server.remainder(), "");
}

INSTANTIATE_TEST_SUITE_P(Each, At, testing::Values(0, 1, 2), [](const auto& row) {
    return row.param == 0 ? "Mail" : row.param == 1 ? "Recipient" : "Message";
});

/// Whatever BDAT answers, a refused sender or recipient is refused. The next message is preceded by RSET,
/// waits for the replies to its envelope, and the one after it goes in one flight again.
TEST(Flight, RefusalOfTheEnvelopeDecides) {
    for (const int refused : {0, 1})
        for (const QByteArrayList& last : QList<QByteArrayList>{
                 {"S: 250 taken"}, {"S: 503 no recipient"}, {"S: 554 nobody"}, {"S: 451 later"}}) {
            QByteArrayList replies = answers.mid(0, 2);
            replies[refused] = "S: 550 not here";
            ScriptedServer server({first + asked + replies + last + afterRefusal + flight});
            Client client(server.port());
            EXPECT_TRUE(client.send().done);
            const Heard outcome = client.send();
            EXPECT_FALSE(outcome.done);
            EXPECT_EQ(outcome.code, 550);
            EXPECT_EQ(outcome.text, QStringLiteral("not here"));
            EXPECT_TRUE(client.send().done);
            EXPECT_TRUE(client.send().done);
            EXPECT_EQ(server.remainder(), "") << refused << last[0].constData();
        }
}

TEST(Flight, RefusalOfTheRecipientDecidesWhenTheConnectionEnds) {
    for (const QByteArrayList& last : QList<QByteArrayList>{
             {"DROP"}, {"WAIT"}, {"S: 421 bye", "DROP"}, {"S- 250", "DROP"}, {"S: 354 go on", "WAIT"}}) {
        ScriptedServer server(
            {first + asked + answers.mid(0, 1) + QByteArrayList{"S: 550 not here"} + last, first});
        Client client(server.port());
        EXPECT_TRUE(client.send().done);
        client.smtp.TimeoutSecs = 1;
        EXPECT_EQ(client.send().code, 550) << last[0].constData();
        EXPECT_TRUE(client.send().done);
        EXPECT_EQ(server.remainder(), "") << last[0].constData();
    }
}

TEST(Flight, RefusalOfTheMessageIsFollowedByReset) {
    ScriptedServer server(
        {first + asked + answers.mid(0, 2) + QByteArrayList{"S: 552 too large"} + afterRefusal + flight});
    Client client(server.port());
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(client.send().code, 552);
    EXPECT_TRUE(client.send().done);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

/// A server that offers BDAT and does not know it takes the message for commands.
TEST(Flight, IsTheLastOneWhereBdatIsNotKnown) {
    ScriptedServer server({first + asked + answers.mid(0, 2) + QByteArrayList{"S: 502 what is BDAT", "WAIT"},
                           first + groupedMessage});
    Client client(server.port());
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(client.send().code, 502);
    EXPECT_TRUE(client.send().done);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Flight, IsAcceptedByTheFirstThreeDigits) {
    for (const QByteArrayList& last : QList<QByteArrayList>{{"S- 250", "DROP"},
                                                            {"S: 250-taken", "DROP"},
                                                            {"S: 250 taken", "S: 421 bye", "DROP"},
                                                            {"S: 299-x", "WAIT"}}) {
        ScriptedServer server({first + asked + answers.mid(0, 2) + last, first});
        Client client(server.port());
        EXPECT_TRUE(client.send().done);
        client.smtp.TimeoutSecs = 1;
        EXPECT_TRUE(client.send().done) << last[0].constData();
        EXPECT_TRUE(client.send().done);
        EXPECT_EQ(server.remainder(), "") << last[0].constData();
    }
}

TEST(Flight, StopWithARefusedRecipientAwaitsNothing) {
    ScriptedServer server({first + asked + answers.mid(0, 1) + QByteArrayList{"S: 550 not here", "GATE"}});
    LoggedClient client(server.port());
    EXPECT_TRUE(client.tick(1).done);
    client.begin(2);
    client.waitForLogged("550 not here");
    client.smtp.Abort();
    EXPECT_FALSE(client.outcome().done);
    EXPECT_FALSE(client.remembers(2));
    server.goOn();
    EXPECT_EQ(server.remainder(), "");
}

}  // namespace

}  // namespace smtp_flight_test
