// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace ui {

/// Makes a window that is not a dialog belong to another one: the window manager keeps it above that one.
/// Both keep what their kind has (maximising, for one, which desktops deny to modal dialogs). Both are on
/// the screen.
void setWindowOwner(QWidget& window, const QWidget& owner);

}  // namespace ui
