// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/ado/JetTable.h"

namespace ado {

/// Rows of a recordset that were read together with the current one, since asking the file for each costs
/// more than reading it. They are used for 5 ms and dropped then, or when this process begins to write,
/// so a row that comes from here may be that much older than the file. More are read the longer rows are
/// taken one after the other, and fewer where some were too old before they were taken: who reads one row
/// pays for one.
class RowsAhead {
  public:
    using Clock = std::chrono::steady_clock;

    /// How many rows to read now; `onward`: the one after the current one was asked for.
    size_t wanted(bool onward) {
        m_wanted = !onward ? 1 : m_late ? std::max<size_t>(m_wanted / 2, 1) : std::min(2 * m_wanted, most);
        m_late = false;
        return m_wanted;
    }
    /// Exchanges `row` for row `number`; false when it is not here, or too old, or `epoch` is not that in
    /// which it was read.
    bool take(size_t number, uint64_t epoch, Clock::time_point now, StoredRow& row) {
        if (number < m_first || number - m_first >= m_count || epoch != m_epoch) return false;
        m_late = now >= m_end;
        if (m_late) return false;
        std::swap(row, m_rows[number - m_first]);
        return true;
    }

    /// Rows from number `first` on are read now.
    void begin(size_t first, uint64_t epoch, Clock::time_point now) {
        m_first = first;
        m_count = 0;
        m_epoch = epoch;
        m_end = now + life;
    }
    /// The place for one row more.
    StoredRow& add() {
        if (m_count == m_rows.size()) m_rows.emplace_back();
        return m_rows[m_count++];
    }
    void drop() { m_count = 0; }

  private:
    static constexpr size_t most = 256;
    static constexpr std::chrono::milliseconds life{5};

    std::vector<StoredRow> m_rows;  ///< m_count of them count; the others keep their memory
    size_t m_first = 0;
    size_t m_count = 0;
    size_t m_wanted = 1;
    bool m_late = false;  ///< the row that was asked for last was here, but too old
    uint64_t m_epoch = 0;
    Clock::time_point m_end;
};

}  // namespace ado
