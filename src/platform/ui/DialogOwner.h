// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace ui {

/// The window over which a box or dialog is shown: the active one; while there is none, a window that keeps
/// itself above all others, since the box would be hidden behind it. Null where there is neither.
QWidget* dialogOwner();

/// To be called before a box or dialog of dialogOwner() is shown: above an owner that keeps itself above all
/// others it does so too, since some window managers put it below otherwise.
void keepAboveOwner(QWidget& dialog);

}  // namespace ui
