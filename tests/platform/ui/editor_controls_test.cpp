// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of the editor: the colour hexagon, the source view, the tabs.
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>

#include "platform/ui/ColorHexagon.h"
#include "platform/ui/SourceEdit.h"
#include "platform/ui/TabStrip.h"
#include "support/TestClass.h"

namespace editor_controls_test {

using ui::ColorHexagon;
using ui::SourceEdit;
using ui::TabStrip;

class TestEditorControls : public QObject {
    Q_OBJECT

    static int cellOf(const ColorHexagon& hexagon, quint32 color) {
        for (int i = 0; i < hexagon.cellCount(); ++i)
            if (hexagon.cellColor(i) == color) return i;
        return -1;
    }

  private Q_SLOTS:
    void theHexagonContainsThePureColoursAndTheGreys() {
        const ColorHexagon hexagon;
        QCOMPARE(hexagon.cellCount(), 127 + 13);
        for (const quint32 color :
             {0xffffffU, 0x0000ffU, 0x00ff00U, 0xff0000U, 0x00ffffU, 0xffff00U, 0xff00ffU, 0x000000U})
            QVERIFY2(cellOf(hexagon, color) >= 0, qPrintable(QString::number(color, 16)));
        for (int i = 0; i < hexagon.cellCount(); ++i) {
            QVERIFY(hexagon.cellRect(i).width() >= 24);
            QVERIFY(QRect(QPoint(), hexagon.sizeHint()).contains(hexagon.cellRect(i)));
        }
    }

    void aSelectedColourStaysAsItIsAndSilent() {
        ColorHexagon hexagon;
        QSignalSpy picked(&hexagon, &ColorHexagon::picked);
        hexagon.setColor(0x123456);
        QCOMPARE(hexagon.Color(), 0x123456U);
        QVERIFY(picked.isEmpty());
        hexagon.setColor(0x0000ff);
        QCOMPARE(hexagon.cellColor(hexagon.currentCell()), 0x0000ffU);
    }

    void aClickAndTheKeysPick() {
        ColorHexagon hexagon;
        hexagon.show();
        QSignalSpy picked(&hexagon, &ColorHexagon::picked);
        const int red = cellOf(hexagon, 0x0000ff);
        QTest::mouseClick(&hexagon, Qt::LeftButton, {}, hexagon.cellRect(red).center());
        QCOMPARE(picked.constLast().constFirst().toUInt(), 0x0000ffU);
        QTest::mouseClick(&hexagon, Qt::LeftButton, {}, QPoint(1, 1));
        QCOMPARE(picked.size(), 1);
        hexagon.setColor(0xffffff);
        const int white = hexagon.currentCell();
        QTest::keyClick(&hexagon, Qt::Key_Right);
        QVERIFY(hexagon.currentCell() != white);
        QTest::keyClick(&hexagon, Qt::Key_Left);
        QCOMPARE(hexagon.currentCell(), white);
        QTest::keyClick(&hexagon, Qt::Key_Return);
        QCOMPARE(picked.constLast().constFirst().toUInt(), 0xffffffU);
    }

    void theKeysReachEveryCell() {
        ColorHexagon hexagon;
        hexagon.setColor(0xffffff);
        QSet<int> reached{hexagon.currentCell()};
        QList<int> open{hexagon.currentCell()};
        while (!open.isEmpty()) {
            const int from = open.takeFirst();
            for (const auto key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
                QTest::mouseMove(&hexagon);
                QMouseEvent over(QEvent::MouseMove, QPointF(hexagon.cellRect(from).center()),
                                 QPointF(hexagon.cellRect(from).center()), Qt::NoButton, Qt::NoButton,
                                 Qt::NoModifier);
                QApplication::sendEvent(&hexagon, &over);
                QTest::keyClick(&hexagon, key);
                if (reached.contains(hexagon.currentCell())) continue;
                reached << hexagon.currentCell();
                open << hexagon.currentCell();
            }
        }
        QCOMPARE(reached.size(), hexagon.cellCount());
    }

    void assistiveProgramsFindAListOfNamedColours() {
        ColorHexagon hexagon;
        hexagon.show();
        QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&hexagon);
        QCOMPARE(list->role(), QAccessible::List);
        QCOMPARE(list->childCount(), hexagon.cellCount());
        const int red = cellOf(hexagon, 0x0000ff);
        QCOMPARE(list->child(red)->text(QAccessible::Name), "#FF0000");
        QCOMPARE(list->child(red)->parent()->object(), &hexagon);
        QCOMPARE(list->indexOfChild(list->child(red)), red);
        QSignalSpy picked(&hexagon, &ColorHexagon::picked);
        list->child(red)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(picked.size(), 1);
        QVERIFY(list->child(red)->state().selected);
    }

