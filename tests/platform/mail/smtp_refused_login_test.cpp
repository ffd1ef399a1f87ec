// SPDX-License-Identifier: GPL-3.0-or-later
// A login that was refused for its password is not tried again at once.
#include "platform/mail/smtp_run_fixture.h"

namespace smtp_refused_login_test {

using testing_support::ScriptedServer;

namespace {

const QByteArrayList offersPlain{"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 AUTH PLAIN",
                                 "C: AUTH PLAIN *"};
const QByteArrayList refused = offersPlain + QByteArrayList{"S: 535 5.7.8 wrong password", "C: QUIT"};
const QByteArrayList welcome = offersPlain + QByteArrayList{"S: 235 welcome"};

void logIn(Client& client) {
    client.smtp.UseAuth = true;
    client.smtp.UserName = QStringLiteral("utente");
    client.smtp.UserPassword = QStringLiteral("segreto");
}

void expectRefusal(const Heard& heard) {
    EXPECT_FALSE(heard.done);
    EXPECT_EQ(heard.code, 535);
    EXPECT_EQ(heard.text, QStringLiteral("5.7.8 wrong password"));
}

TEST(RefusedLogin, CostsOneLoginHoweverManyRecipientsFollow) {
    ScriptedServer server({refused});
    RunClient client(server.port());
    logIn(client);
    for (int number = 1; number <= 20; ++number)
        expectRefusal(client.tick(number));
    EXPECT_EQ(server.remainder(), "");
    Unasked nobody;
    client.smtp.ServerPort = nobody.port();
    expectRefusal(client.tick(21));
    EXPECT_FALSE(nobody.wasAsked());
}

TEST(RefusedLogin, IsTriedAgainInTheNextRun) {
    ScriptedServer server({refused, refused, welcome + message + message});
    RunClient client(server.port());
    logIn(client);
    expectRefusal(client.tick(1));
    client.smtp.BeginRun();
    expectRefusal(client.tick(1));
    expectRefusal(client.tick(2));
    client.smtp.BeginRun();
    EXPECT_TRUE(client.tick(1).done);
    EXPECT_TRUE(client.tick(2).done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(RefusedLogin, IsTriedAgainWhenTheAccountHasChanged) {
    const QList<void (*)(mail::DeliveryControl&)> changes{
        [](mail::DeliveryControl& smtp) { smtp.ServerName = QStringLiteral("localhost"); },
        [](mail::DeliveryControl& smtp) { smtp.UserName = QStringLiteral("altro"); },
        [](mail::DeliveryControl& smtp) { smtp.UserPassword = QStringLiteral("altro"); },
    };
    for (const auto change : changes) {
        ScriptedServer server({refused, welcome + message});
        Client client(server.port());
        logIn(client);
        expectRefusal(client.send());
        change(client.smtp);
        EXPECT_TRUE(client.send().done);
        EXPECT_EQ(server.remainder(), "");
    }
}

TEST(RefusedLogin, IsForgottenByAnyMessageOfAnotherAccount) {
    ScriptedServer server({refused, hello + message + QByteArrayList{"C: QUIT"}, welcome + message});
    Client client(server.port());
    logIn(client);
    expectRefusal(client.send());
    client.smtp.UseAuth = false;
    EXPECT_TRUE(client.send().done);
    client.smtp.UseAuth = true;
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(RefusedLogin, IsTriedAgainAfterAWhile) {
    ScriptedServer server({refused, welcome + message});
    Client client(server.port());
    logIn(client);
    EXPECT_EQ(mail::SmtpTimes().refusedLogin, 5 * 60 * 1000);
    client.smtp.StageTimes.refusedLogin = 0;
    expectRefusal(client.send());
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(RefusedLogin, TemporaryAndOtherFailuresOfALoginAreNotKept) {
    for (const char* reply :
         {"454 4.7.0 try later", "432 later", "504 what", "534 too weak", "535 no mechanism available"}) {
        ScriptedServer server(
            {offersPlain + QByteArrayList{QByteArray("S: ") + reply, "C: QUIT"}, welcome + message});
        Client client(server.port());
        logIn(client);
        EXPECT_EQ(client.send().code, QByteArray(reply).left(3).toInt());
        EXPECT_TRUE(client.send().done) << reply;
        EXPECT_EQ(server.remainder(), "");
    }
}

TEST(RefusedLogin, RefusalsOfMessagesAreNotTakenForIt) {
    ScriptedServer server({welcome + QByteArrayList{message[0], "S: 535 not you"} + message});
    Client client(server.port());
    logIn(client);
    EXPECT_EQ(client.send().code, 535);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(RefusedLogin, GuessesAfterAHeloCostTwoLogins) {
    const QByteArrayList helo{"S: 220 ready", "C: HELO *", "S: 250 ready", "C: STARTTLS", "S: 502 what"};
    ScriptedServer server({helo + QByteArrayList{"C: AUTH SCRAM-SHA-256 *", "S: 535 no",
                                                 "C: AUTH SCRAM-SHA-1 *", "S: 535 no", "C: QUIT"}});
    Client client(server.port());
    logIn(client);
    client.smtp.HeloMode = 1;
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(client.send().code, 535);
    EXPECT_EQ(server.remainder(), "");
}

}  // namespace

}  // namespace smtp_refused_login_test
