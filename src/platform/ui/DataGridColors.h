#pragma once

#include <QColor>

namespace ui {

/// The quiet lines between the cells of lists and grids: `line` at 90 of 255 over white, so that the cells
/// stay apart in every palette and no line is stronger than the text.
inline QColor bodyLine(const QColor& line) {
    const auto part = [](int channel) { return 255 + (channel - 255) * 90 / 255; };
    return QColor(part(line.red()), part(line.green()), part(line.blue()));
}

}  // namespace ui
