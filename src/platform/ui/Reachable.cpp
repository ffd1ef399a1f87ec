// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/Reachable.h"

#include <QApplication>
#include <QWidget>

#include "platform/ui/Busy.h"

namespace ui {

bool isReachable(const QWidget& control) {
    const QWidget* modal = QApplication::activeModalWidget();
    return control.isEnabled() && control.isVisible() && !Busy::any() &&
           (!modal || modal == control.window() || modal->isAncestorOf(&control));
}

}  // namespace ui
