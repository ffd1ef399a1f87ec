// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "platform/jet/Database.h"
#include "platform/jet/PageFile.h"

/// The catalogue: the rows of MSysObjects. Functions throw Failure.
namespace jet {

/// Tables, linked tables and queries by name.
std::vector<CatalogEntry> readCatalog(PageFile& file);

/// The property list of a table (see ColumnProperties.h), empty when it has none or it cannot be read.
Bytes readProperties(PageFile& file, const CatalogEntry& entry);

}  // namespace jet
