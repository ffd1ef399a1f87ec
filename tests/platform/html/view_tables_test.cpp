// SPDX-License-Identifier: GPL-3.0-or-later
#include <QRegularExpression>

#include "platform/html/ViewFixture.h"
#include "support/TestClass.h"

namespace view_tables_test {

// Rows and columns at the caret. Tables are written shortly here: rows by "/", cells by "|", "2x1:" ahead of
// a cell's text for its column and row span; "." is an empty cell.
class ViewTables : public QObject {
    Q_OBJECT

    std::unique_ptr<Desk> m_desk;

    static QString table(const QString& shape) {
        QString html = QStringLiteral("<table><tbody>");
        for (const QString& row : shape.split('/')) {
            html += QStringLiteral("<tr>");
            for (const QString& cell : row.split('|', Qt::SkipEmptyParts))
                html += cellOf(cell);
            html += QStringLiteral("</tr>");
        }
        return html + QStringLiteral("</tbody></table>");
    }

    static QString cellOf(const QString& cell) {
        const QString spans = cell.contains(':') ? cell.section(':', 0, 0) : QStringLiteral("1x1");
        const QString text = cell.section(':', -1);
        QString tag = QStringLiteral("<td");
        if (spans.section('x', 0, 0) != "1")
            tag += QStringLiteral(" colspan=\"%1\"").arg(spans.section('x', 0, 0));
        if (spans.section('x', 1, 1) != "1")
            tag += QStringLiteral(" rowspan=\"%1\"").arg(spans.section('x', 1, 1));
        return tag + '>' + (text == "." ? QStringLiteral("&nbsp;") : text) + QStringLiteral("</td>");
    }

    // The attributes of a cell are in the order in which they were set
    QString shown() const {
        return m_desk->body().replace(QRegularExpression("( rowspan=\"\\d+\")( colspan=\"\\d+\")"), "\\2\\1");
    }

  private Q_SLOTS:
    void initTestCase() { m_desk = std::make_unique<Desk>(); }
    void cleanupTestCase() { m_desk.reset(); }

