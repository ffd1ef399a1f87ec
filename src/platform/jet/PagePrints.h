// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace jet {

/// Digests of the pages of a table at some moment, eight bytes each, which show later which of the pages
/// have changed; and where the bodies of rows that have moved lie. Taken and renewed by Table::scanChanged().
class PagePrints {
  public:
    /// A row of a page whose body lies on another one.
    struct Moved {
        uint32_t page;
        uint32_t body;
    };

    bool empty() const { return m_pages.empty(); }
    size_t size() const { return m_pages.size(); }
    /// The page counts as changed, whatever it contains.
    void forget(uint32_t page) {
        if (page < m_pages.size()) m_pages[page] = unknown;
    }
    /// A page of the table has content with that digest.
    void set(uint32_t page, uint64_t digest) {
        if (page >= m_pages.size()) m_pages.resize(page + size_t{1}, noPage);
        m_pages[page] = std::max(digest, leastDigest);
    }
    void addMoved(Moved row) { m_moved.push_back(row); }
    const std::vector<Moved>& moved() const { return m_moved; }
    bool has(uint32_t page) const { return page < m_pages.size() && m_pages[page] != noPage; }
    bool sameAs(const PagePrints& other, uint32_t page) const {
        return print(page) == other.print(page) && print(page) != unknown;
    }

  private:
    static constexpr uint64_t noPage = 0;  ///< it is none of the table
    static constexpr uint64_t unknown = 1;
    static constexpr uint64_t leastDigest = 2;
    uint64_t print(uint32_t page) const { return page < m_pages.size() ? m_pages[page] : noPage; }

    std::vector<uint64_t> m_pages;  ///< by page number
    std::vector<Moved> m_moved;
};

}  // namespace jet
