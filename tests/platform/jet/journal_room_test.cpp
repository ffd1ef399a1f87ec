// SPDX-License-Identifier: GPL-3.0-or-later
// The journal beside an open file, which reserves room for the next change, and full disks.
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "platform/jet/Journal.h"
#include "platform/jet/JournalFixture.h"

namespace journal_room_test {

class JournalRoomTest : public JournalTest {
  protected:
    static Status setName(Database& database, RowId id, const std::string& name) {
        const std::pair<size_t, Value> change{2, name};
        if (Status status = database.begin(); !status.ok()) return status;
        if (Status status = table(database).update(id, std::span(&change, 1)); !status.ok()) {
            database.rollback();
            return status;
        }
        return database.commit();
    }
    static Status addRows(Database& database, int count) {
        if (Status status = database.begin(); !status.ok()) return status;
        for (int i = 0; i < count; ++i)
            if (auto id = table(database).insert(recipient(table(database), std::string(60, 'x')));
                !id.ok()) {
                database.rollback();
                return id.status();
            }
        return database.commit();
    }
    // From now on no file can grow. As on a full disk, writing in place
    // and truncating still work.
    void fillDisk() {
        const uint64_t size = std::filesystem::file_size(path());
        const uint64_t kept = allocated(journal());
        setDiskHook([this, size, kept](const DiskStep& disk) {
            using Kind = DiskStep::Kind;
            const uint64_t room = disk.path == path() ? size : disk.path == journal() ? kept : 0;
            const bool grows = (disk.kind == Kind::Write && disk.offset + disk.bytes.size() > room) ||
                               (disk.kind == Kind::Reserve && disk.offset > room) ||
                               disk.kind == Kind::Create;
            return grows ? DiskStep::Outcome::Full : DiskStep::Outcome::Proceed;
        });
    }
    static uint64_t allocated(const std::string& file) {
        struct stat s;
        return ::stat(file.c_str(), &s) == 0 ? static_cast<uint64_t>(s.st_blocks) * 512 : 0;
    }
};

TEST_F(JournalRoomTest, EmptyJournalIsBesideAnOpenFileAndTheLastRemovesIt) {
    DatabasePtr first = open(path());
    EXPECT_TRUE(first->roomReserved());
    EXPECT_GE(allocated(journal()), Journal::room);
    EXPECT_FALSE(hasHotJournal(path()));
    DatabasePtr second = open(path());
    first.reset();
    EXPECT_TRUE(OsFile::exists(journal()));
    EXPECT_TRUE(second->roomReserved());
    EXPECT_OK(addRows(*second, 1));
    EXPECT_TRUE(OsFile::exists(journal()));
    second.reset();
    EXPECT_FALSE(OsFile::exists(journal()));
}

TEST_F(JournalRoomTest, FileThatIsOnlyReadHasNoJournal) {
    DatabasePtr database = open(path(), {.readOnly = true});
    EXPECT_FALSE(OsFile::exists(journal()));
    EXPECT_FALSE(database->roomReserved());
}

TEST_F(JournalRoomTest, JournalFreesWhatALargeTransactionTook) {
    DatabasePtr database = open(path());
    EXPECT_OK(addRows(*database, 3000));
    std::vector<RowId> ids;
    for (const auto& [id, row] : rowsOf(table(*database)))
        ids.push_back(id);
    EXPECT_OK(database->begin());
    for (const RowId id : ids)
        EXPECT_OK(table(*database).erase(id));
    EXPECT_OK(database->commit());
    EXPECT_EQ(std::filesystem::file_size(journal()), Journal::room);
    EXPECT_TRUE(database->roomReserved());
}

TEST_F(JournalRoomTest, UpdatesSucceedOnADiskThatHasBecomeFull) {
    DatabasePtr database = open(path());
    ASSERT_TRUE(database->roomReserved());
    const Rows rows = rowsOf(table(*database));
    const size_t sel = table(*database).definition().columns.size() - 1;
    fillDisk();
    for (const auto& [id, row] : rows) {
        const std::pair<size_t, Value> change{sel, false};
        EXPECT_OK(database->begin());
        EXPECT_OK(table(*database).update(id, std::span(&change, 1)));
        EXPECT_OK(database->commit());
    }
    // A change that needs more room fails, changes nothing and says why; small ones still work.
    const std::string full = bytesOf(path());
    const Status status = addRows(*database, 400);
    EXPECT_FAILS(ErrorCode::DeviceIo, status);
    EXPECT_TRUE(status.text().contains(QStringLiteral("disco pieno")));
    EXPECT_TRUE(status.text().contains(QString::fromStdString(path())));
    EXPECT_EQ(bytesOf(path()), full);
    EXPECT_OK(setName(*database, rows.begin()->first, "riga 0"));
    setDiskHook({});
    for (const auto& [id, row] : rowsOf(table(*database)))
        EXPECT_EQ(row[sel], Value(false));
    EXPECT_OK(addRows(*database, 400));
    database.reset();
    expectSound(path());
}

TEST_F(JournalRoomTest, DiskThatWasFullAtOpeningIsReportedWhenAsked) {
    setDiskHook([](const DiskStep& disk) {
        return disk.kind == DiskStep::Kind::Reserve ? DiskStep::Outcome::Full : DiskStep::Outcome::Proceed;
    });
    DatabasePtr database = open(path());
    EXPECT_FALSE(database->roomReserved());
    EXPECT_OK(addRows(*database, 1));  // there is room by chance
    EXPECT_FALSE(database->roomReserved());
    setDiskHook({});
    EXPECT_TRUE(database->roomReserved());
    EXPECT_GE(allocated(journal()), Journal::room);
}

TEST_F(JournalRoomTest, JournalThatWasRemovedOrReplacedIsMadeAgain) {
    DatabasePtr database = open(path());
    const RowId id = rowsOf(table(*database)).begin()->first;
    EXPECT_OK(setName(*database, id, "uno"));
    std::filesystem::remove(journal());
    int folderSyncs = 0;
    setDiskHook([&](const DiskStep& disk) {
        if (disk.kind == DiskStep::Kind::SyncFolder) ++folderSyncs;
        return DiskStep::Outcome::Proceed;
    });
    EXPECT_OK(setName(*database, id, "due"));
    EXPECT_EQ(folderSyncs, 1) << "its name would not survive a power failure";
    EXPECT_GE(allocated(journal()), Journal::room);
    std::filesystem::remove(journal());
    writeBytes(journal(), "");
    EXPECT_OK(setName(*database, id, "tre"));
    setDiskHook({});
    EXPECT_GE(allocated(journal()), Journal::room);
    EXPECT_EQ(rowsOf(table(*database)).at(id)[2], Value(std::string("tre")));
}

TEST_F(JournalRoomTest, JournalHasJustTheRightsOfTheDatabase) {
    const auto mode = [&] { return std::filesystem::status(journal()).permissions(); };
    for (const auto wanted : {std::filesystem::perms(0600), std::filesystem::perms(0664)}) {
        std::filesystem::permissions(path(), wanted);
        DatabasePtr database = open(path());
        EXPECT_EQ(mode(), wanted);
    }
    DatabasePtr database = open(path());
    // The database's permissions change while it is open: the journal gets them before it is hot.
    std::filesystem::permissions(path(), std::filesystem::perms(0600));
    setDiskHook([&](const DiskStep& disk) {
        if (disk.path == journal() && disk.kind == DiskStep::Kind::Write) {
            EXPECT_EQ(mode(), std::filesystem::perms(0600));
        }
        return DiskStep::Outcome::Proceed;
    });
    EXPECT_OK(addRows(*database, 1));
    setDiskHook({});
    EXPECT_EQ(mode(), std::filesystem::perms(0600));
}

// A real failure of the system, in the middle of the pages.
TEST_F(JournalRoomTest, FileThatMayNotGrowIsLeftAsItWas) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::signal(SIGXFSZ, SIG_IGN);
        DatabasePtr database = open(path());
        // Room for a large journal, but only for a page and a half more in the database.
        const rlimit limit{before.size() + 6000, before.size() + 6000};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        Status status = addRows(*database, 60);
        if (status.code() != ErrorCode::DeviceIo) ::_exit(2);
        if (!status.text().contains(QStringLiteral("dimensione concessa"))) ::_exit(3);
        if (bytesOf(path()) != before) ::_exit(4);
        if (!setName(*database, rowsOf(table(*database)).begin()->first, "riga 0").ok()) ::_exit(5);
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

}  // namespace journal_room_test
