// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "platform/jet/Database.h"
#include "platform/jet/PageFile.h"

namespace jet {

/// Whether the end of the file is missing: the map of free pages calls pages after the end used, and a
/// table, an index or a long value owns one that is not there. The map alone proves nothing, since some
/// programs reserve room in steps. Costs a look at the map for all other files. Throws Failure for
/// definitions and maps that cannot be read.
bool lacksItsEnd(PageFile& file, const std::vector<CatalogEntry>& catalog);

}  // namespace jet
