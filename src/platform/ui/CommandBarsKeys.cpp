// SPDX-License-Identifier: GPL-3.0-or-later
// The keyboard in the bars: the keys of pop-up menus, and the walk along the tool buttons.
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include "platform/ui/CommandBars.h"

namespace ui {

namespace {

/// Where a menu that was asked for by a key opens: below the current item of a list.
QPoint menuPlace(QWidget* where, const QContextMenuEvent& request) {
    auto* list = qobject_cast<QAbstractItemView*>(where);
    if (!list || !list->currentIndex().isValid()) return request.globalPos();
    list->scrollTo(list->currentIndex());
    return list->viewport()->mapToGlobal(list->visualRect(list->currentIndex()).bottomLeft());
}

}  // namespace

void CommandBars::showPopup(const QString& name, const QPoint& globalPosition) {
    const auto menu = m_menus.find(name);
    if (menu != m_menus.end()) menu->second->popup(globalPosition);
}

void CommandBars::offerPopup(QWidget* where, std::function<QString()> menuNow) {
    m_offers[where] = std::move(menuNow);
    where->installEventFilter(this);
}

bool CommandBars::eventFilter(QObject* watched, QEvent* event) {
    auto* widget = static_cast<QWidget*>(watched);
    if (m_offers.count(widget)) return filterOffered(widget, event);
    return qobject_cast<QToolButton*>(widget) ? filterButton(widget, event) : filterTool(widget, event);
}

QAction* CommandBars::offeredAction(QWidget* where, const QKeyEvent* key) const {
    const auto menu = m_menus.find(m_offers.at(where)());
    if (menu == m_menus.end()) return nullptr;
    const QKeySequence pressed(QKeyCombination(key->modifiers() & ~Qt::KeypadModifier, Qt::Key(key->key())));
    for (QAction* action : menu->second->actions())
        if (action->isEnabled() && action->shortcuts().contains(pressed)) return action;
    return nullptr;
}

bool CommandBars::filterOffered(QWidget* where, QEvent* event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            if (!offeredAction(where, static_cast<QKeyEvent*>(event))) return false;
            event->accept();
            return true;
        case QEvent::KeyPress: {
            // Keys that an open label edit leaves over come here as well.
            QAction* action =
                where->hasFocus() ? offeredAction(where, static_cast<QKeyEvent*>(event)) : nullptr;
            if (action) action->trigger();
            return action != nullptr;
        }
        case QEvent::ContextMenu: {
            const auto* request = static_cast<QContextMenuEvent*>(event);
            if (request->reason() != QContextMenuEvent::Keyboard) return false;
            showPopup(m_offers[where](), menuPlace(where, *request));
            return true;
        }
        default:
            return false;
    }
}

QList<QWidget*> CommandBars::buttons() const {
    QList<QWidget*> found;
    for (const QToolBar* bar : m_bars)
        for (QAction* action : bar->actions()) {
            QWidget* button = bar->widgetForAction(action);
            if (!action->isSeparator() && button->isVisible() && button->isEnabled()) found << button;
        }
    return found;
}

void CommandBars::focusBars() {
    const QList<QWidget*> all = buttons();
    if (all.isEmpty()) return;
    m_focusBefore = QApplication::focusWidget();
    all.constFirst()->setFocus(Qt::ShortcutFocusReason);
}

bool CommandBars::filterButton(QWidget* button, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Escape && m_focusBefore) {
        m_focusBefore->setFocus(Qt::OtherFocusReason);
        return true;
    }
    if (key != Qt::Key_Left && key != Qt::Key_Right) return false;
    const QList<QWidget*> all = buttons();
    const qsizetype next = all.indexOf(button) + (key == Qt::Key_Right ? 1 : -1);
    all[(next + all.size()) % all.size()]->setFocus(Qt::OtherFocusReason);
    return true;
}

}  // namespace ui
