// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "platform/jet/Format.h"

namespace jet {

/// A parsed index page. Entries are key bytes, then the row id; in nodes the child page follows.
/// A stored entry after the first lacks the first `prefix` bytes of the first; here all are whole.
/// Members throw Failure.
class IndexPage {
  public:
    /// Reads the page of that number; it must belong to `owner`.
    IndexPage(const Page& page, uint32_t number, uint32_t owner);
    IndexPage() = default;

    bool leaf = true;
    uint32_t previous = 0;
    uint32_t next = 0;
    uint32_t tail = 0;  ///< nodes: child after the last listed one
    uint8_t level = 0;

    size_t count() const { return m_ends.size(); }
    std::span<const uint8_t> entry(size_t i) const;
    /// The entry without the child that nodes add: key and row id.
    std::span<const uint8_t> keyAndRow(size_t i) const;
    uint32_t child(size_t i) const;
    /// First entry whose key and row id are not below `wanted`; count() if there is none.
    size_t lowerBound(std::span<const uint8_t> wanted) const;

    void insert(size_t i, std::span<const uint8_t> entry);
    void erase(size_t i);
    /// Entries from i on go to the end of another page.
    void moveTail(size_t i, IndexPage& other);

    bool fits() const;
    /// Bytes of the entries, each of them whole.
    size_t used() const { return m_bytes.size(); }
    /// Writes the page. A leaf that needs it takes the longest prefix, a node none.
    void store(Page& page, uint32_t owner) const;

  private:
    void takeEntries(const uint8_t* stored, size_t prefix);
    size_t start(size_t i) const { return i == 0 ? 0 : m_ends[i - 1]; }
    size_t prefix() const;
    size_t storedSize() const;

    std::vector<uint8_t> m_bytes;
    std::vector<uint32_t> m_ends;
};

/// Appends an entry to a leaf as store() would write it, without reading the others. False, and nothing done,
/// where the leaf is empty or full, the entry is not greater than the last one, or the prefix would change.
/// The page was written by store().
bool appendEntry(Page& leaf, std::span<const uint8_t> entry);

/// Bytewise order of keys and row ids.
int compareEntries(std::span<const uint8_t> a, std::span<const uint8_t> b);
/// A node's entry.
std::vector<uint8_t> nodeEntry(std::span<const uint8_t> keyAndRow, uint32_t child);

}  // namespace jet
