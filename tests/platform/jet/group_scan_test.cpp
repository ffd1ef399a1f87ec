// SPDX-License-Identifier: GPL-3.0-or-later
// The rows with one number in a column, found by an index or by a scan, and scans of files longer than the
// cache.
#include <random>

#include "platform/jet/JetFixture.h"
#include "support/JetTables.h"

namespace group_scan_test {

using namespace jet;

class GroupScanTest : public JetTest {
  protected:
    enum Column : size_t { Large, Small, Tiny, Marked, Text };

    Table& make(const std::vector<jettables::Index>& indexes, size_t cachedPages = 8192) {
        create(path()).reset();
        jettables::addTable(path(), "prova",
                            {{"large", Type::Long},
                             {"small", Type::Integer},
                             {"tiny", Type::Byte},
                             {"marked", Type::YesNo},
                             {"text", Type::Text, 255}},
                            indexes);
        return reopen(cachedPages);
    }
    Table& reopen(size_t cachedPages = 8192) {
        database.reset();
        database = open(path(), {.cachedPages = cachedPages});
        return table(*database, "prova");
    }
    // Some of them in moved rows, and deleted ones between them.
    void fill(Table& t, int rows) {
        std::mt19937 random(11);
        std::vector<RowId> ids;
        EXPECT_OK(database->begin());
        for (int i = 0; i < rows; ++i) {
            const auto number = static_cast<int64_t>(random() % 600) - 5;
            const Value large = number == 44 ? Value() : Value(number);
            ids.push_back(insert(t, {large, -number, std::clamp<int64_t>(number, 0, 255), random() % 400 == 0,
                                     std::string(random() % 120, 'x')}));
        }
        for (size_t i = 0; i < ids.size(); i += 9) {
            const std::pair<size_t, Value> longer{Text, std::string(250, 'y')};
            EXPECT_OK(t.update(ids[i], std::span(&longer, 1)));
        }
        for (size_t i = 4; i < ids.size(); i += 13)
            EXPECT_OK(t.erase(ids[i]));
        EXPECT_OK(database->commit());
    }
    static std::vector<RowId> group(Table& t, size_t column, int64_t number) {
        std::vector<RowId> rows;
        EXPECT_OK(t.scanGroup(column, number, [&](RowId id, const RowView& row) {
            EXPECT_EQ(column == Marked ? row.yesNo(column) : row.integer(column), number);
            rows.push_back(id);
            return true;
        }));
        return rows;
    }
    static std::vector<RowId> expected(const Rows& all, size_t column, const Value& value) {
        std::vector<RowId> rows;
        for (const auto& [id, row] : all)
            if (row[column] == value) rows.push_back(id);
        return rows;
    }
    static std::vector<RowId> expected(Table& t, size_t column, const Value& value) {
        return expected(rowsOf(t), column, value);
    }
    static void expectAllGroups(Table& t) {
        const Rows all = rowsOf(t);
        for (int64_t number = -8; number < 50; ++number)
            for (const size_t column : {Large, Small, Tiny})
                EXPECT_EQ(group(t, column, number), expected(all, column, number)) << number;
        EXPECT_EQ(group(t, Marked, 1), expected(all, Marked, true));
        EXPECT_EQ(group(t, Marked, 0), expected(all, Marked, false));
        for (const int64_t beyond : {int64_t{1} << 40, int64_t{-70000}, int64_t{65536 + 20}})
            for (const size_t column : {Large, Small, Tiny})
                EXPECT_EQ(group(t, column, beyond), std::vector<RowId>());
        EXPECT_EQ(group(t, Tiny, 256 + 20), std::vector<RowId>());
    }
    // Changes the type of that page.
    void damage(uint32_t page) {
        leaveUnsound();
        std::string bytes = bytesOf(path());
        bytes[page * 4096] = 2;
        writeBytes(path(), bytes);
    }

