// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/RowSorter.h"

#include <algorithm>
#include <cstring>

namespace ui {

namespace {

constexpr uint32_t rowsBetweenLooks = 64;
constexpr uint32_t blockRows = 512;
constexpr size_t textBlock = size_t{1} << 20;

uint64_t beginOf(std::string_view text) {
    uint64_t begin = 0;
    for (size_t i = 0; i < sizeof(begin); ++i)
        begin = begin << 8 | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0u);
    return begin;
}

}  // namespace

RowSorter::RowSorter(uint32_t count, bool descending, TextOf textOf)
    : m_count(count),
      m_descending(descending),
      m_textOf(std::move(textOf)),
      m_entries(std::make_unique_for_overwrite<Entry[]>(count)),
      m_other(std::make_unique_for_overwrite<Entry[]>(count)),
      m_width(blockRows) {
    startMerge(0);
}

bool RowSorter::step(const std::function<bool()>& over) {
    return readTexts(over) && sortBlocks(over) && merge(over);
}

const char* RowSorter::keep(std::string_view text) {
    if (text.empty()) return "";
    if (text.size() > m_free) {
        m_free = std::max(textBlock, text.size());
        m_texts.push_back(std::make_unique_for_overwrite<char[]>(m_free));
    }
    // Filled from the end.
    m_free -= text.size();
    char* place = m_texts.back().get() + m_free;
    std::memcpy(place, text.data(), text.size());
    return place;
}

bool RowSorter::readTexts(const std::function<bool()>& over) {
    for (; m_read < m_count; ++m_read) {
        if (m_read % rowsBetweenLooks == 0 && over()) return false;
        m_buffer.clear();
        m_textOf(m_read, m_buffer);
        m_entries[m_read] = {beginOf(m_buffer), keep(m_buffer), static_cast<uint32_t>(m_buffer.size()),
                             m_read};
    }
    return true;
}

bool RowSorter::before(const Entry& a, const Entry& b) const {
    const Entry& low = m_descending ? b : a;
    const Entry& high = m_descending ? a : b;
    if (low.begin != high.begin) return low.begin < high.begin;
    return std::string_view(low.text, low.length) < std::string_view(high.text, high.length);
}

bool RowSorter::sortBlocks(const std::function<bool()>& over) {
    while (m_sorted < m_count) {
        if (over()) return false;
        const uint32_t end = std::min(m_count - m_sorted, blockRows) + m_sorted;
        std::stable_sort(&m_entries[m_sorted], m_entries.get() + end,
                         [this](const Entry& a, const Entry& b) { return before(a, b); });
        m_sorted = end;
    }
    return true;
}

/// The two runs from `left` on come next.
void RowSorter::startMerge(uint32_t left) {
    m_first = m_out = left;
    m_firstEnd = m_second = std::min(m_count - left, m_width) + left;
    m_secondEnd = std::min(m_count - m_second, m_width) + m_second;
}

bool RowSorter::merge(const std::function<bool()>& over) {
    while (m_width < m_count) {
        while (m_out < m_count) {
            if (m_out % rowsBetweenLooks == 0 && over()) return false;
            const bool fromSecond =
                m_first == m_firstEnd ||
                (m_second != m_secondEnd && before(m_entries[m_second], m_entries[m_first]));
            m_other[m_out++] = m_entries[fromSecond ? m_second++ : m_first++];
            if (m_out == m_secondEnd && m_out < m_count) startMerge(m_out);
        }
        std::swap(m_entries, m_other);
        m_width = m_width > m_count / 2 ? m_count : 2 * m_width;
        startMerge(0);
    }
    return true;
}

}  // namespace ui
