// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "platform/jet/Format.h"
#include "platform/jet/NewDatabase.h"

namespace jet {

/// The pages of a new database, made from nothing: 16 with what any file needs, three for each table, and one
/// with the properties of columns where any text may be empty. The same description results in the same
/// bytes. Throws Failure for one that cannot be written.
std::vector<Page> emptyDatabase(const std::vector<NewTable>& tables);

}  // namespace jet
