// The machine is broken on purpose: failing and short writes, death at each step, lost power. After each of
// them the file holds exactly the state before or after the transaction.
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <random>

#include "jet/JetFixture.h"
#include "platform/jet/Format.h"
#include "platform/jet/Journal.h"
#include "platform/jet/OsFile.h"

using namespace jet;

class JournalTest : public JetTest {
  protected:
    JournalTest() {
        DatabasePtr database = create(path());
        Table& recipients = table(*database);
        EXPECT_OK(database->begin());
        for (int i = 0; i < 80; ++i)
            insert(recipients, recipient(recipients, "riga " + std::to_string(i)));
        EXPECT_OK(database->commit());
        database.reset();
        before = bytesOf(path());
    }
    ~JournalTest() override { setDiskHook({}); }

    std::string journal() const { return path("data.mdb-journal"); }

    // A transaction that touches everything: rows that move, new pages, index splits, deletions.
    Status change(const Database::Options& options = {}) {
        auto opened = Database::open(path(), options);
        if (!opened.ok()) return opened.status();
        Database& database = *opened.value();
        Table& recipients = table(database);
        const Rows rows = rowsOf(recipients);
        if (Status status = database.begin(); !status.ok()) return status;
        for (int i = 0; i < 700; ++i)
            if (auto id = recipients.insert(recipient(recipients, "nuova " + std::to_string(i))); !id.ok())
                return id.status();
        int n = 0;
        for (const auto& [id, row] : rows) {
            const std::pair<size_t, Value> grow{12, std::string(180, 'x')};
            if (Status status = ++n % 4 ? recipients.update(id, std::span(&grow, 1)) : recipients.erase(id);
                !status.ok())
                return status;
        }
        return database.commit();
    }
    // The state after the transaction, made on a copy.
    void learnAfter() {
        EXPECT_OK(change());
        after = bytesOf(path());
        writeBytes(path(), before);
        ASSERT_NE(before, after);
    }
    // Opens what the accident left and says which state it is.
    bool isAfter() {
        {
            const auto database = Database::open(path());
            EXPECT_OK(database);
        }
        EXPECT_FALSE(std::filesystem::exists(journal()));
        const std::string now = bytesOf(path());
        EXPECT_TRUE(now == before || now == after) << "neither the state before nor the one after";
        return now == after;
    }

