#pragma once

#include <functional>
#include <map>
#include <memory>
#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <vector>

#include "platform/ui/CommandBarsStatic.h"
#include "platform/ui/ProgressCounter.h"

class QAction;
class QActionGroup;
class QKeyEvent;
class QMainWindow;
class QMenu;
class QToolBar;

namespace ui {

/// A command as it is designed. "&" in the caption stands before the mnemonic; the icon is a name of the icon
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
};

/// One command, or one menu, wherever it stands. Whatever is changed shows at once in every place.
class Command : public QObject {
    Q_OBJECT

  public:
    const QString& name() const { return m_name; }
    QString Caption() const;
    void setCaption(const QString& caption);
    QString Description() const { return m_description; }
    void setDescription(const QString& description);
    bool isEnabled() const;
    void setEnabled(bool enabled);

  private:
    friend class CommandBars;
    Command(const QString& name, const QString& description, QAction* action, QObject* parent);
    void describeButtons();

    QString m_name;
    QString m_description;
    QAction* m_action;
};

/// A list of texts that stands in a menu. Picking one starts the list's command; the picked one is ticked.
/// Indexes count from 1; one that does not exist is ignored, or gives an empty text.
class CommandList : public QObject {
    Q_OBJECT

  public:
    void Clear();
    void AddText(const QString& caption);
    int Count() const;
    QString Caption(int index) const;
    void setCaption(int index, const QString& caption);
    /// 0 before anything was picked.
    int SelectedIndex() const;

  private:
    friend class CommandBars;
    CommandList(QMenu* menu, QObject* parent);

    QAction* at(int index) const;

    QActionGroup* m_group;
    QMenu* m_menu;
};

/// The menus, tool bars and status bar of a main window, made from commands by name. In a list of names "|"
/// is a separator. A name that was not added is a mistake of the program and ends it.
///
/// However a command is started (menu, bar, pop-up menu, key) there is one signal for it. While its handler
/// runs, further commands are ignored.
class CommandBars : public QObject {
    Q_OBJECT

  public:
    explicit CommandBars(QMainWindow* window);

    void addCommand(const CommandDesign& design);
    /// A menu, to be named in a menu bar or in a list of items, or to be shown by showPopup().
    void addMenu(const QString& name, const QString& caption, const QString& description,
                 const QStringList& items);
    /// A menu that holds nothing but a list of texts, which starts as the command `listName`.
    void addListMenu(const QString& name, const QString& caption, const QString& description,
                     const QString& listName);
    void addMenuBar(const QString& name, const QStringList& menus);
    QToolBar* addToolBar(const QString& name, const QStringList& items, Qt::ToolButtonStyle style);

    /// Items of the status bar, from left to right; a stretching one takes what the others leave.
    void addStatic(const QString& name, const QString& text, int stretch);
    void addProgress(const QString& name, const QString& accessibleName);

    /// Null for a name that is none of that kind.
    Command* GetToolButton(const QString& name) const;
    Command* GetPopupMenu(const QString& name) const;
    CommandList* GetList(const QString& name) const;
    StaticItem* GetStatic(const QString& name) const;
    ProgressCounter* GetProgress(const QString& name) const;

    /// Shows a menu; returns at once.
    void showPopup(const QString& name, const QPoint& globalPosition);
    /// Tells which menu belongs to a widget at the moment it is asked for (empty: none). The menu key opens
    /// it, and keys of Scope::Popup act in the widget as far as that menu holds their command.
    void offerPopup(QWidget* where, std::function<QString()> menuNow);
    /// Moves the keyboard focus to the first button of the bars. Left and right go on from there, Esc goes
    /// back.
    void focusBars();

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    void commandStarted(const QString& name);
    /// The pointer, or the walk through a menu by keys, came to a command or menu.
    void commandPointed(const QString& name, const QString& description);

  private:
    void watch(QAction* action, const Command* command);
    void start(const QString& name);
    void addItems(QWidget* place, const QStringList& items);
    QAction* offeredAction(QWidget* where, const QKeyEvent* key) const;
    bool filterOffered(QWidget* where, QEvent* event);
    bool filterButton(QWidget* button, QEvent* event);
    QList<QWidget*> buttons() const;

    QMainWindow* m_window;
    std::map<QString, Command*> m_commands;
    std::map<QString, QMenu*> m_menus;
    std::map<QString, Command*> m_menuCommands;
    std::map<QString, CommandList*> m_lists;
    std::map<QString, StaticItem*> m_statics;
    std::map<QString, ProgressCounter*> m_progress;
    std::vector<QToolBar*> m_bars;
    std::map<QWidget*, std::function<QString()>> m_offers;
    QPointer<QWidget> m_focusBefore;
    bool m_running = false;
};

}  // namespace ui