    DatabasePtr database;
};

TEST_F(GroupScanTest, AWalkFindsTheRowsOfEachNumber) {
    Table& t = make({});
    fill(t, 3000);
    expectAllGroups(t);
}

TEST_F(GroupScanTest, IndexesOfBothDirectionsFindTheSameRows) {
    Table& t = make(
        {{{{Large, true}}}, {{{Small, false}, {Large, true}}}, {{{Tiny, true}}, 0x82}, {{{Marked, false}}}});
    fill(t, 3000);
    expectAllGroups(t);
}

TEST_F(GroupScanTest, AnIndexLeavesThePagesOfOtherRowsAlone) {
    Table* t = &make({{{{Large, true}}}});
    fill(*t, 3000);
    const std::vector<RowId> rows = expected(*t, Large, int64_t{20});
    const std::vector<RowId> others = expected(*t, Large, int64_t{21});
    const auto apart = std::find_if(others.begin(), others.end(), [&](RowId other) {
        return std::none_of(rows.begin(), rows.end(), [&](RowId id) { return id.page == other.page; });
    });
    ASSERT_NE(apart, others.end());
    database.reset();
    damage(apart->page);
    t = &reopen();
    EXPECT_EQ(group(*t, Large, 20), rows);
    EXPECT_FAILS(ErrorCode::DamagedDatabase,
                 t->scanGroup(Small, 1, [](RowId, const RowView&) { return true; }));
}

TEST_F(GroupScanTest, AnIndexThatContradictsItsRowsIsNotUsed) {
    Table* t = &make({{{{Large, true}}}});
    fill(*t, 3000);
    const std::vector<RowId> rows = expected(*t, Large, int64_t{20});
    database.reset();
    leaveUnsound();
    // A row of the group gets another number without a change of the index.
    std::string bytes = bytesOf(path());
    const size_t page = rows[3].page * size_t{4096};
    const auto at = [&](size_t offset) { return static_cast<uint8_t>(bytes[page + offset]); };
    const size_t slot = 14 + 2 * size_t{rows[3].slot};
    const size_t start = (at(slot) | at(slot + 1) << 8) & 0x1FFF;
    size_t number = start + 2;
    while (at(number) != 20)
        ++number;
    bytes[page + number] = 21;
    writeBytes(path(), bytes);
    t = &reopen();
    EXPECT_EQ(group(*t, Large, 20), expected(*t, Large, int64_t{20}));
    EXPECT_EQ(group(*t, Large, 20).size() + 1, rows.size());
}

TEST_F(GroupScanTest, AVisitThatEndsTheSearchIsTheLast) {
    for (const bool indexed : {false, true}) {
        SCOPED_TRACE(indexed);
        std::filesystem::remove(path());
        Table& t =
            make(indexed ? std::vector<jettables::Index>{{{{Tiny, true}}}} : std::vector<jettables::Index>());
        fill(t, 3000);
        int visits = 0;
        EXPECT_OK(t.scanGroup(Tiny, 0, [&](RowId, const RowView&) { return ++visits < 3; }));
        EXPECT_EQ(visits, 3);
        database.reset();
    }
}

TEST_F(GroupScanTest, AFileLongerThanTheCacheIsWalkedAsItIsInATransaction) {
    Table& t = make({}, 16);
    fill(t, 5000);
    const Rows before = rowsOf(t);
    EXPECT_OK(database->begin());
    Rows model = before;
    size_t n = 0;
    for (auto& [id, row] : model) {
        if (n++ % 17 != 0) continue;
        const std::pair<size_t, Value> change{Large, int64_t{1000}};
        EXPECT_OK(t.update(id, std::span(&change, 1)));
        row[Large] = int64_t{1000};
    }
    EXPECT_EQ(rowsOf(t), model);
    EXPECT_EQ(group(t, Large, 1000), expected(t, Large, int64_t{1000}));
    database->rollback();
    EXPECT_EQ(rowsOf(t), before);
    EXPECT_EQ(group(t, Large, 1000), std::vector<RowId>());
}

TEST_F(GroupScanTest, AWalkInPartsContinuesWhereItStopped) {
    Table& t = make({}, 16);
    fill(t, 3000);
    std::vector<RowId> all;
    RowId from;
    for (bool ended = false; !ended;) {
        int part = 0;
        ended = true;
        EXPECT_OK(t.scan(from, [&](RowId id, const RowView&) {
            if (part++ == 37) return ended = false;
            all.push_back(id);
            from = {id.page, static_cast<uint8_t>(id.slot + 1)};
            return true;
        }));
    }
    std::vector<RowId> expected;
    for (const auto& [id, row] : rowsOf(t))
        expected.push_back(id);
    EXPECT_EQ(all, expected);
}

}  // namespace group_scan_test
