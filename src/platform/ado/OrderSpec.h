// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/jet/Database.h"

namespace ado {

/// The description of an order of rows: columns by position. It may have only the rows with one number in a
/// column, its group.
struct OrderSpec {
    struct Part {
        size_t column = 0;
        bool ascending = true;
        bool operator==(const Part&) const = default;
    };
    std::optional<size_t> group;
    int64_t number = 0;  ///< in the column `group`; of a yes/no column 0 is False, everything else True
    std::vector<Part> parts;
    bool operator==(const OrderSpec&) const = default;

    /// Whether a change of that column may move a row.
    bool uses(size_t column) const;
    /// Whether a row is in the order at all.
    bool holds(const jet::RowView& row) const;
    /// Appends the row's key: rows are in order as their keys rise bytewise, those of one key by their
    /// identities.
    void appendKey(std::string& key, const jet::RowView& row) const;
    std::string keyOf(const jet::RowView& row) const;

    /// Columns and directions as a text, without the number.
    std::string toText() const;
    static OrderSpec fromText(std::string_view text);

    /// Whether rows can be put in order by, and be grouped by, columns of that type.
    static bool canSort(jet::Type type);
    static bool canGroup(jet::Type type);
};

}  // namespace ado
