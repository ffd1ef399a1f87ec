// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/DefinitionWriter.h"

#include "platform/jet/JetText.h"

namespace jet {

namespace {

constexpr uint16_t language = 0x0409;
constexpr uint32_t blockMark = 0x659;
constexpr uint32_t indexMark = 1923;

}  // namespace

void Writer::utf16(const std::string& text) {
    raw(*encodeText(toUtf16(text), false));
}

Bytes definitionBytes(const TablePlan& table) {
    Writer w;
    w.bytes = {DefinitionPage, 1, 0, 0, 0, 0, 0, 0};
    w.u32(0);  // length, below
    w.u32(blockMark);
    w.u32(table.rows);
    w.u32(0);
    w.u32(1);
    w.zeros(12);
    w.u8(static_cast<uint8_t>(table.kind));
    const uint32_t columns = static_cast<uint32_t>(table.columns.size());
    w.u16(columns);
    w.u16(table.variables);
    w.u16(columns);
    w.u32(static_cast<uint32_t>(table.logicals.size()));
    w.u32(static_cast<uint32_t>(table.indexes.size()));
    w.u32(table.maps);
    w.u32(table.maps + 1);
    for (const IndexPlan& plan : table.indexes) {
        w.u32(0);
        w.u32(plan.keys);
        w.u32(0);
    }
    for (const ColumnPlan& plan : table.columns) {
        w.u8(static_cast<uint8_t>(plan.type));
        w.u32(blockMark);
        w.u16(plan.number);
        w.u16(plan.variableIndex);
        w.u16(plan.display);
        w.u16(language);
        w.u16(0);
        w.u8(plan.flags);
        w.u8(plan.extended);
        w.zeros(4);
        w.u16(plan.fixedOffset);
        w.u16(plan.length);
    }
    for (const ColumnPlan& plan : table.columns)
        w.name(plan.name);
    for (const IndexPlan& plan : table.indexes) {
        w.u32(indexMark);
        for (size_t i = 0; i < 10; ++i) {
            w.u16(i < plan.columns.size() ? plan.columns[i] : 0xFFFF);
            w.u8(i < plan.columns.size() ? 1 : 0);
        }
        w.u32(plan.map);
        w.u32(plan.root);
        w.zeros(4);
        w.u8(plan.flags);
        w.zeros(5);
    }
    for (const LogicalPlan& plan : table.logicals) {
        w.u32(blockMark);
        w.u32(plan.number);
        w.u32(plan.number);
        w.u8(0);
        w.u32(0xFFFFFFFF);
        w.u32(0);
        w.u8(4);
        w.u8(4);
        w.u8(plan.primary ? 1 : 0);
        w.zeros(4);
    }
    for (const LogicalPlan& plan : table.logicals)
        w.name(plan.name);
    for (const LongPlan& plan : table.longs) {
        w.u16(plan.column);
        w.u32(plan.firstMap);
        w.u32(plan.firstMap + 1);
    }
    w.u16(0xFFFF);
    store32(&w.bytes[definition::length], static_cast<uint32_t>(w.bytes.size()));
    store16(&w.bytes[2], static_cast<uint32_t>(pageSize - 8 - w.bytes.size()));
    return w.bytes;
}

}  // namespace jet
