#pragma once

#include <span>
#include <vector>

#include "platform/jet/Database.h"
#include "platform/jet/PageFile.h"

/// Memo and OLE values. What a row holds of one, 12 bytes and more:
///   0 u32: low 30 bits length, top 2 bits place · 4 u32 pointer (u8 row, u24 page) · 8 u32
///   place 2: the bytes follow at 12 · place 1: one row of a long-value page · place 0: a chain of rows, each
///   beginning with the pointer to the next (0 = last)
/// All functions throw Failure for a value that is broken: a chain that meets a row twice or ends too early,
/// a pointer to something else, a length beyond the file's.
namespace jet {

/// The bytes of a value, wherever they lie. `stored` is what its row holds.
Bytes readLongValue(PageFile& file, std::span<const uint8_t> stored);

/// The rows of long-value pages that hold the value; none when it lies in its own row.
std::vector<RowId> longValueRows(PageFile& file, std::span<const uint8_t> stored);

/// Deletes such rows of a value of `column`, and gives back the pages that become empty. Rows on pages that
/// the column's map does not name are left as they are.
void freeLongValueRows(PageFile& file, const Column& column, std::span<const RowId> rows);

}  // namespace jet
