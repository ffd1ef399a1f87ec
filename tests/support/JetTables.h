// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/jet/Database.h"

/// A maker of tables that the engine itself never makes: with columns and indexes of every kind, with memo
/// values. The file must not be open elsewhere meanwhile. Members throw jet::Failure.
namespace jettables {

struct Column {
    std::string name;
    jet::Type type;
    uint16_t length = 0;  ///< text: characters; binary: bytes
    bool autoNumber = false;
    uint8_t precision = 0;  ///< of a numeric: its digits, and how many of them are decimals
    uint8_t scale = 0;
};

struct Index {
    std::vector<std::pair<uint16_t, bool>> parts;  ///< column number, ascending
    uint8_t flags = 0x80;                          ///< 1 unique, 2 ignores Nulls, 8 required; 0x80 always
};

/// Adds an empty table. Columns have the display position and number of their place in the list. No index is
/// a primary key.
void addTable(const std::string& file, const std::string& name, const std::vector<Column>& columns,
              const std::vector<Index>& indexes);

/// Adds a row and its index entries without the engine's checks.
void addRow(const std::string& file, const std::string& name, const std::vector<jet::Value>& values);

/// Sets the last auto-number in the table's definition.
void setCounter(const std::string& file, const std::string& name, int32_t last);

/// Sets the property list (LvProp) of a table.
void setProperties(const std::string& file, const std::string& name, const jet::Bytes& list);

/// Protects a file without a password by this one, of at most 20 characters.
void setPassword(const std::string& file, std::u16string_view password);

enum class Place { InRow, OneRow, Chain };
/// Stores these bytes, at that place, as a row's memo or OLE value that is Null; column by position.
void setLongValue(const std::string& file, const std::string& name, jet::RowId row, size_t column,
                  const jet::Bytes& bytes, Place place);

}  // namespace jettables
