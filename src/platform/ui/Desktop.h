// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QApplication;

namespace ui {

/// The set-up of every program of ours before its first window: the drawing style, the compiled-in icons, the
/// windows' icon, Shift+F10 as a menu key, all texts in Italian.
/// Call once, after the application object.
void setUpDesktop(QApplication& application);

}  // namespace ui
