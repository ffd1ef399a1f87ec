// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QMimeData;

namespace ui {

/// The drag from one of our controls to another. The content names no row and no node: a row is the
/// current one of the grid, a node the one under the press. So it only means something inside this process.
enum class Dragged { Nothing, Row, Node };

/// The caller owns the result.
QMimeData* dragContent(Dragged what);
/// Nothing as well for what comes from elsewhere, another instance of the program included.
Dragged draggedIn(const QMimeData* content);

}  // namespace ui
