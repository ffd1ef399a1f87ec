// SPDX-License-Identifier: GPL-3.0-or-later
// How long each stage may last. The time-out is a second, the stages' minimum is scaled down.
#include <QThread>

#include "platform/mail/smtp_fixture.h"

namespace smtp_stages_test {

using testing_support::ScriptedServer;

namespace {

constexpr int generous = 600000;
constexpr mail::SmtpTimes none{.greeting = 0, .hello = 0, .login = 0, .finalReply = 0, .farewell = 0};
const QByteArrayList lateHello{"PAUSE 1600", "S: 220 ready", "C: EHLO *", "S: 250 ready"};

/// A client whose time-out is a second.
class HastyClient : public Client {
  public:
    HastyClient(quint16 port, const mail::SmtpTimes& times) : Client(port) {
        smtp.TimeoutSecs = 1;
        smtp.StageTimes = times;
    }
};

mail::SmtpTimes with(int mail::SmtpTimes::*stage, int ms) {
    mail::SmtpTimes times = none;
    times.*stage = ms;
    return times;
}

TEST(Stages, FirstGreetingOfAHostMayBeLate) {
    ScriptedServer server({lateHello + message});
    HastyClient client(server.port(), with(&mail::SmtpTimes::greeting, generous));
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Stages, HostThatGreetsLateMayDoSoAgain) {
    ScriptedServer server({lateHello + message + QByteArrayList{"DROP"}, lateHello + message});
    HastyClient client(server.port(), with(&mail::SmtpTimes::greeting, generous));
    EXPECT_TRUE(client.send().done);
    client.turn(50);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Stages, HostThatGreetsInTimeHasToDoSoAgain) {
    ScriptedServer server({hello + message + QByteArrayList{"DROP"}, {"WAIT"}});
    HastyClient client(server.port(), with(&mail::SmtpTimes::greeting, generous));
    EXPECT_TRUE(client.send().done);
    client.turn(50);
    EXPECT_FALSE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Stages, HostThatDidNotGreetIsNotWaitedForAgainInTheRun) {
    ScriptedServer server({{"WAIT"}, {"WAIT"}, lateHello + message});
    HastyClient client(server.port(), with(&mail::SmtpTimes::greeting, 1500));
    EXPECT_FALSE(client.send().done);
    client.smtp.StageTimes.greeting = generous;
    EXPECT_FALSE(client.send().done);
    client.smtp.BeginRun();
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Stages, ReplyToEhloMayBeLateAtEachConnection) {
    const QByteArrayList late{"S: 220 ready", "C: EHLO *", "PAUSE 1600", "S: 250 ready"};
    ScriptedServer server({late + message + QByteArrayList{"DROP"}, late + message});
    HastyClient client(server.port(), with(&mail::SmtpTimes::hello, generous));
    EXPECT_TRUE(client.send().done);
    client.turn(50);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Stages, ReplyToHeloMayBeLate) {
    ScriptedServer server(
        {QByteArrayList{"S: 220 ready", "C: HELO *", "PAUSE 1600", "S: 250 ready"} + message});
    HastyClient client(server.port(), with(&mail::SmtpTimes::hello, generous));
    client.smtp.HeloMode = 1;
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Stages, RefusalOfAPasswordMayBeLateAndIsKept) {
    ScriptedServer server({{"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 AUTH LOGIN", "C: AUTH LOGIN",
                            "PAUSE 1600", "S: 334 VXNlcm5hbWU6", "C: *", "S: 334 UGFzc3dvcmQ6", "C: *",
                            "PAUSE 1600", "S: 535 wrong", "C: QUIT"}});
    HastyClient client(server.port(), with(&mail::SmtpTimes::login, generous));
    client.smtp.UseAuth = true;
    client.smtp.UserName = client.smtp.UserPassword = QStringLiteral("x");
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(client.send().code, 535);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Stages, ReplyToTheFinalPointMayBeLate) {
    QByteArrayList late = message;
    late.insert(late.size() - 1, "PAUSE 1600");
    ScriptedServer server({hello + late + late});
    HastyClient client(server.port(), with(&mail::SmtpTimes::finalReply, generous));
    EXPECT_TRUE(client.send().done);
    client.smtp.BodyText = QString(3000000, u'x');
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Stages, EverythingElseGetsTheTimeout) {
    for (const char* silent : {"S: 250 sender ok", "S: 250 recipient ok", "S: 354 go ahead"}) {
        ScriptedServer server({hello + message.mid(0, message.indexOf(silent)) + QByteArrayList{"WAIT"}});
        HastyClient client(server.port(), {});
        const Heard heard = client.send();
        EXPECT_FALSE(heard.done);
        EXPECT_TRUE(heard.text.contains(QStringLiteral("Tempo scaduto"))) << qPrintable(heard.text);
        EXPECT_EQ(server.remainder(), "");
    }
}

TEST(Stages, ServerThatStopsReadingBeforeTheFinalPointGetsTheTimeout) {
    ScriptedServer server({hello + message.mid(0, message.indexOf("BODY")) + QByteArrayList{"HOLD"}});
    HastyClient client(server.port(), {});
    client.smtp.BodyText = QString(20000000, u'x');
    EXPECT_FALSE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Stages, TimeoutAboveThemAppliesToAll) {
    QByteArrayList late = message;
    late.insert(late.size() - 1, "PAUSE 1600");
    ScriptedServer server({lateHello + late});
    HastyClient client(server.port(), none);
    client.smtp.TimeoutSecs = 20;
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

/// While the program waits for a lock or for the block limit no event is handled: what came meanwhile counts.
TEST(Stages, WhatCameWhileNoEventWasTakenIsReadBeforeATimeout) {
    const QByteArrayList whole = hello + message;
    for (const char* reply : {"S: 220 ready", "S: 250 ready", "S: 250 sender ok", "S: 250 recipient ok",
                              "S: 354 go ahead", "S: 250 taken"}) {
        QByteArrayList late = whole;
        late.insert(late.indexOf(reply), "PAUSE 300");
        ScriptedServer server({late});
        HastyClient client(server.port(), none);
        client.smtp.Send();
        client.turn(150);
        QThread::msleep(1400);
        client.waitForOutcome();
        ASSERT_EQ(client.heard.size(), 1);
        EXPECT_TRUE(client.heard.first().done) << reply << ": " << qPrintable(client.heard.first().text);
        EXPECT_EQ(server.remainder(), "");
    }
}

TEST(Stages, StopEndsEachOfThem) {
    for (const QByteArrayList& silent :
         {QByteArrayList{"WAIT"}, QByteArrayList{"S: 220 ready", "C: EHLO *", "WAIT"}}) {
        ScriptedServer server({silent, hello + message});
        HastyClient client(server.port(), {});
        client.smtp.Send();
        while (server.waits() == 0)
            client.turn(5);
        client.smtp.Abort();
        EXPECT_EQ(client.heard.size(), 1);
        EXPECT_TRUE(client.send().done);
        EXPECT_EQ(server.remainder(), "");
    }
}

}  // namespace

}  // namespace smtp_stages_test
