// SPDX-License-Identifier: GPL-3.0-or-later
// Memo values are written: in the row, in one row elsewhere, in a chain of rows.
#include <random>

#include "platform/jet/JetFixture.h"
#include "platform/jet/UsageMap.h"
#include "support/JetTables.h"

namespace memo_test {

using namespace jet;

class MemoTest : public JetTest {
  protected:
    static constexpr size_t name = 0;
    static constexpr size_t note = 1;
    static constexpr size_t object = 2;

    MemoTest() {
        create(path()).reset();
        jettables::addTable(path(), "prova",
                            {{"nome", Type::Text, 255}, {"nota", Type::Memo}, {"oggetto", Type::Ole}},
                            {{{{0, true}}, 0x80}});
        database = open(path());
    }

    Table& prova() { return table(*database, "prova"); }
    static std::string text(size_t length, const char* letter = "è") {
        std::string all;
        for (size_t i = 0; i < length; ++i)
            all += i % 10 == 9 ? "0" : letter;
        return all;
    }
    RowId add(const Value& value) {
        EXPECT_OK(database->begin());
        const RowId id = insert(prova(), {std::string("riga"), value, {}});
        EXPECT_OK(database->commit());
        return id;
    }
    Status set(RowId id, const Value& value, size_t column = note) {
        EXPECT_OK(database->begin());
        const std::pair<size_t, Value> change{column, value};
        Status status = prova().update(id, std::span(&change, 1));
        EXPECT_OK(database->commit());
        return status;
    }
    Value stored(RowId id, size_t column = note) { return prova().value(id, column).value(); }
    void expectSoundAndReadByOthers() {
        const TableDefinition definition = prova().definition();
        const auto own = engineRows(prova());
        database.reset();
        expectSoundForAll(path());
        if (const auto others = mdbtoolsRows(path(), definition)) {
            EXPECT_EQ(firstDifference(own, *others), "");
        }
        database = open(path());
    }
    size_t freePages() {
        database.reset();
        size_t count = 0;
        {
            PageFile file(path(), true, {});
            const Reading reading(file);
            UsageMap(file, globalMapPage << 8).forEach([&](uint32_t page) {
                count += page < file.pageCount();
                return true;
            });
        }
        database = open(path());
        return count;
    }

