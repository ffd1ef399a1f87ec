// SPDX-License-Identifier: GPL-3.0-or-later
// Commands with their menus, tool bars and keys.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <set>
#include <vector>

#include "platform/ui/CommandBarsStatic.h"
#include "platform/ui/CommandBarsTools.h"
#include "platform/ui/ProgressCounter.h"

class QAction;
class QActionGroup;
class QKeyEvent;
class QMainWindow;
class QMenu;
class QToolBar;

namespace ui {

/// A command as it is designed. "&" in the caption is before the mnemonic; the icon is a name of the icon
/// theme, empty for none.
struct CommandDesign {
    /// Where the keys act: in the whole window, or only in a widget whose pop-up menu offers the command at
    /// that moment (CommandBars::offerPopup).
    enum class Scope { Window, Popup };

    QString name;
    QString caption;
    QString description;
    QString icon = {};
    QList<QKeySequence> keys = {};
    Scope scope = Scope::Window;
    /// A tool that shows a state. Starting it changes nothing by itself: the handler sets the state.
    bool checkable = false;
};

/// One command, or one menu, wherever it is. A change shows at once in every place.
class Command : public QObject {
    Q_OBJECT

  public:
    const QString& name() const { return m_name; }
    void setCaption(const QString& caption);
    QString Description() const { return m_description; }
    void setDescription(const QString& description);
    /// As it was set; a command on bars that are off still cannot be started.
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled);
    /// Whether its buttons on the tool bars are on; the menus do not follow.
    void setOnBars(bool on);
    /// 0 or 1.
    int Checked() const;
    void setChecked(int checked);

  private:
    friend class CommandBars;
    Command(const QString& name, const QString& description, QAction* action, QObject* parent);
    std::vector<QWidget*> barButtons() const;
    void describeButtons();
    void enableButtons();
    void setReachable(bool reachable);

    QString m_name;
    QString m_description;
    QAction* m_action;
    bool m_enabled = true;
    bool m_reachable = true;
    bool m_onBars = true;
    bool m_checked = false;
};

/// A list of texts in a menu. Picking one starts the list's command; the picked one is ticked.
/// Indexes count from 1; one that does not exist is ignored, or returns an empty text.
class CommandList : public QObject {
    Q_OBJECT

  public:
    void Clear();
    void AddText(const QString& caption);
    QString Caption(int index) const;
    /// 0 before anything was picked.
    int SelectedIndex() const;

  private:
    friend class CommandBars;
    CommandList(QMenu* menu, QObject* parent);

    QActionGroup* m_group;
    QMenu* m_menu;
};

/// The menus, tool bars and status bar of a main window, made from commands by name. In a list of names "|"
/// is a separator, and in that of a tool bar the lists, fields and panels may occur as well. A name that was
/// not added is a mistake of the program and ends it.
///
/// However a command is started (menu, bar, pop-up menu, key) there is one signal for it. While its handler
/// runs, further commands are ignored.
class CommandBars : public QObject {
    Q_OBJECT

  public:
    explicit CommandBars(QMainWindow* window);

    void addCommand(const CommandDesign& design);
    /// A command with a handler of its own, which runs in place of the signal.
    void addCommand(const CommandDesign& design, std::function<void()> handler);
    /// A menu, to be named in a menu bar or in a list of items, or to be shown by showPopup().
    void addMenu(const QString& name, const QString& caption, const QString& description,
                 const QStringList& items);
    /// A menu that contains nothing but a list of texts, which starts as the command `listName`.
    void addListMenu(const QString& name, const QString& caption, const QString& description,
                     const QString& listName);
    void addMenuBar(const QString& name, const QStringList& menus);
    QToolBar* addToolBar(const QString& name, const QStringList& items, Qt::ToolButtonStyle style);
    /// A bar that is off is shown disabled, and the keys of what is on no other bar are dead.
    void setBarEnabled(const QString& name, bool enabled);

    /// A menu that opens below its button on a tool bar: the button's icon, and keys that open it.
    void setMenuButton(const QString& name, const QString& icon, const QList<QKeySequence>& keys = {});
    /// Tools for the lists of items of tool bars. Choosing from a list starts a command of its name.
    ComboTool* addComboBox(const QString& name, const QString& description, int width);
    EditTool* addEdit(const QString& name, const QString& label, const QString& description);
    /// A button that opens a panel below itself; popupOpening() comes first.
    void addCustomPopup(const CommandDesign& design, QWidget* panel);

    /// Items of the status bar, from left to right; a stretching one takes what the others leave.
    void addStatic(const QString& name, const QString& text, int stretch);
    void addProgress(const QString& name, const QString& accessibleName);

    /// Null for a name that is none of that kind.
    Command* GetToolButton(const QString& name) const;
    Command* GetPopupMenu(const QString& name) const;
    CommandList* GetList(const QString& name) const;
    StaticItem* GetStatic(const QString& name) const;
    ProgressCounter* GetProgress(const QString& name) const;
    ComboTool* GetComboBox(const QString& name) const;
    EditTool* GetEdit(const QString& name) const;
    Command* GetCustomPopup(const QString& name) const;

    void closePopup(const QString& name);
    /// Shows a menu; returns at once.
    void showPopup(const QString& name, const QPoint& globalPosition);
    /// Says which menu belongs to a widget at the moment it is asked for (empty: none). The menu key opens
    /// it, and keys of Scope::Popup act in the widget as far as that menu has their command.
    void offerPopup(QWidget* where, std::function<QString()> menuNow);
    /// Moves the keyboard focus to the first button of the bars. Left and right move from there, Esc goes
    /// back.
    void focusBars();

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    void commandStarted(const QString& name);
    /// The pointer, or the walk through a menu by keys, came to a command or menu.
    void commandPointed(const QString& name, const QString& description);
    void textEdited(const QString& name);
    void popupOpening(const QString& name);

  private:
    struct CustomPopup {
        Command* button;
        QWidget* panel;
    };

    Command* makeCommand(const CommandDesign& design);
    void watch(QAction* action, const Command* command);
    void start(const QString& name);
    void run(const std::function<void()>& handler);
    void addItems(QWidget* place, const QStringList& items);
    QAction* offeredAction(QWidget* where, const QKeyEvent* key) const;
    bool filterOffered(QWidget* where, QEvent* event);
    bool filterButton(QWidget* button, QEvent* event);
    bool filterTool(QWidget* tool, const QEvent* event);
    bool canBeReached(const QAction* action) const;
    QPoint below(QAction* action) const;
    QList<QWidget*> buttons() const;

    QMainWindow* m_window;
    std::map<QString, Command*> m_commands;
    std::map<QString, QMenu*> m_menus;
    std::map<QString, Command*> m_menuCommands;
    std::map<QString, CommandList*> m_lists;
    std::map<QString, StaticItem*> m_statics;
    std::map<QString, ProgressCounter*> m_progress;
    std::map<QString, QWidget*> m_tools;
    std::map<QString, CustomPopup> m_customPopups;
    std::vector<QToolBar*> m_bars;
    std::set<const QToolBar*> m_offBars;
    std::map<QWidget*, std::function<QString()>> m_offers;
    QPointer<QWidget> m_focusBefore;
    bool m_running = false;
};

}  // namespace ui
