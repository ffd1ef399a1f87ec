// SPDX-License-Identifier: GPL-3.0-or-later
// The control for a line of text: any input stays one line.
#include <QApplication>
#include <QClipboard>
#include <QTest>

#include "platform/ui/GroupTree.h"
#include "platform/ui/LineEdit.h"
#include "support/TestClass.h"

namespace line_edit_test {

class TestLineEdit : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void breaksBecomeBlanks_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("line");
        QTest::newRow("none") << "a  b\tc"
                              << "a  b\tc";
        QTest::newRow("unix") << "a\nb\n"
                              << "a b ";
        QTest::newRow("windows") << "a\r\nb\r\n\r\nc"
                                 << "a b  c";
        QTest::newRow("others") << QString::fromUtf16(u"a\rb\u2028c\u2029d\u0085e\vf\fg") << "a b c d e f g";
    }
    void breaksBecomeBlanks() {
        QFETCH(QString, text);
        QFETCH(QString, line);
        ui::LineEdit box;
        box.setText(text);
        QCOMPARE(box.text(), line);
        box.clear();
        box.insert(text);
        QCOMPARE(box.text(), line);
        box.setText("<>");
        box.setCursorPosition(1);
        QApplication::clipboard()->setText(text);
        box.paste();
        QCOMPARE(box.text(), '<' + line + '>');
        QCOMPARE(box.cursorPosition(), line.size() + 1);
    }

    void aLabelOfTheTreeTakesNoBreakAndNotMoreThanItsLength() {
        ui::GroupTree tree;
        tree.setLongestLabel(5);
        const auto root = tree.Add({}, "K0", "radice", {}, {}).value();
        const auto node = tree.Add("K0", "K1", "uno", {}, {}).value();
        tree.show();
        QVERIFY(tree.Expand("K0").ok());
        tree.setSelectedItem(node);
        tree.StartLabelEdit();
        auto* box = tree.findChild<QLineEdit*>();
        QVERIFY(box);
        QApplication::clipboard()->setText("a\nbcdefgh");
        box->selectAll();
        box->paste();
        QCOMPARE(box->text(), "a bcd");
    }
};

TEST_CLASS(TestLineEdit);

}  // namespace line_edit_test

#include "line_edit_test.moc"