    // A crash after the pages were written: the journal is hot.
    void crash() {
        const pid_t child = ::fork();
        if (child == 0) {
            setDiskHook([](const DiskStep& disk) {
                if (disk.kind == DiskStep::Kind::Remove) ::_exit(9);
                return DiskStep::Outcome::Proceed;
            });
            (void)change();
            ::_exit(1);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        ASSERT_EQ(WEXITSTATUS(status), 9);
        ASSERT_TRUE(std::filesystem::exists(journal()));
    }

    std::string before;
    std::string after;
};

TEST_F(JournalTest, FailureOfAnyStepLeavesTheStateBefore) {
    learnAfter();
    for (const auto outcome : {DiskStep::Outcome::Fail, DiskStep::Outcome::Half}) {
        bool reachedEnd = false;
        int last = 0;
        for (int k = 0; !reachedEnd; ++k) {
            int step = 0;
            bool lastStepFailed = false;
            setDiskHook([&](const DiskStep& disk) {
                if (step++ != k) return DiskStep::Outcome::Proceed;
                lastStepFailed = disk.kind == DiskStep::Kind::SyncFolder && step > 10;
                return outcome;
            });
            const Status status = change();
            setDiskHook({});
            reachedEnd = step <= k;
            last = step;
            // When the folder cannot be synced at the very end the change has happened.
            const bool happens = reachedEnd || lastStepFailed;
            EXPECT_EQ(jetCodeOf(status), happens ? ErrorCode::None : ErrorCode::DeviceIo) << "step " << k;
            EXPECT_EQ(isAfter(), happens) << "step " << k;
            writeBytes(path(), before);
        }
        EXPECT_GT(last, 30);
    }
}

TEST_F(JournalTest, FolderThatCannotBeSyncedAtTheEndFailsTheNextTransaction) {
    learnAfter();
    bool removed = false;
    setDiskHook([&](const DiskStep& disk) {
        removed = removed || disk.kind == DiskStep::Kind::Remove;
        return removed && disk.kind == DiskStep::Kind::SyncFolder ? DiskStep::Outcome::Fail
                                                                  : DiskStep::Outcome::Proceed;
    });
    EXPECT_OK(change());
    EXPECT_FAILS(ErrorCode::DeviceIo, change());
    setDiskHook({});
    EXPECT_TRUE(isAfter());
}

TEST_F(JournalTest, FailureThatStaysIsHealedByTheNextOpening) {
    learnAfter();
    for (int k = 0;; k += 3) {
        int step = 0;
        setDiskHook([&](const DiskStep&) {
            return step++ < k ? DiskStep::Outcome::Proceed : DiskStep::Outcome::Fail;
        });
        const Status status = change();
        setDiskHook({});
        isAfter();
        expectSound(path());
        writeBytes(path(), before);
        if (status.ok()) break;
    }
}

TEST_F(JournalTest, SameDatabaseGoesOnAfterAFailure) {
    DatabasePtr database = open(path());
    Table& recipients = table(*database);
    const auto addOne = [&] {
        if (Status status = database->begin(); !status.ok()) return status;
        if (auto id = recipients.insert(recipient(recipients, "x")); !id.ok()) {
            database->rollback();
            return id.status();
        }
        return database->commit();
    };
    for (int k = 0; k < 14; ++k) {
        const size_t count = rowsOf(recipients).size();
        int step = 0;
        setDiskHook([&](const DiskStep&) {
            return step++ == k ? DiskStep::Outcome::Fail : DiskStep::Outcome::Proceed;
        });
        const Status failed = addOne();
        setDiskHook({});
        const size_t now = rowsOf(recipients).size();
        EXPECT_TRUE(now == count || now == count + 1);
        EXPECT_OK(addOne());
        EXPECT_EQ(rowsOf(recipients).size(), now + 1);
        expectSound(path());
    }
}

TEST_F(JournalTest, DeathAtAnyStepLeavesOneOfTheTwoStates) {
    learnAfter();
    bool wasAfter = false;
    int deaths = 0;
    for (int k = 0;; ++k) {
        const pid_t child = ::fork();
        if (child == 0) {
            int step = 0;
            setDiskHook([&](const DiskStep& disk) {
                if (step++ != k) return DiskStep::Outcome::Proceed;
                if (disk.kind == DiskStep::Kind::Write && k % 2) {  // death in the middle of a write
                    const int fd = ::open(disk.path.c_str(), O_WRONLY);
                    if (::pwrite(fd, disk.bytes.data(), disk.bytes.size() / 2,
                                 static_cast<off_t>(disk.offset)) < 0)
                        ::_exit(3);
                }
                ::_exit(9);
            });
            int code = 1;
            try {
                // cachedPages: some pages are written ahead of the commit.
                code = change({.cachedPages = 12}).ok() ? 0 : 9;
            } catch (...) {
            }
            ::_exit(code);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFEXITED(status));
        const bool now = isAfter();
        EXPECT_FALSE(wasAfter && !now) << "later death, earlier state at step " << k;
        wasAfter = now;
        writeBytes(path(), before);
        if (WEXITSTATUS(status) == 0) break;
        ASSERT_EQ(WEXITSTATUS(status), 9);
        ++deaths;
    }
    EXPECT_TRUE(wasAfter);
    EXPECT_GT(deaths, 40);
}

TEST_F(JournalTest, DeathDuringTheRollbackIsRolledBackAgain) {
    learnAfter();
    for (int k = 0;; ++k) {
        crash();
        const pid_t child = ::fork();
        if (child == 0) {
            int step = 0;
            setDiskHook([&](const DiskStep&) {
                if (step++ == k) ::_exit(9);
                return DiskStep::Outcome::Proceed;
            });
            ::_exit(Database::open(path()).ok() ? 0 : 1);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_FALSE(isAfter()) << k;
        EXPECT_EQ(bytesOf(path()), before);
        if (WEXITSTATUS(status) == 0) break;
        ASSERT_EQ(WEXITSTATUS(status), 9);
    }
}

TEST_F(JournalTest, HotJournalIsRolledBackBeforeAReaderSeesAnything) {
    DatabasePtr early = open(path());
    EXPECT_EQ(rowsOf(table(*early)).size(), 80u);
    crash();
    EXPECT_EQ(rowsOf(table(*early)).size(), 80u);
    EXPECT_EQ(bytesOf(path()), before);
    crash();
    DatabasePtr database = open(path(), {.readOnly = true});
    EXPECT_EQ(rowsOf(table(*database)).size(), 80u);
    EXPECT_EQ(bytesOf(path()), before);
}

TEST_F(JournalTest, IncompleteJournalIsDiscarded) {
    for (const std::string& junk : {std::string(), std::string("VJOURNAL"), std::string(5000, 'x'),
                                    std::string("VJOURNAL") + std::string(5000, '\0')}) {
        writeBytes(journal(), junk);
        DatabasePtr database = open(path());
        EXPECT_EQ(rowsOf(table(*database)).size(), 80u);
        EXPECT_FALSE(std::filesystem::exists(journal()));
        EXPECT_EQ(bytesOf(path()), before);
    }
}

TEST_F(JournalTest, TornRecordsAreNotPutBack) {
    const std::string file = path();
    {
        Journal journalFile(file);
        const OsFile database(file, OsFile::Access::ReadWrite);
        journalFile.start(database, static_cast<uint32_t>(before.size() / pageSize));
        Page page;
        page.fill(0xEE);
        journalFile.add(20, page);
        journalFile.add(21, page);
    }
    std::string bytes = bytesOf(journal());
    const size_t record = 4 + pageSize + 8;
    ASSERT_EQ(bytes.size(), 32 + 2 * record);
    bytes[32 + record + 2000] ^= 1;
    writeBytes(journal(), bytes);
    {
        OsFile database(file, OsFile::Access::ReadWrite);
        Journal(file).rollBack(database);
    }
    std::string expected = before;
    expected.replace(20 * pageSize, pageSize, std::string(pageSize, '\xEE'));
    EXPECT_EQ(bytesOf(path()), expected);
    EXPECT_FALSE(std::filesystem::exists(journal()));
}

TEST_F(JournalTest, JournalHasTheRightsOfTheDatabase) {
    std::filesystem::permissions(path(), std::filesystem::perms(0600));
    DatabasePtr database = open(path());
    EXPECT_OK(database->begin());
    insert(table(*database), recipient(table(*database), "x"));
    EXPECT_EQ(std::filesystem::status(journal()).permissions(), std::filesystem::perms(0600));
    database->rollback();
}

// Power fails: what was not synced may or may not have reached the disk, in any selection, pages torn.
class PowerTest : public JournalTest {
  protected:
    struct Recorded {
        DiskStep::Kind kind;
        bool journal;
        uint64_t offset;
        std::string bytes;
    };

    struct Disk {
        std::string data;
        std::string journal;
        bool journalThere = false;
    };

    template <class Work>
    std::vector<Recorded> recordSteps(Work&& work) {
        std::vector<Recorded> steps;
        setDiskHook([&](const DiskStep& disk) {
            steps.push_back(
                {disk.kind, disk.path.ends_with("-journal"), disk.offset,
                 std::string(reinterpret_cast<const char*>(disk.bytes.data()), disk.bytes.size())});
            return DiskStep::Outcome::Proceed;
        });
        work();
        setDiskHook({});
        return steps;
    }
    std::vector<Recorded> record(const Database::Options& options) {
        std::vector<Recorded> steps = recordSteps([&] { EXPECT_OK(change(options)); });
        after = bytesOf(path());
        return steps;
    }
    void place(const Disk& disk) {
        writeBytes(path(), disk.data);
        if (disk.journalThere)
            writeBytes(journal(), disk.journal);
        else
            std::filesystem::remove(journal());
    }

    static void apply(Disk& disk, const Recorded& step, size_t length) {
        std::string& file = step.journal ? disk.journal : disk.data;
        if (step.kind == DiskStep::Kind::Write) {
            if (file.size() < step.offset + length) file.resize(step.offset + length, '\0');
            file.replace(step.offset, length, step.bytes, 0, length);
        } else if (step.kind == DiskStep::Kind::Truncate) {
            file.resize(step.offset);
        }
    }

    // The disk as it may look when power fails before step `end`.
    template <class Random>
    static Disk afterPowerFailure(Disk disk, const std::vector<Recorded>& steps, size_t end, Random& random) {
        // What was synced is there for certain; the folder's own entries are as of its last sync.
        size_t dataSynced = 0;
        size_t journalSynced = 0;
        size_t folderSynced = 0;
        for (size_t i = 0; i < end; ++i) {
            if (steps[i].kind == DiskStep::Kind::Sync) (steps[i].journal ? journalSynced : dataSynced) = i;
            if (steps[i].kind == DiskStep::Kind::SyncFolder) folderSynced = i;
        }
        for (size_t i = 0; i < end; ++i) {
            const Recorded& step = steps[i];
            const bool certain = i < (step.journal ? journalSynced : dataSynced);
            if (step.kind == DiskStep::Kind::Create || step.kind == DiskStep::Kind::Remove) {
                if (i < folderSynced || random() % 2) disk.journalThere = step.kind == DiskStep::Kind::Create;
                continue;
            }
            const uint32_t luck = static_cast<uint32_t>(random() % 4);
            if (certain || luck == 0)
                apply(disk, step, step.bytes.size());
            else if (luck == 1)  // torn at a sector
                apply(disk, step, step.bytes.size() / 1024 * 512);
        }
        return disk;
    }
};

TEST_F(PowerTest, LostWritesLeaveOneOfTheTwoStates) {
    for (const size_t cachedPages : {size_t{8192}, size_t{12}}) {
        const std::vector<Recorded> steps = record({.cachedPages = cachedPages});
        ASSERT_GT(steps.size(), 30u);
        std::mt19937 random(99);
        int states[2] = {0, 0};
        for (size_t end = 0; end <= steps.size(); ++end)
            for (int round = 0; round < 6; ++round) {
                const Disk disk = afterPowerFailure({before, {}, false}, steps, end, random);
                place(disk);
                const bool now = isAfter();
                ++states[now ? 1 : 0];
                if (end == steps.size()) {
                    EXPECT_TRUE(now) << "commit had returned, the change was lost";
                }
                if (HasFailure()) FAIL() << "power failure before step " << end << " of " << steps.size();
            }
        EXPECT_GT(states[0], 0);
        EXPECT_GT(states[1], 0);
        writeBytes(path(), before);
    }
}

TEST_F(PowerTest, LostWritesOfARollbackLeadToTheStateBefore) {
    crash();
    const Disk crashed{bytesOf(path()), bytesOf(journal()), true};
    const std::vector<Recorded> steps = recordSteps([&] { EXPECT_OK(Database::open(path())); });
    std::mt19937 random(17);
    for (size_t end = 0; end <= steps.size(); ++end)
        for (int round = 0; round < 6; ++round) {
            place(afterPowerFailure(crashed, steps, end, random));
            EXPECT_FALSE(isAfter());
            ASSERT_EQ(bytesOf(path()), before)
                << "power failure before step " << end << " of " << steps.size();
        }
}

TEST_F(PowerTest, PagesAreWrittenOnlyAfterTheJournalIsSynced) {
    const std::vector<Recorded> steps = record({});
    bool journalSynced = false;
    bool folderSynced = false;
    bool dataSynced = true;
    for (const Recorded& step : steps) {
        if (step.journal && step.kind == DiskStep::Kind::Write) journalSynced = false;
        if (step.journal && step.kind == DiskStep::Kind::Sync) journalSynced = true;
        if (step.kind == DiskStep::Kind::SyncFolder) folderSynced = true;
        if (!step.journal && step.kind == DiskStep::Kind::Write) {
            EXPECT_TRUE(journalSynced && folderSynced);
            dataSynced = false;
        }
        if (!step.journal && step.kind == DiskStep::Kind::Sync) dataSynced = true;
        if (step.kind == DiskStep::Kind::Remove) {
            EXPECT_TRUE(dataSynced);
        }
    }
    ASSERT_GE(steps.size(), 2u);
    EXPECT_EQ(steps[steps.size() - 2].kind, DiskStep::Kind::Remove);
    EXPECT_EQ(steps.back().kind, DiskStep::Kind::SyncFolder);
}
