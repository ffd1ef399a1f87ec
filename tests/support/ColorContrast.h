// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cmath>
#include <QColor>

namespace testing_support {

/// Relative luminance of a colour, as the Web Content Accessibility Guidelines 2.1 define it: 0 for black, 1
/// for white.
inline double luminance(const QColor& color) {
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

/// Contrast ratio of two colours by the same guidelines: from 1 to 21.
inline double contrast(const QColor& a, const QColor& b) {
    const double one = luminance(a) + 0.05;
    const double two = luminance(b) + 0.05;
    return std::max(one, two) / std::min(one, two);
}

}  // namespace testing_support
