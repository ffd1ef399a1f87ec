// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/RowsAhead.h"
#include "TestDatabase.h"

namespace rows_ahead_test {

using ado::RowsAhead;
using ado::StoredRow;

namespace {

using Clock = RowsAhead::Clock;
constexpr Clock::time_point start{std::chrono::hours(1)};

/// Rows 10 to 12, each with its number as its bytes.
void fill(RowsAhead& ahead, uint64_t epoch) {
    ahead.begin(10, epoch, start);
    for (uint8_t number = 10; number < 13; ++number)
        ahead.add() = StoredRow{{number}, true};
}

class RowsAheadTest : public ado::TestDatabase {};

}  // namespace

TEST(RowsAhead, ReturnsTheRowsItKeeps) {
    RowsAhead ahead;
    StoredRow row;
    EXPECT_FALSE(ahead.take(0, 0, start, row));
    fill(ahead, 1);
    EXPECT_FALSE(ahead.take(9, 1, start, row));
    EXPECT_FALSE(ahead.take(13, 1, start, row));
    ASSERT_TRUE(ahead.take(11, 1, start, row));
    EXPECT_EQ(row.bytes, jet::Bytes{11});
    ahead.drop();
    EXPECT_FALSE(ahead.take(12, 1, start, row));
}

TEST(RowsAhead, KeepsThemForFiveMillisecondsAndOneEpoch) {
    RowsAhead ahead;
    StoredRow row;
    fill(ahead, 1);
    EXPECT_TRUE(ahead.take(10, 1, start + std::chrono::microseconds(4999), row));
    EXPECT_FALSE(ahead.take(11, 1, start + std::chrono::milliseconds(5), row));
    EXPECT_FALSE(ahead.take(11, 2, start, row));
}

TEST(RowsAhead, ReadsMoreTheLongerRowsAreTakenInTurn) {
    RowsAhead ahead;
    EXPECT_EQ(ahead.wanted(false), 1u);
    size_t wanted = 0;
    for (int i = 0; i < 20; ++i)
        wanted = ahead.wanted(true);
    EXPECT_EQ(wanted, 256u);
    EXPECT_EQ(ahead.wanted(false), 1u);
}

TEST(RowsAhead, ReadsFewerWhereTheyGrowTooOld) {
    RowsAhead ahead;
    StoredRow row;
    for (int i = 0; i < 4; ++i)
        ahead.wanted(true);
    fill(ahead, 1);
    EXPECT_FALSE(ahead.take(11, 1, start + std::chrono::milliseconds(5), row));
    EXPECT_EQ(ahead.wanted(true), 8u);
    fill(ahead, 1);
    EXPECT_TRUE(ahead.take(10, 1, start, row));
    EXPECT_FALSE(ahead.take(13, 1, start, row));
    EXPECT_EQ(ahead.wanted(true), 16u);
    for (int i = 0; i < 10; ++i) {
        fill(ahead, 1);
        EXPECT_FALSE(ahead.take(11, 1, start + std::chrono::milliseconds(5), row));
        ahead.wanted(true);
    }
    fill(ahead, 1);
    EXPECT_FALSE(ahead.take(11, 1, start + std::chrono::milliseconds(5), row));
    EXPECT_EQ(ahead.wanted(true), 1u);
}

TEST_F(RowsAheadTest, AWalkSeesWhatThisProgramChangesBeforeIt) {
    for (int i = 1; i <= 200; ++i)
        run(QStringLiteral("INSERT INTO [tb_gruppi] (id_up, nome) VALUES (0, 'prima')"));
    ado::Recordset rows = open("SELECT * FROM [tb_gruppi] ORDER BY id");
    for (int i = 1; i <= 200; ++i) {
        EXPECT_EQ(rows.value(u"id").value().toInteger().value(), i);
        EXPECT_EQ(rows.value(u"nome").value().toTextOrEmpty(), i == 1 ? "prima" : "dopo") << i;
        run(QStringLiteral("UPDATE [tb_gruppi] SET nome = 'dopo' WHERE id = %1").arg(i + 1));
        ASSERT_TRUE(rows.moveNext().ok());
    }
    EXPECT_TRUE(rows.isEof());
}

TEST_F(RowsAheadTest, AWalkSeesInTheEndWhatAnotherProgramChanges) {
    for (int i = 1; i <= 100; ++i)
        run(QStringLiteral("INSERT INTO [tb_gruppi] (id_up, nome) VALUES (0, 'prima')"));
    ado::Recordset rows = open("SELECT * FROM [tb_gruppi] ORDER BY id");
    for (int i = 1; i < 20; ++i)
        ASSERT_TRUE(rows.moveNext().ok());
    auto other = jet::Database::open(path.toStdString());
    ASSERT_TRUE(other.ok());
    auto table = other.value()->table("tb_gruppi");
    ASSERT_TRUE(table.ok());
    ASSERT_TRUE(other.value()->begin().ok());
    const std::pair<size_t, jet::Value> change{2, std::string("dopo")};
    for (int32_t i = 1; i <= 100; ++i) {
        const auto row = table.value()->findByPrimaryKey(i);
        ASSERT_TRUE(row.ok() && row.value());
        ASSERT_TRUE(table.value()->update(*row.value(), {&change, 1}).ok());
    }
    ASSERT_TRUE(other.value()->commit().ok());
    // Rows that were read before may be returned unchanged for 5 ms.
    const auto end = Clock::now() + std::chrono::milliseconds(5);
    while (Clock::now() < end) {
    }
    for (int i = 21; i <= 100; ++i) {
        ASSERT_TRUE(rows.moveNext().ok());
        EXPECT_EQ(rows.value(u"nome").value().toTextOrEmpty(), QStringLiteral("dopo")) << i;
    }
}

}  // namespace rows_ahead_test
