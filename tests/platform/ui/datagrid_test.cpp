// SPDX-License-Identifier: GPL-3.0-or-later
// The grid: cells, marks, keys, mouse and what assistive programs read of it. Above 500 lines: one control,
// whose tests share one model and its helpers.
#include <QAccessible>
#include <QDialog>
#include <QHeaderView>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include "platform/ui/DataGrid.h"
#include "platform/ui/datagrid_support.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/ItemViewAccess.h"
#include "support/TestClass.h"

namespace datagrid_test {

using ui::DataGrid;

namespace {

/// A grid of three rows, arranged as the program arranges it: box and address first, numbers hidden.
struct Window {
    TestList list;
    QWidget window;
    DataGrid* grid = new DataGrid(&window);
    ui::DataControl data;
    QSignalSpy filled{grid, &DataGrid::afterDataRefresh};
    QSignalSpy click{grid, &DataGrid::click};
    QSignalSpy dblClick{grid, &DataGrid::dblClick};
    QSignalSpy mouseMove{grid, &DataGrid::mouseMove};
    QSignalSpy mouseUp{grid, &DataGrid::mouseUp};

    explicit Window(bool fill = true) {
        list.add(1, "Cedro", "c@x.it", true);
        list.add(1, "Acero", "a@x.it", false);
        list.add(1, "Betulla", "b@x.it", true);
        QObject::connect(grid, &DataGrid::afterDataRefresh, grid, [this] { arrange(); });
        grid->setDataSource(&data);
        data.setConnectionString(list.connection());
        data.setRecordSource(TestList::source(1));
        window.resize(700, 300);
        grid->resize(700, 300);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        grid->setFocus();
        if (fill) QVERIFY(data.Refresh().ok());
    }
    void arrange() {
        for (int column : {0, 1, 2})
            grid->setColWidth(column, 0);
        grid->setColPosition(22, 2);
        grid->setColPosition(13, 3);
        grid->setTextMatrix(0, 2, "Send");
        grid->setTextMatrix(0, 3, "Email");
    }
    QPoint cell(int row, int column) {
        return grid->visualRect(grid->model()->index(row - 1, column)).center();
    }
    QPoint empty() { return {300, 250}; }
};

}  // namespace

class TestDataGrid : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void emptyGridHasTheHeadingRowAlone() {
        Window w(false);
        QCOMPARE(w.grid->Rows(), 1);
        QCOMPARE(w.grid->Row(), 0);
        QCOMPARE(w.grid->TextMatrix(0, 3), "");
        w.list.run("DELETE FROM [tb_destinatari]");
        QVERIFY(w.data.Refresh().ok());
        QCOMPARE(w.grid->Rows(), 1);
        QCOMPARE(w.grid->Row(), 0);
        QCOMPARE(w.grid->TextMatrix(0, 3), "Email");
    }

    void columnsComeInTheTablesOrderAfterTheFixedOne() {
        Window w(false);
        QStringList heads;
        disconnect(w.grid, &DataGrid::afterDataRefresh, w.grid, nullptr);
        QVERIFY(w.data.Refresh().ok());
        for (int column = 0; column < 5; ++column)
            heads << w.grid->TextMatrix(0, column);
        QCOMPARE(heads, (QStringList{"", "id", "id_grp", "rgs", "nom"}));
        QCOMPARE(w.grid->TextMatrix(0, 22), "sel");
        QCOMPARE(w.grid->TextMatrix(0, 12), "email");
        QCOMPARE(w.grid->TextMatrix(0, 23), "");
    }

    void movedColumnTakesThePositionAndShiftsTheOthers() {
        Window w;
        QCOMPARE(w.grid->TextMatrix(1, 3), "a@x.it");
        QCOMPARE(w.grid->TextMatrix(1, 4), "1");
        QCOMPARE(w.grid->TextMatrix(1, 5), "Acero");
        QCOMPARE(w.grid->TextMatrix(3, 5), "Cedro");
        QCOMPARE(w.grid->TextMatrix(0, 13), "fax");
        QCOMPARE(w.grid->TextMatrix(0, 22), "campo9");
    }

