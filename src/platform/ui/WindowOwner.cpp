// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/WindowOwner.h"

#include <xcb/xcb.h>
#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

namespace ui {

void setWindowOwner(QWidget& window, const QWidget& owner) {
    const xcb_window_t own = static_cast<xcb_window_t>(window.winId());
    QWindow* above = owner.window()->windowHandle();
    if (above == nullptr) return;
    window.windowHandle()->setTransientParent(above);
    // Under X11 the toolkit sets it for dialogs alone (ICCCM 4.1.2.6).
    const auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    if (QGuiApplication::platformName() != QLatin1String("xcb") || x11 == nullptr) return;
    const xcb_window_t number = static_cast<xcb_window_t>(above->winId());
    xcb_change_property(x11->connection(), XCB_PROP_MODE_REPLACE, own, XCB_ATOM_WM_TRANSIENT_FOR,
                        XCB_ATOM_WINDOW, 32, 1, &number);
}

}  // namespace ui
