// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QRect>

class QString;
class QWidget;

namespace ui {

/// Opens a ColorHexagon beside a place on the screen, over `owner`, with a colour selected (red in the low
/// byte). The colour that the user picks goes to `pick`; Esc or a click beside it leaves without one. The
/// panel, named "colorPopup", is gone once it closes.
void openColorPopup(QWidget& owner, const QRect& place, quint32 color, const QString& accessibleName,
                    const std::function<void(quint32)>& pick);

}  // namespace ui
