// SPDX-License-Identifier: GPL-3.0-or-later
// What the data access layer does while another process works on the file. The other one is a second
// jet::Database, which this process's locks keep out like any other program's.
#include <optional>

#include "platform/ado/GroupedInserts.h"
#include "platform/ado/Snapshot.h"
#include "platform/ado/TestDatabase.h"
#include "platform/ado/Waiting.h"
#include "support/LockedFile.h"

namespace waiting_test {

namespace {

using std::chrono::milliseconds;

class WaitingTest : public ado::TestDatabase {
  protected:
    void SetUp() override {
        TestDatabase::SetUp();
        for (const char* name : {"uno", "due", "tre"})
            run(QStringLiteral("INSERT INTO tb_gruppi (nome) VALUES ('%1')").arg(QLatin1String(name)));
        ado::setWaitHook({[this](milliseconds waited) {
                              ++asked;
                              EXPECT_GE(waited, lastWaited);
                              lastWaited = waited;
                              return !onWait || onWait();
                          },
                          [this] {
                              ++over;
                              lastWaited = {};
                          }});
    }
    void TearDown() override {
        ado::setWaitHook({});
        unlock();
        TestDatabase::TearDown();
    }

    void lock() { m_lock.emplace(path); }
    void unlock() { m_lock.reset(); }
    /// The next waits end at the n-th poll, by the lock's owner or by the user.
    void unlockAfter(int questions) {
        onWait = [this, left = questions]() mutable {
            if (--left == 0) unlock();
            return true;
        };
    }
    void giveUp() {
        onWait = [] { return false; };
    }

    int asked = 0;
    int over = 0;
    milliseconds lastWaited{};
    std::function<bool()> onWait;

  private:
    std::optional<testing_support::LockedFile> m_lock;
};

}  // namespace

TEST_F(WaitingTest, NamingTheDatabaseTakesNoLock) {
    for (const bool pooled : {true, false}) {
        if (!pooled) ado::closeAll();
        lock();
        EXPECT_TRUE(ado::Recordset().setActiveConnection(connection).ok());
        EXPECT_TRUE(ado::Command().setActiveConnection(connection).ok());
        EXPECT_TRUE(ado::GroupedInserts().setActiveConnection(connection).ok());
        unlock();
    }
    EXPECT_EQ(asked, 0);
}

TEST_F(WaitingTest, NamingWhatIsNoDatabaseFailsAllTheSame) {
    leaveUnsound();
    const QString text = inFolder("testo.mdb");
    {
        QFile file(text);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("testo semplice\r\n").repeated(1000));
    }
    for (const auto& [file, code] :
         {std::pair(inFolder("manca.mdb"), ErrorCode::FileNotFound), {text, ErrorCode::UnrecognizedFormat}}) {
        EXPECT_EQ(ado::Recordset().setActiveConnection(ado::connectionTo(file)).code(), code);
        EXPECT_EQ(ado::Command().setActiveConnection(ado::connectionTo(file)).code(), code);
        EXPECT_EQ(ado::GroupedInserts().setActiveConnection(ado::connectionTo(file)).code(), code);
    }
    // It was a database when it was opened, but only its present content counts.
    lock();
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(ado::Command().setActiveConnection(connection).code(), ErrorCode::FileNotFound);
    ASSERT_TRUE(QFile::copy(text, path));
    EXPECT_EQ(ado::Command().setActiveConnection(connection).code(), ErrorCode::UnrecognizedFormat);
}

TEST_F(WaitingTest, AStatementThatHadToWaitContinuesAndReportsOnceThatTheWaitIsOver) {
    lock();
    unlockAfter(3);
    EXPECT_EQ(run("UPDATE tb_gruppi SET nome = 'x'"), 3);
    EXPECT_EQ(asked, 3);
    EXPECT_EQ(over, 1);
    run("UPDATE tb_gruppi SET nome = 'y'");
    EXPECT_EQ(over, 1) << "nobody waited";
}

