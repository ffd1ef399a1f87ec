// SPDX-License-Identifier: GPL-3.0-or-later
// Auto-numbers of files whose counter is below the greatest number in use, as in some real ones.
#include <limits>

#include "platform/jet/Format.h"
#include "platform/jet/JetFixture.h"
#include "support/JetTables.h"

namespace auto_number_test {

using namespace jet;

class AutoNumberTest : public JetTest {
  protected:
    static constexpr int64_t greatest = 90;

    // A table whose numbers have one of the indexes, or none, with rows 1 to 5 and `greatest`.
    void makeTable(const std::vector<jettables::Index>& indexes) {
        create(path()).reset();
        jettables::addTable(path(), "prova", {{"testo", Type::Text, 20}, {"numero", Type::Long, 0, true}},
                            indexes);
        for (const int64_t number : {int64_t{3}, greatest, int64_t{5}})
            jettables::addRow(path(), "prova", {std::string("prima"), number});
        jettables::setCounter(path(), "prova", 4);
    }
    static int64_t insertOne(Database& database) {
        Table& prova = table(database, "prova");
        EXPECT_OK(database.begin());
        const RowId id = insert(prova, {std::string("nuova"), {}});
        EXPECT_OK(database.commit());
        return std::get<int64_t>(prova.value(id, 1).value());
    }
    void expectTheNextNumbers() {
        for (const int64_t first : {greatest + 1, greatest + 4}) {
            const DatabasePtr database = open(path());
            for (int64_t i = 0; i < 3; ++i)
                EXPECT_EQ(insertOne(*database), first + i);
        }
        expectSound(path());
    }
};

TEST_F(AutoNumberTest, NumbersFollowTheGreatestOfAUniqueIndex) {
    makeTable({{{{1, true}}, 0x81}});
    expectTheNextNumbers();
}

TEST_F(AutoNumberTest, NumbersFollowTheGreatestOfADescendingIndex) {
    makeTable({{{{1, false}}, 0x81}});
    expectTheNextNumbers();
}

TEST_F(AutoNumberTest, NumbersFollowTheGreatestOfAnIndexThatContinues) {
    makeTable({{{{1, true}, {0, true}}, 0x81}});
    expectTheNextNumbers();
}

TEST_F(AutoNumberTest, NumbersFollowTheGreatestRowWhereNoIndexBeginsWithThem) {
    makeTable({{{{0, true}, {1, true}}, 0x81}});
    expectTheNextNumbers();
}

TEST_F(AutoNumberTest, RowsOfOneTransactionCountOn) {
    makeTable({{{{1, true}}, 0x81}});
    const DatabasePtr database = open(path());
    Table& prova = table(*database, "prova");
    EXPECT_OK(database->begin());
    for (int i = 0; i < 50; ++i)
        insert(prova, {std::string("nuova"), {}});
    EXPECT_OK(database->commit());
    EXPECT_EQ(insertOne(*database), greatest + 51);
}

TEST_F(AutoNumberTest, NumbersTakenBeforeTheirRowCountOn) {
    makeTable({{{{1, true}}, 0x81}});
    const DatabasePtr database = open(path());
    Table& prova = table(*database, "prova");
    EXPECT_EQ(prova.takeAutoNumber().value(), greatest + 1);
    EXPECT_EQ(prova.takeAutoNumber().value(), greatest + 2);
    EXPECT_EQ(insertOne(*database), greatest + 3);
}

TEST_F(AutoNumberTest, TwoThatWriteInTurnNeverUseANumberTwice) {
    makeTable({{{{1, true}}, 0x81}});
    const DatabasePtr one = open(path());
    const DatabasePtr other = open(path());
    for (int64_t i = 1; i < 20; i += 2) {
        EXPECT_EQ(insertOne(*one), greatest + i);
        ASSERT_TRUE(other->refresh().ok());
        EXPECT_EQ(insertOne(*other), greatest + i + 1);
        ASSERT_TRUE(one->refresh().ok());
    }
}

TEST_F(AutoNumberTest, AnInsertThatWasUndoneLosesNoNumberInUse) {
    makeTable({{{{1, true}}, 0x81}});
    const DatabasePtr database = open(path());
    EXPECT_OK(database->begin());
    insert(table(*database, "prova"), {std::string("nuova"), {}});
    database->rollback();
    EXPECT_EQ(insertOne(*database), greatest + 1);
}

TEST_F(AutoNumberTest, NumberOfTheUsersOwnBetweenCounterAndGreatestChangesNothing) {
    makeTable({{{{1, true}}, 0x81}});
    const DatabasePtr database = open(path());
    EXPECT_OK(database->begin());
    insert(table(*database, "prova"), {std::string("sua"), int64_t{50}});
    EXPECT_OK(database->commit());
    EXPECT_EQ(insertOne(*database), greatest + 1);
}

TEST_F(AutoNumberTest, GreatestNumberThereIsEndsTheCounting) {
    makeTable({{{{1, true}}, 0x81}});
    jettables::addRow(path(), "prova", {std::string("ultima"), int64_t{std::numeric_limits<int32_t>::max()}});
    const DatabasePtr database = open(path());
    Table& prova = table(*database, "prova");
    EXPECT_OK(database->begin());
    for (int i = 0; i < 2; ++i)
        EXPECT_FAILS(ErrorCode::Overflow, prova.insert(Row{std::string("nuova"), {}}));
    EXPECT_OK(database->commit());
    EXPECT_FAILS(ErrorCode::Overflow, prova.takeAutoNumber());
}

TEST_F(AutoNumberTest, RowIsRefusedWhereAnotherFieldHasTheNumbersPlace) {
    create(path()).reset();
    jettables::addTable(path(), "prova", {{"numero", Type::Long, 0, true}, {"testo", Type::Text, 20}}, {});
    std::string bytes = bytesOf(path());
    const size_t at = table(*open(path()), "prova").definition().page * pageSize;
    bytes[at + definition::indexCounts + 15] = 0x06;  // not fixed: first of the variable ones
    writeBytes(path(), bytes);
    const DatabasePtr database = open(path());
    EXPECT_OK(database->begin());
    EXPECT_FAILS(ErrorCode::DamagedDatabase,
                 table(*database, "prova").insert(Row{int64_t{5}, std::string("a")}));
    EXPECT_OK(database->commit());
    EXPECT_EQ(bytesOf(path()), bytes);
}

}  // namespace auto_number_test
