// SPDX-License-Identifier: GPL-3.0-or-later
// The definition of a table: its columns and indexes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/jet/Value.h"

namespace jet {

/// One column of a table. Positions in `TableDefinition::columns` are display positions, the order of SELECT
/// *.
struct Column {
    std::string name;
    Type type = Type::Long;
    uint16_t number = 0;         ///< addresses the null mask of a row; deleted columns leave gaps
    uint16_t variableIndex = 0;  ///< place in a row's list of variable values
    uint16_t displayPosition = 0;
    uint16_t fixedOffset = 0;  ///< place in a row's fixed area
    uint16_t length = 0;       ///< in bytes; characters are half of it for text
    uint8_t precision = 0;     ///< of a numeric: its digits, and how many of them are decimals
    uint8_t scale = 0;
    bool fixed = false;  ///< stored in the fixed area, else among the variable values
    bool autoNumber = false;
    bool autoGuid = false;
    bool compressed = false;    ///< text may be written in the compressed form
    bool ansi = false;          ///< text is stored in Windows-1252 (Access 97), else in UTF-16
    bool generalOrder = false;  ///< text sorts in the order "General", the only one known
    uint32_t longOwned = 0;     ///< memo and OLE: map of the pages with its values; 0 = none
    uint32_t longRoom = 0;      ///< those of them with room
    // Properties kept in the catalogue:
    bool required = false;        ///< Null is refused
    bool allowZeroLength = true;  ///< false: the empty text is refused; true as well where nothing is said
};

/// One real index.
struct Index {
    struct Part {
        uint16_t column = 0;  ///< column number, not position
        bool ascending = true;
    };
    std::string name;  ///< of the first logical index over it
    std::vector<Part> parts;
    uint32_t rootPage = 0;
    uint32_t mapPointer = 0;  ///< owned-pages map: low byte row, page above it
    bool unique = false;
    bool ignoreNulls = false;
    bool required = false;
    bool primaryKey = false;
};

/// A table's definition, from its pages. Names are in UTF-8. Read by Database; never changed in memory by its
/// users.
struct TableDefinition {
    std::string name;
    uint32_t page = 0;  ///< first definition page, also the table's id
    bool system = false;
    bool jet3 = false;  ///< of an Access 97 file: rows have the older form, and nothing can be written
    std::vector<Column> columns;
    std::vector<Index> indexes;
    uint16_t maxColumns = 0;
    uint16_t variableColumns = 0;
    uint32_t ownedMap = 0;
    uint32_t roomMap = 0;
    bool enforcedRelation = false;  ///< a foreign key that would have to be enforced on writing

    /// Position of the column of that name, case ignored.
    std::optional<size_t> find(std::string_view columnName) const;
    /// Position of the one column of the primary key, when it is a single ascending long.
    std::optional<size_t> longPrimaryKey() const;
};

}  // namespace jet
