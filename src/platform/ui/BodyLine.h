// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

#include "platform/ui/Contrast.h"

namespace ui {

/// The quiet lines between the cells of lists and grids: `line` at 90 of 255 over white, so that the cells
/// stay apart in every palette and no line is stronger than the text; as strong as it in high contrast.
inline QColor bodyLine(const QColor& line) {
    if (highContrast()) return Qt::black;
    const auto part = [](int channel) { return 255 + (channel - 255) * 90 / 255; };
    return QColor(part(line.red()), part(line.green()), part(line.blue()));
}

}  // namespace ui
