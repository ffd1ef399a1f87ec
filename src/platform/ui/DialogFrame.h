// SPDX-License-Identifier: GPL-3.0-or-later
// The frame of a window: no close button, and a size that fits its screen.
#pragma once

class QWidget;

namespace ui {

/// For a window that refuses to be closed by its title bar: the frame shows no close button, which would do
/// nothing. To be called before the window is shown.
void withoutCloseButton(QWidget& window);

/// The same, for a dialog with a layout that also has to stay in reach on a small screen: whatever size it
/// asks for, it opens within the screen, and where its content needs more, the content gets scroll bars. It
/// cannot be made so low that lines of its texts are cut.
void setUpDialog(QWidget& dialog);

/// Makes a window no larger than its screen and moves it back onto it.
void bringIntoReach(QWidget& window);

}  // namespace ui
