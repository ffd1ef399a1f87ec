// SPDX-License-Identifier: GPL-3.0-or-later
// Indexes of every kind that a user's table may have, on tables made for the test.
#include <random>

#include "platform/jet/JetFixture.h"
#include "support/JetTables.h"
#include "support/Repetitions.h"

namespace index_kind_test {

using namespace jet;

class IndexKindsTest : public JetTest {
  protected:
    IndexKindsTest() { create(path()).reset(); }

    using Indexes = std::vector<jettables::Index>;
    static constexpr uint8_t plain = 0x80;
    static constexpr uint8_t unique = 0x81;
    static constexpr uint8_t ignoresNulls = 0x82;
    static constexpr uint8_t required = 0x88;

    // Two columns of text and one long, with these indexes on them.
    Table& makeTexts(const Indexes& indexes) {
        jettables::addTable(path(), "prova",
                            {{"uno", Type::Text, 60}, {"due", Type::Text, 255}, {"tre", Type::Long}},
                            indexes);
        return reopen();
    }
    Table& reopen() {
        database.reset();
        database = open(path());
        return table(*database, "prova");
    }
    static Row texts(const Value& one, const Value& two = {}, const Value& three = {}) {
        return {one, two, three};
    }
    static Status change(Table& t, RowId id, size_t column, const Value& value) {
        const std::pair<size_t, Value> one{column, value};
        return t.update(id, std::span(&one, 1));
    }

    DatabasePtr database;
};

// All types in both directions.
class AllTypesTest : public IndexKindsTest {
  protected:
    static constexpr Type types[] = {Type::YesNo,  Type::Byte,   Type::Integer, Type::Long, Type::Currency,
                                     Type::Single, Type::Double, Type::Date,    Type::Guid, Type::Text};

    AllTypesTest() {
        std::vector<jettables::Column> columns;
        Indexes indexes;
        for (const Type type : types) {
            const uint16_t number = static_cast<uint16_t>(columns.size());
            columns.push_back({"c" + std::to_string(number), type, 40});
            indexes.push_back({{{number, true}}, number % 2 ? ignoresNulls : plain});
            if (type != Type::Text) indexes.push_back({{{number, false}}, plain});
        }
        indexes.push_back({{{9, true}, {3, false}, {7, true}}, plain});
        indexes.push_back({{{0, false}, {8, true}}, ignoresNulls});
        jettables::addTable(path(), "prova", columns, indexes);
    }

    Value random(Type type) {
        if (type != Type::YesNo && number(5) == 0) return {};
        switch (type) {
            case Type::YesNo:
                return number(2) == 0;
            case Type::Byte:
                return int64_t{number(256)};
            case Type::Integer:
                return int64_t{number(65536) - 32768};
            case Type::Long:
                return int64_t{static_cast<int32_t>(source())};
            case Type::Currency:
                return Currency{static_cast<int64_t>(source()) - 2000000000};
            case Type::Single:
                return static_cast<double>(static_cast<float>(number(20001) - 10000) / 16);
            case Type::Double:
            case Type::Date: {
                const double days = static_cast<double>(number(200001) - 100000) / 24;
                return type == Type::Date ? Value(Date{days}) : Value(days);
            }
            case Type::Guid: {
                Bytes bytes(16);
                for (uint8_t& byte : bytes)
                    byte = static_cast<uint8_t>(number(4) * 85);
                return bytes;
            }
            default: {
                static const char* pieces[] = {"a", "B", "è", "-", "'", " ", "z", "Ñ", "7", "."};
                std::string text;
                for (int i = number(20); i > 0; --i)
                    text += pieces[number(10)];
                return text;
            }
        }
    }
    Row randomRow() {
        Row row;
        for (const Type type : types)
            row.push_back(random(type));
        return row;
    }
    int number(int below) { return static_cast<int>(source() % static_cast<unsigned>(below)); }

