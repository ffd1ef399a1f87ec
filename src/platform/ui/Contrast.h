// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop's wish for high contrast.
#pragma once

#include <functional>

namespace ui {

/// Whether the desktop asks for high contrast; false until it has answered, and where no portal answers.
bool highContrast();

/// Asks the desktop (the settings portal of freedesktop.org: "contrast" of "org.freedesktop.appearance") and
/// listens to its changes. Returns at once; `changed` is called each time that highContrast() changes.
void watchContrast(std::function<void()> changed);

/// For tests: what the desktop would answer.
void setHighContrast(bool on);

}  // namespace ui
