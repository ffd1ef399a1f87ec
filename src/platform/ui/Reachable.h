// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace ui {

/// Whether the user could reach the control with the mouse: it is enabled and visible, no window is in front
/// that has to be left first, and nothing runs that takes no clicks. An action of an assistive program counts
/// for no more than a click.
bool isReachable(const QWidget& control);

}  // namespace ui
