// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace ui {

class ColorHexagon;

/// The accessibility of a ColorHexagon: a list of its cells. To be called before one is used.
void installColorHexagonAccess();
/// Reports to them that a cell has become the current one.
void announceColorCell(ColorHexagon* hexagon, int cell);

}  // namespace ui
