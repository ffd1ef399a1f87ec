// Several processes and several Databases on one file.
#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "jet/JetFixture.h"

using namespace jet;

class LockTest : public JetTest {
  protected:
    LockTest() { create(path()).reset(); }

    // Runs `work` in another process and waits until it says that it is ready; it goes on until it is let go.
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
    const auto outcome = Database::open(path(), hasty());
    EXPECT_FAILS(ErrorCode::FileInUse, outcome);
    EXPECT_TRUE(outcome.status().text().contains(QStringLiteral("in uso")));
    other.finish();
    DatabasePtr database = open(path(), hasty());
    EXPECT_OK(database->begin());
    database->rollback();
}

TEST_F(LockTest, WaitThatIsGivenUpEndsAtOnce) {
    OtherProcess other([&](auto pause) {
        DatabasePtr database = open(path());
        if (!database->begin().ok()) ::_exit(1);
        pause();
    });
    int asked = 0;
    std::chrono::milliseconds last{0};
    const LockWait patient{.limit = std::nullopt, .goOn = [&](std::chrono::milliseconds waited) {
                               EXPECT_GE(waited, last);
                               last = waited;
                               return ++asked < 5;
                           }};
    DatabasePtr database;
    EXPECT_FAILS(ErrorCode::FileInUse, Database::open(path(), {.lockWait = patient}));
    EXPECT_EQ(asked, 5);
    other.finish();
    database = open(path(), hasty());
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

TEST_F(LockTest, ReaderWaitsUntilTheWriterIsDone) {
    DatabasePtr reader = open(path());
    OtherProcess other([&](auto pause) {
        DatabasePtr database = open(path());
        Table& recipients = table(*database);
        if (!database->begin().ok()) ::_exit(1);
        insert(recipients, recipient(recipients, "x"));
        pause();
        ::usleep(200000);
        if (!database->commit().ok()) ::_exit(1);
    });
    std::thread release([&] { other.finish(); });
    EXPECT_EQ(rowsOf(table(*reader)).size(), 1u) << "half a transaction was seen";
    release.join();
}

TEST_F(LockTest, SeveralReadersDoNotDisturbEachOther) {
    DatabasePtr first = open(path());
    const ReadScope scope(*first);
    EXPECT_OK(scope.status());
    DatabasePtr second = open(path(), hasty());
    EXPECT_OK(second->table("tb_gruppi"));
}

TEST_F(LockTest, WriterWaitsForReaders) {
    DatabasePtr reader = open(path());
    DatabasePtr writer = open(path(), hasty());
    {
        const ReadScope scope(*reader);
        EXPECT_FAILS(ErrorCode::FileInUse, writer->begin());
    }
    EXPECT_OK(writer->begin());
    writer->rollback();
}

TEST_F(LockTest, WriterGetsInBetweenReadersThatNeverAllPause) {
    const auto readOn = [&](auto pause) {
        DatabasePtr database = open(path());
        // A process of its own reads, so that this one can wait to be let go.
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

TEST_F(LockTest, ChangeByAnotherProcessIsSeenAndTold) {
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
    EXPECT_OK(database->begin());  // nobody holds it now: a leftover
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
    EXPECT_FAILS(ErrorCode::FileInUse, writer->begin());
}

TEST_F(LockTest, TransactionInsideAnOwnReadScope) {
    DatabasePtr database = open(path());
    DatabasePtr other = open(path(), hasty());
    {
        const ReadScope scope(*database);
        addRow(*database, "x");
        EXPECT_EQ(rowsOf(table(*database)).size(), 1u);
        EXPECT_EQ(rowsOf(table(*other)).size(), 1u) << "the writer's lock outlived the transaction";
        EXPECT_FAILS(ErrorCode::FileInUse, other->begin());
    }
    EXPECT_OK(other->begin());
    other->rollback();
}

TEST_F(LockTest, DatabaseThatGoesAwayUndoesItsTransaction) {
    const std::string before = bytesOf(path());
    {
        DatabasePtr database = open(path());
        EXPECT_OK(database->begin());
        insert(table(*database), recipient(table(*database), "x"));
    }
    EXPECT_EQ(bytesOf(path()), before);
    EXPECT_FALSE(std::filesystem::exists(path() + "-journal"));
    DatabasePtr other = open(path(), hasty());
    EXPECT_OK(other->begin());
    other->rollback();
}
