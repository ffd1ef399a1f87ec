// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <limits>
#include <QString>
#include <utility>

namespace mail {

/// The number of a recipient's row, or one of two values that no row can have.
namespace recipient {

inline constexpr qint64 outsideRun = std::numeric_limits<qint64>::min();  ///< not checked
inline constexpr qint64 nobody = outsideRun + 1;                          ///< no row could be read

}  // namespace recipient

/// A text that records whether it was assigned since it was last used.
class AssignedText {
  public:
    AssignedText& operator=(const QString& text) {
        m_text = text;
        m_fresh = true;
        return *this;
    }
    const QString& text() const { return m_text; }
    operator const QString&() const { return m_text; }

    /// Whether it was assigned since the last call of this.
    bool useUp() { return std::exchange(m_fresh, false); }

  private:
    QString m_text;
    bool m_fresh = false;
};

}  // namespace mail