    void assistiveProgramsFindTheColourAtAPlaceAndTheOneWithTheKeyboard() {
        ColorHexagon hexagon;
        hexagon.show();
        hexagon.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&hexagon));
        hexagon.setFocus();
        QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&hexagon);
        QAccessibleInterface* red = list->child(cellOf(hexagon, 0x0000ff));
        const QPoint place = red->rect().center();
        QCOMPARE(list->childAt(place.x(), place.y()), red);
        const QPoint outside = hexagon.mapToGlobal(QPoint(-5, -5));
        QVERIFY(!list->childAt(outside.x(), outside.y()));
        QVERIFY(list->focusChild() != red);
        QCOMPARE(red->actionInterface()->actionNames(),
                 QStringList{QAccessibleActionInterface::pressAction()});
        red->actionInterface()->doAction("Altro");
        QVERIFY(!red->state().selected);
        red->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(list->focusChild(), red);
        QVERIFY(red->state().focused);
        QCOMPARE(red->role(), QAccessible::ListItem);
        QCOMPARE(red->childCount(), 0);
        hexagon.clearFocus();
        QVERIFY(!list->focusChild());
    }

    void theSourceShowsEachTextWrappedFromItsStart() {
        SourceEdit edit;
        edit.resize(400, 200);
        edit.show();
        const auto* area = edit.findChild<QAbstractScrollArea*>("sourceText");
        const QString line = QString("parola ").repeated(2000);
        for (const QString& text : {line, line + "\n" + line, QString("a\n").repeated(500) + line}) {
            edit.setText(text);
            QCOMPARE(area->verticalScrollBar()->value(), 0);
            QTRY_VERIFY(area->verticalScrollBar()->maximum() > 50 + text.count('\n'));
            QVERIFY(!area->horizontalScrollBar()->isVisible());
            QTest::keyClick(edit.focusProxy(), Qt::Key_X);
            QCOMPARE(edit.Text(), "x" + text);
            QTest::keyClick(edit.focusProxy(), Qt::Key_End, Qt::ControlModifier);
            QTRY_VERIFY(area->verticalScrollBar()->value() > 0);
        }
    }

    void theSourceHandsItsTextOutAsItWasSet_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("line ends of both kinds") << QString("a\r\nb\nc\n\n");
        QTest::newRow("lone carriage return") << QString("a\rb");
        QTest::newRow("beyond the first plane")
            << QString::fromUtf8("è € \xF0\x9F\x8E\x84 \xE2\x80\x8F\xD7\xA9");
        QTest::newRow("empty") << QString("");
    }
    void theSourceHandsItsTextOutAsItWasSet() {
        QFETCH(QString, text);
        SourceEdit edit;
        edit.setText(text);
        QCOMPARE(edit.Text(), text);
        QVERIFY(!edit.CanUndo());
        edit.show();
        QCOMPARE(edit.Text(), text);
        QVERIFY(!edit.CanUndo());
        edit.setText(text + "!");
        QCOMPARE(edit.Text(), text + "!");
    }

    void theSourceReportsAChangedTextBeforeItIsShown() {
        SourceEdit edit;
        QSignalSpy changed(&edit, &SourceEdit::textChanged);
        edit.setText("uno");
        QCOMPARE(changed.size(), 1);
        edit.setText("uno");
        QCOMPARE(changed.size(), 1);
        QCOMPARE(edit.length(), 3);
        edit.setText(QString("due") + QChar(u'\0') + "tre");
        QCOMPARE(edit.Text(), "due");
        edit.setSpokenName("Origine");
        edit.show();
        QCOMPARE(edit.focusProxy()->accessibleName(), "Origine");
        QCOMPARE(changed.size(), 2);
    }

    void theSourceTypesTheLineEndsOfItsText() {
        SourceEdit edit;
        edit.setText("a\r\nb");
        edit.show();
        QTest::keyClick(edit.focusProxy(), Qt::Key_Return);
        QCOMPARE(edit.Text(), "\r\na\r\nb");
        edit.setText("a\nb");
        QTest::keyClick(edit.focusProxy(), Qt::Key_Return);
        QCOMPARE(edit.Text(), "\na\nb");
    }

    void theSourceFindsRoundItsEnds() {
        SourceEdit edit;
        edit.setText("uno due uno");
        QVERIFY(edit.find("uno", true, false));
        edit.execute(SourceEdit::Cut);
        QCOMPARE(edit.Text(), " due uno");
        QVERIFY(edit.find("DUE", false, false));
        QVERIFY(!edit.find("DUE", true, false));
        QVERIFY(edit.find("uno", true, false));
        QVERIFY(edit.find("due", true, true));
        edit.execute(SourceEdit::Cut);
        QCOMPARE(edit.Text(), "  uno");
    }

    void aNumberThatIsNoCommandDoesNothing() {
        SourceEdit edit;
        edit.setText("uno");
        edit.execute(178);
        edit.execute(0);
        QCOMPARE(edit.Text(), "uno");
    }

    void theTabsReportEachChangeWithBothIndexes() {
        TabStrip tabs;
        tabs.addView(new QWidget, "Uno", "text-html");
        tabs.addView(new QWidget, "Due", "text-html");
        tabs.addView(new QWidget, "Tre", "text-html");
        tabs.show();
        QSignalSpy changed(&tabs, &TabStrip::tabChanged);
        tabs.step(-1);
        QCOMPARE(changed.constLast(), (QVariantList{0, 2}));
        tabs.step(1);
        QCOMPARE(changed.constLast(), (QVariantList{2, 0}));
        QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(1).center());
        QCOMPARE(changed.constLast(), (QVariantList{0, 1}));
        QVERIFY(tabs.tabBar()->y() > tabs.currentWidget()->y());
    }

    void onlyTheViewOnShowFollowsTheSize() {
        TabStrip tabs;
        auto* first = new QWidget;
        auto* second = new QWidget;
        tabs.addView(first, "Uno", "text-html");
        tabs.addView(second, "Due", "text-html");
        tabs.resize(400, 300);
        tabs.show();
        const QSize before = second->size();
        tabs.resize(500, 400);
        QCOMPARE(first->width(), 500);
        QCOMPARE(second->size(), before);
        tabs.setCurrentIndex(1);
        QCOMPARE(second->size(), first->size());
    }
};

TEST_CLASS(TestEditorControls);

}  // namespace editor_controls_test

#include "editor_controls_test.moc"