    void changesTheTableAndUndoesIt_data() {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("caret");
        QTest::addColumn<int>("command");
        QTest::addColumn<QString>("after");
        const int row = HtmlView::InsertRow;
        const int column = HtmlView::InsertCol;
        const int noRow = HtmlView::DeleteRows;
        const int noColumn = HtmlView::DeleteCols;
        QTest::newRow("row below") << "a|b/c|d"
                                   << "a" << row << "a|b/.|./c|d";
        QTest::newRow("row below the last") << "a|b/c|d"
                                            << "d" << row << "a|b/c|d/.|.";
        QTest::newRow("row through a tall cell") << "1x2:a|b/c/d|e"
                                                 << "b" << row << "1x3:a|b/./c/d|e";
        QTest::newRow("row below a tall cell") << "1x2:a|b/c/d|e"
                                               << "a" << row << "1x2:a|b/c/.|./d|e";
        QTest::newRow("row like a wide cell") << "2x1:a|b/c|d|e"
                                              << "a" << row << "2x1:a|b/2x1:.|./c|d|e";
        QTest::newRow("column to the right") << "a|b/c|d"
                                             << "a" << column << "a|.|b/c|.|d";
        QTest::newRow("column behind the last") << "a|b/c|d"
                                                << "d" << column << "a|b|./c|d|.";
        QTest::newRow("column through a wide cell") << "2x1:a/b|c"
                                                    << "b" << column << "3x1:a/b|.|c";
        QTest::newRow("column behind a wide cell") << "2x1:a|d/b|c|e"
                                                   << "a" << column << "2x1:a|.|d/b|c|.|e";
        QTest::newRow("column like a tall cell") << "1x2:a|b/c"
                                                 << "a" << column << "1x2:a|1x2:.|b/c";
        QTest::newRow("no first row") << "a|b/c|d"
                                      << "b" << noRow << "c|d";
        QTest::newRow("no last row") << "a|b/c|d"
                                     << "c" << noRow << "a|b";
        QTest::newRow("no row under a tall cell") << "1x3:a|b/c/d"
                                                  << "c" << noRow << "1x2:a|b/d";
        QTest::newRow("no row with the head of a tall cell") << "1x2:a|b/c"
                                                             << "b" << noRow << "a|c";
        QTest::newRow("no row, the tall cell's column kept") << "b|1x2:a|x/c|y"
                                                             << "b" << noRow << "c|a|y";
        QTest::newRow("no only row") << "a|b"
                                     << "a" << noRow << "";
        QTest::newRow("no first column") << "a|b/c|d"
                                         << "c" << noColumn << "b/d";
        QTest::newRow("no last column") << "a|b/c|d"
                                        << "b" << noColumn << "a/c";
        QTest::newRow("no column of a wide cell") << "3x1:a/b|c|d"
                                                  << "c" << noColumn << "2x1:a/b|d";
        QTest::newRow("no columns under the wide cell with the caret") << "2x1:a|d/b|c|e"
                                                                       << "a" << noColumn << "d/e";
        QTest::newRow("no column of a tall cell") << "1x2:a|b/c"
                                                  << "a" << noColumn << "b/c";
        QTest::newRow("no only column") << "a/b"
                                        << "a" << noColumn << "";
        QTest::newRow("uneven rows") << "a|b|c/d"
                                     << "c" << noColumn << "a|b/d";
    }
    void changesTheTableAndUndoesIt() {
        QFETCH(QString, before);
        QFETCH(QString, caret);
        QFETCH(int, command);
        QFETCH(QString, after);
        const QString html = "<p>prima</p>" + table(before) + "<p>dopo</p>";
        const QString changed = "<p>prima</p>" + (after.isEmpty() ? QString() : table(after)) + "<p>dopo</p>";
        m_desk->view.setDocumentHTML(html);
        m_desk->view.evaluate(
            QStringLiteral(
                "{ const c = [...document.querySelectorAll('td')].find((x) => x.textContent === '%1');"
                " getSelection().collapse(c.firstChild, 0); 1 }")
                .arg(caret));
        QVERIFY(m_desk->view.execCommand(command).toBool());
        QCOMPARE(shown(), changed);
        QVERIFY(isStable(m_desk->view.documentHTML()));
        QVERIFY(m_desk->view.execCommand(HtmlView::Undo).toBool());
        QCOMPARE(m_desk->body(), html);
        QVERIFY(m_desk->view.execCommand(HtmlView::Redo).toBool());
        QCOMPARE(shown(), changed);
    }

    void toolsAreEnabledInsideATableOnly() {
        m_desk->view.setDocumentHTML("<p>fuori</p><table><tr><td>dentro</td></tr></table>");
        const QList<int> tools{HtmlView::InsertRow, HtmlView::InsertCol, HtmlView::DeleteRows,
                               HtmlView::DeleteCols};
        m_desk->view.find("dentro");
        for (const int tool : tools)
            QCOMPARE(m_desk->view.queryStatus(tool), HtmlView::Enabled);
        m_desk->view.find("fuori");
        for (const int tool : tools) {
            QCOMPARE(m_desk->view.queryStatus(tool), HtmlView::Disabled);
            QVERIFY(!m_desk->view.execCommand(tool).toBool());
        }
    }

    void selectionOverSeveralRowsDeletesThemAll() {
        m_desk->view.setDocumentHTML(table("a|b/c|d/e|f"));
        m_desk->view.evaluate(
            "{ const c = document.querySelectorAll('td');"
            " getSelection().setBaseAndExtent(c[0].firstChild, 0, c[3].firstChild, 1); 1 }");
        QVERIFY(m_desk->view.execCommand(HtmlView::DeleteRows).toBool());
        QCOMPARE(m_desk->body(), table("e|f"));
    }

    void innermostTableIsChanged() {
        m_desk->view.setDocumentHTML("<table><tr><td>x" + table("a|b") + "</td></tr></table>");
        m_desk->view.find("a");
        QVERIFY(m_desk->view.execCommand(HtmlView::DeleteCols).toBool());
        QCOMPARE(m_desk->body(), "<table><tbody><tr><td>x" + table("b") + "</td></tr></tbody></table>");
    }

