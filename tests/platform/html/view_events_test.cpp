// SPDX-License-Identifier: GPL-3.0-or-later
#include <QLineEdit>
#include <QShortcut>
#include <QVBoxLayout>

#include "platform/html/ViewFixture.h"
#include "support/TestClass.h"

namespace view_events_test {

// The view's signals about the user's actions.
class ViewEvents : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void eachReleasedKeyIsReported() {
        Desk desk;
        QSignalSpy released(&desk.view, &HtmlView::keyReleased);
        desk.type("ab");
        QCOMPARE(released.count(), 2);
        desk.press(Qt::Key_Left);
        QCOMPARE(released.count(), 3);
        desk.view.execCommand(HtmlView::Bold);
        desk.view.insertHTML("x");
        QCOMPARE(released.count(), 3);
    }

    void shortcutsOfTheWindowAreNoStrokesOfTheDocument() {
        QWidget window;
        auto* box = new QVBoxLayout(&window);
        SureView view(HtmlView::Mode::Design);
        box->addWidget(&view);
        view.setDocumentHTML("<p>uno</p>");
        QShortcut bold(QKeySequence("Ctrl+B"), &window);
        QSignalSpy activated(&bold, &QShortcut::activated);
        QSignalSpy released(&view, &HtmlView::keyReleased);
        window.resize(400, 300);
        window.show();
        view.wake();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        view.setFocus();
        QTest::keyPress(view.inputWidget(), Qt::Key_Control, Qt::ControlModifier);
        QTest::keyClick(view.inputWidget(), Qt::Key_B, Qt::ControlModifier);
        QTest::keyRelease(view.inputWidget(), Qt::Key_Control);
        QCOMPARE(activated.count(), 1);
        QCOMPARE(released.count(), 0);
        QVERIFY(!view.documentHTML().contains("<b>"));
        QTest::keyClick(view.inputWidget(), Qt::Key_X);
        QCOMPARE(released.count(), 1);
        view.setParent(nullptr);
    }

    void leavingForAnotherControlIsReported() {
        QWidget window;
        auto* box = new QVBoxLayout(&window);
        auto* subject = new QLineEdit(&window);
        auto* view = new SureView(HtmlView::Mode::Design, &window);
        box->addWidget(subject);
        box->addWidget(view);
        view->setDocumentHTML("<p>uno</p>");
        window.show();
        view->wake();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        view->setFocus();
        QSignalSpy left(view, &HtmlView::validated);
        subject->setFocus();
        QCOMPARE(left.count(), 1);
    }

    void displayChangeFollowsTheSelectionOncePerTurn() {
        Desk desk("<p>uno <b>due</b></p>");
        desk.view.execCommand(HtmlView::GetFontName);
        settle(desk.view);
        QSignalSpy changed(&desk.view, &HtmlView::displayChanged);
        QVERIFY(!desk.view.commandState(HtmlView::Bold));
        desk.caretIn("b", 1);
        QTRY_VERIFY(desk.view.commandState(HtmlView::Bold));
        QVERIFY(changed.count() >= 1 && changed.count() <= 3);
    }

    void typingChangesTheDisplay() {
        Desk desk("<p>uno</p>");
        settle(desk.view);
        QSignalSpy changed(&desk.view, &HtmlView::displayChanged);
        desk.type("a");
        QTRY_VERIFY(changed.count() > 0);
        QTRY_VERIFY(desk.view.commandEnabled(HtmlView::Undo));
    }

    void rightButtonAsksForTheMenuAtItsPlace() {
        Desk desk("<p>uno</p>");
        QSignalSpy menu(&desk.view, &HtmlView::contextMenuRequested);
        const QPoint place = desk.placeOf("p").topLeft() + QPoint(8, 8);
        QTest::mouseClick(desk.view.inputWidget(), Qt::RightButton, Qt::NoModifier, place);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, desk.view.inputWidget()->mapToGlobal(place));
        QApplication::sendEvent(desk.view.inputWidget(), &event);
        QTRY_COMPARE(menu.count(), 1);
        QCOMPARE(menu.at(0).at(0).toPoint(), desk.view.inputWidget()->mapToGlobal(place));
    }

    void doubleClickIsReportedWithItsElement() {
        Desk desk("<p>uno</p><p><a href=\"x\">due</a></p>");
        QSignalSpy clicked(&desk.view, &HtmlView::doubleClicked);
        const QPoint place = desk.placeOf("a").center();
        desk.doubleClick(place);
        QTRY_COMPARE(clicked.count(), 1);
        QCOMPARE(desk.view.elementsAtCaret().value(0).tag, QString("a"));
        QCOMPARE(desk.view.selectedText(), QString("due"));
    }

    void pointerOverTheViewIsReported() {
        Desk desk;
        QSignalSpy entered(&desk.view, &HtmlView::pointerEntered);
        QEnterEvent event(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
        QApplication::sendEvent(&desk.view, &event);
        QCOMPARE(entered.count(), 1);
    }

    void focusSetBeforeTheBrowserIsThereReachesTheDocument() {
        QWidget window;
        auto* box = new QVBoxLayout(&window);
        auto* view = new SureView(HtmlView::Mode::Design, &window);
        box->addWidget(view);
        view->setDocumentHTML("<p>x</p>");
        view->setFocus();
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTRY_VERIFY(view->isLive());
        QTRY_VERIFY(QApplication::focusWidget() == view->inputWidget());
    }

    void theTabKeyLeadsToTheCaretBeforeAndAfterTheBrowserCrashes() {
        QWidget window;
        auto* box = new QVBoxLayout(&window);
        auto* subject = new QLineEdit(&window);
        auto* view = new SureView(HtmlView::Mode::Design, &window);
        auto* behind = new QLineEdit(&window);
        for (QWidget* control :
             {static_cast<QWidget*>(subject), static_cast<QWidget*>(view), static_cast<QWidget*>(behind)})
            box->addWidget(control);
        view->setDocumentHTML("<p>x</p><p><a href=\"http://esempio.test/\">y</a></p>");
        window.show();
        view->wake();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        for (const bool dies : {false, true}) {
            if (dies) {
                endBrowserOf(*view);
                QTRY_VERIFY(view->isLive());
            }
            subject->setFocus();
            QTest::keyClick(subject, Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), view->inputWidget());
            QTest::keyClick(view->inputWidget(), Qt::Key_A);
            QTRY_VERIFY(view->documentHTML().contains(dies ? "<p>aax</p>" : "<p>ax</p>"));
        }
        behind->setFocus();
        QTest::keyClick(behind, Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), view->inputWidget());
    }
};

TEST_CLASS(ViewEvents);

}  // namespace view_events_test

#include "view_events_test.moc"
