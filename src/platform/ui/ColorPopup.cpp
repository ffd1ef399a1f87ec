// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/ColorPopup.h"

#include <QFrame>
#include <QScreen>
#include <QVBoxLayout>

#include "platform/ui/ColorHexagon.h"
#include "platform/ui/Controls.h"

namespace {

/// Below the place, or above it where there is more room; wholly on the screen.
QPoint cornerOf(const QSize& panel, const QRect& place, const QRect& screen) {
    const bool above = place.bottom() + panel.height() > screen.bottom() && place.top() > panel.height();
    const int y = above ? place.top() - panel.height() : place.bottom() + 1;
    return {qBound(screen.left(), place.left(), screen.right() + 1 - panel.width()),
            qBound(screen.top(), y, screen.bottom() + 1 - panel.height())};
}

}  // namespace

void ui::openColorPopup(QWidget& owner, const QRect& place, quint32 color, const QString& accessibleName,
                        const std::function<void(quint32)>& pick) {
    auto* panel = named(new QFrame(&owner, Qt::Popup), QStringLiteral("colorPopup"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFrameShape(QFrame::StyledPanel);
    auto* colors = named(new ColorHexagon(panel), QStringLiteral("color"));
    colors->setAccessibleName(accessibleName);
    colors->setColor(color);
    auto* area = new QVBoxLayout(panel);
    area->setContentsMargins(0, 0, 0, 0);
    area->addWidget(colors);
    panel->setFocusProxy(colors);
    QObject::connect(colors, &ColorHexagon::picked, panel, [panel, pick](quint32 picked) {
        pick(picked);
        panel->close();
    });
    panel->adjustSize();
    panel->move(cornerOf(panel->size(), place, owner.screen()->availableGeometry()));
    panel->show();
    panel->setFocus(Qt::PopupFocusReason);
}