    void rearrangementIsRepeatedOnEachFillAndWidthsStay() {
        Window w;
        w.grid->setColWidth(3, 230);
        w.grid->horizontalHeader()->resizeSection(5, 77);  // as the user does
        QVERIFY(w.data.Refresh().ok());
        QCOMPARE(w.filled.size(), 2);
        QCOMPARE(w.grid->TextMatrix(1, 3), "a@x.it");
        QCOMPARE(w.grid->columnWidth(3), 230);
        QCOMPARE(w.grid->columnWidth(5), 77);
        for (const int column : {0, 1, 4})
            QVERIFY(w.grid->isColumnHidden(column));
        for (const int column : {2, 3, 5, 22})
            QVERIFY(!w.grid->isColumnHidden(column));
    }

    void firstRowIsCurrentAfterAFill() {
        Window w;
        QCOMPARE(w.grid->Row(), 1);
        QVERIFY(!w.grid->isColumnHidden(w.grid->Col()));
        mouse::click(w.grid, w.cell(3, 5));
        QCOMPARE(w.grid->Row(), 3);
        QVERIFY(w.data.Refresh().ok());
        QCOMPARE(w.grid->Row(), 1);
        QCOMPARE(w.grid->Col(), 5);
        QVERIFY(w.grid->selectionModel()->isRowSelected(0));
    }

    void fillIsASnapshot() {
        Window w;
        w.list.run("UPDATE [tb_destinatari] SET email = 'new@x.it'");
        w.list.run("DELETE FROM [tb_destinatari] WHERE rgs = 'Cedro'");
        QCOMPARE(w.grid->Rows(), 4);
        QCOMPARE(w.grid->TextMatrix(1, 3), "a@x.it");
        QCOMPARE(w.grid->TextMatrix(3, 5), "Cedro");
        QVERIFY(w.data.Refresh().ok());
        QCOMPARE(w.grid->Rows(), 3);
        QCOMPARE(w.grid->TextMatrix(1, 3), "new@x.it");
    }

    void failedRefreshKeepsTheRowsAndFiresNothing() {
        Window w;
        w.data.setRecordSource("SELECT * FROM nessuna");
        QVERIFY(!w.data.Refresh().ok());
        QCOMPARE(w.grid->Rows(), 4);
        QCOMPARE(w.filled.size(), 1);
    }

    void checkedStateComesFromTheColumnAndIsSetByHand() {
        Window w;
        mouse::click(w.grid, w.cell(1, 2));
        QCOMPARE(w.grid->CellChecked(), 2);
        w.grid->setCellChecked(1);
        QCOMPARE(w.grid->CellChecked(), 1);
        mouse::click(w.grid, w.cell(2, 2));
        QCOMPARE(w.grid->CellChecked(), 1);
        w.grid->setCellChecked(2);
        QCOMPARE(w.grid->CellChecked(), 2);
        mouse::click(w.grid, w.cell(1, 2));
        QCOMPARE(w.grid->CellChecked(), 1);
        QVERIFY(w.data.Refresh().ok());
        QCOMPARE(w.grid->CellChecked(), 2);
    }

    void checkOfATextCellChangesNothing() {
        Window w;
        mouse::click(w.grid, w.cell(1, 3));
        w.grid->setCellChecked(1);
        QCOMPARE(w.grid->TextMatrix(1, 3), "a@x.it");
        QCOMPARE(w.grid->CellChecked(), 2);
    }

    void textWrittenIntoTheBoxColumnChecksIt() {
        Window w;
        for (const auto& [text, state] : {std::pair("True", 1), {"False", 2}, {"Vero", 1}, {"", 2}}) {
            w.grid->setTextMatrix(1, 2, text);
            mouse::click(w.grid, w.cell(1, 2));
            QCOMPARE(w.grid->CellChecked(), state);
        }
    }

