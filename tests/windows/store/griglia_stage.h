// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QDialog>
#include <QList>
#include <QLocale>
#include <QTest>
#include <QToolButton>

#include "modules/core/bGlobal.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/datagrid_support.h"
#include "platform/ui/DragContent.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/GroupTree.h"
#include "platform/ui/MessageDialog.h"
#include "support/SampleFolder.h"
#include "windows/shell/frmMain.h"
#include "windows/store/frmDestinatario.h"
#include "windows/store/frmGruppi.h"

namespace testing_support {

/// The main window over a program folder of its own, whose database contains the group "Clienti" (number 1).
/// Boxes and file dialogs answer from their queues; the end of the program is only noted.
class StoreStage {
  public:
    StoreStage();
    ~StoreStage();

    SampleFolder folder;
    QList<int> ends;  ///< exit statuses of the ends of the program that were asked for

    /// The main window, shown at its first use.
    frmMain& window();
    frmGruppi& groups() { return window().Gruppi(); }
    ui::GroupTree& tree() { return *groups().TREE; }
    ui::DataGrid& grd() { return window().grd(); }
    frmDestinatario& form();
    QString help() { return window().Commands().GetStatic("stcHelp")->Text(); }

    /// Insert rows into the tables directly; return their numbers.
    int addGroup(int parent, const QString& name);
    int addRecipient(int group, const QString& rgs, const QString& email = "a@x.it", bool sel = true);
    /// First column of the first row; empty for no row.
    static QString look(const QString& statement);
    /// All values of one column.
    static QStringList column(const QString& statement, const QString& name);
    static int count(const QString& table, const QString& where);

    /// A mouse click on a node, whose parents are opened first.
    void clickNode(const QString& key, Qt::MouseButton button = Qt::LeftButton);
    QPoint at(const QString& key);
    QPoint emptySpace();
    /// "name(name, name)" for the node and what the tree shows below it.
    QString shape(const QString& key = "K0");
    void dropRow(const QPoint& position);
    void dropNode(const QPoint& position);
    /// Starts a command as the menus do.
    void command(const QString& name);

    QPoint cell(int row, int column);
    void clickCell(int row, int column, Qt::MouseButton button = Qt::LeftButton);
    QStringList columnOfGrid(int column);
    /// Name of the pop-up menu that is open; it is closed.
    QString takePopup();

    /// Whether the button of a command on the bars is enabled.
    bool onBar(const QString& name) { return window().findChild<QToolButton*>(name)->isEnabled(); }

    /// Runs `act` as soon as the recipient form is open, while it is modal.
    void whenFormOpens(std::function<void(frmDestinatario&)> act);

    /// Expects exactly one box, with text, style and the title "Attenzione".
    bool oneBox(const QString& text, int style);
    /// The failure that ended the program, "" for none.
    QString failure();

  private:
    bool m_shown = false;
};

}  // namespace testing_support
