// SPDX-License-Identifier: GPL-3.0-or-later
// Injected faults: failing and short writes, death at each step, lost power. After each of them the file
// contains exactly the state before or after the transaction.
#include <fcntl.h>

#include "platform/jet/JournalFixture.h"
#include "support/Repetitions.h"

namespace journal_test {

TEST_F(JournalTest, FailureOfAnyStepLeavesTheStateBefore) {
    learnAfter();
    using Kind = DiskStep::Kind;
    for (const auto outcome : {DiskStep::Outcome::Fail, DiskStep::Outcome::Half, DiskStep::Outcome::Full}) {
        // The second time some pages are written ahead of the commit.
        for (const size_t cachedPages : {size_t{8192}, size_t{12}}) {
            bool reachedEnd = false;
            int last = 0;
            for (int k = 0; !reachedEnd; k += testing_support::stride) {
                int step = 0;
                bool harmless = false;
                bool fileSynced = false;
                setDiskHook([&](const DiskStep& disk) {
                    const bool ofJournal = disk.path.ends_with("-journal");
                    if (step++ != k) {
                        fileSynced = fileSynced || (!ofJournal && disk.kind == Kind::Sync);
                        return DiskStep::Outcome::Proceed;
                    }
                    // Missing room, and steps after the commit. The first Create is
                    // tried again by the transaction, half an emptied header is an empty one.
                    harmless = disk.kind == Kind::Create || disk.kind == Kind::Reserve ||
                               disk.kind == Kind::Remove || (fileSynced && disk.kind == Kind::Sync) ||
                               (fileSynced && ofJournal && disk.kind == Kind::Truncate) ||
                               (fileSynced && ofJournal && disk.kind == Kind::Write &&
                                outcome == DiskStep::Outcome::Half);
                    return outcome;
                });
                const Status status = change({.cachedPages = cachedPages});
                setDiskHook({});
                reachedEnd = step <= k;
                last = step;
                const bool happens = reachedEnd || harmless;
                EXPECT_EQ(jetCodeOf(status), happens ? ErrorCode::None : ErrorCode::DeviceIo) << "step " << k;
                if (!happens && outcome == DiskStep::Outcome::Full) {
                    EXPECT_TRUE(status.text().contains(QStringLiteral("disco pieno")));
                    EXPECT_TRUE(status.text().contains(QString::fromStdString(path())));
                }
                EXPECT_EQ(isAfter(), happens) << "step " << k;
                writeBytes(path(), before);
            }
            EXPECT_GT(last, 10);
        }
    }
}

TEST_F(JournalTest, JournalThatCannotBeSyncedAtTheEndFailsTheNextTransaction) {
    DatabasePtr database = open(path());
    Table& recipients = table(*database);
    const auto addOne = [&] {
        if (Status status = database->begin(); !status.ok()) return status;
        (void)recipients.insert(recipient(recipients, "x"));
        return database->commit();
    };
    bool fileSynced = false;
    setDiskHook([&](const DiskStep& disk) {
        if (disk.kind != DiskStep::Kind::Sync) return DiskStep::Outcome::Proceed;
        if (!disk.path.ends_with("-journal")) fileSynced = true;
        return fileSynced && disk.path.ends_with("-journal") ? DiskStep::Outcome::Fail
                                                             : DiskStep::Outcome::Proceed;
    });
    EXPECT_OK(addOne());
    EXPECT_EQ(rowsOf(recipients).size(), 81u);
    const std::string now = bytesOf(path());
    EXPECT_FAILS(ErrorCode::DeviceIo, addOne());
    EXPECT_EQ(bytesOf(path()), now);
    setDiskHook({});
    EXPECT_OK(addOne());
    EXPECT_EQ(rowsOf(recipients).size(), 82u);
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

TEST_F(JournalTest, SameDatabaseWorksAfterAFailure) {
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
    for (int k = 0; k < 20; ++k) {
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
    EXPECT_GT(deaths, 20);
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

TEST_F(JournalTest, IncompleteJournalIsEmptied) {
    // Any part of the journal may be missing as long as no page is written.
    int syncs = 0;
    dieAt([&](const DiskStep& disk) { return disk.kind == DiskStep::Kind::Sync && ++syncs == 1; });
    const std::string whole = bytesOf(journal());
    ASSERT_EQ(bytesOf(path()), before);
    for (const size_t length : {size_t{0}, size_t{512}, size_t{700}, whole.size() / 2, whole.size()}) {
        writeBytes(journal(), whole.substr(0, length));
        EXPECT_FALSE(isAfter()) << length;
        EXPECT_TRUE(notices.empty());
    }
}

}  // namespace journal_test