    void writtenCellsStayWithTheirRowWhenOthersAreRemoved() {
        Window w;
        w.grid->setTextMatrix(3, 5, "Quercia");
        w.grid->RemoveItem(1);
        QCOMPARE(w.grid->Rows(), 3);
        QCOMPARE(w.grid->TextMatrix(1, 5), "Betulla");
        QCOMPARE(w.grid->TextMatrix(2, 5), "Quercia");
        w.grid->setTextMatrix(9, 5, "x");
        w.grid->setTextMatrix(1, 99, "x");
        w.grid->RemoveItem(0);
        w.grid->RemoveItem(7);
        QCOMPARE(w.grid->Rows(), 3);
    }

    void removingTheLastRowLeavesTheHeadingRow() {
        Window w;
        for (int i = 0; i < 3; ++i)
            w.grid->RemoveItem(w.grid->Row());
        QCOMPARE(w.grid->Rows(), 1);
        QCOMPARE(w.grid->Row(), 0);
        QCOMPARE(w.grid->TextMatrix(0, 3), "Email");
        QCOMPARE(w.grid->TextMatrix(1, 3), "");
    }

    void clearEmptiesAllCellsAndHeadingsAndKeepsTheRows() {
        Window w;
        w.grid->setTextMatrix(2, 5, "x");
        w.grid->Clear();
        QCOMPARE(w.grid->Rows(), 4);
        QCOMPARE(w.grid->TextMatrix(0, 3), "");
        QCOMPARE(w.grid->TextMatrix(1, 3), "");
        QCOMPARE(w.grid->TextMatrix(2, 5), "");
        w.grid->setRows(1);
        QCOMPARE(w.grid->Rows(), 1);
        w.grid->setRows(5);
        QCOMPARE(w.grid->Rows(), 1);
        QVERIFY(w.data.Refresh().ok());
        QCOMPARE(w.grid->TextMatrix(1, 3), "a@x.it");
    }

    void clickSetsTheCurrentCellFirst() {
        Window w;
        int row = 0;
        int column = 0;
        connect(w.grid, &DataGrid::click, &w.window, [&] {
            row = w.grid->Row();
            column = w.grid->Col();
        });
        mouse::click(w.grid, w.cell(2, 5));
        QCOMPARE(row, 2);
        QCOMPARE(column, 5);
        QVERIFY(w.grid->selectionModel()->isRowSelected(1));
        QCOMPARE(w.mouseUp.size(), 1);
    }

    void headingsAndEmptySpaceAreNoCells() {
        Window w;
        mouse::click(w.grid, w.cell(2, 5));
        mouse::click(w.grid, w.empty());
        QTest::mouseClick(w.grid->horizontalHeader()->viewport(), Qt::LeftButton, {}, {30, 10});
        QTest::mouseDClick(w.grid->horizontalHeader()->viewport(), Qt::LeftButton, {}, {30, 10});
        QCOMPARE(w.click.size(), 1);
        QCOMPARE(w.dblClick.size(), 0);
        QCOMPARE(w.grid->Row(), 2);
    }

    void rightPressMakesTheRowCurrentAndTheReleaseIsReported() {
        Window w;
        mouse::click(w.grid, w.cell(3, 5), Qt::RightButton);
        QCOMPARE(w.grid->Row(), 3);
        QCOMPARE(w.click.size(), 0);
        QCOMPARE(w.mouseUp.size(), 1);
        QCOMPARE(w.mouseUp[0][0].value<Qt::MouseButton>(), Qt::RightButton);
        QCOMPARE(w.mouseUp[0][1].toPoint(), w.grid->viewport()->mapToGlobal(w.cell(3, 5)));
        mouse::click(w.grid, w.empty(), Qt::RightButton);
        QCOMPARE(w.mouseUp.size(), 2);
        QCOMPARE(w.grid->Row(), 3);
    }

    void doubleClickEmitsOneClickAndOneDoubleClick() {
        Window w;
        QTest::mouseDClick(w.window.windowHandle(), Qt::LeftButton, {},
                           mouse::inWindow(w.grid, w.cell(2, 5)));
        QCOMPARE(w.click.size(), 1);
        QCOMPARE(w.dblClick.size(), 1);
        QCOMPARE(w.grid->Row(), 2);
    }

