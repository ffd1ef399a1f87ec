// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAccessible>
#include <QLabel>
#include <QTimer>

#include "platform/ui/LinkLabel.h"
#include "support/TestClass.h"
#include "windows/shell/frmInfoSu.h"
#include "windows/shell/shell_support.h"

namespace infosu_test {

using namespace testing_support;

class TestInfoSu : public QObject {
    Q_OBJECT

    static frmInfoSu& opened(StoreStage& stage) {
        stage.window();
        frmInfoSu& window = finestre::InfoSu();
        window.show();
        window.activateWindow();
        if (!QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }))
            qFatal("the about window does not show");
        return window;
    }
    static ui::LinkLabel* link(frmInfoSu& window, const char* name) {
        auto* found = window.findChild<ui::LinkLabel*>(name);
        if (!found) qFatal("no link %s", name);
        return found;
    }

  private Q_SLOTS:
    void itShowsNameVersionAndTwoLinks() {
        StoreStage stage;
        frmInfoSu& window = opened(stage);
        QCOMPARE(window.findChild<QLabel*>("lblApplication")->text(), "Vestrola");
        QCOMPARE(window.findChild<QLabel*>("lblVersion")->text(), "Ver. 3.0.2130");
        QCOMPARE(link(window, "Link")->text(), "https://www.quintara.example/");
        QCOMPARE(link(window, "MailTo")->text(), "info@quintara.example");
        QCOMPARE(link(window, "Link")->cursor().shape(), Qt::PointingHandCursor);
    }

    void theCommandShowsItModallyOverTheMainWindow() {
        StoreStage stage;
        stage.window();
        bool seen = false;
        QTimer::singleShot(0, this, [&] {
            frmInfoSu& window = finestre::InfoSu();
            seen = window.isVisible() && window.isModal() && window.parentWidget() == &finestre::Main();
            QTest::mouseClick(&window, Qt::LeftButton, {}, QPoint(300, 200));
        });
        stage.command("cmdHelpInfoSu");
        QVERIFY(seen);
        QVERIFY(!finestre::InfoSu().isVisible());
    }

    void linksOpenTheWebSiteAndAMailAndLeaveTheWindowOpen_data() {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QString>("target");
        QTest::newRow("web") << QByteArray("Link") << "https://www.quintara.example/";
        QTest::newRow("mail") << QByteArray("MailTo") << "mailto:info@quintara.example";
    }
    void linksOpenTheWebSiteAndAMailAndLeaveTheWindowOpen() {
        QFETCH(QByteArray, name);
        QFETCH(QString, target);
        StoreStage stage;
        frmInfoSu& window = opened(stage);
        const Opener opener;
        QTest::mouseClick(link(window, name), Qt::LeftButton);
        QCOMPARE(opener.opened(), target);
        QVERIFY(window.isVisible());
    }

    void aDesktopThatOpensNothingIsIgnored() {
        StoreStage stage;
        frmInfoSu& window = opened(stage);
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", "/nowhere");
        QTest::mouseClick(link(window, "Link"), Qt::LeftButton);
        qputenv("PATH", path);
        QVERIFY(window.isVisible());
        QVERIFY(stage.ends.isEmpty());
    }

    void aClickAnywhereElseHidesIt_data() {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("window") << QByteArray();
        QTest::newRow("name") << QByteArray("lblApplication");
        QTest::newRow("version") << QByteArray("lblVersion");
        QTest::newRow("hint") << QByteArray("lblChiudi");
    }
    void aClickAnywhereElseHidesIt() {
        QFETCH(QByteArray, name);
        StoreStage stage;
        frmInfoSu& window = opened(stage);
        QWidget* place = name.isEmpty() ? &window : window.findChild<QWidget*>(name);
        QTest::mouseClick(place, Qt::LeftButton, {}, QPoint(30, 10));
        QVERIFY(!window.isVisible());
    }

    void theTitleBarIsRefusedAndHasNoButtonForIt() {
        StoreStage stage;
        frmInfoSu& window = opened(stage);
        window.close();
        QVERIFY(window.isVisible());
        QVERIFY(!window.windowFlags().testFlag(Qt::WindowCloseButtonHint));
    }

    void itSaysHowItIsClosed() {
        StoreStage stage;
        frmInfoSu& window = opened(stage);
        QCOMPARE(window.findChild<QLabel*>("lblChiudi")->text(), "Per chiudere: Esc o un clic");
    }

    void escReturnAndSpaceHideIt_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("Esc") << int(Qt::Key_Escape);
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
        QTest::newRow("Space") << int(Qt::Key_Space);
    }
    void escReturnAndSpaceHideIt() {
        QFETCH(int, key);
        StoreStage stage;
        frmInfoSu& window = opened(stage);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
        QVERIFY(!window.isVisible());
    }

    void tabReachesTheLinksAndReturnOpensOne() {
        StoreStage stage;
        frmInfoSu& window = opened(stage);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), "Link");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), "MailTo");
        const Opener opener;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QVERIFY(!opener.used());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(opener.opened(), "mailto:info@quintara.example");
        QVERIFY(window.isVisible());
    }

    void assistiveProgramsFindLinksThatCanBePressed() {
        StoreStage stage;
        frmInfoSu& window = opened(stage);
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(link(window, "Link"));
        QCOMPARE(face->role(), QAccessible::Link);
        QCOMPARE(face->text(QAccessible::Name), "https://www.quintara.example/");
        const Opener opener;
        face->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(opener.opened(), "https://www.quintara.example/");
    }

    void itIsOneInstance() {
        StoreStage stage;
        frmInfoSu& window = opened(stage);
        window.hide();
        QCOMPARE(&finestre::InfoSu(), &window);
    }
};

TEST_CLASS(TestInfoSu);

}  // namespace infosu_test

#include "infosu_test.moc"
