// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace ui {

/// From now on, a button that a tool bar makes of a menu offers assistive programs an action that opens it.
/// Qt 6.4 offers them none where the button does nothing but that (QToolButton::InstantPopup).
void installMenuButtonAccess();

}  // namespace ui
