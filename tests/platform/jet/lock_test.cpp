// SPDX-License-Identifier: GPL-3.0-or-later
// Several processes and several Databases on one file.
#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <thread>
#include <utility>

#include "platform/jet/JetFixture.h"
#include "platform/jet/OsFile.h"
#include "support/HotJournal.h"

namespace lock_test {

using namespace jet;

class LockTest : public JetTest {
  protected:
    LockTest() { create(path()).reset(); }

    // Runs `work` in another process and waits until it says that it is ready; it continues until finish().
    class OtherProcess {
      public:
        template <class Work>
        explicit OtherProcess(const Work& work) {
            EXPECT_EQ(::pipe(m_ready), 0);
            EXPECT_EQ(::pipe(m_letGo), 0);
            m_pid = ::fork();
            if (m_pid == 0) {
                ::close(m_letGo[1]);
                const auto pause = [this] {
                    char byte = 'r';
                    if (::write(m_ready[1], &byte, 1) != 1) ::_exit(3);
                    if (::read(m_letGo[0], &byte, 1) != 0) ::_exit(4);
                };
                work(pause);
                ::_exit(0);
            }
            ::close(m_ready[1]);
            ::close(m_letGo[0]);
            char byte = 0;
            EXPECT_EQ(::read(m_ready[0], &byte, 1), 1);
        }
        OtherProcess(const OtherProcess&) = delete;
        ~OtherProcess() { finish(); }
        void finish() {
            if (m_pid == 0) return;
            ::close(m_letGo[1]);
            int status = -1;
            EXPECT_EQ(::waitpid(m_pid, &status, 0), m_pid);
            EXPECT_EQ(status, 0);
            ::close(m_ready[0]);
            m_pid = 0;
        }

      private:
        int m_ready[2];
        int m_letGo[2];
        pid_t m_pid = 0;
    };

