// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "platform/jet/Engine.h"
#include "platform/jet/Key.h"
#include "platform/jet/Row.h"
#include "platform/Phrase.h"

/// The checks before a table is written. All of these throw Failure and change nothing.
namespace jet {

/// The table can be written at all: file, kind of table.
void requireWritableTable(const TableState& state);
/// Rows can be inserted and deleted: every index can be kept right, every column be written.
void requireWritable(TableState& state);
/// The column at that position can be changed: its values can be stored, its indexes kept right.
void requireUpdatable(TableState& state, size_t position);
/// Whether the index at that position can be kept right, so that its entries are those of the rows.
bool isKept(TableState& state, size_t position);
[[noreturn]] void refuse(const TableDefinition& table, const Phrase& why);

/// The column's own rules for its value in a row that will be stored: Required, AllowZeroLength.
void requireAllowed(const Column& column, const Row& row);
/// The index's rules for a row that gets this key: required columns, no second equal key.
void requireFits(TableState& state, const Index& index, const Row& row, const Bytes& key);

}  // namespace jet
