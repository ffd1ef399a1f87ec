// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

/// Shows a window above all others, without giving it the keyboard, in the middle of the screen.
void CentraForm(QWidget& finestra);