    // At the borders of the three places, in one and two bytes for each character.
    static constexpr size_t lengths[] = {0,   1,    3,    31,   32,   33,   62,   63,
                                         500, 1024, 1025, 2030, 2031, 5000, 40000};
    DatabasePtr database;
};

TEST_F(MemoTest, TextsOfEveryLengthAreInserted) {
    std::vector<std::pair<RowId, std::string>> expected;
    for (const char* letter : {"è", "ж"})
        for (const size_t length : lengths)
            expected.emplace_back(add(text(length, letter)), text(length, letter));
    const RowId null = add({});
    for (const auto& [id, value] : expected)
        EXPECT_EQ(stored(id), Value(value)) << value.size();
    EXPECT_EQ(stored(null), Value());
    expectSoundAndReadByOthers();
    for (const auto& [id, value] : expected)
        EXPECT_EQ(stored(id), Value(value)) << value.size();
}

TEST_F(MemoTest, EveryLengthReplacesEveryOther) {
    const RowId id = add({});
    for (const size_t before : lengths)
        for (const size_t after : lengths) {
            EXPECT_OK(set(id, text(before)));
            EXPECT_OK(set(id, text(after, "ж")));
            EXPECT_EQ(stored(id), Value(text(after, "ж"))) << before << " " << after;
        }
    EXPECT_EQ(rowsOf(prova()).size(), 1u);
    expectSoundAndReadByOthers();
}

TEST_F(MemoTest, ReplacedAndEmptiedValuesFreeTheirPages) {
    const RowId id = add({});
    const size_t before = freePages();
    EXPECT_OK(set(id, text(40000, "ж")));
    EXPECT_OK(set(id, text(3000, "ж")));
    EXPECT_OK(set(id, Value()));
    EXPECT_EQ(stored(id), Value());
    EXPECT_GE(freePages(), before + 19);
    const size_t size = bytesOf(path()).size();
    for (int i = 0; i < 20; ++i) {
        EXPECT_OK(set(id, text(40000, i % 2 ? "ж" : "и")));
        if (i % 3 == 0) EXPECT_OK(set(id, Value()));
    }
    EXPECT_LT(static_cast<double>(bytesOf(path()).size()), 1.3 * static_cast<double>(size) + 20 * 4096);
    expectSoundAndReadByOthers();
}

TEST_F(MemoTest, TheSameTextChangesNothing) {
    for (const size_t length : {size_t{10}, size_t{900}, size_t{9000}}) {
        const RowId id = add(text(length));
        const std::string before = bytesOf(path());
        EXPECT_OK(set(id, text(length)));
        EXPECT_EQ(bytesOf(path()), before);
    }
}

TEST_F(MemoTest, OtherColumnsAndRowsStay) {
    const RowId one = add(text(5000));
    const RowId other = add(text(700));
    EXPECT_OK(set(one, std::string("nome nuovo e molto più lungo di prima"), name));
    EXPECT_EQ(stored(one), Value(text(5000)));
    EXPECT_OK(set(one, text(90)));
    EXPECT_EQ(stored(one, name), Value(std::string("nome nuovo e molto più lungo di prima")));
    EXPECT_EQ(stored(other), Value(text(700)));
    EXPECT_OK(database->begin());
    EXPECT_OK(prova().erase(one));
    EXPECT_OK(database->commit());
    EXPECT_EQ(stored(other), Value(text(700)));
    expectSoundAndReadByOthers();
}

TEST_F(MemoTest, ObjectsTakeNullAlone) {
    const RowId id = add(text(50));
    database.reset();
    jettables::setLongValue(path(), "prova", id, object, Bytes(9000, 1), jettables::Place::Chain);
    database = open(path());
    EXPECT_FAILS(ErrorCode::NotSupported, set(id, Bytes(10, 2), object));
    EXPECT_EQ(stored(id, object), Value(Bytes(9000, 1)));
    EXPECT_OK(set(id, Value(), object));
    EXPECT_EQ(stored(id, object), Value());
    EXPECT_EQ(stored(id), Value(text(50)));
    EXPECT_OK(database->begin());
    EXPECT_FAILS(ErrorCode::NotSupported, prova().insert(Row{std::string("x"), {}, Bytes{1}}));
    EXPECT_OK(database->commit());
    expectSoundAndReadByOthers();
}

TEST_F(MemoTest, OtherTypesAreRefused) {
    const RowId id = add(text(50));
    EXPECT_FAILS(ErrorCode::TypeMismatch, set(id, int64_t{7}));
    EXPECT_FAILS(ErrorCode::TypeMismatch, set(id, Bytes{1}));
    EXPECT_EQ(stored(id), Value(text(50)));
}

TEST_F(MemoTest, UndoneChangeLeavesTheOldValue) {
    const RowId id = add(text(5000));
    const std::string before = bytesOf(path());
    EXPECT_OK(database->begin());
    const std::pair<size_t, Value> change{note, text(20000)};
    EXPECT_OK(prova().update(id, std::span(&change, 1)));
    database->rollback();
    EXPECT_EQ(bytesOf(path()), before);
    EXPECT_EQ(stored(id), Value(text(5000)));
    EXPECT_OK(set(id, text(6000)));
    EXPECT_EQ(stored(id), Value(text(6000)));
    expectSoundAndReadByOthers();
}

TEST_F(MemoTest, RandomChangesAgreeWithAModel) {
    std::mt19937 random(23);
    std::map<RowId, Value> expected;
    const auto value = [&]() -> Value {
        const size_t kind = random() % 8;
        if (kind == 0) return {};
        const size_t most = kind < 4 ? 60 : kind < 7 ? 1500 : 12000;
        return text(random() % most, random() % 2 ? "e" : "ж");
    };
    for (int transaction = 0; transaction < 60; ++transaction) {
        EXPECT_OK(database->begin());
        for (int i = 0; i < 20; ++i) {
            const bool any = !expected.empty() && random() % 3 != 0;
            if (!any) {
                const Value added = value();
                expected[insert(prova(), {std::string("riga"), added, {}})] = added;
                continue;
            }
            const auto row = std::next(expected.begin(), static_cast<ptrdiff_t>(random() % expected.size()));
            if (random() % 3 == 0) {
                EXPECT_OK(prova().erase(row->first));
                expected.erase(row);
                continue;
            }
            const std::pair<size_t, Value> change{note, row->second = value()};
            EXPECT_OK(prova().update(row->first, std::span(&change, 1)));
        }
        EXPECT_OK(database->commit());
        if (transaction % 20 == 7) expectSoundAndReadByOthers();
    }
    for (const auto& [id, wanted] : expected)
        EXPECT_EQ(stored(id), wanted);
    expectSoundAndReadByOthers();
}

}  // namespace memo_test
