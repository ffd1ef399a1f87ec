// SPDX-License-Identifier: GPL-3.0-or-later
// Damaged files: each leads to an error or to rows, soon and without a crash, and what cannot be changed
// correctly is refused.
#include <random>

#include "platform/jet/Format.h"
#include "platform/jet/JetFixture.h"
#include "platform/jet/OsFile.h"
#include "support/JetChecker.h"
#include "support/Repetitions.h"

namespace damage_test {

using namespace jet;

class DamageTest : public JetTest {
  protected:
    void SetUp() override { leaveUnsound(); }

    static constexpr int rows = 120;

    // Syncs would take nearly all the time.
    DamageTest() {
        setDiskHook([](const DiskStep& step) {
            const bool sync = step.kind == DiskStep::Kind::Sync || step.kind == DiskStep::Kind::SyncFolder;
            return sync ? DiskStep::Outcome::Skip : DiskStep::Outcome::Proceed;
        });
    }
    ~DamageTest() override { setDiskHook({}); }

    static uint8_t* raw(std::string& bytes, size_t at) {
        return reinterpret_cast<uint8_t*>(bytes.data()) + at;
    }
    static size_t slotAt(RowId id) { return id.page * pageSize + data::slots + 2 * size_t{id.slot}; }
    static size_t rowAt(std::string& bytes, RowId id) {
        return id.page * pageSize + (load16(raw(bytes, slotAt(id))) & data::offsetMask);
    }
    // Of the first data page.
    static RowId firstMovedRow(std::string& bytes) {
        for (RowId id{23, 0}; id.slot < data::maxSlots; ++id.slot)
            if ((load16(raw(bytes, slotAt(id))) & data::deleted) == data::pointer) return id;
        ADD_FAILURE() << "no moved row in the sample";
        return {};
    }

    std::string sample() {
        DatabasePtr database = create(path("sample.mdb"));
        Table& recipients = table(*database);
        EXPECT_OK(database->begin());
        std::vector<RowId> ids;
        ids.reserve(rows);
        for (int i = 0; i < rows; ++i)
            ids.push_back(insert(recipients, recipient(recipients, "nome " + std::to_string(i))));
        for (int i = 0; i < rows; i += 3) {
            const std::pair<size_t, Value> grow{12, std::string(150, 'x')};
            EXPECT_OK(recipients.update(ids[static_cast<size_t>(i)], std::span(&grow, 1)));
        }
        EXPECT_OK(database->commit());
        database.reset();
        return bytesOf(path("sample.mdb"));
    }

