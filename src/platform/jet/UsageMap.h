// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <vector>

#include "platform/jet/PageFile.h"

namespace jet {

/// A set of page numbers in the file: the row that `pointer` names (low byte row, page above it).
///   form 0: u8 0, u32 first page, bits
///   form 1: u8 1, u32 numbers of bitmap pages (0 = none), each of which covers as many pages as it has bits
///   (32,736)
/// Members throw Failure.
class UsageMap {
  public:
    UsageMap(PageFile& file, uint32_t pointer) : m_file(file), m_page(pointer >> 8), m_slot(pointer & 0xFF) {}

    bool contains(uint32_t page) const;
    /// Calls `visit` for each page from `from` on, in rising order, until it returns false. The map must not
    /// be changed meanwhile.
    void forEach(uint32_t from, const std::function<bool(uint32_t)>& visit) const;
    void forEach(const std::function<bool(uint32_t)>& visit) const { forEach(0, visit); }
    std::vector<uint32_t> pages() const;
    /// Adds or removes a page. The row grows when it does not reach that far, and takes form 1 when it cannot
    /// grow.
    void set(uint32_t page, bool member);

  private:
    friend class GlobalMap;
    std::span<uint8_t> changeRow();
    bool grow(uint32_t page);
    void takeForm1();

    PageFile& m_file;
    uint32_t m_page;
    uint8_t m_slot;
};

/// The map of free pages: row 0 of page 1, where a set bit is a free page. It says nothing about pages that
/// it does not reach; they count as used.
class GlobalMap {
  public:
    explicit GlobalMap(PageFile& file) : m_file(file), m_map(file, globalMapPage << 8) {}

    /// A page for use, zeroed: the lowest free one inside the file, or a new one at its end.
    uint32_t take();
    /// Frees a page and clears its first bytes.
    void give(uint32_t page);
    /// Whether pages that the map calls used lie after the file's end: they are reserved, or the end is
    /// missing.
    bool reachesBehindFile() const;

  private:
    void markUsed(uint32_t page);
    bool grow(uint32_t page);
    void takeForm1();

    PageFile& m_file;
    UsageMap m_map;
};

}  // namespace jet