TEST_F(WaitingTest, GivingUpFailsEveryKindOfStatementAndChangesNothing) {
    ado::Recordset open = this->open("SELECT * FROM tb_gruppi");
    lock();
    giveUp();
    EXPECT_EQ(failure("UPDATE tb_gruppi SET nome = 'x'"), ErrorCode::FileInUse);
    ado::Recordset rows;
    ASSERT_TRUE(rows.setActiveConnection(connection).ok());
    rows.setSource(QStringLiteral("SELECT * FROM tb_gruppi"));
    EXPECT_EQ(rows.open().code(), ErrorCode::FileInUse);
    EXPECT_EQ(open.moveNext().code(), ErrorCode::FileInUse);
    EXPECT_EQ(ado::Snapshot::take(connection, rows.isOpen() ? "" : "SELECT * FROM tb_gruppi").status().code(),
              ErrorCode::FileInUse);
    EXPECT_EQ(ado::Connection().open(connection).code(), ErrorCode::FileInUse);
    ado::GroupedInserts inserts;
    ASSERT_TRUE(inserts.setActiveConnection(connection).ok());
    EXPECT_EQ(inserts.execute("INSERT INTO tb_gruppi (nome) VALUES ('x')").code(), ErrorCode::FileInUse);
    EXPECT_TRUE(inserts.commit().ok()) << "nothing was taken";
    EXPECT_EQ(over, 6);
    asked = 0;
    EXPECT_EQ(inserts.execute("INSERT INTO tb_gruppi (nome) VALUES ('x')").code(), ErrorCode::FileInUse);
    EXPECT_EQ(asked, 0) << "who gave up is not asked again for each row that is left";
    unlock();
    EXPECT_EQ(column("SELECT * FROM tb_gruppi", "nome"), "uno|due|tre");
    EXPECT_TRUE(inserts.execute("INSERT INTO tb_gruppi (nome) VALUES ('x')").ok());
    EXPECT_TRUE(inserts.commit().ok());
    EXPECT_EQ(inserts.committed(), 1);
}

TEST_F(WaitingTest, TheTimeOutBoundsTheWaitAndNoneHasNoEnd) {
    lock();
    EXPECT_EQ(tryRun(QStringLiteral("UPDATE tb_gruppi SET nome = 'x'"), 1).status().code(),
              ErrorCode::FileInUse);
    const int askedInASecond = std::exchange(asked, 0);
    EXPECT_GT(askedInASecond, 1);
    // Without a time-out it is still polled after that many attempts.
    unlockAfter(2 * askedInASecond);
    EXPECT_EQ(run("UPDATE tb_gruppi SET nome = 'x'"), 3);
    EXPECT_EQ(asked, 2 * askedInASecond);
}

TEST_F(WaitingTest, AConnectionWaitsForItsOwnTimeOut) {
    lock();
    ado::Connection open;
    open.setConnectionTimeout(1);
    EXPECT_EQ(open.open(connection).code(), ErrorCode::FileInUse);
    EXPECT_FALSE(open.isOpen());
}

TEST_F(WaitingTest, AFailedMoveLeavesNoCurrentRow) {
    ado::Recordset rows = open("SELECT * FROM tb_gruppi ORDER BY id");
    const auto noRow = [&] {
        EXPECT_EQ(rows.value(u"nome").status().code(), ErrorCode::NoCurrentRecord);
        EXPECT_EQ(rows.value(0).status().code(), ErrorCode::NoCurrentRecord);
        EXPECT_EQ(rows.setValue(u"nome", QStringLiteral("x")).code(), ErrorCode::NoCurrentRecord);
        EXPECT_EQ(rows.update().code(), ErrorCode::NoCurrentRecord);
        EXPECT_TRUE(rows.isBof());
        EXPECT_TRUE(rows.isEof());
    };
    giveUp();
    lock();
    EXPECT_EQ(rows.move(1).code(), ErrorCode::FileInUse);
    noRow();
    // Without a current row a move finds nothing, whatever process has the lock by then.
    EXPECT_EQ(rows.moveNext().code(), ErrorCode::NoCurrentRecord);
    EXPECT_EQ(rows.move(-1).code(), ErrorCode::NoCurrentRecord);
    EXPECT_EQ(rows.move(0).code(), ErrorCode::NoCurrentRecord);
    noRow();
    unlock();
    EXPECT_EQ(rows.moveNext().code(), ErrorCode::NoCurrentRecord);
    noRow();
    lock();
    EXPECT_EQ(rows.moveFirst().code(), ErrorCode::FileInUse);
    noRow();
    unlock();
    ASSERT_TRUE(rows.moveFirst().ok());
    EXPECT_EQ(rows.value(u"nome").value().toTextOrEmpty().toStdString(), "uno");
    ASSERT_TRUE(rows.move(0).ok());
    ASSERT_TRUE(rows.moveNext().ok());
    EXPECT_EQ(rows.value(u"nome").value().toTextOrEmpty().toStdString(), "due");
    lock();
    EXPECT_EQ(rows.move(-1).code(), ErrorCode::FileInUse);
    noRow();
    unlock();
    EXPECT_EQ(rows.recordCount(), 3);
    // After a new row there is a current one again.
    ASSERT_TRUE(rows.addNew().ok());
    ASSERT_TRUE(rows.setValue(u"nome", QStringLiteral("quattro")).ok());
    ASSERT_TRUE(rows.update().ok());
    EXPECT_EQ(rows.value(u"nome").value().toTextOrEmpty().toStdString(), "quattro");
    EXPECT_FALSE(rows.isEof());
}

