// SPDX-License-Identifier: GPL-3.0-or-later
// New databases from descriptions of their tables.
#include "platform/jet/EmptyDatabase.h"
#include "platform/jet/Failure.h"
#include "platform/jet/JetFixture.h"

namespace new_database_test {

using namespace jet;

namespace {

NewTable cities() {
    return {"citta",
            {{.name = "id", .autoNumber = true},
             {.name = "nome", .type = Type::Text, .characters = 40, .emptyAllowed = true},
             {.name = "sigla", .type = Type::Text, .characters = 2},
             {.name = "mare", .type = Type::YesNo},
             {.name = "abitanti"}}};
}

class NewDatabaseTest : public JetTest {
  protected:
    void expectRefused(const NewTable& table) {
        EXPECT_FAILS(ErrorCode::Internal, createDatabase(path(), {cities(), table}));
        EXPECT_FALSE(std::filesystem::exists(path()));
    }
    static NewTable with(const NewColumn& column) {
        NewTable table = cities();
        table.columns.push_back(column);
        return table;
    }
};

}  // namespace

TEST_F(NewDatabaseTest, TableIsWhatTheDescriptionSays) {
    ASSERT_TRUE(createDatabase(path(), {cities()}).ok());
    const DatabasePtr database = open(path());
    const TableDefinition& table = this->table(*database, "citta").definition();
    ASSERT_EQ(table.columns.size(), 5u);
    EXPECT_TRUE(table.columns[0].autoNumber);
    EXPECT_EQ(table.longPrimaryKey(), 0u);
    EXPECT_EQ(table.columns[1].length, 80);
    EXPECT_TRUE(table.columns[1].allowZeroLength);
    EXPECT_EQ(table.columns[2].length, 4);
    EXPECT_EQ(table.columns[3].type, Type::YesNo);
    EXPECT_EQ(table.columns[4].type, Type::Long);
    EXPECT_FALSE(table.columns[4].autoNumber);
    expectSoundForAll(path());
}

TEST_F(NewDatabaseTest, TableTakesRowsAndKeepsThem) {
    ASSERT_TRUE(createDatabase(path(), {cities(), {"vuota", {{.name = "id"}}}}).ok());
    {
        const DatabasePtr database = open(path());
        Table& rows = table(*database, "citta");
        EXPECT_OK(database->begin());
        insert(rows, {{}, std::string("Ancona"), std::string("AN"), true, int64_t{99000}});
        insert(rows, {{}, std::string("Perugia"), std::string("PG"), false, int64_t{162000}});
        EXPECT_OK(database->commit());
    }
    const DatabasePtr database = open(path());
    const Rows rows = rowsOf(table(*database, "citta"));
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows.begin()->second[0], Value(int64_t{1}));
    EXPECT_EQ(rows.begin()->second[1], Value(std::string("Ancona")));
    EXPECT_EQ(rows.rbegin()->second[4], Value(int64_t{162000}));
    EXPECT_TRUE(rowsOf(table(*database, "vuota")).empty());
    expectSoundForAll(path());
}

TEST_F(NewDatabaseTest, WithoutTextsThatMayBeEmptyThereAreNoProperties) {
    NewTable table = cities();
    table.columns[1].emptyAllowed = false;
    EXPECT_EQ(emptyDatabase({table}).size() + 1, emptyDatabase({cities()}).size());
    ASSERT_TRUE(createDatabase(path(), {table}).ok());
    open(path());
    expectSound(path());
}

TEST_F(NewDatabaseTest, DescriptionThatCannotBeWrittenIsRefusedAndLeavesNoFile) {
    expectRefused({"", {{.name = "id"}}});
    expectRefused({"citt\u00e0", {{.name = "id"}}});
    expectRefused({"due parole", {{.name = "id"}}});
    expectRefused({"CITTA", {{.name = "id"}}});
    expectRefused({"MSysObjects", {{.name = "id"}}});
    expectRefused({"senza", {}});
    expectRefused({"testo", {{.name = "id", .type = Type::Text, .characters = 9}}});
    expectRefused(with({.name = ""}));
    expectRefused(with({.name = "Nome"}));
    expectRefused(with({.name = "x", .autoNumber = true}));
    expectRefused(with({.name = "x", .type = Type::Text}));
    expectRefused(with({.name = "x", .type = Type::Text, .characters = 256}));
    expectRefused(with({.name = "x", .type = Type::Memo}));
    expectRefused(with({.name = "x", .type = Type::YesNo, .autoNumber = true}));
    expectRefused(with({.name = "x", .emptyAllowed = true}));
}

TEST_F(NewDatabaseTest, MoreThanFindsRoomIsRefusedAndLeavesNoFile) {
    NewTable wide = cities();
    for (int i = 0; i < 120; ++i)
        wide.columns.push_back({.name = "colonna" + std::to_string(i)});
    expectRefused(wide);
    std::vector<NewTable> many;
    for (int i = 0; i < 60; ++i)
        many.push_back({"tabella" + std::to_string(i), {{.name = "id"}}});
    EXPECT_FAILS(ErrorCode::Internal, createDatabase(path(), many));
    many.resize(24);
    EXPECT_OK(createDatabase(path(), many));
    expectSound(path());
}

}  // namespace new_database_test
