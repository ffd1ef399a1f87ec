// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace text {

/// a == b, without a look at the text where both share it.
inline bool sameText(const QString& a, const QString& b) {
    return a.isSharedWith(b) || a == b;
}

}  // namespace text