    void releaseOnAnotherCellIsNoClick() {
        Window w;
        mouse::press(w.grid, w.cell(1, 5));
        mouse::release(w.grid, w.cell(3, 5));
        QCOMPARE(w.click.size(), 0);
        QCOMPARE(w.mouseUp.size(), 1);
    }

    void moveReportsTheButtonsAndDoesNotDragTheSelectionAlong() {
        Window w;
        mouse::move(w.grid, w.cell(1, 5));
        QCOMPARE(w.mouseMove.last()[0].value<Qt::MouseButtons>(), Qt::NoButton);
        mouse::press(w.grid, w.cell(1, 5));
        mouse::move(w.grid, w.cell(3, 5));
        QCOMPARE(w.mouseMove.last()[0].value<Qt::MouseButtons>(), Qt::LeftButton);
        QCOMPARE(w.grid->Row(), 1);
        mouse::release(w.grid, w.cell(3, 5));
    }

    void moveOverTheHeadingsHasNoButton() {
        Window w;
        QTest::mouseMove(w.grid->horizontalHeader()->viewport(), {30, 10});
        QCOMPARE(w.mouseMove.size(), 1);
        QCOMPARE(w.mouseMove[0][0].value<Qt::MouseButtons>(), Qt::NoButton);
    }

    void dragOfARowIsNoClick() {
        Window w;
        connect(w.grid, &DataGrid::mouseMove, &w.window, [&](Qt::MouseButtons buttons) {
            if (buttons & Qt::LeftButton) w.grid->Drag();
        });
        QCOMPARE(mouse::startDrag(w.grid, w.cell(2, 5)), 1);
        mouse::release(w.grid, w.cell(2, 5));
        QCOMPARE(w.click.size(), 0);
        QCOMPARE(w.grid->Row(), 2);
    }

    void dragNeedsAPressOnARowAndSomeWay() {
        Window w;
        connect(w.grid, &DataGrid::mouseMove, &w.window, [&](Qt::MouseButtons buttons) {
            if (buttons & Qt::LeftButton) w.grid->Drag();
        });
        mouse::press(w.grid, w.cell(1, 5));
        mouse::move(w.grid, w.cell(1, 5) + QPoint(1, 1));
        mouse::release(w.grid, w.cell(1, 5) + QPoint(1, 1));
        QCOMPARE(w.click.size(), 1);  // a small move still counts as a click
        QCOMPARE(mouse::startDrag(w.grid, w.empty()), 0);
        mouse::release(w.grid, w.empty());
    }

    void spaceClicksTheBoxOfTheCurrentRow() {
        Window w;
        mouse::click(w.grid, w.cell(2, 5));
        int column = -1;
        connect(w.grid, &DataGrid::click, &w.window, [&] { column = w.grid->Col(); });
        QTest::keyClick(w.grid, Qt::Key_Space);
        QCOMPARE(column, 2);
        QCOMPARE(w.grid->Row(), 2);
        QCOMPARE(w.grid->Col(), 5);
    }

    void tabLeavesTheGrid() {
        Window w;
        QWidget other(&w.window);
        other.setFocusPolicy(Qt::StrongFocus);
        other.show();
        QTest::keyClick(w.grid, Qt::Key_Tab);
        QVERIFY(other.hasFocus());
    }

    void cutTextIsShownByAToolTip() {
        Window w;
        w.grid->setColWidth(5, 40);
        w.grid->setTextMatrix(1, 5, "Un nome <b>lungo");
        const auto ask = [&](int column) {
            QHelpEvent help(QEvent::ToolTip, w.cell(1, column),
                            w.grid->viewport()->mapToGlobal(w.cell(1, column)));
            QCoreApplication::sendEvent(w.grid->viewport(), &help);
            return QToolTip::isVisible() ? QToolTip::text() : QString();
        };
        QCOMPARE(ask(5), "<span>Un nome &lt;b&gt;lungo</span>");
        w.grid->setColWidth(5, 300);
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        QCOMPARE(ask(5), "");
    }

