// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/DialogOwner.h"

#include <QApplication>
#include <QWidget>

QWidget* ui::dialogOwner() {
    if (QWidget* active = QApplication::activeWindow()) return active;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) return window;
    return nullptr;
}

void ui::keepAboveOwner(QWidget& dialog) {
    const QWidget* owner = dialog.parentWidget();
    if (owner && owner->windowFlags().testFlag(Qt::WindowStaysOnTopHint))
        dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
}
