// SPDX-License-Identifier: GPL-3.0-or-later
// The conversion of a value to the type of its column.
#pragma once

#include "platform/ado/Value.h"
#include "platform/jet/Database.h"
#include "platform/Status.h"

namespace ado {

/// `value` in the form in which `column` stores it: numbers and dates written as text are read (plainly, else
/// as the user's locale writes them) and the other way round, fractions are rounded for whole numbers (halves
/// to even), Null is False for a yes/no. Lengths are left to the engine. Fails with TypeMismatch or Overflow,
/// naming the column.
Result<jet::Value> fitToColumn(jet::Value value, const jet::Column& column);

/// The value of a column of that row as a recordset returns it; of memo and OLE values what lies in the
/// row.
Value fieldValue(const jet::RowView& row, size_t column);
/// The same for a caller that has its stored bytes, into a Null: nothing is moved. Not of memo and OLE
/// values.
void takeFieldValue(const jet::Column& column, const jet::StoredField& field, Value& value);

}  // namespace ado
