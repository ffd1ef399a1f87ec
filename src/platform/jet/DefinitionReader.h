// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "platform/jet/PageFile.h"
#include "platform/jet/TableDefinition.h"

namespace jet {

/// Joins the pages of the definition that begins on `page`. Throws Failure for a chain that is broken or
/// loops. One of Jet 3 gets the form of Jet 4.
std::vector<uint8_t> readDefinition(PageFile& file, uint32_t page);

/// Parses a joined definition; `jet3`: it is from a Jet 3 file. Throws Failure when it contradicts itself,
/// or when the table's name or one of its columns' is empty, too long, has control characters, or is there
/// twice (without regard to case).
TableDefinition parseDefinition(std::span<const uint8_t> block, const std::string& name, uint32_t page,
                                bool jet3);

/// Sets to zero what changes with the rows (row count, auto-number, key counts), so that two definitions of
/// the same structure compare equal.
void clearCounters(std::vector<uint8_t>& block);

}  // namespace jet