    void rowsHeadsAndMarginsHaveTheirSizes() {
        Window w;
        QCOMPARE(w.grid->rowHeight(0), qMax(24, w.grid->fontMetrics().height() + 6));
        QCOMPARE(w.grid->horizontalHeader()->height(), qMax(26, w.grid->fontMetrics().height() + 8));
        QFont large = w.grid->font();
        large.setPointSize(30);
        w.grid->setFont(large);
        QVERIFY(w.grid->rowHeight(0) > 30);
    }

    void coloursGoWhereTheyBelong() {
        Window w;
        w.grid->setLineColor(Qt::red);
        w.grid->setFixedColor(Qt::green);
        w.grid->setBackColor(QColor(253, 253, 253));
        w.grid->setAlternateBackColor(QColor(10, 20, 30));
        QCOMPARE(w.grid->palette().color(QPalette::Base), QColor(253, 253, 253));
        const QImage picture = w.grid->grab().toImage();
        const QPoint head = w.grid->horizontalHeader()->geometry().topLeft() + QPoint(4, 4);
        QCOMPARE(picture.pixelColor(head), QColor(Qt::green));
        // below a column that is not the current one, whose heading has a line of its own
        const int other = w.grid->currentIndex().column() == 5 ? 6 : 5;
        const QPoint rule(w.grid->horizontalHeader()->sectionViewportPosition(other) + 4,
                          w.grid->horizontalHeader()->geometry().bottom());
        QCOMPARE(picture.pixelColor(rule), QColor(Qt::red));
        const QRect row2 = w.grid->visualRect(w.grid->model()->index(1, 5));
        const QImage body = w.grid->viewport()->grab().toImage();
        QCOMPARE(body.pixelColor(row2.right() - 3, row2.top() + 2), QColor(10, 20, 30));
        const QColor line = body.pixelColor(row2.center().x(), row2.bottom());
        QCOMPARE(line, QColor(255, 165, 165));
    }

    void emptyTextIsDrawnOnlyWithoutRows() {
        Window w(false);
        const auto dark = [&] {
            const QImage picture = w.grid->viewport()->grab().toImage();
            int count = 0;
            for (int y = 130; y < picture.height() - 4; ++y)
                for (int x = 4; x < picture.width() - 4; ++x)
                    count += picture.pixelColor(x, y).lightness() < 200;
            return count;
        };
        QCOMPARE(dark(), 0);
        w.grid->setEmptyText("Nessun destinatario");
        QVERIFY(dark() > 20);
        QCOMPARE(w.grid->Rows(), 1);
        QVERIFY(w.data.Refresh().ok());
        QCOMPARE(dark(), 0);
    }

    void aNoticeIsShownOverTheRowsUntilTheNextFill() {
        Window w;
        mouse::click(w.grid, w.cell(1, 5));
        const QImage rows = w.grid->viewport()->grab().toImage();
        w.grid->setNotice("Impossibile leggere");
        QVERIFY(w.grid->viewport()->grab().toImage() != rows);
        QCOMPARE(QAccessible::queryAccessibleInterface(w.grid)->text(QAccessible::Description),
                 "Impossibile leggere");
        for (QSignalSpy* told : {&w.click, &w.dblClick, &w.mouseMove, &w.mouseUp})
            told->clear();
        mouse::click(w.grid, w.cell(2, 2));
        mouse::click(w.grid, w.cell(2, 5), Qt::RightButton);
        QTest::mouseDClick(w.grid->viewport(), Qt::LeftButton, {}, w.cell(2, 5));
        QTest::keyClick(w.grid, Qt::Key_Space);
        QTest::keyClick(w.grid, Qt::Key_Down);
        for (const QSignalSpy* told : {&w.click, &w.dblClick, &w.mouseMove, &w.mouseUp})
            QVERIFY(told->isEmpty());
        QCOMPARE(w.grid->Row(), 1);
        QCOMPARE(w.grid->Rows(), 4);
        QVERIFY(w.grid->itemActions(w.grid->model()->index(0, 2)).empty());
        QVERIFY(w.data.Refresh().ok());
        QCOMPARE(w.grid->Notice(), QString());
        mouse::click(w.grid, w.cell(2, 2));
        QCOMPARE(w.click.size(), 1);
    }