    std::mt19937 source{4711};
};

TEST_F(AllTypesTest, ThousandsOfChangesKeepEveryIndexRight) {
    Table& t = reopen();
    EXPECT_OK(t.writable());
    Rows model;
    for (int round = 0; round < 12; ++round) {
        EXPECT_OK(database->begin());
        for (int i = 0; i < testing_support::repetitions(250); ++i) {
            const int what = number(100);
            if (what < 60 || model.empty()) {
                Row row = randomRow();
                const RowId id = insert(t, row);
                model[id] = std::move(row);
                continue;
            }
            auto chosen = model.begin();
            std::advance(chosen, number(static_cast<int>(model.size())));
            if (what < 80) {
                EXPECT_OK(t.erase(chosen->first));
                model.erase(chosen);
                continue;
            }
            const size_t column = static_cast<size_t>(number(10));
            const Value value = random(types[column]);
            EXPECT_OK(change(t, chosen->first, column, value));
            chosen->second[column] = value;
        }
        EXPECT_OK(database->commit());
        ASSERT_TRUE(rowsOf(t) == model);
        expectSoundForAll(path());
        if (HasFailure()) return;
    }
    EXPECT_OK(database->begin());
    for (const auto& [id, row] : model)
        EXPECT_OK(t.erase(id));
    EXPECT_OK(database->commit());
    expectSoundForAll(path());
}

TEST_F(AllTypesTest, NumbersThatNoKeyCanContainAreRefused) {
    Table& t = reopen();
    EXPECT_OK(database->begin());
    const RowId id = insert(t, randomRow());
    EXPECT_FAILS(ErrorCode::Overflow, change(t, id, 6, std::numeric_limits<double>::quiet_NaN()));
    EXPECT_FAILS(ErrorCode::Overflow, change(t, id, 7, Date{std::numeric_limits<double>::infinity()}));
    EXPECT_OK(change(t, id, 6, -0.0));  // stored as 0, which has one key
    EXPECT_OK(database->commit());
    expectSoundForAll(path());
}

TEST_F(IndexKindsTest, UniqueTextRefusesASecondEqualOneAndNamesColumnAndIndex) {
    Table& t = makeTexts({{{{0, true}}, unique}});
    EXPECT_OK(database->begin());
    const RowId first = insert(t, texts(std::string("Rossi")));
    for (const char* equal : {"Rossi", "ROSSI", "rossi  "}) {
        const auto refused = t.insert(texts(std::string(equal)));
        EXPECT_FAILS(ErrorCode::DuplicateKey, refused);
        EXPECT_TRUE(refused.status().text().contains(QStringLiteral("\"uno\"")));
        EXPECT_TRUE(refused.status().text().contains(QStringLiteral("\"indice0\"")));
    }
    EXPECT_OK(t.insert(texts(std::string("Ròssi"))));
    EXPECT_OK(change(t, first, 0, std::string("ROSSI")));  // its own key
    const RowId null = insert(t, texts({}));
    insert(t, texts({}));
    EXPECT_FAILS(ErrorCode::DuplicateKey, change(t, null, 0, std::string("rossi")));
    EXPECT_OK(t.erase(first));
    EXPECT_OK(change(t, null, 0, std::string("rossi")));
    EXPECT_OK(database->commit());
    expectSoundForAll(path());
}

TEST_F(IndexKindsTest, UniquePairLooksAtBothColumns) {
    Table& t = makeTexts({{{{0, true}, {2, false}}, unique}});
    EXPECT_OK(database->begin());
    insert(t, texts(std::string("a"), {}, int64_t{1}));
    EXPECT_OK(t.insert(texts(std::string("a"), {}, int64_t{2})));
    EXPECT_FAILS(ErrorCode::DuplicateKey, t.insert(texts(std::string("A"), {}, int64_t{1})));
    EXPECT_OK(t.insert(texts(std::string("a"))));
    EXPECT_OK(t.insert(texts(std::string("a"))));  // Null is equal to nothing
    EXPECT_OK(database->commit());
    expectSound(path());  // the other checker looks for a Null in the first column only
}

TEST_F(IndexKindsTest, RequiredPairRefusesANullInEither) {
    Table& t = makeTexts({{{{0, true}, {2, true}}, required}});
    EXPECT_OK(database->begin());
    const auto refused = t.insert(texts(std::string("a")));
    EXPECT_FAILS(ErrorCode::ValueRequired, refused);
    EXPECT_TRUE(refused.status().text().contains(QStringLiteral("tre")));
    EXPECT_FAILS(ErrorCode::ValueRequired, t.insert(texts({}, {}, int64_t{1})));
    EXPECT_OK(t.insert(texts(std::string(), {}, int64_t{1})));
    EXPECT_OK(database->commit());
    expectSoundForAll(path());
}

TEST_F(IndexKindsTest, PairThatIgnoresNullsContainsRowsWithOneNull) {
    Table& t = makeTexts({{{{0, true}, {1, true}}, ignoresNulls}});
    EXPECT_OK(database->begin());
    const RowId none = insert(t, texts({}));
    const RowId half = insert(t, texts(std::string("a")));
    EXPECT_OK(change(t, none, 1, std::string("b")));
    EXPECT_OK(change(t, half, 0, Value()));
    EXPECT_OK(database->commit());
    expectSoundForAll(path());
    EXPECT_OK(database->begin());
    EXPECT_OK(t.erase(half));
    EXPECT_OK(t.erase(none));
    EXPECT_OK(database->commit());
    expectSoundForAll(path());
}

TEST_F(IndexKindsTest, DescendingTextIsKeptOnceTheFileShowsItsForm) {
    Table* t = &makeTexts({{{{0, false}}, plain}});
    const Status refused = t->writable();
    EXPECT_FAILS(ErrorCode::NotSupported, refused);
    EXPECT_TRUE(refused.text().contains(QStringLiteral("decrescenti")));
    database.reset();
    jettables::addRow(path(), "prova", texts(std::string("L'Aquila")));
    t = &reopen();
    EXPECT_OK(t->writable());
    EXPECT_OK(database->begin());
    for (int i = 0; i < 3000; ++i)
        insert(*t, texts("nome " + std::to_string(i * 7919 % 3000)));
    EXPECT_OK(database->commit());
    expectSoundForAll(path());
}

TEST_F(IndexKindsTest, LongTextKeysSplitLeavesAndNodes) {
    Table& t = makeTexts({{{{1, true}}, plain}, {{{1, true}, {0, true}}, plain}});
    std::vector<RowId> ids;
    ids.reserve(1500);
    EXPECT_OK(database->begin());
    for (int i = 0; i < 1500; ++i)
        ids.push_back(
            insert(t, texts(std::string(60, 'q'),
                            std::string(200, static_cast<char>('a' + i % 26)) + std::to_string(i))));
    EXPECT_OK(database->commit());
    expectSoundForAll(path());
    EXPECT_OK(database->begin());
    std::shuffle(ids.begin(), ids.end(), std::mt19937(3));
    for (RowId id : ids)
        EXPECT_OK(t.erase(id));
    EXPECT_OK(database->commit());
    expectSoundForAll(path());
}

TEST_F(IndexKindsTest, NamesOfOtherCountriesAndTypographicSignsAreKept) {
    Table& t = makeTexts({{{{0, true}}, plain}, {{{1, true}, {2, false}}, plain}});
    const char* names[] = {"Żukowski", "Dvořák", "L\u2019Aquila", "\u201cIl caffè\u201d", "10 €",
                           "Đorđević", "Ğül",    "a\u2013b",      "Łódź \u2026",          "Œuvre"};
    std::vector<RowId> ids;
    EXPECT_OK(database->begin());
    for (int i = 0; i < 300; ++i)
        ids.push_back(
            insert(t, texts(std::string(names[i % 10]) + std::to_string(i), std::string(names[i % 7]))));
    EXPECT_OK(database->commit());
    expectSoundForAll(path());
    EXPECT_OK(database->begin());
    for (size_t i = 0; i < ids.size(); i += 2)
        EXPECT_OK(t.erase(ids[i]));
    EXPECT_OK(database->commit());
    expectSoundForAll(path());
}

TEST_F(IndexKindsTest, TextInAnUnindexedColumnMayContainAnything) {
    Table& t = makeTexts({{{{0, true}}, plain}});
    EXPECT_OK(database->begin());
    EXPECT_OK(t.insert(texts(std::string("a"), std::string("10 € \u2013 \u4e2d\U0001F600"))));
    EXPECT_FAILS(ErrorCode::NotSupported, t.insert(texts(std::string("10 \u4e2d"))));
    EXPECT_OK(database->commit());
    expectSoundForAll(path());
}

}  // namespace index_kind_test
