// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/MenuButtonAccess.h"

#include <QAccessibleWidget>
#include <QAction>
#include <QMenu>
#include <QToolButton>

#include "platform/ui/Controls.h"
#include "platform/ui/Reachable.h"

namespace ui {

namespace {

class AccessibleMenuButton : public QAccessibleWidget {
  public:
    explicit AccessibleMenuButton(QToolButton* button) : QAccessibleWidget(button, QAccessible::ButtonMenu) {}

    QString text(QAccessible::Text kind) const override {
        const QString told = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && told.isEmpty() ? spokenCaption(button()->text()) : told;
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = true;
        state.pressed = button()->isDown();
        return state;
    }
    QStringList actionNames() const override {
        return QStringList{showMenuAction(), pressAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override {
        if (action != showMenuAction() && action != pressAction()) {
            QAccessibleWidget::doAction(action);
        } else if (isReachable(*button())) {
            // showMenu() returns when the menu is left, and the caller waits for an answer
            QMetaObject::invokeMethod(button(), &QToolButton::showMenu, Qt::QueuedConnection);
        }
    }

  private:
    QToolButton* button() const { return static_cast<QToolButton*>(widget()); }
};

QAccessibleInterface* accessibleMenuButton(const QString&, QObject* object) {
    auto* button = qobject_cast<QToolButton*>(object);
    const QAction* action = button ? button->defaultAction() : nullptr;
    return action && action->menu() ? new AccessibleMenuButton(button) : nullptr;
}

}  // namespace

void installMenuButtonAccess() {
    static const bool installed = (QAccessible::installFactory(accessibleMenuButton), true);
    Q_UNUSED(installed)
}

}  // namespace ui