    void theCurrentRowIsChosenByATextOfItsRow() {
        Window w;
        QVERIFY(w.grid->setCurrentRow(3, "c@x.it"));
        QCOMPARE(w.grid->Row(), 3);
        QVERIFY(!w.grid->setCurrentRow(3, "d@x.it"));
        QCOMPARE(w.grid->Row(), 3);
    }

    void rowsAreNamedByTheColumnThatWasChosen() {
        Window w;
        w.grid->setRowNameColumn(3);
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(w.grid);
        QCOMPARE(face->tableInterface()->rowDescription(1), "b@x.it");
        QAccessibleInterface* box = face->tableInterface()->cellAt(2, 2);
        QCOMPARE(box->tableCellInterface()->rowHeaderCells().constFirst()->text(QAccessible::Name), "c@x.it");
        w.grid->setTextMatrix(3, 3, "");
        QCOMPARE(face->tableInterface()->rowDescription(2), "3");
    }

    void assistiveProgramsSeeATableWithHeadsAndCheckableCells() {
        Window w;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(w.grid);
        QCOMPARE(face->role(), QAccessible::Table);
        QAccessibleTableInterface* table = face->tableInterface();
        QVERIFY(table);
        QCOMPARE(table->rowCount(), 3);
        QCOMPARE(table->columnDescription(3), "Email");
        QCOMPARE(table->rowDescription(1), "2");
        QCOMPARE(table->cellAt(0, 3)->text(QAccessible::Name), "a@x.it");
        QAccessibleInterface* box = table->cellAt(2, 2);
        QCOMPARE(box->text(QAccessible::Name), "Send");
        QVERIFY(box->state().checkable);
        QVERIFY(box->state().checked);
        QVERIFY(!table->cellAt(0, 2)->state().checked);
        QVERIFY(!table->cellAt(0, 3)->state().checkable);
        QCOMPARE(face->indexOfChild(box), 3 * 24 + 3);
        QCOMPARE(face->child(3 * 24 + 3), box);
        QCOMPARE(box->tableCellInterface()->columnHeaderCells().constFirst()->text(QAccessible::Name),
                 "Send");
        QCOMPARE(face->childAt(box->rect().center().x(), box->rect().center().y()), box);
    }

    void assistiveProgramsFindEachCellsPlaceAndItsHeads() {
        Window w;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(w.grid);
        QAccessibleTableInterface* table = face->tableInterface();
        QAccessibleInterface* cell = table->cellAt(2, 3);
        QCOMPARE(cell->parent(), face);
        QCOMPARE(cell->role(), QAccessible::Cell);
        QAccessibleTableCellInterface* place = cell->tableCellInterface();
        QCOMPARE(place->table(), face);
        QCOMPARE(place->rowIndex(), 2);
        QCOMPARE(place->columnIndex(), 3);
        QCOMPARE(place->rowExtent() * place->columnExtent(), 1);
        QAccessibleInterface* head = place->columnHeaderCells().constFirst();
        QCOMPARE(head->role(), QAccessible::ColumnHeader);
        QCOMPARE(head->parent(), face);
        QCOMPARE(face->child(face->indexOfChild(head)), head);
        QVERIFY(!head->state().invisible);
        QCOMPARE(head->rect().left(), cell->rect().left());
        QVERIFY(head->rect().bottom() < cell->rect().top());
        QAccessibleInterface* rowHead = place->rowHeaderCells().constFirst();
        QCOMPARE(rowHead->role(), QAccessible::RowHeader);
        QVERIFY(rowHead->state().invisible);  // the grid draws none
        QCOMPARE(face->child(face->indexOfChild(rowHead)), rowHead);
        QCOMPARE(face->indexOfChild(face), -1);
    }

