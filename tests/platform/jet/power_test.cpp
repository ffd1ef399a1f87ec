// Power fails: what was not synced may or may not have reached the disk, in any selection, pages torn at any
// sector.
#include <random>

#include "platform/jet/JournalFixture.h"

namespace power_test {

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

    // Of a write the sectors that `reached` picks.
    template <class Reached>
    static void apply(Disk& disk, const Recorded& step, Reached&& reached) {
        std::string& file = step.journal ? disk.journal : disk.data;
        if (step.kind == DiskStep::Kind::Write) {
            for (size_t at = 0; at < step.bytes.size(); at += 512) {
                if (!reached()) continue;
                const size_t length = std::min<size_t>(512, step.bytes.size() - at);
                const size_t end = step.offset + at + length;
                if (file.size() < end) file.resize(end, '\0');
                file.replace(step.offset + at, length, step.bytes, at, length);
            }
        } else if (step.kind == DiskStep::Kind::Truncate ||
                   (step.kind == DiskStep::Kind::Reserve && file.size() < step.offset)) {
            if (reached()) file.resize(step.offset, '\0');
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
                apply(disk, step, [] { return true; });
            else if (luck == 1)  // torn
                apply(disk, step, [&] { return random() % 2 == 0; });
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
