// SPDX-License-Identifier: GPL-3.0-or-later
// The tools of a bar that are more than a button: lists, fields, buttons that open a panel.
#include "platform/ui/CommandBarsTools.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include "platform/ui/CommandBars.h"
#include "platform/ui/Controls.h"
#include "platform/ui/LineEdit.h"
#include "platform/ui/Reachable.h"

namespace ui {

namespace {

constexpr int labelGap = 8;
constexpr int leastHeight = 24;  // to be hit

}  // namespace

ComboTool::ComboTool(const QString& name, const QString& description, int width) {
    setObjectName(name);
    setLineEdit(new LineEdit);  // which makes it editable
    setInsertPolicy(NoInsert);
    setMaxVisibleItems(20);
    setFixedWidth(width);
    setMinimumHeight(leastHeight);
    setDescription(description);
    connect(this, &QComboBox::activated, this, [this] { Q_EMIT chosen(); });
    lineEdit()->installEventFilter(this);
}

// The box sends Return to its field twice.
bool ComboTool::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QComboBox::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return QComboBox::eventFilter(watched, event);
    Q_EMIT chosen();
    return true;
}

void ComboTool::setDescription(const QString& description) {
    m_description = description;
    setAccessibleName(description);
    setToolTip(description);
}

EditTool::EditTool(const QString& name, const QString& label, const QString& description)
    : m_label(new QLabel(this)), m_edit(new LineEdit(this)) {
    m_label->setObjectName(name + "Label");
    m_label->setBuddy(m_edit);
    m_edit->setObjectName(name);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(labelGap, 0, labelGap, 0);
    row->setSpacing(labelGap);
    row->addWidget(m_label);
    row->addWidget(m_edit, 1);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setFocusProxy(m_edit);
    setLabel(label);
    setDescription(description);
    connect(m_edit, &QLineEdit::textEdited, this, [this] { Q_EMIT textEdited(); });
}

void EditTool::setLabel(const QString& label) {
    m_label->setText(label);
    m_edit->setAccessibleName(spokenCaption(label));
}

void EditTool::setDescription(const QString& description) {
    m_description = description;
    m_edit->setAccessibleDescription(description);
}

ComboTool* CommandBars::addComboBox(const QString& name, const QString& description, int width) {
    auto* combo = new ComboTool(name, description, width);
    m_tools[name] = combo;
    connect(combo, &ComboTool::chosen, this, [this, name] { start(name); });
    combo->installEventFilter(this);
    return combo;
}

EditTool* CommandBars::addEdit(const QString& name, const QString& label, const QString& description) {
    auto* edit = new EditTool(name, label, description);
    m_tools[name] = edit;
    connect(edit, &EditTool::textEdited, this, [this, name] { Q_EMIT textEdited(name); });
    edit->installEventFilter(this);
    return edit;
}

void CommandBars::addCustomPopup(const CommandDesign& design, QWidget* panel) {
    Command* button = makeCommand(design);
    m_customPopups[design.name] = {button, panel};
    panel->setWindowFlags(Qt::Popup);
    connect(button->m_action, &QAction::triggered, this, [this, name = design.name] {
        if (!isReachable(*m_window)) return;
        const CustomPopup& popup = m_customPopups.at(name);
        Q_EMIT popupOpening(name);
        popup.panel->adjustSize();
        popup.panel->move(below(popup.button->m_action));
        popup.panel->show();
        popup.panel->setFocus(Qt::PopupFocusReason);
    });
}

QPoint CommandBars::below(QAction* action) const {
    for (const QToolBar* bar : m_bars)
        if (const QWidget* button = bar->widgetForAction(action); button && button->isVisible())
            return button->mapToGlobal(QPoint(0, button->height()));
    return m_window->mapToGlobal(m_window->rect().center());
}

void CommandBars::setMenuButton(const QString& name, const QString& icon, const QList<QKeySequence>& keys) {
    QMenu* menu = m_menus.at(name);
    QAction* action = menu->menuAction();
    action->setIcon(QIcon::fromTheme(icon));
    action->setShortcuts(keys);
    m_window->addAction(action);
    connect(action, &QAction::triggered, this, [this, menu, action] { menu->popup(below(action)); });
}

void CommandBars::setBarEnabled(const QString& name, bool enabled) {
    for (QToolBar* bar : m_bars) {
        if (bar->objectName() != name) continue;
        bar->setEnabled(enabled);
        if (enabled)
            m_offBars.erase(bar);
        else
            m_offBars.insert(bar);
    }
    for (const auto& commands : {m_commands, m_menuCommands})
        for (const auto& [commandName, command] : commands)
            command->setReachable(canBeReached(command->m_action));
    for (const auto& [popupName, popup] : m_customPopups)
        popup.button->setReachable(canBeReached(popup.button->m_action));
}

bool CommandBars::canBeReached(const QAction* action) const {
    bool stands = false;
    for (QObject* place : action->associatedObjects()) {
        const auto* bar = qobject_cast<QToolBar*>(place);
        const auto* menu = qobject_cast<QMenu*>(place);
        if (!bar && !menu) continue;
        stands = true;
        if (bar ? !m_offBars.count(bar) : canBeReached(menu->menuAction())) return true;
    }
    return !stands;
}

ComboTool* CommandBars::GetComboBox(const QString& name) const {
    const auto found = m_tools.find(name);
    return found == m_tools.end() ? nullptr : qobject_cast<ComboTool*>(found->second);
}

EditTool* CommandBars::GetEdit(const QString& name) const {
    const auto found = m_tools.find(name);
    return found == m_tools.end() ? nullptr : qobject_cast<EditTool*>(found->second);
}

Command* CommandBars::GetCustomPopup(const QString& name) const {
    const auto found = m_customPopups.find(name);
    return found == m_customPopups.end() ? nullptr : found->second.button;
}

void CommandBars::closePopup(const QString& name) {
    const auto found = m_customPopups.find(name);
    if (found != m_customPopups.end()) found->second.panel->hide();
}

bool CommandBars::filterTool(QWidget* tool, const QEvent* event) {
    if (event->type() != QEvent::Enter) return false;
    const auto* combo = qobject_cast<ComboTool*>(tool);
    const auto* edit = qobject_cast<EditTool*>(tool);
    if (combo) Q_EMIT commandPointed(combo->objectName(), combo->Description());
    if (edit) Q_EMIT commandPointed(edit->focusProxy()->objectName(), edit->Description());
    return false;
}

}  // namespace ui