    void assistiveProgramsFindTheSelectedRowAndSelectAnother() {
        Window w;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(w.grid);
        QAccessibleTableInterface* table = face->tableInterface();
        QVERIFY(table->selectRow(1));
        QCOMPARE(w.grid->Row(), 2);
        QCOMPARE(table->selectedRows(), QList<int>{1});
        QCOMPARE(table->selectedRowCount(), 1);
        QVERIFY(table->isRowSelected(1));
        QVERIFY(!table->isRowSelected(0));
        QVERIFY(table->selectedCells().contains(table->cellAt(1, 3)));
        QCOMPARE(table->selectedCellCount(), static_cast<int>(table->selectedCells().size()));
        QVERIFY(table->cellAt(1, 3)->state().selected);
        QVERIFY(face->focusChild());
        QCOMPARE(face->focusChild()->tableCellInterface()->rowIndex(), 1);
        for (const int nowhere : {-1, 3})
            QVERIFY(!table->selectRow(nowhere));
        QVERIFY(!table->selectColumn(3));
        QVERIFY(!table->unselectRow(1));
        QCOMPARE(table->selectedRows(), QList<int>{1});
        QVERIFY(table->selectedColumns().isEmpty());
    }

    void assistiveProgramsForgetRowsThatAreGoneAndKeepTheOthers() {
        Window w;
        QAccessibleTableInterface* table = QAccessible::queryAccessibleInterface(w.grid)->tableInterface();
        const QAccessible::Id cell = QAccessible::uniqueId(table->cellAt(2, 3));
        QAccessibleTableModelChangeEvent changed(w.grid, QAccessibleTableModelChangeEvent::DataChanged);
        QAccessibleTableModelChangeEvent reset(w.grid, QAccessibleTableModelChangeEvent::ModelReset);
        table->modelChange(&changed);
        table->modelChange(&reset);
        QVERIFY(QAccessible::accessibleInterface(cell));
        QVERIFY(w.data.Refresh().ok());
        table->modelChange(&reset);
        QVERIFY(!QAccessible::accessibleInterface(cell));
        QCOMPARE(table->cellAt(2, 3)->text(QAccessible::Name), "c@x.it");
    }

    void assistiveProgramsToggleABoxOpenARowAndAskForItsMenu() {
        Window w;
        QAccessibleTableInterface* table = QAccessible::queryAccessibleInterface(w.grid)->tableInterface();
        using Actions = QAccessibleActionInterface;
        const QSignalSpy clicks(w.grid, &DataGrid::click);
        const QSignalSpy doubles(w.grid, &DataGrid::dblClick);
        const QSignalSpy releases(w.grid, &DataGrid::mouseUp);
        Actions* box = table->cellAt(2, 2)->actionInterface();
        QCOMPARE(box->actionNames(), QStringList({Actions::toggleAction(), Actions::showMenuAction()}));
        box->doAction(Actions::toggleAction());
        QTRY_COMPARE(clicks.size(), 1);
        QCOMPARE(w.grid->Row(), 3);
        QCOMPARE(w.grid->Col(), 2);
        Actions* text = table->cellAt(1, 3)->actionInterface();
        QCOMPARE(text->actionNames(),
                 QStringList({Actions::pressAction(), "Edit", Actions::showMenuAction()}));
        text->doAction("Edit");
        QTRY_COMPARE(doubles.size(), 1);
        QCOMPARE(w.grid->Row(), 2);
        text->doAction(Actions::showMenuAction());
        QTRY_COMPARE(releases.size(), 1);
        QCOMPARE(releases.constFirst()[0].value<Qt::MouseButton>(), Qt::RightButton);
        text->doAction(Actions::toggleAction());
        QCoreApplication::processEvents();
        QCOMPARE(clicks.size(), 1);
    }

    void actionsOfAssistiveProgramsWaitForNoWindowInFront() {
        Window w;
        QAccessibleInterface* cell =
            QAccessible::queryAccessibleInterface(w.grid)->tableInterface()->cellAt(1, 3);
        const QSignalSpy clicks(w.grid, &DataGrid::click);
        QDialog front;
        front.setModal(true);
        front.show();
        cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCoreApplication::processEvents();
        QCOMPARE(clicks.size(), 0);
        QVERIFY(w.data.Refresh().ok());
        QVERIFY(QAccessible::queryAccessibleInterface(w.grid)->tableInterface()->cellAt(1, 3)->isValid());
    }
};

TEST_CLASS_WITH(TestDataGrid, ui::setUpDesktop);

}  // namespace datagrid_test

#include "datagrid_test.moc"
