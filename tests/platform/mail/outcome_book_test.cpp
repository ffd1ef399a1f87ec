// SPDX-License-Identifier: GPL-3.0-or-later
// The book of outcomes as the delivery control keeps it, against real sockets.
#include <optional>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/mail/OutcomeBook.h"
#include "platform/mail/OutcomeFile.h"
#include "platform/mail/smtp_run_fixture.h"
#include "support/FullDisk.h"
#include "support/SmtpSink.h"

namespace outcome_book_test {

using namespace mail;
using testing_support::ScriptedServer;
using testing_support::SmtpSink;

namespace {

class OutcomeBook : public testing::Test {
  protected:
    OutcomeBook() { keep(client); }

    void keep(RunClient& one) {
        one.smtp.BookFolder = folder;
        one.smtp.BookTitle = QStringLiteral("Offerta");
        one.smtp.BeginRun();
    }

    QStringList files() const { return QDir(folder).entryList(QDir::Files, QDir::Name); }

    /// What the newest file contains.
    QList<OutcomeLine> lines() const {
        const auto runs = outcomes::runs(folder);
        return runs.isEmpty() ? QList<OutcomeLine>() : linesOf(runs.first());
    }

    static QList<OutcomeLine> linesOf(const outcomes::Run& run) {
        const auto content = outcomes::read(run.path);
        EXPECT_TRUE(content.ok());
        QList<OutcomeLine> all;
        for (const auto& row : content.value().rows)
            all.append(row.line);
        EXPECT_EQ(content.value().damaged, 0);
        EXPECT_FALSE(content.value().cutOff);
        return all;
    }

    OutcomeLine only() const {
        const auto all = lines();
        EXPECT_EQ(all.size(), 1);
        return all.isEmpty() ? OutcomeLine() : all.first();
    }

    /// Sends one message to a server that plays this dialogue; returns the book's line of it.
    OutcomeLine afterDialogue(const QByteArrayList& dialogue) {
        ScriptedServer server({dialogue});
        {
            RunClient one(server.port());
            keep(one);
            one.smtp.TimeoutSecs = 1;
            one.tick(7);
        }
        server.remainder();
        return lines().value(0);
    }