    // Uses the file in every way. Returns whether all of it succeeded.
    bool use() {
        auto database = Database::open(path());
        if (!database.ok()) return false;
        bool fine = true;
        const auto catalog = database.value()->catalog();
        if (!catalog.ok()) return false;
        for (const CatalogEntry& entry : catalog.value()) {
            auto found = database.value()->table(entry.name);
            if (!found.ok()) {
                fine = false;
                continue;
            }
            Table& t = *found.value();
            size_t seen = 0;
            std::vector<RowId> some;
            fine &= t.scan([&](RowId id, const RowView& view) {
                         for (size_t i = 0; i < t.definition().columns.size(); ++i)
                             (void)view.value(i);
                         if (some.size() < 3) some.push_back(id);
                         return ++seen < 100000;
                     }).ok();
            for (RowId id : some)
                for (size_t i = 0; i < t.definition().columns.size(); ++i)
                    fine &= t.value(id, i).ok();
            if (t.definition().longPrimaryKey()) fine &= t.findByPrimaryKey(5).ok();
        }
        fine &= write(*database.value());
        return fine;
    }
    bool write(Database& database) {
        auto found = database.table("tb_destinatari");
        if (!found.ok() || !database.begin().ok()) return false;
        Table& t = *found.value();
        bool fine = true;
        std::vector<RowId> some;
        (void)t.scan([&](RowId id, const RowView&) {
            some.push_back(id);
            return some.size() < 4;
        });
        if (t.definition().columns.size() == 22) {
            fine &= t.insert(recipient(t, "nuovo")).ok();
            for (RowId id : some) {
                const std::pair<size_t, Value> grow{13, std::string(250, 'y')};
                fine &= t.update(id, std::span(&grow, 1)).ok();
            }
            if (!some.empty()) fine &= t.erase(some.back()).ok();
        }
        return database.commit().ok() && fine;
    }
};

TEST_F(DamageTest, FlippedBytesNeverCrashOrHang) {
    const std::string whole = sample();
    writeBytes(path(), whole);
    ASSERT_TRUE(use());
    std::mt19937 random(20240611);
    int failures = 0;
    constexpr int rounds = testing_support::repetitions(3000);
    for (int round = 0; round < rounds; ++round) {
        std::string bytes = whole;
        const int flips = 1 + static_cast<int>(random() % 8);
        const size_t page = random() % (bytes.size() / 4096);
        for (int i = 0; i < flips; ++i) {
            // Mostly near the start of a page, where counts and pointers are.
            const size_t at = page * 4096 + (random() % 3 ? random() % 96 : random() % 4096);
            bytes[at] = static_cast<char>(random() % 4 ? random() : 0xFF);
        }
        writeBytes(path(), bytes);
        failures += use() ? 0 : 1;
    }
    EXPECT_GT(failures, rounds / 10) << "the damage was hardly met";
}

TEST_F(DamageTest, PagesThatTradePlacesNeverCrashOrHang) {
    const std::string whole = sample();
    std::mt19937 random(7);
    for (int round = 0; round < 300; ++round) {
        std::string bytes = whole;
        const size_t pages = bytes.size() / 4096;
        const size_t a = 1 + random() % (pages - 1);
        const size_t b = 1 + random() % (pages - 1);
        bytes.replace(a * 4096, 4096, whole, b * 4096, 4096);
        writeBytes(path(), bytes);
        use();
    }
}

TEST_F(DamageTest, DefinitionThatPointsToItselfIsDamaged) {
    std::string bytes = sample();
    bytes.replace(19 * 4096 + 4, 4, std::string("\x13\0\0\0", 4));
    writeBytes(path(), bytes);
    DatabasePtr database = open(path());
    EXPECT_FAILS(ErrorCode::DamagedDatabase, database->table("tb_destinatari"));
}

TEST_F(DamageTest, MovedRowThatPointsToItselfIsDamaged) {
    std::string bytes = sample();
    const RowId moved = firstMovedRow(bytes);
    const size_t at = rowAt(bytes, moved);
    bytes[at] = static_cast<char>(moved.slot);
    bytes[at + 1] = static_cast<char>(moved.page);
    bytes[at + 2] = bytes[at + 3] = 0;
    writeBytes(path(), bytes);
    DatabasePtr database = open(path());
    EXPECT_FAILS(ErrorCode::DamagedDatabase,
                 table(*database).scan([](RowId, const RowView&) { return true; }));
}

TEST_F(DamageTest, BitOfASlotThatMeansNothingChangesNothing) {
    std::string bytes = sample();
    const RowId moved = firstMovedRow(bytes);
    const size_t at = rowAt(bytes, moved);
    const RowId body{load24(raw(bytes, at + 1)), static_cast<uint8_t>(bytes[at])};
    writeBytes(path(), bytes);
    const auto countRows = [&](Database& database) {
        size_t count = 0;
        EXPECT_OK(table(database).scan([&](RowId, const RowView&) { return ++count > 0; }));
        return count;
    };
    const size_t all = countRows(*open(path()));
    for (const RowId id : {moved, body})
        *raw(bytes, slotAt(id) + 1) |= 0x20;
    writeBytes(path(), bytes);
    DatabasePtr database = open(path());
    EXPECT_EQ(countRows(*database), all);
    EXPECT_OK(database->begin());
    EXPECT_OK(table(*database).erase(moved));
    EXPECT_OK(database->commit());
    EXPECT_EQ(countRows(*database), all - 1);
    database.reset();
    EXPECT_EQ(checkJetFile(path()), std::vector<std::string>());
}

TEST_F(DamageTest, IndexThatGoesRoundInCirclesIsDamaged) {
    DatabasePtr database = create(path());
    EXPECT_OK(database->begin());
    for (int i = 0; i < 2000; ++i)
        insert(table(*database), recipient(table(*database), "x"));
    EXPECT_OK(database->commit());
    database.reset();
    std::string bytes = bytesOf(path());
    ASSERT_EQ(bytes[21 * 4096], 3) << "the root is no node";
    bytes.replace(21 * 4096 + 20, 4, std::string("\x15\0\0\0", 4));
    writeBytes(path(), bytes);
    database = open(path());
    EXPECT_FAILS(ErrorCode::DamagedDatabase, table(*database).findByPrimaryKey(2000));
    EXPECT_OK(database->begin());
    EXPECT_FAILS(ErrorCode::DamagedDatabase, table(*database).insert(recipient(table(*database), "y")));
    database->rollback();
    EXPECT_EQ(bytesOf(path()), bytes);
}

TEST_F(DamageTest, IndexOfAnotherTableRefusesChangesBeforeTheFileIsTouched) {
    std::string bytes = sample();
    bytes[21 * 4096 + 4] = 77;  // the index root belongs to another table
    writeBytes(path(), bytes);
    DatabasePtr database = open(path());
    EXPECT_FAILS(ErrorCode::DamagedDatabase, table(*database).writable());
    EXPECT_OK(database->begin());
    EXPECT_FAILS(ErrorCode::DamagedDatabase, table(*database).insert(recipient(table(*database), "y")));
    EXPECT_OK(database->commit());
    EXPECT_EQ(bytesOf(path()), bytes);
}

TEST_F(DamageTest, IndexWhoseKeysAreNotThoseOfItsRowsRefusesChanges) {
    std::string bytes = sample();
    const size_t leaf = 21 * 4096;
    ASSERT_EQ(bytes[leaf], LeafPage);
    bytes[leaf + 480 + 4] = static_cast<char>(bytes[leaf + 480 + 4] ^ 1);  // of the first key
    writeBytes(path(), bytes);
    DatabasePtr database = open(path());
    const Status refused = table(*database).writable();
    EXPECT_FAILS(ErrorCode::NotSupported, refused);
    EXPECT_TRUE(refused.text().contains(QStringLiteral("PrimaryKey")));
}

TEST_F(DamageTest, FailureInTheMiddleOfAChangeUndoesTheTransaction) {
    std::string bytes = sample();
    bytes[20 * 4096 + 4096 - 2 * 69] = 7;  // an unknown form of the map of pages with room
    writeBytes(path(), bytes);
    DatabasePtr database = open(path());
    Table& recipients = table(*database);
    std::vector<RowId> ids;
    EXPECT_OK(recipients.scan([&](RowId id, const RowView&) {
        ids.push_back(id);
        return true;
    }));
    EXPECT_OK(database->begin());
    const std::pair<size_t, Value> name{2, std::string("prima1")};  // as long as the one before
    EXPECT_OK(recipients.update(ids[0], std::span(&name, 1)));
    EXPECT_FAILS(ErrorCode::DamagedDatabase, recipients.insert(recipient(recipients, "y")));
    EXPECT_FAILS(ErrorCode::DamagedDatabase, recipients.update(ids[0], std::span(&name, 1)));
    EXPECT_FAILS(ErrorCode::DamagedDatabase, database->commit());
    EXPECT_FALSE(database->inTransaction());
    EXPECT_EQ(bytesOf(path()), bytes);
}

}  // namespace damage_test