    void newCellsLookLikeTheirNeighbours() {
        m_desk->view.setDocumentHTML(
            "<table><thead><tr><th id=t>T</th></tr></thead><tbody><tr bgcolor=red id=r><td align=right "
            "style=\"color: red\" id=c>a</td></tr></tbody></table>");
        m_desk->view.find("a");
        m_desk->view.execCommand(HtmlView::InsertRow);
        m_desk->view.find("a");
        m_desk->view.execCommand(HtmlView::InsertCol);
        QCOMPARE(
            m_desk->body(),
            QString(
                "<table><thead><tr><th id=\"t\">T</th><th>&nbsp;</th></tr></thead><tbody><tr bgcolor=\"red\" "
                "id=\"r\"><td align=\"right\" style=\"color: red\" id=\"c\">a</td><td align=\"right\" "
                "style=\"color: red\">&nbsp;</td></tr><tr bgcolor=\"red\"><td align=\"right\" style=\"color: "
                "red\">&nbsp;</td><td align=\"right\" style=\"color: "
                "red\">&nbsp;</td></tr></tbody></table>"));
    }

    void columnElementsFollow() {
        const QString rows = "<tbody><tr><td>a</td><td>b</td></tr></tbody></table>";
        m_desk->view.setDocumentHTML("<table><colgroup><col width=\"10\"><col width=\"20\"></colgroup>" +
                                     rows);
        m_desk->view.find("a");
        m_desk->view.execCommand(HtmlView::InsertCol);
        QVERIFY(m_desk->body().contains("<col width=\"10\"><col width=\"10\"><col width=\"20\">"));
        m_desk->view.find("b");
        m_desk->view.execCommand(HtmlView::DeleteCols);
        QVERIFY(m_desk->body().contains("<colgroup><col width=\"10\"><col width=\"10\"></colgroup>"));
    }

    void lastRowOfAGroupTakesTheGroupAlong() {
        m_desk->view.setDocumentHTML(
            "<table><thead><tr><th>T</th></tr></thead><tbody><tr><td>a</td></tr></tbody></table>");
        m_desk->view.find("T");
        QVERIFY(m_desk->view.execCommand(HtmlView::DeleteRows).toBool());
        QCOMPARE(m_desk->body(), QString("<table><tbody><tr><td>a</td></tr></tbody></table>"));
    }

    void tabGoesFromCellToCellAndAddsARowAtTheEnd() {
        m_desk->view.setDocumentHTML(table("a|b"));
        m_desk->caretIn("td");
        m_desk->press(Qt::Key_Tab, Qt::NoModifier, "\t");
        m_desk->type("x");
        QCOMPARE(m_desk->body(), table("a|xb"));
        m_desk->press(Qt::Key_Tab, Qt::NoModifier, "\t");
        QCOMPARE(m_desk->body(), table("a|xb/.|."));
        m_desk->type("y");
        QVERIFY(m_desk->body().contains("<tr><td>y"));
        m_desk->press(Qt::Key_Backtab, Qt::ShiftModifier, "\t");
        m_desk->type("z");
        QCOMPARE(m_desk->body().left(40), table("a|zxb").left(40));
    }

    void typingAndTableChangesAreUndoneInTurn() {
        m_desk->view.setDocumentHTML(table("a|b"));
        m_desk->caretIn("td");
        m_desk->type("uno");
        m_desk->view.execCommand(HtmlView::InsertRow);
        m_desk->type("due");
        m_desk->view.execCommand(HtmlView::Bold);
        for (int i = 0; i < 3; ++i)
            QVERIFY(m_desk->view.execCommand(HtmlView::Undo).toBool());
        QCOMPARE(m_desk->body(), table("a|b"));
        QVERIFY(!m_desk->view.commandEnabled(HtmlView::Undo));
        for (int i = 0; i < 3; ++i)
            QVERIFY(m_desk->view.execCommand(HtmlView::Redo).toBool());
        QVERIFY(m_desk->body().contains("unoa") && m_desk->body().contains("due"));
    }
};

TEST_CLASS(ViewTables);

}  // namespace view_tables_test

#include "view_tables_test.moc"