    QTemporaryDir data;
    const QString folder = data.path() + "/esiti/";
    SmtpSink sink;
    RunClient client{sink.port()};
};

struct Said {
    OutcomeKind kind;
    DeliveryStage stage;
    DeliveryCause cause;
    int code;
    QString status;
    friend bool operator==(const Said&, const Said&) = default;
};

Said said(const OutcomeLine& line) {
    return {line.kind, line.stage, line.cause, line.code, line.status};
}

}  // namespace

TEST_F(OutcomeBook, NamesTheRunAndWhoGotTheMessage) {
    const QDateTime before = QDateTime::currentDateTimeUtc();
    EXPECT_TRUE(client.tick(7).done);
    const auto runs = outcomes::runs(folder);
    ASSERT_EQ(runs.size(), 1);
    EXPECT_EQ(runs[0].head.database.path, database);
    EXPECT_EQ(runs[0].head.sender, "mittente@example.it");
    EXPECT_EQ(runs[0].head.title, "Offerta");
    EXPECT_LE(std::abs(runs[0].head.begun.secsTo(before)), 60);
    const OutcomeLine line = only();
    EXPECT_EQ(line.number, 7);
    EXPECT_EQ(line.address, rossi);
    EXPECT_EQ(line.words, "taken");
    EXPECT_EQ(said(line),
              (Said{OutcomeKind::Delivered, DeliveryStage::Body, DeliveryCause::Server, 250, ""}));
    EXPECT_GE(line.time, before.addSecs(-1));
}

TEST_F(OutcomeBook, LineIsWrittenBeforeTheSignal) {
    sink.refuse("bianchi@example.it", "550 5.1.1 unknown");
    QList<qsizetype> seen;
    const auto look = [&] { seen << lines().size(); };
    QObject::connect(&client.smtp, &DeliveryControl::SendDone, look);
    QObject::connect(&client.smtp, &DeliveryControl::SendError, look);
    client.tick(7);
    client.tick(8, "bianchi@example.it");
    client.tick(9, "verdi@example.it");
    EXPECT_EQ(seen, (QList<qsizetype>{1, 2, 3}));
}

TEST_F(OutcomeBook, RefusalsNameTheCommandThatWasRefused) {
    using Stage = DeliveryStage;
    const QByteArrayList mail{"C: MAIL *", "S: 250 ok"}, rcpt{"C: RCPT *", "S: 250 ok"};
    const auto refused = [](Stage stage, int code, const char* status) {
        return Said{OutcomeKind::Refused, stage, DeliveryCause::Server, code, status};
    };
    EXPECT_EQ(said(afterDialogue({"S: 554 5.7.1 go away", "WAIT"})), refused(Stage::Greeting, 554, "5.7.1"));
    EXPECT_EQ(said(afterDialogue({"S: 220 ready", "C: EHLO *", "S: 450 4.3.2 later", "WAIT"})),
              refused(Stage::Hello, 450, "4.3.2"));
    EXPECT_EQ(said(afterDialogue(hello + QByteArrayList{"C: MAIL *", "S: 553 5.7.1 not yours", "WAIT"})),
              refused(Stage::Sender, 553, "5.7.1"));
    EXPECT_EQ(said(afterDialogue(hello + mail + QByteArrayList{"C: RCPT *", "S: 550 5.1.1 unknown", "WAIT"})),
              refused(Stage::Recipient, 550, "5.1.1"));
    EXPECT_EQ(said(afterDialogue(hello + mail + QByteArrayList{"C: RCPT *", "S: 421 4.3.2 closing"})),
              refused(Stage::Recipient, 421, "4.3.2"));
    EXPECT_EQ(said(afterDialogue(hello + mail + rcpt + QByteArrayList{"C: DATA", "S: 554 5.5.1 no", "WAIT"})),
              refused(Stage::Data, 554, "5.5.1"));
    EXPECT_EQ(
        said(afterDialogue(hello + mail + rcpt +
                           QByteArrayList{"C: DATA", "S: 354 go", "BODY", "S: 552 5.2.2 full", "WAIT"})),
        refused(Stage::Body, 552, "5.2.2"));
    // In a group of commands the first refusal counts, as that of its own command.
    EXPECT_EQ(said(afterDialogue(helloPipelining + QByteArrayList{"C: MAIL *", "C: RCPT *", "C: DATA",
                                                                  "S: 250 ok", "S: 550 5.1.1 unknown",
                                                                  "S: 554 no recipients", "WAIT"})),
              refused(Stage::Recipient, 550, "5.1.1"));
    EXPECT_EQ(said(afterDialogue(helloPipelining + QByteArrayList{"C: MAIL *", "C: RCPT *", "C: DATA",
                                                                  "S: 550 5.1.8 who", "S: 503 5.1.1 no",
                                                                  "S: 503 no", "WAIT"})),
              refused(Stage::Sender, 550, "5.1.8"));
}

TEST_F(OutcomeBook, SilenceAndLostConnectionsAreNoAnswer) {
    const auto none = [](DeliveryStage stage, DeliveryCause cause) {
        return Said{OutcomeKind::NoAnswer, stage, cause, 0, ""};
    };
    EXPECT_EQ(said(afterDialogue({"WAIT"})), none(DeliveryStage::Greeting, DeliveryCause::TimedOut));
    EXPECT_EQ(said(afterDialogue({"DROP"})), none(DeliveryStage::Greeting, DeliveryCause::Server));
    EXPECT_EQ(said(afterDialogue(hello + QByteArrayList{"C: MAIL *", "S: 250 ok", "C: RCPT *", "DROP"})),
              none(DeliveryStage::Recipient, DeliveryCause::Server));
    EXPECT_EQ(said(afterDialogue({"S: what?", "WAIT"})),
              none(DeliveryStage::Greeting, DeliveryCause::Server));
    quint16 closed = 0;
    {
        QTcpServer gone;
        ASSERT_TRUE(gone.listen(QHostAddress::LocalHost));
        closed = gone.serverPort();
    }
    client.smtp.ServerPort = closed;
    client.smtp.BeginRun();
    client.tick(7);
    EXPECT_EQ(said(only()), none(DeliveryStage::Connecting, DeliveryCause::Server));
}

TEST_F(OutcomeBook, DomainWithoutAServerIsReportedAsThat) {
    client.smtp.OpportunisticTls = true;
    client.smtp.ServerName = QString();
    client.smtp.NoServerReason = QStringLiteral("Il dominio non esiste.");
    client.tick(7);
    EXPECT_EQ(said(only()),
              (Said{OutcomeKind::NoAnswer, DeliveryStage::NotTried, DeliveryCause::NoServer, 0, ""}));
    EXPECT_EQ(only().words, "Il dominio non esiste.");
}

TEST_F(OutcomeBook, RowThatWasNotReadHasNoNumberAndNoAddress) {
    client.smtp.BeginTick();
    client.smtp.RecipientNumber = recipient::nobody;
    client.heard.clear();
    client.smtp.Send();
    client.outcome();
    EXPECT_FALSE(only().number);
    EXPECT_EQ(only().address, "");
    EXPECT_EQ(only().kind, OutcomeKind::NotSent);
}

TEST_F(OutcomeBook, StaleAddressIsNotEntered) {
    client.tick(7);
    client.smtp.BeginTick();
    client.smtp.RecipientNumber = 8;
    client.heard.clear();
    client.smtp.Send();
    EXPECT_FALSE(client.outcome().done);
    EXPECT_EQ(lines().value(1).number, 8);
    EXPECT_EQ(lines().value(1).address, "");
}

TEST_F(OutcomeBook, MessageOutsideARunEntersNoBook) {
    client.smtp.RecipientNumber = recipient::outsideRun;
    EXPECT_TRUE(client.send().done);
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(OutcomeBook, NoFolderMeansNoBook) {
    client.smtp.BookFolder.clear();
    client.smtp.BeginRun();
    EXPECT_TRUE(client.tick(7).done);
    EXPECT_FALSE(QFileInfo::exists(folder));
}

TEST_F(OutcomeBook, DeliveredStaysSoWhenHeIsMetAgain) {
    client.tick(7);
    EXPECT_FALSE(client.tick(7).done);
    EXPECT_EQ(only().kind, OutcomeKind::Delivered);
}

TEST_F(OutcomeBook, WhoWasServedByAnEarlierRunIsEnteredAsNotSent) {
    client.accepted.add(DatabaseFile::at(database), 7, rossi);
    EXPECT_FALSE(client.tick(7).done);
    EXPECT_EQ(only().kind, OutcomeKind::NotSent);
}

TEST_F(OutcomeBook, LateAcceptanceAddsALineToTheRunItBelongsTo) {
    sink.treat(rossi.toUtf8(), SmtpSink::Treatment::Hold);
    client.smtp.StageTimes.finalReply = 20000;
    client.begin(7);
    ASSERT_TRUE(client.turnUntil([&] { return sink.held().size() == 1; }));
    client.smtp.Abort();
    EXPECT_EQ(said(only()),
              (Said{OutcomeKind::NoAnswer, DeliveryStage::Body, DeliveryCause::Stopped, 0, ""}));
    client.smtp.BeginRun();
    EXPECT_TRUE(client.tick(8, "bianchi@example.it").done);
    sink.answerHeld("250 taken");
    ASSERT_TRUE(client.turnUntil([&] { return client.remembers(7); }));
    const auto runs = outcomes::runs(folder);
    ASSERT_EQ(runs.size(), 2);
    EXPECT_EQ(linesOf(runs[0]).size(), 1);
    ASSERT_EQ(linesOf(runs[1]).size(), 1);
    EXPECT_EQ(linesOf(runs[1])[0].kind, OutcomeKind::Delivered);
    EXPECT_EQ(linesOf(runs[1])[0].address, rossi);
    // The second run reads him before his row is marked: that is its own line.
    EXPECT_FALSE(client.tick(7).done);
    EXPECT_EQ(linesOf(runs[0]).size(), 2);
}

TEST_F(OutcomeBook, LateRefusalReportsTheServersCode) {
    sink.treat(rossi.toUtf8(), SmtpSink::Treatment::Hold);
    client.smtp.StageTimes.finalReply = 20000;
    client.begin(7);
    ASSERT_TRUE(client.turnUntil([&] { return sink.held().size() == 1; }));
    client.smtp.Abort();
    sink.answerHeld("550 no");
    ASSERT_TRUE(client.turnUntil([&] { return only().code == 550; }));
    EXPECT_EQ(only().kind, OutcomeKind::Refused);
}

TEST_F(OutcomeBook, AcceptanceAtTheFarewellIsEntered) {
    ScriptedServer server(
        {hello + message.first(message.size() - 1) + QByteArrayList{"GATE", "S: 250 taken", "WAIT"}});
    RunClient other(server.port());
    keep(other);
    other.smtp.StageTimes.finalReply = 20000;
    other.smtp.StageTimes.farewell = 20000;
    other.begin(7);
    ASSERT_TRUE(other.turnUntil([&] { return server.waits() == 1; }));
    server.goOn();
    other.smtp.Settle();
    EXPECT_EQ(only().kind, OutcomeKind::Delivered);
}

TEST_F(OutcomeBook, StopBeforeTheMessageWasGivenIsNotSent) {
    sink.treat(rossi.toUtf8(), SmtpSink::Treatment::Hang);
    client.begin(7);
    ASSERT_TRUE(client.turnUntil([&] { return !sink.attempts().isEmpty(); }));
    client.smtp.Abort();
    EXPECT_EQ(said(only()),
              (Said{OutcomeKind::NotSent, DeliveryStage::Recipient, DeliveryCause::Stopped, 0, ""}));
}

TEST_F(OutcomeBook, PasswordThatAServerRepeatsIsNotEntered) {
    ScriptedServer server({{"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 AUTH PLAIN", "C: AUTH *",
                            "S: 535 5.7.8 segreta99 is wrong", "WAIT"}});
    client.smtp.ServerPort = server.port();
    client.smtp.UseAuth = true;
    client.smtp.UserName = "rossi";
    client.smtp.UserPassword = "segreta99";
    EXPECT_EQ(client.tick(7).code, 535);
    QFile file(outcomes::runs(folder).value(0).path);
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_FALSE(file.readAll().contains("segreta99"));
    EXPECT_EQ(said(only()),
              (Said{OutcomeKind::Refused, DeliveryStage::Login, DeliveryCause::Server, 535, "5.7.8"}));
    // The refusal that is remembered for the next recipient too.
    EXPECT_EQ(client.tick(8).code, 535);
    EXPECT_EQ(said(lines().value(1)), said(lines().value(0)));
}

TEST_F(OutcomeBook, FilesAreTheOwnersAlone) {
    client.tick(7);
    const QString path = outcomes::runs(folder).value(0).path;
    EXPECT_EQ(int(QFile::permissions(path) & ~(QFile::ReadUser | QFile::WriteUser)),
              int(QFile::ReadOwner | QFile::WriteOwner));
    EXPECT_EQ(int(QFile::permissions(folder.chopped(1)) & (QFile::ReadGroup | QFile::ReadOther)), 0);
}

TEST_F(OutcomeBook, LastFiftyRunsAreKept) {
    client.tick(7);
    const QString note = folder + "nota.txt";
    ASSERT_TRUE(QFile(note).open(QFile::WriteOnly));
    const QStringList first = files();
    for (int run = 0; run < 50; ++run) {
        client.smtp.BeginRun();
        client.tick(8);
    }
    EXPECT_EQ(outcomes::runs(folder).size(), 50);
    EXPECT_FALSE(QFileInfo::exists(folder + first.first()));
    EXPECT_TRUE(QFileInfo::exists(note));
    EXPECT_TRUE(outcomes::removeAll(folder).ok());
    EXPECT_EQ(files(), QStringList("nota.txt"));
}

TEST_F(OutcomeBook, FolderThatCannotBeMadeHarmsNoDeliveryAndLosesNoLine) {
    ASSERT_TRUE(QFile(folder.chopped(1)).open(QFile::WriteOnly));
    for (const qint64 number : {6, 7}) {
        EXPECT_TRUE(client.tick(number).done);
        EXPECT_FALSE(client.smtp.BookStatus().ok());
    }
    EXPECT_TRUE(QFile::remove(folder.chopped(1)));
    EXPECT_TRUE(client.tick(8).done);
    EXPECT_TRUE(client.smtp.BookStatus().ok());
    EXPECT_EQ(outcomes::runs(folder).value(0).head.database.path, database);
    const auto all = lines();
    ASSERT_EQ(all.size(), 3);
    for (qint64 i = 0; i < all.size(); ++i)
        EXPECT_EQ(all[i].number, i + 6);
}

TEST_F(OutcomeBook, LineThatFoundNoRoomIsCompletedLater) {
    client.tick(7);
    const QString path = outcomes::runs(folder).value(0).path;
    std::optional<FullDisk> full(rlim_t(QFileInfo(path).size() + 40));
    EXPECT_TRUE(client.tick(8).done);
    EXPECT_FALSE(client.smtp.BookStatus().ok());
    const auto cut = outcomes::read(path);
    full.reset();
    EXPECT_TRUE(cut.value().cutOff);
    EXPECT_EQ(cut.value().rows.size(), 1);
    EXPECT_TRUE(client.tick(9).done);
    EXPECT_TRUE(client.smtp.BookStatus().ok());
    EXPECT_EQ(lines().size(), 3);
}

// Neither the first one, whose head found no room either, nor those that a buffer of 16 KB would not hold.
TEST_F(OutcomeBook, FullDiskLosesNoLine) {
    OutcomeLine line;
    line.time = QDateTime::currentDateTimeUtc();
    line.kind = OutcomeKind::Refused;
    line.words = QString(OutcomeLine::longestText, 'x');
    OutcomeFile book(folder, rossi, QStringLiteral("Offerta"));
    std::optional<FullDisk> full(40);
    for (line.number = 1; *line.number <= 40; ++*line.number) {
        book.add(DatabaseFile::at(database), line);
        EXPECT_FALSE(book.status().ok());
    }
    EXPECT_FALSE(book.lastFailure());
    full.reset();
    book.add(DatabaseFile::at(database), line);
    EXPECT_TRUE(book.status().ok());
    EXPECT_EQ(book.lastFailure(), line);
    EXPECT_EQ(outcomes::runs(folder).value(0).head.database.path, database);
    const auto all = lines();
    ASSERT_EQ(all.size(), 41);
    for (qint64 i = 0; i < all.size(); ++i)
        EXPECT_EQ(all[i].number, i + 1);
}

TEST_F(OutcomeBook, LastFailureIsReadBack) {
    EXPECT_FALSE(client.smtp.LastFailure());
    sink.refuse("bianchi@example.it", "550 5.1.1 unknown");
    client.tick(7);
    EXPECT_FALSE(client.smtp.LastFailure());
    client.tick(8, "bianchi@example.it");
    client.tick(9, "verdi@example.it");
    ASSERT_TRUE(client.smtp.LastFailure());
    EXPECT_EQ(client.smtp.LastFailure()->number, 8);
    EXPECT_EQ(client.smtp.LastFailure()->words, "5.1.1 unknown");
    EXPECT_TRUE(outcomes::removeAll(folder).ok());
    EXPECT_FALSE(client.smtp.LastFailure());
    EXPECT_TRUE(client.tick(10, "neri@example.it").done);
}

TEST_F(OutcomeBook, FilesOfOthersAreNoRuns) {
    client.tick(7);
    const QString run = files().first();
    ASSERT_TRUE(QFile::link(folder + run, folder + "20260101T000000000Z-1-000001.jsonl"));
    ASSERT_TRUE(QDir(folder).mkdir("20260102T000000000Z-1-000001.jsonl"));
    for (const char* name : {"20260230T000000000Z-1-000001.jsonl", "x20260101T000000000Z-1-000001.jsonl",
                             "20260101T000000000Z-1-000001.jsonl.bak"})
        ASSERT_TRUE(QFile(folder + name).open(QFile::WriteOnly));
    ASSERT_EQ(outcomes::runs(folder).size(), 1);
    EXPECT_TRUE(outcomes::runs(folder)[0].path.endsWith(run));
}

TEST_F(OutcomeBook, RunWithADamagedHeadIsListedByItsName) {
    client.tick(7);
    const QString path = outcomes::runs(folder).value(0).path;
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::ReadWrite));
    file.write("#####");
    file.close();
    const auto runs = outcomes::runs(folder);
    ASSERT_EQ(runs.size(), 1);
    EXPECT_LE(std::abs(runs[0].head.begun.secsTo(QDateTime::currentDateTimeUtc())), 60);
    const auto content = outcomes::read(path);
    EXPECT_EQ(content.value().damaged, 1);
    EXPECT_EQ(content.value().rows.value(0).database, -1);
}

}  // namespace outcome_book_test
