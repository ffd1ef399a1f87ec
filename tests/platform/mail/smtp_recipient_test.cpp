// SPDX-License-Identifier: GPL-3.0-or-later
// Messages with the number of a recipient's row: nobody gets one twice in a run, and none without a recipient
// is sent.
#include <QFile>
#include <QTemporaryDir>

#include "platform/mail/smtp_run_fixture.h"

namespace smtp_recipient_test {

using mail::DatabaseFile;
using testing_support::ScriptedServer;

namespace {

void expectRefused(const Heard& heard, const char* part) {
    EXPECT_FALSE(heard.done);
    EXPECT_EQ(heard.code, 0);
    EXPECT_TRUE(heard.text.contains(QString::fromUtf8(part))) << qPrintable(heard.text);
}

TEST(Recipient, MessagesOutsideARunAreNotChecked) {
    ScriptedServer server({hello + message + message});
    Client client(server.port());
    client.smtp.Abort();
    EXPECT_TRUE(client.send().done);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Recipient, NoRecipientMeansNoMessage) {
    Unasked server;
    RunClient client(server.port());
    expectRefused(client.tick(mail::recipient::nobody), "non è stato letto");
    expectRefused(client.tick(mail::recipient::nobody), "non è stato letto");
    EXPECT_FALSE(server.wasAsked());
}

TEST(Recipient, AddressThatWasNotAssignedIsNobodys) {
    ScriptedServer server({hello + message + message});
    RunClient client(server.port());
    EXPECT_TRUE(client.tick(1).done);
    client.smtp.BeginTick();
    client.smtp.RecipientNumber = 2;
    expectRefused(client.send(), "indirizzo");
    EXPECT_TRUE(client.tick(3).done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Recipient, AddressIsUsedUpByAnySend) {
    Unasked server;
    RunClient client(server.port());
    client.smtp.RecipientNumber = mail::recipient::outsideRun;
    client.smtp.ServerName.clear();
    EXPECT_FALSE(client.send().done);
    client.smtp.ServerName = QStringLiteral("127.0.0.1");
    client.smtp.RecipientNumber = 1;
    expectRefused(client.send(), "indirizzo");
    client.smtp.BeginRun();
    expectRefused(client.send(), "indirizzo");
    EXPECT_FALSE(server.wasAsked());
}

TEST(Recipient, AddressThatIsAssignedAsItWasIsFresh) {
    ScriptedServer server({hello + message + message});
    RunClient client(server.port());
    EXPECT_TRUE(client.tick(1).done);
    EXPECT_TRUE(client.tick(2).done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Recipient, IsServedOnceInARun) {
    ScriptedServer server({hello + message + message});
    RunClient client(server.port());
    EXPECT_TRUE(client.tick(7).done);
    client.smtp.Marked(7);
    for (int again = 0; again < 20; ++again)
        expectRefused(client.tick(7), "in questo invio");
    EXPECT_TRUE(client.tick(8).done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Recipient, ThatFailedMayBeTriedAgain) {
    ScriptedServer server({hello + QByteArrayList{"C: MAIL*", "S: 451 later"} + message});
    RunClient client(server.port());
    EXPECT_FALSE(client.tick(7).done);
    EXPECT_TRUE(client.tick(7).done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Recipient, OfTheLastRunMayBeServedInTheNext) {
    ScriptedServer server({hello + message + message});
    RunClient client(server.port());
    EXPECT_TRUE(client.tick(7).done);
    client.smtp.Marked(7);
    client.smtp.BeginRun();
    EXPECT_TRUE(client.tick(7).done);
    EXPECT_EQ(server.remainder(), "");
}

/// A tick that has read its row when the new run begins may have read one that the last run has served.
TEST(Recipient, TickThatBeganBeforeTheRunIsHeldToTheRunBefore) {
    ScriptedServer server({hello + message + message});
    RunClient client(server.port());
    EXPECT_TRUE(client.tick(7).done);
    client.smtp.Marked(7);
    client.smtp.BeginTick();
    client.smtp.ToAddress = rossi;
    client.smtp.RecipientNumber = 7;
    client.smtp.Abort();
    client.smtp.BeginRun();
    expectRefused(client.send(), "in questo invio");
    EXPECT_TRUE(client.tick(7).done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Recipient, SameNumberOfAnotherDatabaseIsAnother) {
    ScriptedServer server({hello + message + message});
    RunClient client(server.port());
    EXPECT_TRUE(client.tick(7).done);
    client.smtp.Database = QStringLiteral("/nessuna/altri.mdb");
    EXPECT_TRUE(client.tick(7).done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Recipient, StopLastsUntilTheNextRun) {
    ScriptedServer server({hello + message});
    RunClient client(server.port());
    client.smtp.Abort();
    expectRefused(client.tick(1), "fermato");
    expectRefused(client.tick(2), "fermato");
    client.smtp.BeginRun();
    EXPECT_TRUE(client.tick(1).done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Recipient, AnswerWithoutAServerCanBeAborted) {
    RunClient client;
    client.smtp.RecipientNumber = mail::recipient::nobody;
    client.smtp.Send();
    EXPECT_TRUE(client.heard.isEmpty());
    client.smtp.Abort();
    EXPECT_EQ(client.heard.size(), 1);
    letAMessagePass();
    EXPECT_EQ(client.heard.size(), 1);
}

TEST(Recipient, AcceptanceIsRememberedBeforeItIsReported) {
    ScriptedServer server({hello + message});
    RunClient client(server.port());
    bool remembered = false;
    QObject::connect(&client.smtp, &mail::DeliveryControl::SendDone,
                     [&] { remembered = client.remembers(7); });
    EXPECT_TRUE(client.tick(7).done);
    EXPECT_TRUE(remembered);
    client.smtp.Marked(7);
    EXPECT_FALSE(client.remembers(7));
    EXPECT_EQ(server.remainder(), "");
}

TEST(Recipient, ThatIsRememberedIsNotServedInALaterRun) {
    ScriptedServer server({hello + message});
    RunClient client(server.port());
    EXPECT_TRUE(client.tick(7).done);
    client.smtp.BeginRun();
    expectRefused(client.tick(7), "già stato accettato");
    EXPECT_EQ(server.remainder(), "");
}

TEST(Recipient, ThatIsRememberedIsServedAtAnotherAddress) {
    QByteArrayList other = message;
    other[2] = "C: RCPT TO:<bianchi@example.it>";
    ScriptedServer server({hello + message + other});
    RunClient client(server.port());
    EXPECT_TRUE(client.tick(7).done);
    client.smtp.BeginRun();
    EXPECT_TRUE(client.tick(7, QStringLiteral("bianchi@example.it")).done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Recipient, ChosenAgainIsServedAgain) {
    ScriptedServer server({hello + message + message});
    RunClient client(server.port());
    EXPECT_TRUE(client.tick(7).done);
    client.smtp.Forget(database, {6, 7});
    client.smtp.BeginRun();
    EXPECT_TRUE(client.tick(7).done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(Recipient, NothingIsSentThatCouldNotBeRemembered) {
    Unasked server;
    RunClient client(server.port());
    for (qint64 number = 1; client.accepted.room() > 0; ++number)
        client.accepted.add(DatabaseFile::at(database), -number, rossi);
    expectRefused(client.tick(7), "spazio");
    EXPECT_FALSE(server.wasAsked());
}

TEST(Recipient, TranscriptSaysWhyNothingWasSent) {
    QTemporaryDir folder;
    RunClient client;
    client.smtp.LogFile = folder.filePath(QStringLiteral("prova.xt1"));
    client.smtp.LogEnabled = true;
    client.tick(mail::recipient::nobody);
    QFile log(client.smtp.LogFile);
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    const QByteArray text = log.readAll();
    EXPECT_TRUE(text.contains("non consegnato: Il destinatario non è stato letto")) << text.constData();
    EXPECT_FALSE(text.contains("Connessione"));
}

}  // namespace

}  // namespace smtp_recipient_test
