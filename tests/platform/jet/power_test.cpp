// SPDX-License-Identifier: GPL-3.0-or-later
// Power fails: what was not synced may or may not have reached the disk, in any selection, pages torn at any
// sector.
#include <random>

#include "platform/jet/JournalFixture.h"
#include "support/PowerDisk.h"

namespace power_test {

using power::afterPowerFailure;
using power::Disk;
using power::Recorded;
using power::recordSteps;

class PowerTest : public JournalTest {
  protected:
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
};

TEST_F(PowerTest, LostWritesLeaveOneOfTheTwoStates) {
    for (const size_t cachedPages : {size_t{8192}, size_t{12}}) {
        const std::vector<Recorded> steps = record({.cachedPages = cachedPages});
        ASSERT_GT(steps.size(), 10u);
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
    for (const size_t cachedPages : {size_t{8192}, size_t{12}}) {
        const std::vector<Recorded> steps = record({.cachedPages = cachedPages});
        bool journalSynced = false;
        bool folderSynced = false;
        bool dataSynced = true;
        for (const Recorded& step : steps) {
            if (step.journal && step.kind == DiskStep::Kind::Write) {
                journalSynced = false;
                if (step.offset == 0 && step.bytes[0] == '\0') {
                    EXPECT_TRUE(dataSynced);
                }
            }
            if (step.journal && step.kind == DiskStep::Kind::Sync) journalSynced = true;
            if (step.kind == DiskStep::Kind::SyncFolder) folderSynced = true;
            if (!step.journal && step.kind == DiskStep::Kind::Write) {
                EXPECT_TRUE(journalSynced && folderSynced);
                dataSynced = false;
            }
            if (!step.journal && step.kind == DiskStep::Kind::Sync) dataSynced = true;
        }
        EXPECT_TRUE(dataSynced && journalSynced);
        writeBytes(path(), before);
    }
}

TEST_F(PowerTest, SmallTransactionCostsThreeSyncs) {
    DatabasePtr database = open(path());
    Table& recipients = table(*database);
    const RowId id = rowsOf(recipients).begin()->first;
    for (int i = 0; i < 4; ++i) {
        const auto steps = recordSteps([&] {
            const std::pair<size_t, Value> change{2, std::to_string(i)};
            EXPECT_OK(database->begin());
            EXPECT_OK(recipients.update(id, std::span(&change, 1)));
            EXPECT_OK(database->commit());
        });
        const auto syncs = std::count_if(steps.begin(), steps.end(), [](const Recorded& step) {
            return step.kind == DiskStep::Kind::Sync || step.kind == DiskStep::Kind::SyncFolder;
        });
        EXPECT_EQ(syncs, i == 0 ? 4 : 3);  // the first one syncs the folder as well
    }
}

}  // namespace power_test
