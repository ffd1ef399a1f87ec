// SPDX-License-Identifier: GPL-3.0-or-later
// The order of the grid's rows, and the search in them.
#include <QAccessible>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>

#include "platform/ui/DataGrid.h"
#include "platform/ui/datagrid_support.h"
#include "platform/ui/ItemViewAccess.h"
#include "support/TestClass.h"

namespace datagrid_sort_test {

using ui::DataGrid;

namespace {

constexpr int idColumn = 1;
constexpr int companyColumn = 5;

/// A grid of four rows that the fill puts into the order of their companies.
struct Window {
    TestList list;
    QWidget window;
    DataGrid* grid = new DataGrid(&window);
    ui::DataControl data;
    QSignalSpy click{grid, &DataGrid::click};
    QSignalSpy order{grid, &DataGrid::orderChanged};

    Window() {
        list.add(1, "Cedro", "z@x.it", true);
        list.add(1, "acero", "Perù@x.it", false);
        list.add(1, "Betulla", "pera@x.it", true);
        list.add(1, "Édera", "a@x.it", false);
        QObject::connect(grid, &DataGrid::afterDataRefresh, grid, [this] {
            for (int column : {0, 1, 2})
                grid->setColWidth(column, 0);
            grid->setColPosition(22, 2);
            grid->setColPosition(13, 3);
        });
        grid->setDataSource(&data);
        data.setConnectionString(list.connection());
        data.setRecordSource(TestList::source(1));
        window.resize(700, 300);
        grid->resize(700, 300);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        grid->setFocus();
        QVERIFY(data.Refresh().ok());
    }
    QString texts(int column) const {
        QStringList all;
        for (int row = 1; row < grid->Rows(); ++row)
            all << grid->TextMatrix(row, column);
        return all.join(' ');
    }
    void clickHead(int column) const {
        QHeaderView& heads = *grid->horizontalHeader();
        const QPoint place(heads.sectionViewportPosition(column) + heads.sectionSize(column) / 2, 10);
        QTest::mouseClick(heads.viewport(), Qt::LeftButton, {}, place);
    }
    void sort(int column) const {
        clickHead(column);
        QTRY_VERIFY(!grid->isSorting());
    }
    QString found(const QString& text, bool checkedOnly = false) const {
        ui::GridSearch& search = grid->search();
        search.start(text, checkedOnly);
        if (!QTest::qWaitFor([&] { return !search.underWay(); })) return "?";
        QStringList rows;
        for (const int row : search.rows())
            rows << grid->TextMatrix(row, companyColumn);
        return rows.join(' ');
    }
};

const QString told = "acero Betulla Cedro Édera";

}  // namespace

class TestDataGridSort : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void thirdClickOnAHeadingRestoresTheOrderOfTheStatement() {
        Window test;
        QCOMPARE(test.texts(companyColumn), told);
        test.sort(3);
        QCOMPARE(test.texts(3), QString("a@x.it pera@x.it Perù@x.it z@x.it"));
        QCOMPARE(test.grid->sorted()->direction, Qt::AscendingOrder);
        test.sort(3);
        QCOMPARE(test.texts(3), QString("z@x.it Perù@x.it pera@x.it a@x.it"));
        QCOMPARE(test.grid->sorted()->direction, Qt::DescendingOrder);
        test.sort(3);
        QCOMPARE(test.texts(companyColumn), told);
        QVERIFY(!test.grid->sorted());
        QCOMPARE(test.order.count(), 3);
        QCOMPARE(test.click.count(), 0);
    }

    void headingReportsItsOrderToAssistivePrograms() {
        Window test;
        const auto told = [&] {
            const auto* face =
                static_cast<ui::ItemViewAccess*>(QAccessible::queryAccessibleInterface(test.grid));
            return face->head(Qt::Horizontal, 3)->text(QAccessible::Description);
        };
        QCOMPARE(told(), QString());
        test.sort(3);
        QCOMPARE(told(), QString("Ordine crescente"));
        test.sort(3);
        QCOMPARE(told(), QString("Ordine decrescente"));
        test.sort(3);
        QCOMPARE(told(), QString());
    }

