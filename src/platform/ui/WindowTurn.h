#pragma once

namespace ui {

/// Lets the windows live for a moment: hands them what the window system has sent (exposure, size, input,
/// requests to close) and paints what has to be painted. Unlike a turn of the event loop it delivers nothing
/// else: timers, sockets and posted events stay where they are until the loop turns again. It returns at
/// once.
///
/// Where the event loop is not GLib's (QT_NO_GLIB), what the window system sends stays as well, and windows
/// are painted only as far as the program changes them.
void turnWindows();

}  // namespace ui
