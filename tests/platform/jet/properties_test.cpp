// SPDX-License-Identifier: GPL-3.0-or-later
// Required and AllowZeroLength, as the catalogue has them.
#include "platform/jet/ColumnProperties.h"
#include "platform/jet/DefinitionWriter.h"
#include "platform/jet/JetFixture.h"
#include "support/JetTables.h"

namespace properties_test {

using namespace jet;

class PropertiesTest : public JetTest {
  protected:
    // A property of a column: which name, and its yes or no.
    using Property = std::pair<uint16_t, bool>;
    static constexpr uint16_t required = 0;
    static constexpr uint16_t zeroLength = 1;

    static Bytes listStart() {
        Writer w;
        w.bytes = {'M', 'R', '2', 0};
        Writer names;
        names.name("Required");
        names.name("AllowZeroLength");
        w.u32(static_cast<uint32_t>(6 + names.bytes.size()));
        w.u16(0x80);
        w.raw(names.bytes);
        return w.bytes;
    }
    static void addColumn(Bytes& list, const std::string& column, const std::vector<Property>& properties) {
        Writer chunk;
        chunk.u32(static_cast<uint32_t>(6 + 2 * column.size()));
        chunk.name(column);
        for (const auto& [name, yes] : properties) {
            chunk.u16(9);
            chunk.u8(1);
            chunk.u8(1);
            chunk.u16(name);
            chunk.u16(1);
            chunk.u8(yes);
        }
        Writer w;
        w.bytes = list;
        w.u32(static_cast<uint32_t>(6 + chunk.bytes.size()));
        w.u16(1);
        w.raw(chunk.bytes);
        list = w.bytes;
    }
    static TableDefinition definition() {
        TableDefinition table;
        for (const char* name : {"uno", "due"}) {
            Column column;
            column.name = name;
            column.type = Type::Text;
            table.columns.push_back(column);
        }
        return table;
    }
    Table& makeTable(const Bytes& list) {
        create(path()).reset();
        jettables::addTable(path(), "prova", {{"uno", Type::Text, 20}, {"due", Type::Long}}, {});
        jettables::setProperties(path(), "prova", list);
        database = open(path());
        return table(*database, "prova");
    }

    DatabasePtr database;
};

TEST_F(PropertiesTest, RequiredColumnRefusesNull) {
    Bytes list = listStart();
    addColumn(list, "uno", {{required, true}});
    addColumn(list, "due", {{required, true}});
    Table& t = makeTable(list);
    EXPECT_OK(database->begin());
    const auto refused = t.insert(Row{std::string("a"), {}});
    EXPECT_FAILS(ErrorCode::ValueRequired, refused);
    EXPECT_TRUE(refused.status().text().contains(QStringLiteral("due")));
    EXPECT_FAILS(ErrorCode::ValueRequired, t.insert(Row{{}, int64_t{1}}));
    const RowId id = insert(t, {std::string(), int64_t{1}});
    const std::pair<size_t, Value> null{1, Value()};
    EXPECT_FAILS(ErrorCode::ValueRequired, t.update(id, std::span(&null, 1)));
    EXPECT_OK(database->commit());
    expectSoundForAll(path());
}

TEST_F(PropertiesTest, ColumnWithoutZeroLengthRefusesTheEmptyTextOnly) {
    Bytes list = listStart();
    addColumn(list, "uno", {{zeroLength, false}, {required, false}});
    Table& t = makeTable(list);
    EXPECT_OK(database->begin());
    const auto refused = t.insert(Row{std::string(), {}});
    EXPECT_FAILS(ErrorCode::ValueRequired, refused);
    EXPECT_TRUE(refused.status().text().contains(QStringLiteral("testo vuoto")));
    const RowId id = insert(t, {{}, {}});
    const std::pair<size_t, Value> blank{0, std::string(" ")};
    EXPECT_OK(t.update(id, std::span(&blank, 1)));
    const std::pair<size_t, Value> empty{0, std::string()};
    EXPECT_FAILS(ErrorCode::ValueRequired, t.update(id, std::span(&empty, 1)));
    EXPECT_OK(database->commit());
}

TEST_F(PropertiesTest, MemosKeepTheirProperties) {
    create(path()).reset();
    jettables::addTable(path(), "note", {{"uno", Type::Memo}, {"due", Type::Memo}}, {});
    Bytes list = listStart();
    addColumn(list, "uno", {{zeroLength, false}, {required, false}});
    addColumn(list, "due", {{zeroLength, true}, {required, true}});
    jettables::setProperties(path(), "note", list);
    database = open(path());
    Table& t = table(*database, "note");
    EXPECT_OK(database->begin());
    EXPECT_FAILS(ErrorCode::ValueRequired, t.insert(Row{std::string(), std::string("x")}));
    EXPECT_FAILS(ErrorCode::ValueRequired, t.insert(Row{std::string("x"), {}}));
    const RowId id = insert(t, {std::string(3000, 'x'), std::string()});
    const std::pair<size_t, Value> empty{0, std::string()};
    EXPECT_FAILS(ErrorCode::ValueRequired, t.update(id, std::span(&empty, 1)));
    const std::pair<size_t, Value> null{1, Value()};
    EXPECT_FAILS(ErrorCode::ValueRequired, t.update(id, std::span(&null, 1)));
    EXPECT_OK(database->commit());
    EXPECT_EQ(t.value(id, 0).value(), Value(std::string(3000, 'x')));
}

TEST_F(PropertiesTest, TableWithoutListAcceptsNullAndEmptyText) {
    Table& t = makeTable({});
    EXPECT_OK(database->begin());
    EXPECT_OK(t.insert(Row{std::string(), {}}));
    EXPECT_OK(t.insert(Row{{}, {}}));
    EXPECT_OK(database->commit());
}

TEST_F(PropertiesTest, ColumnsOfTheEmptyDatabaseAllowEmptyText) {
    database = create(path());
    for (const Column& column : table(*database).definition().columns) {
        EXPECT_TRUE(column.allowZeroLength);
        EXPECT_FALSE(column.required);
    }
}

TEST_F(PropertiesTest, CutAndForeignListsAreReadAsFarAsTheyAreValid) {
    Bytes list = listStart();
    addColumn(list, "uno", {{required, true}});
    addColumn(list, "due", {{required, true}});
    for (size_t length = 0; length <= list.size(); ++length) {
        TableDefinition table = definition();
        applyProperties(std::span(list).first(length), table);
        EXPECT_EQ(table.columns[1].required, length == list.size()) << length;
    }
    for (size_t at = 0; at < list.size(); ++at)
        for (const uint8_t byte : {0x00, 0x01, 0x7F, 0xFF}) {
            Bytes changed = list;
            changed[at] = byte;
            TableDefinition table = definition();
            applyProperties(changed, table);  // whatever it finds
        }
    TableDefinition table = definition();
    list[0] = 'K';
    applyProperties(list, table);
    EXPECT_FALSE(table.columns[0].required);
}

}  // namespace properties_test
