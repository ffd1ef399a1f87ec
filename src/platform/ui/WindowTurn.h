// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace ui {

/// Processes the events of windows once: passes on what the window system has sent (exposure, size, input,
/// requests to close) and paints what has to be painted. Unlike a turn of the event loop it delivers nothing
/// else: timers, sockets and posted events stay queued until the loop turns again. It returns at
/// once.
///
/// Where the event loop is not GLib's (QT_NO_GLIB), what the window system sends stays as well, and windows
/// are painted only as far as the program changes them.
void turnWindows();

}  // namespace ui
