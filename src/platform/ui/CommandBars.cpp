// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/CommandBars.h"

#include <QActionGroup>
#include <QMainWindow>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

#include "platform/ui/MenuButtonAccess.h"

namespace ui {

namespace {

constexpr int statusMargin = 9;

template <class T>
T* find(const std::map<QString, T*>& items, const QString& name) {
    const auto found = items.find(name);
    return found == items.end() ? nullptr : found->second;
}

}  // namespace

Command::Command(const QString& name, const QString& description, QAction* action, QObject* parent)
    : QObject(parent), m_name(name), m_description(description), m_action(action) {
    action->setObjectName(name);
    // A button follows its action on its own, before this is signalled.
    connect(action, &QAction::changed, this, &Command::enableButtons);
}

void Command::setCaption(const QString& caption) {
    m_action->setText(caption);
}

void Command::setDescription(const QString& description) {
    m_description = description;
    describeButtons();
}

void Command::setEnabled(bool enabled) {
    m_enabled = enabled;
    m_action->setEnabled(m_enabled && m_reachable);
}

void Command::setReachable(bool reachable) {
    m_reachable = reachable;
    m_action->setEnabled(m_enabled && m_reachable);
}

void Command::setOnBars(bool on) {
    m_onBars = on;
    enableButtons();
}

int Command::Checked() const {
    return m_checked ? 1 : 0;
}

void Command::setChecked(int checked) {
    m_checked = checked != 0;
    m_action->setChecked(m_checked);
}

std::vector<QWidget*> Command::barButtons() const {
    std::vector<QWidget*> buttons;
    for (QObject* place : m_action->associatedObjects())
        if (auto* bar = qobject_cast<QToolBar*>(place))
            if (QWidget* button = bar->widgetForAction(m_action)) buttons.push_back(button);
    return buttons;
}

void Command::describeButtons() {
    for (QWidget* button : barButtons())
        button->setAccessibleDescription(m_description);
}

void Command::enableButtons() {
    for (QWidget* button : barButtons())
        button->setEnabled(m_action->isEnabled() && m_onBars);
}

CommandList::CommandList(QMenu* menu, QObject* parent)
    : QObject(parent), m_group(new QActionGroup(this)), m_menu(menu) {}

void CommandList::Clear() {
    qDeleteAll(m_group->actions());
}

void CommandList::AddText(const QString& caption) {
    auto* action = new QAction(caption, m_group);
    action->setCheckable(true);
    m_menu->addAction(action);
}

QString CommandList::Caption(int index) const {
    const QAction* action = m_group->actions().value(index - 1);
    return action ? action->text() : QString();
}

int CommandList::SelectedIndex() const {
    return static_cast<int>(m_group->actions().indexOf(m_group->checkedAction())) + 1;
}

CommandBars::CommandBars(QMainWindow* window) : QObject(window), m_window(window) {
    installMenuButtonAccess();
}

Command* CommandBars::makeCommand(const CommandDesign& design) {
    auto* action = new QAction(design.caption, this);
    // A name that the theme lacks, the empty one too, is looked for in all folders of the desktop.
    if (!design.icon.isEmpty()) action->setIcon(QIcon::fromTheme(design.icon));
    action->setShortcuts(design.keys);
    if (design.scope == CommandDesign::Scope::Popup) {
        // Shown beside the caption; offerPopup() makes them act.
        action->setShortcutContext(Qt::WidgetShortcut);
        action->setShortcutVisibleInContextMenu(true);
    } else {
        m_window->addAction(action);
    }
    action->setCheckable(design.checkable);
    auto* command = new Command(design.name, design.description, action, this);
    watch(action, command);
    return command;
}

void CommandBars::addCommand(const CommandDesign& design) {
    addCommand(design, [this, name = design.name] { Q_EMIT commandStarted(name); });
}

void CommandBars::addCommand(const CommandDesign& design, std::function<void()> handler) {
    Command* command = makeCommand(design);
    m_commands[design.name] = command;
    connect(command->m_action, &QAction::triggered, this, [this, command, handler = std::move(handler)] {
        command->m_action->setChecked(command->m_checked);
        run(handler);
    });
}

void CommandBars::watch(QAction* action, const Command* command) {
    connect(action, &QAction::hovered, this,
            [this, command] { Q_EMIT commandPointed(command->name(), command->Description()); });
}

void CommandBars::start(const QString& name) {
    run([&] { Q_EMIT commandStarted(name); });
}

void CommandBars::run(const std::function<void()>& handler) {
    if (m_running) return;
    const QScopedValueRollback running(m_running, true);
    handler();
}

void CommandBars::addMenu(const QString& name, const QString& caption, const QString& description,
                          const QStringList& items) {
    auto* menu = new QMenu(caption, m_window);
    menu->setObjectName(name);
    m_menus[name] = menu;
    m_menuCommands[name] = new Command(name, description, menu->menuAction(), this);
    watch(menu->menuAction(), m_menuCommands[name]);
    addItems(menu, items);
}

void CommandBars::addListMenu(const QString& name, const QString& caption, const QString& description,
                              const QString& listName) {
    addMenu(name, caption, description, {});
    auto* list = new CommandList(m_menus[name], this);
    m_lists[listName] = list;
    connect(list->m_group, &QActionGroup::triggered, this, [this, listName] { start(listName); });
    connect(list->m_group, &QActionGroup::hovered, this,
            [this, listName] { Q_EMIT commandPointed(listName, QString()); });
}

void CommandBars::addMenuBar(const QString& name, const QStringList& menus) {
    m_window->menuBar()->setObjectName(name);
    addItems(m_window->menuBar(), menus);
}

QToolBar* CommandBars::addToolBar(const QString& name, const QStringList& items, Qt::ToolButtonStyle style) {
    auto* bar = new QToolBar(name, m_window);
    bar->setObjectName(name);
    bar->setAccessibleName(name);
    bar->setToolButtonStyle(style);
    m_window->addToolBar(bar);
    addItems(bar, items);
    m_bars.push_back(bar);
    return bar;
}

void CommandBars::addItems(QWidget* place, const QStringList& items) {
    for (const QString& item : items) {
        if (item == QLatin1String("|")) {
            auto* separator = new QAction(place);
            separator->setSeparator(true);
            place->addAction(separator);
            continue;
        }
        auto* bar = qobject_cast<QToolBar*>(place);
        if (QWidget* tool = bar ? find(m_tools, item) : nullptr) {
            bar->addWidget(tool);
            continue;
        }
        Command* command = find(m_commands, item);
        if (!command) command = find(m_menuCommands, item);
        if (!command) command = GetCustomPopup(item);
        if (!command) qFatal("no command or menu %s", qUtf8Printable(item));
        place->addAction(command->m_action);
        command->describeButtons();
        if (!bar) continue;
        auto* button = static_cast<QToolButton*>(bar->widgetForAction(command->m_action));
        button->setObjectName(item);
        if (command->m_action->menu()) button->setPopupMode(QToolButton::InstantPopup);
        button->installEventFilter(this);
    }
}

void CommandBars::addStatic(const QString& name, const QString& text, int stretch) {
    auto* item = new StaticItem(text);
    item->setObjectName(name);
    m_statics[name] = item;
    m_window->statusBar()->setContentsMargins(statusMargin, 0, 0, 0);
    m_window->statusBar()->addPermanentWidget(item, stretch);
}

void CommandBars::addProgress(const QString& name, const QString& accessibleName) {
    auto* progress = new ProgressCounter;
    progress->setObjectName(name);
    progress->setAccessibleName(accessibleName);
    progress->setFixedSize(170, 16);
    m_progress[name] = progress;
    m_window->statusBar()->addPermanentWidget(progress);
}

Command* CommandBars::GetToolButton(const QString& name) const {
    return find(m_commands, name);
}

Command* CommandBars::GetPopupMenu(const QString& name) const {
    return find(m_menuCommands, name);
}

CommandList* CommandBars::GetList(const QString& name) const {
    return find(m_lists, name);
}

StaticItem* CommandBars::GetStatic(const QString& name) const {
    return find(m_statics, name);
}

ProgressCounter* CommandBars::GetProgress(const QString& name) const {
    return find(m_progress, name);
}

}  // namespace ui
