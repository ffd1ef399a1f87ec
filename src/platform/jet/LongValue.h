#pragma once

#include <span>

#include "platform/jet/PageFile.h"
#include "platform/jet/Value.h"

namespace jet {

/// The bytes of a memo or OLE value, wherever they lie. `stored` is what its row holds:
///   0 u32: low 30 bits length, top 2 bits place · 4 u32 pointer (u8 row, u24 page) · 8 u32 · 12 bytes at
///   place 2 place 2: in the row · place 1: one row of a long-value page · place 0: a chain of rows, each
///   beginning with the pointer to the next (0 = last)
/// Throws Failure for a chain that is broken, loops, or is longer than the file.
Bytes readLongValue(PageFile& file, std::span<const uint8_t> stored);

}  // namespace jet