    void headingsOfTheCurrentAndOfTheSortedColumnAreMarked() {
        Window test;
        const auto painted = [&](int column) {
            QHeaderView& heads = *test.grid->horizontalHeader();
            const QRect place(heads.sectionViewportPosition(column), 0, heads.sectionSize(column),
                              heads.height());
            return heads.viewport()->grab(place).toImage();
        };
        test.grid->setCurrentIndex(test.grid->model()->index(0, companyColumn));
        const QImage plain = painted(3), current = painted(companyColumn);
        test.grid->setCurrentIndex(test.grid->model()->index(0, 3));
        QVERIFY(painted(3) != plain);
        QVERIFY(painted(companyColumn) != current);
        test.grid->setCurrentIndex(test.grid->model()->index(0, companyColumn));
        QCOMPARE(painted(3), plain);
        test.sort(3);
        const QImage up = painted(3);
        test.sort(3);
        const QImage down = painted(3);
        QVERIFY(up != plain && down != plain && up != down);
        test.sort(3);
        QCOMPARE(painted(3), plain);
    }

    void matchThatIsCurrentIsMarkedAmongTheOthers() {
        Window test;
        QCOMPARE(test.found("x.it").count(' '), 3);
        const auto painted = [&](int row) {
            test.grid->clearSelection();
            return test.grid->viewport()
                ->grab(test.grid->visualRect(test.grid->model()->index(row, 3)))
                .toImage();
        };
        test.grid->showFound(1);
        const QImage current = painted(0);
        test.grid->showFound(2);
        QVERIFY(painted(0) != current);
    }

    void anotherHeadingSortsUpwardsByItsColumn() {
        Window test;
        test.sort(3);
        test.sort(companyColumn);
        QCOMPARE(test.texts(companyColumn), told);
        QCOMPARE(test.grid->sorted()->column, companyColumn);
    }

    void fillRestoresItsOwnOrder() {
        Window test;
        test.sort(3);
        QVERIFY(test.data.Refresh().ok());
        QCOMPARE(test.texts(companyColumn), told);
        QVERIFY(!test.grid->sorted());
    }

    void fillEndsASortThatIsUnderWay() {
        Window test;
        test.clickHead(3);
        QVERIFY(test.grid->isSorting());
        QVERIFY(test.data.Refresh().ok());
        QVERIFY(!test.grid->isSorting());
        QCoreApplication::processEvents();
        QCOMPARE(test.texts(companyColumn), told);
    }

    void currentAndMarkedRowsGoAlong() {
        Window test;
        QVERIFY(test.grid->setCurrentRow(companyColumn, "Édera"));
        test.grid->markRow(4);
        test.sort(3);
        QCOMPARE(test.grid->Row(), 1);
        QCOMPARE(test.grid->selectionModel()->selectedRows().size(), 1);
        QCOMPARE(test.grid->selectionModel()->selectedRows()[0].row(), 0);
        QVERIFY(test.grid->model()->index(0, 3).data(Qt::FontRole).isValid());
        QVERIFY(!test.grid->model()->index(3, 3).data(Qt::FontRole).isValid());
    }

    void whatWasWrittenStaysWithItsRow() {
        Window test;
        test.grid->setTextMatrix(1, companyColumn, "Faggio");
        test.sort(companyColumn);
        QCOMPARE(test.texts(companyColumn), QString("Betulla Cedro Édera Faggio"));
        QCOMPARE(test.grid->TextMatrix(4, 3), QString("Perù@x.it"));
        test.grid->setTextMatrix(1, 2, "False");
        test.sort(companyColumn);
        test.sort(companyColumn);
        QCOMPARE(test.texts(companyColumn), QString("Faggio Betulla Cedro Édera"));
        QVERIFY(!test.grid->isChecked(2));
    }

