// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/Engine.h"

namespace jet {

/// The auto-number column of a table; null when it has none.
const Column* autoNumberColumn(const TableDefinition& table);

/// The number of the next row: one more than the counter in the definition, or than the greatest number in
/// use where the counter lies below that, as it does in some files. Changes nothing; throws Failure
/// (Overflow) when there is no greater number.
int32_t nextAutoNumber(TableState& state);

}  // namespace jet
