// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/PageWalk.h"

#include <algorithm>

namespace jet {

namespace {

constexpr size_t mostPages = 16;  // they stay in the processor's cache while their rows are looked at

}  // namespace

const Page& PageWalk::page(uint32_t n) {
    m_held = m_file.cached(n);
    if (!m_held && (m_file.fitsCache() || m_file.header().jet3)) m_held = m_file.page(n);
    if (m_held) return *m_held;
    if (n < m_first || n - m_first >= m_count) {
        // More are read the longer pages follow each other, a few of other owners between them.
        const bool onward = n >= m_first + m_count && n - m_first - m_count <= m_wanted / 4;
        m_wanted = onward ? std::min(2 * m_wanted, mostPages) : 1;
        if (m_block.size() < m_wanted) m_block.resize(m_wanted);
        m_first = n;
        m_count = m_file.readPages(n, std::span(m_block).first(m_wanted));
    }
    if (m_count == 0) return *(m_held = m_file.page(n));  // which reports that it is missing
    return m_block[n - m_first];
}

}  // namespace jet
