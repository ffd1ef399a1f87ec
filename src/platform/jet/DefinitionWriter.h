// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/jet/Format.h"
#include "platform/jet/Value.h"

namespace jet {

/// Appends little-endian numbers and UTF-16LE texts to bytes.
struct Writer {
    Bytes bytes;

    void u8(uint32_t v) { bytes.push_back(static_cast<uint8_t>(v)); }
    void u16(uint32_t v) {
        u8(v);
        u8(v >> 8);
    }
    void u32(uint32_t v) {
        u16(v);
        u16(v >> 16);
    }
    void zeros(size_t n) { bytes.resize(bytes.size() + n); }
    void raw(std::span<const uint8_t> v) { bytes.insert(bytes.end(), v.begin(), v.end()); }
    void utf16(const std::string& text);
    void name(const std::string& text) {
        u16(static_cast<uint32_t>(2 * text.size()));
        utf16(text);
    }
};

/// What a table's definition says, for writing one. The order is that of the file.
struct ColumnPlan {
    std::string name;
    Type type;
    uint16_t number;
    uint16_t variableIndex;
    uint8_t flags;
    uint16_t fixedOffset;
    uint16_t length;
    uint8_t extended = 0;
    uint16_t display = 0;
};

struct IndexPlan {
    std::vector<uint16_t> columns;
    uint8_t flags;
    uint32_t map;  // row and page
    uint32_t root;
    uint32_t keys = 0;
};

struct LogicalPlan {
    std::string name;
    uint32_t number;  // of the real index as well
    bool primary;
};

struct LongPlan {
    uint16_t column;
    uint32_t firstMap;  // owned; the next row: with room
};

struct TablePlan {
    uint32_t page;
    char kind;
    uint32_t rows;
    uint16_t variables;
    uint32_t maps;  // owned; the next row: with room
    std::vector<ColumnPlan> columns;
    std::vector<IndexPlan> indexes;
    std::vector<LogicalPlan> logicals;
    std::vector<LongPlan> longs = {};
};

/// Row and page in the form of the file's pointers.
constexpr uint32_t pointerTo(uint32_t page, uint32_t row) {
    return page << 8 | row;
}

/// The definition's page from its first byte on; all of it must fit on one page.
Bytes definitionBytes(const TablePlan& plan);

}  // namespace jet
