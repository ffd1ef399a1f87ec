// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/Desktop.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QIcon>
#include <QWidget>

#include "platform/text/Language.h"
#include "platform/ui/Style.h"

// Outside any namespace, as the resource compiler asks; without it the linker drops the icons of a static
// library.
static void registerIcons() {
    Q_INIT_RESOURCE(vestrola_icons);
}

namespace ui {

namespace {

/// Lets Shift+F10 ask for the menu of a control, as the menu key does, which many keyboards lack.
class MenuKey : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress || watched != QApplication::focusWidget()) return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() != Qt::Key_F10 || key->modifiers() != Qt::ShiftModifier) return false;
        auto* control = static_cast<QWidget*>(watched);
        const QPoint cursor = control->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
        QContextMenuEvent request(QContextMenuEvent::Keyboard, cursor, control->mapToGlobal(cursor));
        QCoreApplication::sendEvent(control, &request);
        return true;
    }
};

}  // namespace

void setUpDesktop(QApplication& application) {
    registerIcons();
    // The desktop's own theme is not used: the windows are always light, a dark desktop would return white
    // icons.
    QIcon::setThemeName(QStringLiteral("vestrola"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("mail-message-new")));
    QApplication::setStyle(new Style);
    application.installEventFilter(new MenuKey(&application));
    text::setLanguage(QStringLiteral("it"));
}

}  // namespace ui
