// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

namespace ui {

/// Colours as the controls store them: a number with red in the low byte.
inline QColor colorOf(quint32 number) {
    return QColor(static_cast<int>(number & 0xff), static_cast<int>(number >> 8 & 0xff),
                  static_cast<int>(number >> 16 & 0xff));
}

inline quint32 numberOf(const QColor& color) {
    return static_cast<quint32>(color.red() | color.green() << 8 | color.blue() << 16);
}

}  // namespace ui
