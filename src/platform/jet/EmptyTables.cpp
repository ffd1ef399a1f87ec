// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/EmptyTables.h"

#include <algorithm>

namespace jet::empty {

namespace {

constexpr uint32_t systemMap(uint32_t row) {
    return pointerTo(systemMapsPage, row);
}

constexpr uint8_t fixedFlags = 0x13;
constexpr uint8_t variableFlags = 0x12;
constexpr uint8_t ownerFlags = 0x32;

}  // namespace

TablePlan objectsPlan(uint32_t rows) {
    const auto text = [](const char* name, Type type, uint16_t number, uint16_t index, uint16_t length) {
        return ColumnPlan{name, type, number, index, variableFlags, 0, length};
    };
    return {catalogPage,
            'S',
            rows,
            11,
            systemMap(0),
            {text("Connect", Type::Memo, 9, 3, 0),
             text("Database", Type::Memo, 8, 2, 0),
             {"DateCreate", Type::Date, 4, 1, fixedFlags, 10, 8},
             {"DateUpdate", Type::Date, 5, 1, fixedFlags, 18, 8},
             {"Flags", Type::Long, 7, 2, fixedFlags, 26, 4},
             text("ForeignName", Type::Text, 10, 4, 510),
             {"Id", Type::Long, 0, 0, fixedFlags, 0, 4},
             text("Lv", Type::Ole, 13, 7, 0),
             text("LvExtra", Type::Ole, 16, 10, 0),
             text("LvModule", Type::Ole, 15, 9, 0),
             text("LvProp", Type::Ole, 14, 8, 0),
             text("Name", Type::Text, 2, 0, 510),
             {"Owner", Type::Binary, 6, 1, ownerFlags, 0, 510},
             {"ParentId", Type::Long, 1, 0, fixedFlags, 4, 4},
             text("RmtInfoLong", Type::Ole, 12, 6, 0),
             text("RmtInfoShort", Type::Binary, 11, 5, 510),
             {"Type", Type::Integer, 3, 1, fixedFlags, 8, 2}},
            {{{1, 2}, 0x81, systemMap(16), objectsByNameRoot, rows},
             {{0}, 0x81, systemMap(17), objectsByIdRoot, rows}},
            {{"Id", 1, true}, {"ParentIdName", 0, false}},
            {{9, systemMap(4)},
             {8, systemMap(2)},
             {13, systemMap(8)},
             {16, systemMap(14)},
             {15, systemMap(12)},
             {14, systemMap(10)},
             {12, systemMap(6)}}};
}

TablePlan acesPlan(uint32_t rows, uint32_t objects) {
    return {acesPage,
            'S',
            rows,
            1,
            systemMap(18),
            {{"ACM", Type::Long, 2, 1, fixedFlags, 4, 4},
             {"FInheritable", Type::YesNo, 3, 1, fixedFlags, 0, 1},
             {"ObjectId", Type::Long, 0, 0, fixedFlags, 0, 4},
             {"SID", Type::Binary, 1, 0, ownerFlags, 0, 510}},
            {{{0}, 0x88, systemMap(20), acesRoot, objects}},
            {{"ObjectId", 0, false}}};
}

TablePlan queriesPlan() {
    return {queriesPage,
            'S',
            0,
            4,
            systemMap(21),
            {{"Attribute", Type::Byte, 1, 0, fixedFlags, 4, 1},
             {"Expression", Type::Memo, 5, 3, variableFlags, 0, 0},
             {"Flag", Type::Integer, 6, 4, fixedFlags, 5, 2},
             {"LvExtra", Type::Long, 7, 4, fixedFlags, 7, 4},
             {"Name1", Type::Text, 3, 1, variableFlags, 0, 510},
             {"Name2", Type::Text, 4, 2, variableFlags, 0, 510},
             {"ObjectId", Type::Long, 0, 0, fixedFlags, 0, 4},
             {"Order", Type::Binary, 2, 0, variableFlags, 0, 510}},
            {{{0, 1, 2}, 0x81, systemMap(25), 10}},
            {{"ObjectIdAttribute", 0, true}},
            {{5, systemMap(23)}}};
}

TablePlan relationshipsPlan() {
    return {relationshipsPage,
            'S',
            0,
            5,
            systemMap(26),
            {{"ccolumn", Type::Long, 2, 1, fixedFlags, 4, 4},
             {"grbit", Type::Long, 1, 1, fixedFlags, 0, 4},
             {"icolumn", Type::Long, 3, 1, fixedFlags, 8, 4},
             {"szColumn", Type::Text, 5, 2, variableFlags, 0, 510},
             {"szObject", Type::Text, 4, 1, variableFlags, 0, 510},
             {"szReferencedColumn", Type::Text, 7, 4, variableFlags, 0, 510},
             {"szReferencedObject", Type::Text, 6, 3, variableFlags, 0, 510},
             {"szRelationship", Type::Text, 0, 0, variableFlags, 0, 510}},
            {{{0}, 0x82, systemMap(28), 11}, {{4}, 0x82, systemMap(29), 12}, {{6}, 0x82, systemMap(30), 13}},
            {{"szObject", 1, false}, {"szReferencedObject", 2, false}, {"szRelationship", 0, false}}};
}

TablePlan userPlan(uint32_t page, const std::vector<NewColumn>& columns) {
    TablePlan plan{page, 'N', 0, 0, pointerTo(page + 1, 0), {}, {}, {{"PrimaryKey", 0, true}}};
    uint16_t fixedOffset = 0;
    for (const NewColumn& column : columns) {
        const uint16_t number = static_cast<uint16_t>(plan.columns.size());
        if (column.type == Type::Text) {
            plan.columns.push_back({column.name, Type::Text, number, plan.variables, 0x02, 0,
                                    static_cast<uint16_t>(2 * column.characters), 1, number});
            ++plan.variables;
            continue;
        }
        const bool yesNo = column.type == Type::YesNo;
        const uint8_t flags = column.autoNumber ? 0x07 : 0x03;
        plan.columns.push_back({column.name, column.type, number, plan.variables, flags,
                                yesNo ? uint16_t{0} : fixedOffset, static_cast<uint16_t>(yesNo ? 1 : 4), 0,
                                number});
        if (!yesNo) fixedOffset = static_cast<uint16_t>(fixedOffset + 4);
    }
    plan.indexes = {{{0}, 0x89, pointerTo(page + 1, 2), page + 2}};
    return plan;
}

Bytes propertyList(const std::vector<NewColumn>& columns) {
    static const std::string property = "AllowZeroLength";
    const auto allowed = [](const NewColumn& column) { return column.emptyAllowed; };
    if (std::none_of(columns.begin(), columns.end(), allowed)) return {};
    Writer w;
    w.bytes = {'M', 'R', '2', 0};
    w.u32(static_cast<uint32_t>(8 + 2 * property.size()));
    w.u16(0x80);
    w.name(property);
    for (const NewColumn& column : columns) {
        if (!allowed(column)) continue;
        const uint32_t nameBlock = static_cast<uint32_t>(6 + 2 * column.name.size());
        const uint32_t propertyLength = 9;
        w.u32(6 + nameBlock + propertyLength);
        w.u16(1);
        w.u32(nameBlock);
        w.name(column.name);
        w.u16(propertyLength);
        w.u8(1);
        w.u8(static_cast<uint8_t>(Type::YesNo));
        w.u16(0);
        w.u16(1);
        w.u8(1);
    }
    return w.bytes;
}

}  // namespace jet::empty
