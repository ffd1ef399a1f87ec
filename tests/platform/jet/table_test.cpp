// SPDX-License-Identifier: GPL-3.0-or-later
// Rows of a table: what is written is what is read, what cannot be stored is refused.
#include <limits>

#include "platform/jet/JetFixture.h"
#include "support/HotJournal.h"

namespace table_test {

using namespace jet;

class TableTest : public JetTest {
  protected:
    TableTest() : database(create(path())), recipients(table(*database)) {}
    ~TableTest() override {
        database.reset();
        expectSound(path());
    }

    // One change as a transaction.
    template <class Change>
    auto change(Change&& work) {
        EXPECT_OK(database->begin());
        auto outcome = work();
        EXPECT_OK(database->commit());
        return outcome;
    }
    Row stored(RowId id) { return rowsOf(recipients).at(id); }

    DatabasePtr database;
    Table& recipients;
};

TEST_F(TableTest, ColumnsAreInDisplayOrderWithTheirLengths) {
    const auto& columns = recipients.definition().columns;
    ASSERT_EQ(columns.size(), 22u);
    const char* names[] = {"id",     "id_grp", "rgs",    "nom",    "piva",   "ind",    "cap",    "loc",
                           "prov",   "tel",    "fax",    "email",  "campo1", "campo2", "campo3", "campo4",
                           "campo5", "campo6", "campo7", "campo8", "campo9", "sel"};
    for (size_t i = 0; i < 22; ++i)
        EXPECT_EQ(columns[i].name, names[i]);
    EXPECT_TRUE(columns[0].autoNumber);
    EXPECT_EQ(columns[2].length, 140);
    EXPECT_EQ(columns[8].length, 4);
    EXPECT_EQ(columns[21].type, Type::YesNo);
    EXPECT_EQ(recipients.definition().longPrimaryKey(), 0u);
    EXPECT_EQ(recipients.definition().find("EMAIL"), 11u);
}

TEST_F(TableTest, AutoNumberCountsFromOne) {
    for (int64_t expected = 1; expected <= 3; ++expected) {
        const RowId id = change([&] { return insert(recipients, recipient(recipients, "x")); });
        EXPECT_EQ(stored(id)[0], Value(expected));
    }
}

TEST_F(TableTest, AutoNumberIsKnownBeforeTheRowIsPosted) {
    const auto number = recipients.takeAutoNumber();
    ASSERT_TRUE(number.ok());
    Row row = recipient(recipients, "dopo");
    row[0] = int64_t{number.value()};
    const RowId id = change([&] { return insert(recipients, row); });
    EXPECT_EQ(stored(id)[0], Value(int64_t{1}));
    EXPECT_EQ(recipients.takeAutoNumber().value(), 2);
}

TEST_F(TableTest, UnusedAutoNumberIsSkipped) {
    EXPECT_EQ(recipients.takeAutoNumber().value(), 1);
    EXPECT_EQ(stored(change([&] { return insert(recipients, recipient(recipients, "x")); }))[0],
              Value(int64_t{2}));
}

TEST_F(TableTest, ExplicitNumberRaisesTheCounter) {
    Row row = recipient(recipients, "x");
    row[0] = int64_t{500};
    change([&] { return insert(recipients, row); });
    EXPECT_EQ(recipients.takeAutoNumber().value(), 501);
}

TEST_F(TableTest, CounterBelowTheGreatestKeyIsCaughtUp) {
    Row row = recipient(recipients, "x");
    row[0] = int64_t{90};
    change([&] { return insert(recipients, row); });
    database.reset();
    std::string bytes = bytesOf(path());
    bytes.replace(19 * 4096 + 20, 4, std::string("\x05\0\0\0", 4));
    writeBytes(path(), bytes);
    database = open(path());
    Table& again = table(*database);
    EXPECT_EQ(again.takeAutoNumber().value(), 91);
}

TEST_F(TableTest, ExhaustedCounterIsAnOverflow) {
    Row row = recipient(recipients, "x");
    row[0] = int64_t{std::numeric_limits<int32_t>::max()};
    change([&] { return insert(recipients, row); });
    EXPECT_FAILS(ErrorCode::Overflow, recipients.takeAutoNumber());
    EXPECT_OK(database->begin());
    EXPECT_FAILS(ErrorCode::Overflow, recipients.insert(recipient(recipients, "y")));
    database->rollback();
}

TEST_F(TableTest, NullAndEmptyTextStayDistinct) {
    Row row = recipient(recipients, "");
    row[3] = Value();
    const RowId id = change([&] { return insert(recipients, row); });
    EXPECT_EQ(stored(id)[2], Value(std::string()));
    EXPECT_EQ(stored(id)[3], Value());
    const auto view = recipients.row(id);
    ASSERT_TRUE(view.ok() && view.value());
    EXPECT_FALSE(view.value()->isNull(2));
    EXPECT_TRUE(view.value()->isNull(3));
    std::string text;
    EXPECT_TRUE(view.value()->text(2, text));
    EXPECT_FALSE(view.value()->text(3, text));
}

TEST_F(TableTest, TextsOfEveryKindRoundTrip) {
    Row row = recipient(recipients, "Caffè “Niccolò” & figli – 100 €");
    row[3] = std::string("L'Aquila 😀");
    row[4] = std::string("ĀĀ Ā");
    row[5] = std::string(255, 'x');
    row[12] = std::string("a\0b", 3);
    const RowId id = change([&] { return insert(recipients, row); });
    const Row now = stored(id);
    for (size_t i = 1; i < row.size(); ++i)
        EXPECT_EQ(now[i], row[i]) << i;
}

TEST_F(TableTest, YesNoCannotBeNull) {
    Row row = recipient(recipients, "x");
    row.back() = Value();
    const RowId id = change([&] { return insert(recipients, row); });
    EXPECT_EQ(stored(id).back(), Value(false));
    const auto view = recipients.row(id);
    EXPECT_FALSE(view.value()->isNull(21));
}

TEST_F(TableTest, YesNoIsClearedInPlaceByOneBit) {
    const RowId id = change([&] { return insert(recipients, recipient(recipients, "x")); });
    database.reset();
    const std::string before = bytesOf(path());
    database = open(path());
    Table& again = table(*database);
    const std::pair<size_t, Value> clear{21, false};
    EXPECT_OK(database->begin());
    EXPECT_OK(again.update(id, std::span(&clear, 1)));
    EXPECT_OK(database->commit());
    const std::string after = bytesOf(path());
    ASSERT_EQ(before.size(), after.size());
    int bits = 0;
    for (size_t i = 0; i < before.size(); ++i)
        bits += std::popcount(static_cast<uint8_t>(before[i] ^ after[i]));
    EXPECT_EQ(bits, 1);
}

TEST_F(TableTest, AYesNoColumnOfAllRowsIsSetInPlaceAlsoWhereRowsHaveMoved) {
    constexpr size_t count = 500;
    const size_t yesNo = recipients.definition().columns.size() - 1;
    std::vector<RowId> ids = change([&] {
        std::vector<RowId> made;
        for (size_t i = 0; i < count; ++i) {
            Row row = recipient(recipients, "riga " + std::to_string(i));
            row[yesNo] = i % 3 == 0;
            made.push_back(insert(recipients, row));
        }
        return made;
    });
    // Long texts move some of them to other pages.
    change([&] {
        for (size_t i = 0; i < count; i += 20)
            for (size_t column : {2u, 3u, 5u}) {
                const std::pair<size_t, Value> longer{column, std::string(50, 'm')};
                EXPECT_OK(recipients.update(ids[i], {&longer, 1}));
            }
        return 0;
    });
    Rows expected = rowsOf(recipients);
    for (const bool value : {true, false, true}) {
        const auto rows = change([&] { return recipients.setYesNo(yesNo, value, [] { return true; }); });
        ASSERT_TRUE(rows.ok());
        EXPECT_EQ(rows.value(), static_cast<int64_t>(count));
        for (auto& [id, row] : expected)
            row[yesNo] = value;
        EXPECT_EQ(rowsOf(recipients), expected);
    }
}

TEST_F(TableTest, AYesNoColumnIsNotSetForAllWhereThatIsNoMatterOfABit) {
    change([&] { return insert(recipients, recipient(recipients, "x")); });
    const auto whole = change([&] { return recipients.setYesNo(1, true, [] { return true; }); });
    ASSERT_TRUE(whole.ok());
    EXPECT_EQ(whole.value(), std::nullopt);
    EXPECT_EQ(recipients.setYesNo(21, true, [] { return true; }).status().code(), ErrorCode::NotSupported);
}

TEST_F(TableTest, SettingAllRowsThatIsGivenUpChangesNone) {
    change([&] {
        for (int i = 0; i < 50; ++i)
            insert(recipients, recipient(recipients, "x"));
        return 0;
    });
    const Rows before = rowsOf(recipients);
    EXPECT_OK(database->begin());
    int asked = 0;
    const auto rows = recipients.setYesNo(21, false, [&] { return ++asked < 30; });
    EXPECT_EQ(rows.status().code(), ErrorCode::Timeout);
    EXPECT_EQ(database->commit().code(), ErrorCode::Timeout);
    EXPECT_EQ(rowsOf(recipients), before);
}

TEST_F(TableTest, TextTooLongNamesTheColumnAndChangesNothing) {
    Row row = recipient(recipients, "x");
    row[8] = std::string("ROM");
    EXPECT_OK(database->begin());
    const auto outcome = recipients.insert(row);
    EXPECT_FAILS(ErrorCode::FieldTooSmall, outcome);
    EXPECT_TRUE(outcome.status().text().contains(QStringLiteral("prov")));
    row[8] = std::string("RM");
    EXPECT_OK(recipients.insert(row));  // the transaction is intact
    EXPECT_OK(database->commit());
    EXPECT_EQ(rowsOf(recipients).size(), 1u);
}

TEST_F(TableTest, RecordTooLargeIsRefused) {
    Row row = recipient(recipients, "x");
    for (size_t i : {5, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20}) {
        std::string wide;
        for (int k = 0; k < 255; ++k)
            wide += "€";
        row[i] = wide;
    }
    EXPECT_OK(database->begin());
    EXPECT_FAILS(ErrorCode::RecordTooLarge, recipients.insert(row));
    const RowId id = insert(recipients, recipient(recipients, "y"));
    std::vector<std::pair<size_t, Value>> changes;
    for (size_t i = 1; i < row.size(); ++i)
        changes.emplace_back(i, row[i]);
    EXPECT_FAILS(ErrorCode::RecordTooLarge, recipients.update(id, changes));
    EXPECT_OK(database->commit());
    EXPECT_EQ(stored(id)[2], Value(std::string("y")));
}

TEST_F(TableTest, DuplicateKeyIsRefused) {
    Row row = recipient(recipients, "x");
    row[0] = int64_t{7};
    EXPECT_OK(database->begin());
    insert(recipients, row);
    EXPECT_FAILS(ErrorCode::DuplicateKey, recipients.insert(row));
    EXPECT_OK(database->commit());
    EXPECT_EQ(rowsOf(recipients).size(), 1u);
}

TEST_F(TableTest, WrongTypeAndWrongNumberOfValuesAreRefused) {
    EXPECT_OK(database->begin());
    Row row = recipient(recipients, "x");
    row[1] = std::string("gruppo");
    EXPECT_FAILS(ErrorCode::TypeMismatch, recipients.insert(row));
    EXPECT_FAILS(ErrorCode::TypeMismatch, recipients.insert(Row(3)));
    EXPECT_OK(database->commit());
}

TEST_F(TableTest, AutoNumberCannotBeChanged) {
    const RowId id = change([&] { return insert(recipients, recipient(recipients, "x")); });
    EXPECT_OK(database->begin());
    const std::pair<size_t, Value> other{0, int64_t{9}};
    EXPECT_FAILS(ErrorCode::NotSupported, recipients.update(id, std::span(&other, 1)));
    const std::pair<size_t, Value> same{0, int64_t{1}};
    EXPECT_OK(recipients.update(id, std::span(&same, 1)));
    EXPECT_OK(database->commit());
}

TEST_F(TableTest, RowKeepsItsIdentityWhenItMoves) {
    std::vector<RowId> ids;
    change([&] {
        for (int i = 0; i < 60; ++i)
            ids.push_back(insert(recipients, recipient(recipients, "r" + std::to_string(i))));
        return 0;
    });
    change([&] {
        for (size_t i = 0; i < ids.size(); ++i) {
            const std::pair<size_t, Value> grow{12, std::string(200, static_cast<char>('a' + i % 26))};
            EXPECT_OK(recipients.update(ids[i], std::span(&grow, 1)));
        }
        return 0;
    });
    expectSound(path());
    change([&] {  // again, so that moved rows move once more
        for (const RowId& id : ids) {
            const std::vector<std::pair<size_t, Value>> grow{{13, std::string(255, 'z')},
                                                             {14, std::string(255, 'y')}};
            EXPECT_OK(recipients.update(id, grow));
        }
        return 0;
    });
    const Rows rows = rowsOf(recipients);
    ASSERT_EQ(rows.size(), ids.size());
    for (size_t i = 0; i < ids.size(); ++i) {
        EXPECT_EQ(rows.at(ids[i])[2], Value("r" + std::to_string(i)));
        EXPECT_EQ(rows.at(ids[i])[12], Value(std::string(200, static_cast<char>('a' + i % 26))));
        EXPECT_EQ(recipients.findByPrimaryKey(static_cast<int32_t>(i) + 1).value(), ids[i]);
    }
    expectSound(path());
    change([&] {
        for (const RowId& id : ids)
            EXPECT_OK(recipients.erase(id));
        return 0;
    });
    EXPECT_TRUE(rowsOf(recipients).empty());
}

TEST_F(TableTest, DeletedRowIsGoneEverywhere) {
    const RowId id = change([&] { return insert(recipients, recipient(recipients, "x")); });
    EXPECT_OK(change([&] { return recipients.erase(id); }));
    EXPECT_FALSE(recipients.row(id).value().has_value());
    EXPECT_FALSE(recipients.findByPrimaryKey(1).value().has_value());
    EXPECT_OK(database->begin());
    EXPECT_FAILS(ErrorCode::NoCurrentRecord, recipients.erase(id));
    const std::pair<size_t, Value> name{2, std::string("y")};
    EXPECT_FAILS(ErrorCode::NoCurrentRecord, recipients.update(id, std::span(&name, 1)));
    EXPECT_OK(database->commit());
}

TEST_F(TableTest, RowIdsThatNameNoRowAreNoRow) {
    const RowId id = change([&] { return insert(recipients, recipient(recipients, "x")); });
    EXPECT_FALSE(recipients.row({id.page, 200}).value().has_value());
    EXPECT_FALSE(recipients.row({2, 0}).value().has_value());
    EXPECT_FALSE(recipients.row({0xFFFFFF, 0}).value().has_value());
    EXPECT_FAILS(ErrorCode::NoCurrentRecord, recipients.value({id.page, 200}, 2));
}

TEST_F(TableTest, EmptiedPagesTakeNewRows) {
    for (int round = 0; round < 6; ++round) {
        std::vector<RowId> ids;
        change([&] {
            for (int i = 0; i < 300; ++i)
                ids.push_back(insert(recipients, recipient(recipients, std::string(60, 'x'))));
            return 0;
        });
        change([&] {
            for (const RowId& id : ids)
                EXPECT_OK(recipients.erase(id));
            return 0;
        });
    }
    // 300 rows need 9 pages; slots of deleted rows are not used again, so a page is good for 255 rows.
    EXPECT_LT(bytesOf(path()).size() / 4096, 23u + 16u);
}

TEST_F(TableTest, WritesOutsideATransactionAreRefused) {
    EXPECT_FAILS(ErrorCode::NotSupported, recipients.insert(recipient(recipients, "x")));
    EXPECT_FAILS(ErrorCode::NotSupported, recipients.erase({}));
    EXPECT_FAILS(ErrorCode::NotSupported, recipients.update({}, {}));
    EXPECT_FAILS(ErrorCode::NotSupported, database->commit());
}

TEST_F(TableTest, RolledBackTransactionLeavesNoTrace) {
    change([&] { return insert(recipients, recipient(recipients, "x")); });
    const std::string before = bytesOf(path());
    EXPECT_OK(database->begin());
    for (int i = 0; i < 500; ++i)
        insert(recipients, recipient(recipients, "y"));
    EXPECT_EQ(rowsOf(recipients).size(), 501u);
    database->rollback();
    EXPECT_EQ(rowsOf(recipients).size(), 1u);
    EXPECT_EQ(bytesOf(path()), before);
    EXPECT_FALSE(hasHotJournal(path()));
    EXPECT_EQ(stored(change([&] { return insert(recipients, recipient(recipients, "z")); }))[0],
              Value(int64_t{2}));
}

TEST_F(TableTest, LargeTransactionWritesAheadAndCanStillBeUndone) {
    database.reset();
    const std::string before = bytesOf(path());
    database = open(path(), {.cachedPages = 8});
    Table& again = table(*database);
    EXPECT_OK(database->begin());
    for (int i = 0; i < 3000; ++i)
        insert(again, recipient(again, std::string(50, 'x')));
    EXPECT_GT(bytesOf(path()).size(), before.size()) << "nothing was written ahead";
    database->rollback();
    EXPECT_EQ(bytesOf(path()), before);
    EXPECT_OK(database->begin());
    for (int i = 0; i < 3000; ++i)
        insert(again, recipient(again, std::string(50, 'x')));
    EXPECT_OK(database->commit());
    EXPECT_EQ(rowsOf(again).size(), 3000u);
}

TEST_F(TableTest, SystemTablesAreRefused) {
    EXPECT_FAILS(ErrorCode::NotSupported, table(*database, "MSysObjects").writable());
    const size_t column = 0;
    EXPECT_FAILS(ErrorCode::NotSupported, table(*database, "MSysACEs").updatable(std::span(&column, 1)));
}

}  // namespace table_test
