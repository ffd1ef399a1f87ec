// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "platform/jet/Engine.h"
#include "platform/jet/Row.h"

/// Memo and OLE columns of a row that is written: their values lie on pages of their own. Everything throws
/// Failure.
namespace jet {

bool isLong(const Column& column);

/// A memo or OLE value that changes: what is to be stored, nothing for Null or where it is in the row
/// already, and the rows of the value before.
struct LongChange {
    const Column* column;
    std::optional<Bytes> content;
    std::vector<RowId> before;
};
using LongChanges = std::vector<LongChange>;

/// Puts a memo value, or Null, into the row. What needs other pages has its length there and is left to
/// storeLong().
LongChange setLong(Row& row, const Column& column, const Value& value);
/// Stores what is left, and frees the rows of the values before.
void storeLong(TableState& state, Row& row, const LongChanges& changes);
/// Whether the column contains that value in a row as it is stored.
bool sameLongValue(const TableState& state, const Row& stored, const Column& column, const Value& value);

/// Where a row's memo and OLE values lie on other pages.
using LongRows = std::vector<std::pair<const Column*, std::vector<RowId>>>;
LongRows longRowsOf(const TableState& state, const Row& row);

}  // namespace jet
