// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "platform/jet/Database.h"
#include "platform/jet/PageFile.h"
#include "platform/jet/PageRoom.h"

/// Memo and OLE values. Memos are read and written, OLE values only read. A row contains of one 12 bytes
/// and more:
///   0 u32: low 30 bits length, top 2 bits place · 4 u32 pointer (u8 row, u24 page) · 8 u32
///   place 2: the bytes follow at 12 · place 1: one row of a long-value page · place 0: a chain of rows, each
///   beginning with the pointer to the next (0 = last)
/// All functions throw Failure for a value that is broken: a chain that meets a row twice or ends too early,
/// a pointer to something else, a length beyond the file's.
namespace jet {

/// Bytes of a value's length, place and pointer in its row.
inline constexpr size_t longValueHead = 12;

/// The length of a value, as its row says; 0 when the head is cut.
size_t longValueLength(std::span<const uint8_t> stored);

/// The bytes of a value, wherever they are. `stored` is what its row contains.
Bytes readLongValue(PageFile& file, std::span<const uint8_t> stored);

/// The rows of long-value pages that contain the value; none when it lies in its own row.
std::vector<RowId> longValueRows(PageFile& file, std::span<const uint8_t> stored);

/// The bytes in the row of a value that needs no other row, a short one; nothing for a longer one.
std::optional<Bytes> longValueInRow(std::span<const uint8_t> content);

/// The long-value pages of one memo or OLE column.
class LongValuePages {
  public:
    LongValuePages(PageFile& file, const Column& column);

    /// Stores a value on them and returns the 12 bytes for its row. Throws Failure (NotSupported) when the
    /// column has no map for its pages.
    Bytes store(std::span<const uint8_t> content);
    /// Deletes such rows of a value, and frees the pages that become empty. Rows on pages that the
    /// column's map does not name are left as they are.
    void free(std::span<const RowId> rows);

  private:
    uint32_t put(std::span<const uint8_t> row);

    PageFile& m_file;
    uint32_t m_owned;
    PageRoom m_room;
};

}  // namespace jet
