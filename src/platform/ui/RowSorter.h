// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cassert>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ui {

/// Sorts rows by texts in parts, so that a window stays responsive. Rows with equal texts keep their order,
/// whichever way is sorted. For each row it needs some fifty bytes and a copy of its text.
class RowSorter {
  public:
    /// Appends the text of a row, by which it is to be compared byte by byte.
    using TextOf = std::function<void(uint32_t row, std::string& out)>;

    /// Sorts the rows 0 to count - 1.
    RowSorter(uint32_t count, bool descending, TextOf textOf);

    /// Continues until `over`, which is called every few dozen rows; true when all is done.
    bool step(const std::function<bool()>& over);
    /// The row at each place, once all is done.
    uint32_t row(uint32_t place) const {
        assert(place < m_count && m_sorted == m_count && m_width >= m_count);
        return m_entries[place].row;
    }

  private:
    struct Entry {
        uint64_t begin;  ///< the first bytes of the text, which decide most comparisons
        const char* text;
        uint32_t length;
        uint32_t row;
    };
    bool readTexts(const std::function<bool()>& over);
    bool sortBlocks(const std::function<bool()>& over);
    bool merge(const std::function<bool()>& over);
    void startMerge(uint32_t left);
    bool before(const Entry& a, const Entry& b) const;
    const char* keep(std::string_view text);

    const uint32_t m_count;
    const bool m_descending;
    const TextOf m_textOf;
    std::unique_ptr<Entry[]> m_entries;
    std::unique_ptr<Entry[]> m_other;  ///< where runs are merged to
    std::vector<std::unique_ptr<char[]>> m_texts;
    size_t m_free = 0;  ///< in the last of them
    std::string m_buffer;
    uint32_t m_read = 0;
    uint32_t m_sorted = 0;
    uint32_t m_width;  ///< of the sorted runs that are merged by twos
    uint32_t m_first = 0, m_firstEnd = 0, m_second = 0, m_secondEnd = 0, m_out = 0;
};

}  // namespace ui
