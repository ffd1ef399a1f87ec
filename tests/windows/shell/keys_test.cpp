// SPDX-License-Identifier: GPL-3.0-or-later
// The keyboard in the main window: keys of the commands, tab order, F6, and when the pop-up commands are on.
#include <QSignalSpy>
#include <QToolButton>

#include "platform/ui/Desktop.h"
#include "support/TestClass.h"
#include "windows/shell/shell_support.h"

namespace keys_test {

using namespace testing_support;

class TestKeys : public QObject {
    Q_OBJECT

    static bool enabled(StoreStage& stage, const char* name) {
        return stage.window().findChild<QToolButton*>(name)->isEnabled();
    }
    static QString focus() {
        const QWidget* widget = QApplication::focusWidget();
        return widget ? widget->objectName() : QString();
    }

  private Q_SLOTS:
    void keysOfCommands_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QKeySequence>("key");
        const auto row = [](const char* name, QKeyCombination key) {
            QTest::addRow("%s %s", name, qPrintable(QKeySequence(key).toString()))
                << name << QKeySequence(key);
        };
        row("cmdEditor", Qt::CTRL | Qt::Key_N);
        row("cmdMailingApri", Qt::CTRL | Qt::Key_O);
        row("cmdMailingSalva", Qt::CTRL | Qt::SHIFT | Qt::Key_S);
        row("cmdFileAccount", Qt::CTRL | Qt::Key_Comma);
        row("cmdInvia", Qt::CTRL | Qt::Key_Return);
        row("cmdMailingImpTXT", Qt::CTRL | Qt::Key_I);
        row("cmdEsci", Qt::CTRL | Qt::Key_Q);
        row("cmdHelpGuida", Qt::Key_F1);
        row("cmdPopMailingNew", Qt::CTRL | Qt::SHIFT | Qt::Key_N);
        row("cmdPopMailingRinomina", Qt::Key_F2);
        row("cmdPopMailingCopia", Qt::CTRL | Qt::Key_D);
        row("cmdPopMailingUserNew", Qt::Key_Insert);
        row("cmdPopMailingDel", Qt::Key_Delete);
        row("cmdPopMailingUserDel", Qt::Key_Delete);
        row("cmdPopMailingUserMod", Qt::Key_Return);
        row("cmdPopMailingSelAllGRP", Qt::CTRL | Qt::Key_A);
        row("cmdPopMailingSelNotGRP", Qt::CTRL | Qt::SHIFT | Qt::Key_A);
        row("cmdPopMailingSelAllDB", Qt::CTRL | Qt::Key_A);
        row("cmdPopMailingSelNotDB", Qt::CTRL | Qt::SHIFT | Qt::Key_A);
    }
    void keysOfCommands() {
        QFETCH(QString, name);
        QFETCH(QKeySequence, key);
        StoreStage stage;
        QVERIFY(stage.window().findChild<QAction*>(name)->shortcuts().contains(key));
    }

    void windowKeysStartTheirCommands_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("editor") << "cmdEditor" << Qt::Key_N;
        QTest::newRow("text import") << "cmdMailingImpTXT" << Qt::Key_I;
        QTest::newRow("accounts") << "cmdFileAccount" << Qt::Key_Comma;
    }

    void windowKeysStartTheirCommands() {
        QFETCH(QString, name);
        QFETCH(Qt::Key, key);
        StoreStage stage;
        stage.window();
        QSignalSpy started(&stage.window().Commands(), &ui::CommandBars::commandStarted);
        closeModalWindow();
        QTest::keyClick(&stage.window(), key, Qt::ControlModifier);
        QCOMPARE(started.size(), 1);
        QCOMPARE(started[0][0].toString(), name);
    }

    void theTreeHasTheKeyboardAtTheStartAndTabLeadsToTheGrid() {
        StoreStage stage;
        stage.window();
        QCOMPARE(focus(), "TREE");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(focus(), "grd");
    }

    void f6GoesRoundTreeGridAndBars() {
        StoreStage stage;
        stage.window();
        QStringList order;
        for (int i = 0; i < 4; ++i) {
            order << focus();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
        }
        QCOMPARE(order, (QStringList{"TREE", "grd", "cmdMailingApri", "TREE"}));
    }

    void f10ReachesTheMenuBarAndEscLeavesIt() {
        StoreStage stage;
        stage.window();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F10);
        QWidget* menu = QApplication::activePopupWidget();
        QVERIFY(menu);
        QCOMPARE(menu->objectName(), "mnuFile");
        QTest::keyClick(menu, Qt::Key_Right);
        menu = QApplication::activePopupWidget();
        QVERIFY(menu);
        QCOMPARE(menu->objectName(), "mnuEditor");
        QTest::keyClick(menu, Qt::Key_Escape);
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(focus(), "Menu");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QCOMPARE(focus(), "TREE");
    }

    void popUpCommandsOfTheBarAreOffBeforeAnyClick() {
        StoreStage stage;
        QVERIFY(!enabled(stage, "cmdPopMailingNew"));
        QVERIFY(!enabled(stage, "cmdPopMailingUserNew"));
        QVERIFY(enabled(stage, "cmdMailingApri"));
        QVERIFY(enabled(stage, "cmdInvia"));
    }

    void onAGroupBothAreOn() {
        StoreStage stage;
        stage.window();
        stage.clickNode("K1");
        QVERIFY(enabled(stage, "cmdPopMailingNew"));
        QVERIFY(enabled(stage, "cmdPopMailingUserNew"));
    }

    void onTheRootOnlyTheNewGroupIsOnUnlessTheGridHasRows() {
        StoreStage stage;
        stage.window();
        stage.clickNode("K1");
        stage.clickNode("K0");
        QVERIFY(enabled(stage, "cmdPopMailingNew"));
        QVERIFY(!enabled(stage, "cmdPopMailingUserNew"));
        stage.addRecipient(0, "Ditta");
        stage.clickNode("K0");
        QCOMPARE(stage.grd().Rows(), 2);
        QVERIFY(enabled(stage, "cmdPopMailingUserNew"));
    }

    void anOpenedDatabaseLeavesThemAsTheirPopUpsWouldBe() {
        StoreStage stage;
        stage.addRecipient(0, "Ditta");
        stage.window();
        stage.clickNode("K0");
        QVERIFY(enabled(stage, "cmdPopMailingUserNew"));
        stage.window().SvuotaGriglia();
        QVERIFY(!enabled(stage, "cmdPopMailingUserNew"));
        QVERIFY(enabled(stage, "cmdPopMailingNew"));
    }
};

TEST_CLASS_WITH(TestKeys, ui::setUpDesktop);

}  // namespace keys_test

#include "keys_test.moc"