    static Database::Options hasty() { return {.lockWait = {.limit = std::chrono::milliseconds(50)}}; }
    // In an open transaction.
    static void addRows(Database& database, int count) {
        for (int i = 0; i < count; ++i)
            insert(table(database), recipient(table(database), std::string(60, 'x')));
    }
    // Another process dies when its pages are written and its journal is hot.
    void crash() {
        const pid_t child = ::fork();
        if (child == 0) {
            DatabasePtr database = open(path());
            int syncs = 0;
            setDiskHook([&](const DiskStep& step) {
                if (step.kind == DiskStep::Kind::Sync && ++syncs == 2) ::_exit(9);
                return DiskStep::Outcome::Proceed;
            });
            if (!database->begin().ok()) ::_exit(1);
            addRows(*database, 200);
            (void)database->commit();
            ::_exit(1);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_EQ(WEXITSTATUS(status), 9);
    }
    static void addRow(Database& database, const std::string& name) {
        EXPECT_OK(database.begin());
        insert(table(database), recipient(table(database), name));
        EXPECT_OK(database.commit());
    }
};

TEST_F(LockTest, SecondWriterIsRefusedAfterABoundedWait) {
    OtherProcess other([&](auto pause) {
        DatabasePtr database = open(path());
        if (!database->begin().ok()) ::_exit(1);
        pause();
    });
    DatabasePtr database = open(path(), hasty());
    const Status outcome = database->begin();
    EXPECT_FAILS(ErrorCode::FileInUse, outcome);
    EXPECT_TRUE(outcome.text().contains(QStringLiteral("in uso")));
    other.finish();
    EXPECT_OK(database->begin());
    database->rollback();
}

TEST_F(LockTest, WaitThatIsGivenUpEndsAtOnce) {
    OtherProcess other([&](auto pause) {
        DatabasePtr database = open(path(), {.cachedPages = 4});
        if (!database->begin().ok()) ::_exit(1);
        addRows(*database, 200);  // pages are written ahead
        pause();
        database->rollback();
    });
    int asked = 0;
    std::chrono::milliseconds last{0};
    const LockWait patient{.limit = std::nullopt, .goOn = [&](std::chrono::milliseconds waited) {
                               EXPECT_GE(waited, last);
                               last = waited;
                               return ++asked < 5;
                           }};
    EXPECT_FAILS(ErrorCode::FileInUse, Database::open(path(), {.lockWait = patient}));
    EXPECT_EQ(asked, 5);
    other.finish();
    DatabasePtr database = open(path(), hasty());
    OtherProcess another([&](auto pause) {
        DatabasePtr mine = open(path());
        if (!mine->begin().ok()) ::_exit(1);
        pause();
    });
    asked = 0;
    last = {};
    database->setLockWait(patient);
    EXPECT_FAILS(ErrorCode::FileInUse, database->begin());
    EXPECT_EQ(asked, 5);
    another.finish();
    EXPECT_OK(database->begin());
    database->rollback();
}

TEST_F(LockTest, ReadersContinueWhileAWriterWorks) {
    DatabasePtr reader = open(path(), hasty());
    OtherProcess other([&](auto pause) {
        DatabasePtr database = open(path());
        if (!database->begin().ok()) ::_exit(1);
        addRows(*database, 1);
        pause();
        if (!database->commit().ok()) ::_exit(1);
    });
    EXPECT_EQ(rowsOf(table(*reader)).size(), 0u);
    DatabasePtr late = open(path(), hasty());
    EXPECT_EQ(rowsOf(table(*late)).size(), 0u);
    other.finish();
    EXPECT_EQ(rowsOf(table(*reader)).size(), 1u);
    EXPECT_EQ(rowsOf(table(*late)).size(), 1u);
}

TEST_F(LockTest, ReaderWaitsWhilePagesOfALargeTransactionAreInTheFile) {
    DatabasePtr reader = open(path());
    OtherProcess other([&](auto pause) {
        DatabasePtr database = open(path(), {.cachedPages = 4});
        if (!database->begin().ok()) ::_exit(1);
        addRows(*database, 200);
        pause();
        ::usleep(200000);
        if (!database->commit().ok()) ::_exit(1);
    });
    EXPECT_FAILS(ErrorCode::FileInUse, Database::open(path(), hasty()));
    std::thread release([&] { other.finish(); });
    EXPECT_EQ(rowsOf(table(*reader)).size(), 200u) << "half a transaction was seen";
    release.join();
}

TEST_F(LockTest, JournalOfALivingWriterKeepsNoReaderOut) {
    OtherProcess other([&](auto pause) {
        DatabasePtr database = open(path());
        bool paused = false;
        setDiskHook([&](const DiskStep& step) {
            // The journal is whole and hot, no page is written yet.
            if (step.kind == DiskStep::Kind::Sync && !std::exchange(paused, true)) pause();
            return DiskStep::Outcome::Proceed;
        });
        if (!database->begin().ok()) ::_exit(1);
        addRows(*database, 1);
        if (!database->commit().ok()) ::_exit(1);
    });
    EXPECT_TRUE(hasHotJournal(path()));
    DatabasePtr reader = open(path(), hasty());
    EXPECT_EQ(rowsOf(table(*reader)).size(), 0u);
    EXPECT_TRUE(hasHotJournal(path())) << "a living writer's journal was touched";
    other.finish();
    EXPECT_EQ(rowsOf(table(*reader)).size(), 1u);
}

// The owner of the writer's lock is about to roll the journal back, or to find that it need not.
TEST_F(LockTest, JournalThatIsLeftIsRolledBackOnlyUnderTheWritersLock) {
    const std::string before = bytesOf(path());
    crash();
    ASSERT_TRUE(hasHotJournal(path()));
    ASSERT_NE(bytesOf(path()), before);
    const std::string crashed = bytesOf(path());
    OtherProcess other([&](auto pause) {
        OsFile file(path(), OsFile::Access::ReadWrite);
        if (!file.tryLock(OsFile::Lock::Exclusive, OsFile::Range::Writer)) ::_exit(1);
        pause();
    });
    EXPECT_FAILS(ErrorCode::FileInUse, Database::open(path(), hasty()));
    EXPECT_EQ(bytesOf(path()), crashed);
    EXPECT_TRUE(hasHotJournal(path()));
    other.finish();
    EXPECT_OK(Database::open(path(), hasty()));
    EXPECT_EQ(bytesOf(path()), before);
}

TEST_F(LockTest, JournalThatIsLeftIsRolledBackOnlyWhileNobodyReads) {
    const std::string before = bytesOf(path());
    DatabasePtr early = open(path());
    crash();
    OsFile holder(path(), OsFile::Access::Read);
    ASSERT_TRUE(holder.tryLock(OsFile::Lock::Shared, OsFile::Range::Content));
    EXPECT_FAILS(ErrorCode::FileInUse, Database::open(path(), hasty()));
    EXPECT_TRUE(hasHotJournal(path()));
    holder.tryLock(OsFile::Lock::None, OsFile::Range::Content);
    EXPECT_EQ(rowsOf(table(*early)).size(), 0u);
    EXPECT_EQ(bytesOf(path()), before);
}

TEST_F(LockTest, SeveralReadersDoNotDisturbEachOther) {
    DatabasePtr first = open(path());
    const ReadScope scope(*first);
    EXPECT_OK(scope.status());
    DatabasePtr second = open(path(), hasty());
    EXPECT_OK(second->table("tb_gruppi"));
}

TEST_F(LockTest, WriterWaitsForReadersBeforePagesAreWritten) {
    const std::string before = bytesOf(path());
    DatabasePtr reader = open(path());
    DatabasePtr writer = open(path(), hasty());
    {
        const ReadScope scope(*reader);
        EXPECT_OK(writer->begin());
        addRows(*writer, 1);
        EXPECT_FAILS(ErrorCode::FileInUse, writer->commit());
        EXPECT_FALSE(writer->inTransaction());
        EXPECT_EQ(bytesOf(path()), before);
        EXPECT_FALSE(hasHotJournal(path()));
    }
    addRow(*writer, "x");
    EXPECT_EQ(rowsOf(table(*reader)).size(), 1u);
}

TEST_F(LockTest, WriterGetsInBetweenReadersThatNeverAllPause) {
    const auto readOn = [&](auto pause) {
        DatabasePtr database = open(path());
        // Another process reads, so that this one can wait for its release.
        pid_t child = ::fork();
        if (child == 0) {
            for (;;) {
                const ReadScope scope(*database);
                ::usleep(3000);
            }
        }
        pause();
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
    };
    OtherProcess one(readOn);
    OtherProcess two(readOn);
    OtherProcess three(readOn);
    DatabasePtr writer = open(path());
    for (int i = 0; i < 20; ++i)
        addRow(*writer, "x");
    EXPECT_EQ(rowsOf(table(*writer)).size(), 20u);
}

TEST_F(LockTest, ChangeByAnotherProcessIsSeenAndReported) {
    DatabasePtr database = open(path());
    addRow(*database, "mia");
    EXPECT_FALSE(database->refresh().value()) << "an own change was told as a foreign one";
    OtherProcess([&](auto pause) {
        DatabasePtr mine = open(path());
        addRow(*mine, "sua");
        pause();
    }).finish();
    EXPECT_EQ(rowsOf(table(*database)).size(), 2u);
    EXPECT_TRUE(database->refresh().value());
    EXPECT_FALSE(database->refresh().value());
    EXPECT_EQ(rowsOf(table(*database)).size(), 2u);
}

TEST_F(LockTest, QuickChangesOfTheSameSizeAreAllSeen) {
    DatabasePtr one = open(path());
    DatabasePtr two = open(path());
    addRow(*one, "0");
    const RowId id = rowsOf(table(*one)).begin()->first;
    for (int i = 0; i < 200; ++i) {
        DatabasePtr& writer = i % 2 ? one : two;
        DatabasePtr& reader = i % 2 ? two : one;
        const std::pair<size_t, Value> name{2, std::to_string(i % 10)};
        EXPECT_OK(writer->begin());
        EXPECT_OK(table(*writer).update(id, std::span(&name, 1)));
        EXPECT_OK(writer->commit());
        ASSERT_EQ(rowsOf(table(*reader)).at(id)[2], Value(std::to_string(i % 10))) << i;
    }
}

TEST_F(LockTest, NumbersAreNotGivenTwiceByTwoProcesses) {
    DatabasePtr one = open(path());
    DatabasePtr two = open(path());
    EXPECT_EQ(table(*one).takeAutoNumber().value(), 1);
    EXPECT_EQ(table(*two).takeAutoNumber().value(), 2);
    EXPECT_EQ(table(*one).takeAutoNumber().value(), 3);
}

TEST_F(LockTest, ReplacedFileIsFollowed) {
    DatabasePtr database = open(path());
    DatabasePtr other = create(path("altro.mdb"));
    addRow(*other, "nuovo");
    other.reset();
    std::filesystem::rename(path("altro.mdb"), path());
    EXPECT_TRUE(database->refresh().value());
    EXPECT_EQ(rowsOf(table(*database)).size(), 1u);
    std::filesystem::remove(path());
    EXPECT_FAILS(ErrorCode::FileNotFound, database->refresh());
    EXPECT_FAILS(ErrorCode::FileNotFound, database->begin());
    create(path()).reset();
    EXPECT_TRUE(database->refresh().value());
    EXPECT_TRUE(rowsOf(table(*database)).empty());
}

TEST_F(LockTest, StructureChangedByAnotherProgramIsRefusedUntilRefresh) {
    DatabasePtr database = open(path());
    Table& recipients = table(*database);
    std::string bytes = bytesOf(path());
    const size_t name = bytes.find(std::string("c\0a\0m\0p\0o\0\x31\0", 12), 19 * 4096);
    ASSERT_NE(name, std::string::npos);
    bytes[name] = 'C';
    writeBytes(path(), bytes);
    EXPECT_FAILS(ErrorCode::FileInUse, recipients.scan([](RowId, const RowView&) { return true; }));
    EXPECT_TRUE(database->refresh().value());
    EXPECT_EQ(table(*database).definition().columns[12].name, "Campo1");
}

TEST_F(LockTest, HeldForeignLockFileForbidsWriting) {
    const std::string ldb = path("data.ldb");
    const std::string before = bytesOf(path());
    OtherProcess other([&](auto pause) {
        const int fd = ::open(ldb.c_str(), O_RDWR | O_CREAT, 0666);
        struct flock lock {};
        lock.l_type = F_WRLCK;
        lock.l_whence = SEEK_SET;
        lock.l_start = 0x10000001;
        lock.l_len = 1;
        if (fd < 0 || ::fcntl(fd, F_SETLK, &lock) != 0) ::_exit(1);
        pause();
    });
    DatabasePtr database = open(path());
    EXPECT_EQ(rowsOf(table(*database)).size(), 0u);  // reading is allowed
    const Status status = database->begin();
    EXPECT_FAILS(ErrorCode::FileInUse, status);
    EXPECT_TRUE(status.text().contains(QStringLiteral("data.ldb")));
    EXPECT_EQ(bytesOf(path()), before);
    EXPECT_TRUE(std::filesystem::exists(ldb));
    other.finish();
    EXPECT_OK(database->begin());  // nobody has it locked: a leftover
    EXPECT_FALSE(std::filesystem::exists(ldb));
    database->rollback();
}

TEST_F(LockTest, ReadScopeCostsOneLockForManyCalls) {
    DatabasePtr database = open(path());
    addRow(*database, "x");
    const RowId id = rowsOf(table(*database)).begin()->first;
    DatabasePtr writer = open(path(), hasty());
    const ReadScope scope(*database);
    for (int i = 0; i < 10; ++i)
        EXPECT_TRUE(table(*database).row(id).value().has_value());
    EXPECT_OK(writer->begin());
    addRows(*writer, 1);
    EXPECT_FAILS(ErrorCode::FileInUse, writer->commit());
}

TEST_F(LockTest, TransactionInsideAnOwnReadScope) {
    DatabasePtr database = open(path());
    DatabasePtr other = open(path(), hasty());
    {
        const ReadScope scope(*database);
        addRow(*database, "x");
        EXPECT_EQ(rowsOf(table(*database)).size(), 1u);
        EXPECT_EQ(rowsOf(table(*other)).size(), 1u) << "the exclusive lock outlived the transaction";
        EXPECT_OK(other->begin());  // the writer's lock ended with the transaction
        addRows(*other, 1);
        EXPECT_FAILS(ErrorCode::FileInUse, other->commit());  // the scope has kept its lock
    }
    addRow(*other, "y");
}

TEST_F(LockTest, TransactionInsideAReadScopeDoesNotWait) {
    DatabasePtr database = open(path(), {.lockWait = {.limit = std::nullopt}});
    DatabasePtr writer = open(path());
    EXPECT_OK(writer->begin());
    {
        const ReadScope scope(*database);
        EXPECT_FAILS(ErrorCode::FileInUse, database->begin());
    }
    writer->rollback();
    EXPECT_OK(database->begin());
    database->rollback();
}

TEST_F(LockTest, FileThatIsReplacedInATransactionIsNotWritten) {
    DatabasePtr database = open(path());
    create(path("altro.mdb")).reset();
    const std::string other = bytesOf(path("altro.mdb"));
    EXPECT_OK(database->begin());
    addRows(*database, 1);
    std::filesystem::rename(path("altro.mdb"), path());
    EXPECT_FAILS(ErrorCode::FileNotFound, database->commit());
    EXPECT_EQ(bytesOf(path()), other);
    EXPECT_FALSE(hasHotJournal(path()));
    addRow(*database, "x");
    EXPECT_EQ(rowsOf(table(*database)).size(), 1u);
}

TEST_F(LockTest, FileThatIsMovedAwayInATransactionTakesItsRowsWithIt) {
    DatabasePtr database = open(path());
    EXPECT_OK(database->begin());
    addRows(*database, 3);
    std::filesystem::rename(path(), path("spostato.mdb"));
    EXPECT_OK(database->commit());
    EXPECT_FAILS(ErrorCode::FileNotFound, database->begin());
    database.reset();
    std::filesystem::rename(path("spostato.mdb"), path());
    database = open(path());
    EXPECT_EQ(rowsOf(table(*database)).size(), 3u);
}

TEST_F(LockTest, FileThatIsDeletedInATransactionIsNotWritten) {
    DatabasePtr database = open(path());
    EXPECT_OK(database->begin());
    addRows(*database, 1);
    std::filesystem::remove(path());
    EXPECT_FAILS(ErrorCode::FileNotFound, database->commit());
}

TEST_F(LockTest, DatabaseThatGoesAwayUndoesItsTransaction) {
    const std::string before = bytesOf(path());
    {
        DatabasePtr database = open(path());
        EXPECT_OK(database->begin());
        insert(table(*database), recipient(table(*database), "x"));
    }
    EXPECT_EQ(bytesOf(path()), before);
    EXPECT_FALSE(OsFile::exists(path() + "-journal"));
    DatabasePtr other = open(path(), hasty());
    EXPECT_OK(other->begin());
    other->rollback();
}

}  // namespace lock_test