    void removedRowLeavesBothOrders() {
        Window test;
        test.sort(3);
        test.grid->RemoveItem(2);
        QCOMPARE(test.texts(3), QString("a@x.it Perù@x.it z@x.it"));
        test.sort(3);
        test.sort(3);
        QCOMPARE(test.texts(companyColumn), QString("acero Cedro Édera"));
    }

    void rowRemovedDuringASortIsNotMissed() {
        Window test;
        test.clickHead(3);
        test.grid->RemoveItem(1);
        QTRY_VERIFY(!test.grid->isSorting());
        QCOMPARE(test.texts(3), QString("a@x.it pera@x.it z@x.it"));
    }

    void tickedRowsComeFirst() {
        Window test;
        test.sort(2);
        QCOMPARE(test.texts(companyColumn), QString("Betulla Cedro acero Édera"));
    }

    void emptyGridTakesAClick() {
        Window test;
        test.grid->Clear();
        test.grid->setRows(1);
        test.sort(3);
        QCOMPARE(test.grid->Rows(), 1);
    }

    void findsInAllColumnsWithoutCaseAndAccents() {
        Window test;
        QCOMPARE(test.found("PERÚ"), QString("acero"));
        QCOMPARE(test.found("per"), QString("acero Betulla"));
        QCOMPARE(test.found("edera"), QString("Édera"));
        QCOMPARE(test.found("x.it"), told);
        QCOMPARE(test.found("quercia"), QString());
        QCOMPARE(test.found(""), QString());
    }

    void numbersThatAreHiddenAndBoxesAreNotFound() {
        Window test;
        QCOMPARE(test.grid->TextMatrix(1, idColumn), QString("2"));
        QCOMPARE(test.found("2"), QString());
        QCOMPARE(test.found("Falso"), QString());
    }

    void findsAmongTheTickedOnly() {
        Window test;
        QCOMPARE(test.found("per", true), QString("Betulla"));
        QCOMPARE(test.found("", true), QString("Betulla Cedro"));
        QVERIFY(test.grid->setCurrentRow(companyColumn, "acero"));
        test.grid->setTextMatrix(1, 2, "True");
        QTRY_VERIFY(!test.grid->search().underWay());
        QCOMPARE(test.grid->search().rows().size(), size_t{3});
    }

    void textIsNotFoundAcrossTwoColumns() {
        Window test;
        test.list.run("UPDATE [tb_destinatari] SET rgs = 'uno', nom = 'due' WHERE email = 'a@x.it'");
        QVERIFY(test.data.Refresh().ok());
        QCOMPARE(test.found("unodue"), QString());
        QCOMPARE(test.found("uno"), QString("uno"));
    }

    void searchContinuesWithAnotherFillAndAnotherOrder() {
        Window test;
        QCOMPARE(test.found("per"), QString("acero Betulla"));
        test.sort(3);
        QTRY_VERIFY(!test.grid->search().underWay());
        QCOMPARE(test.grid->search().rows(), (std::vector<int>{2, 3}));
        QCOMPARE(test.grid->search().after(2), 3);
        QCOMPARE(test.grid->search().after(3), 0);
        QCOMPARE(test.grid->search().before(3), 2);
        QCOMPARE(test.grid->search().before(2), 0);
        test.list.add(1, "Pero", "o@x.it", true);
        QVERIFY(test.data.Refresh().ok());
        QTRY_VERIFY(!test.grid->search().underWay());
        QCOMPARE(test.grid->search().rows().size(), size_t{3});
    }

    void foundCellsAreMarked() {
        Window test;
        test.found("per");
        QVERIFY(test.grid->search().holds(test.grid->model()->index(0, 3)));
        QVERIFY(!test.grid->search().holds(test.grid->model()->index(0, companyColumn)));
        test.grid->showFound(2);
        QCOMPARE(test.grid->Row(), 2);
        QCOMPARE(test.grid->Col(), 3);
        test.grid->search().stop();
        QVERIFY(!test.grid->search().holds(test.grid->model()->index(0, 3)));
    }
};

TEST_CLASS(TestDataGridSort);

}  // namespace datagrid_sort_test

#include "datagrid_sort_test.moc"
