#pragma once

#include <vector>

#include "platform/jet/PageFile.h"
#include "platform/jet/TableDefinition.h"

namespace jet {

/// Joins the pages of the definition that begins on `page`. Throws Failure for a chain that is broken or
/// loops.
std::vector<uint8_t> readDefinition(PageFile& file, uint32_t page);

/// Parses a joined definition. Throws Failure when it contradicts itself.
TableDefinition parseDefinition(std::span<const uint8_t> block, const QString& name, uint32_t page);

/// Sets to zero what changes with the rows (row count, auto-number, key counts), so that two definitions of
/// the same structure compare equal.
void clearCounters(std::vector<uint8_t>& block);

}  // namespace jet
