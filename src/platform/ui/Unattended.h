// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace ui {

/// True while no user is at the screen (tests, the demonstration): message boxes and file dialogs then
/// take their answers from the queues of MessageDialog and FileDialog instead of being shown.
bool unattended();
void setUnattended(bool on);

/// Ends the program with the reason: an unattended run met a question for which no answer was queued.
[[noreturn]] void failUnanswered(const char* what, const char* text);

}  // namespace ui