TEST_F(WaitingTest, AMoveWhoseChangeIsRefusedKeepsTheRowAndTheChange) {
    ado::Recordset rows = open("SELECT * FROM tb_gruppi ORDER BY id");
    ASSERT_TRUE(rows.setValue(u"nome", QStringLiteral("nuovo")).ok());
    lock();
    giveUp();
    EXPECT_EQ(rows.moveNext().code(), ErrorCode::FileInUse);
    EXPECT_EQ(rows.value(u"nome").value().toTextOrEmpty().toStdString(), "nuovo");
    unlock();
    ASSERT_TRUE(rows.moveNext().ok());
    EXPECT_EQ(column("SELECT * FROM tb_gruppi", "nome"), "nuovo|due|tre");
    EXPECT_EQ(rows.value(u"nome").value().toTextOrEmpty().toStdString(), "due");
}

// Two writers: the second one waits before it has read anything, so it sees what the first one wrote.
TEST_F(WaitingTest, AStatementThatWaitsToWriteReadsWhatTheOtherOneWrote) {
    auto other = jet::Database::open(path.toStdString());
    ASSERT_TRUE(other.ok());
    auto table = other.value()->table("tb_gruppi");
    ASSERT_TRUE(table.ok());
    ASSERT_TRUE(other.value()->begin().ok());
    const auto row = table.value()->findByPrimaryKey(1);
    ASSERT_TRUE(row.ok() && row.value());
    const std::pair<size_t, jet::Value> change{1, int64_t{7}};
    ASSERT_TRUE(table.value()->update(*row.value(), {&change, 1}).ok());
    onWait = [&other, left = 3]() mutable { return --left != 0 || other.value()->commit().ok(); };
    EXPECT_EQ(run("UPDATE tb_gruppi SET id_up = id_up + 1 WHERE id = 1"), 1);
    EXPECT_GT(asked, 0);
    EXPECT_EQ(column("SELECT * FROM tb_gruppi WHERE id = 1", "id_up"), "8");
}

TEST_F(WaitingTest, ReadingContinuesWhileAnotherOneHasAStatementUnderWay) {
    auto other = jet::Database::open(path.toStdString());
    ASSERT_TRUE(other.ok());
    auto table = other.value()->table("tb_gruppi");
    ASSERT_TRUE(table.ok());
    ASSERT_TRUE(other.value()->begin().ok());
    const auto row = table.value()->findByPrimaryKey(2);
    ASSERT_TRUE(row.ok() && row.value());
    const std::pair<size_t, jet::Value> change{2, std::string("nuovo")};
    ASSERT_TRUE(table.value()->update(*row.value(), {&change, 1}).ok());
    for (const bool pooled : {true, false}) {
        if (!pooled) ado::closeAll();
        EXPECT_EQ(column("SELECT * FROM tb_gruppi ORDER BY id", "nome"), "uno|due|tre");
        EXPECT_EQ(open("SELECT COUNT(*) FROM tb_gruppi").value(0).value().toInteger().value(), 3);
    }
    EXPECT_EQ(asked, 0);
    ASSERT_TRUE(other.value()->commit().ok());
    EXPECT_EQ(column("SELECT * FROM tb_gruppi ORDER BY id", "nome"), "uno|nuovo|tre");
}

}  // namespace waiting_test
