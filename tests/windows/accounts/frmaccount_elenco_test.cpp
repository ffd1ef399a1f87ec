// SPDX-License-Identifier: GPL-3.0-or-later
// The list of the account window and the boxes that follow its position: choosing, deleting, the states that
// the check boxes set, focus and closing.
#include <QContextMenuEvent>
#include <QTimer>

#include "support/AsInTheProgram.h"
#include "support/TestClass.h"
#include "windows/accounts/frmaccount_stage.h"
#include "windows/core/Evento.h"

namespace frmaccount_elenco_test {

using namespace testing_support;

namespace {

const QStringList three{"0|Rossi|info@rossi.it|mail.rossi.it|587|1|rossi|segreta|EHLO|11|1",
                        "1|Bianchi|b@bianchi.it|||0|||HELO|22|0",
                        "2|Verdi|v@verdi.it|smtp.verdi.it|2525|0|verdi|parola|EHLO|33|1"};

const char* const login[] = {"lbl(10)", "lbl(11)", "txtUsername", "txtPassword"};
const char* const server[] = {"lbl(7)", "txtServerSMTP", "txtServerPORT"};

}  // namespace

class TestFrmAccountElenco : public QObject {
    Q_OBJECT

    template <class Names>
    void verifyEnabled(const AccountStage& stage, const Names& names, bool wanted) {
        for (const char* name : names)
            QVERIFY2(stage.enabled(name) == wanted, name);
    }
    QString popup() {
        QWidget* menu = QApplication::activePopupWidget();
        if (!menu) return {};
        menu->close();
        return menu->objectName();
    }

  private Q_SLOTS:
    void listShowsNameAndAddressInTheOrderOfTheFile() {
        const AccountStage stage(three);
        QCOMPARE(stage.entries(),
                 (QStringList{"Rossi [info@rossi.it]", "Bianchi [b@bianchi.it]", "Verdi [v@verdi.it]"}));
        QVERIFY(!stage.enabled("cmdModifica"));
    }

    void clickPutsTheFieldsIntoTheControls() {
        AccountStage stage(three);
        stage.press(0);
        QCOMPARE(stage.text("txtNomeVisual"), "Rossi");
        QCOMPARE(stage.text("txtEmail"), "info@rossi.it");
        QCOMPARE(stage.text("txtServerSMTP"), "mail.rossi.it");
        QCOMPARE(stage.text("txtServerPORT"), "587");
        QVERIFY(stage.checked("chkAutentick"));
        QCOMPARE(stage.text("txtUsername"), "rossi");
        QCOMPARE(stage.text("txtPassword"), "segreta");
        QCOMPARE(stage.control<QComboBox>("cmbSaluto")->currentText(), "EHLO");
        QCOMPARE(stage.text("txtOutPort"), "11");
        QVERIFY(stage.checked("chkUsaSMTP"));
        QVERIFY(stage.enabled("cmdModifica"));
        verifyEnabled(stage, login, true);
        verifyEnabled(stage, server, true);
    }

    void accountWithoutServerTurnsServerAndLoginOff() {
        AccountStage stage(three);
        stage.press(0);
        stage.press(1);
        QVERIFY(!stage.checked("chkUsaSMTP"));
        QVERIFY(!stage.checked("chkAutentick"));
        QVERIFY(!stage.enabled("chkAutentick"));
        QCOMPARE(stage.control<QComboBox>("cmbSaluto")->currentText(), "HELO");
        QCOMPARE(stage.text("txtServerPORT"), "");
        verifyEnabled(stage, login, false);
        verifyEnabled(stage, server, false);
    }

    void loginOfAnAccountThatNeedsNoneIsShownButOff() {
        AccountStage stage(three);
        stage.press(2);
        QCOMPARE(stage.text("txtUsername"), "verdi");
        QCOMPARE(stage.text("txtPassword"), "parola");
        verifyEnabled(stage, login, false);
        verifyEnabled(stage, server, true);
    }

    void anyOtherGreetingReadsAsHelo() {
        AccountStage stage({"0|a|a@b.it||25|0|||ehlo|0|0", "1|b|b@b.it||25|0|||EHLO|0|0"});
        stage.press(0);
        QCOMPARE(stage.control<QComboBox>("cmbSaluto")->currentText(), "HELO");
        stage.press(1);
        QCOMPARE(stage.control<QComboBox>("cmbSaluto")->currentText(), "EHLO");
    }

    void portReads25AfterAnAccountWithoutServer() {
        AccountStage stage(three);
        stage.press(1);
        stage.press(2);
        QCOMPARE(stage.text("txtServerPORT"), "25");
        stage.press(0);
        QCOMPARE(stage.text("txtServerPORT"), "587");
    }

    void secondClickOnTheSameEntryPutsItsFieldsAgain() {
        AccountStage stage(three);
        stage.press(1);
        stage.press(2);
        stage.type("txtNomeVisual", "altro");
        stage.press(2);
        QCOMPARE(stage.text("txtNomeVisual"), "Verdi");
        QCOMPARE(stage.text("txtServerPORT"), "2525");
    }

    void arrowKeysChooseAndCountAsClicks() {
        AccountStage stage(three);
        QTest::keyClick(&stage.list(), Qt::Key_Down);
        QCOMPARE(stage.list().ListIndex(), 0);
        QCOMPARE(stage.text("txtNomeVisual"), "Rossi");
        QTest::keyClick(&stage.list(), Qt::Key_Down);
        QCOMPARE(stage.text("txtNomeVisual"), "Bianchi");
    }

    void focusAloneChoosesNothing() {
        AccountStage stage(three);
        stage.control<QWidget>("txtEmail")->setFocus();
        stage.list().setFocus();
        QCOMPARE(stage.list().ListIndex(), -1);
        QVERIFY(!stage.enabled("cmdModifica"));
        QCOMPARE(stage.text("txtNomeVisual"), "");
    }

    void neitherCtrlClickNorEmptySpaceTakesTheChoiceBack() {
        AccountStage stage(three);
        stage.press(1);
        QWidget* view = stage.list().viewport();
        const QPoint onIt(20, stage.list().visualItemRect(stage.list().item(1)).center().y());
        QTest::mouseClick(view, Qt::LeftButton, Qt::ControlModifier, onIt);
        QCOMPARE(stage.list().ListIndex(), 1);
        QTest::mouseClick(view, Qt::LeftButton, {}, QPoint(20, view->height() - 5));
        QCOMPARE(stage.list().ListIndex(), 1);
    }

    void noPositionTurnsTheChangeButtonOff() {
        AccountStage stage(three);
        stage.press(1);
        stage.list().clearSelection();
        QVERIFY(!stage.enabled("cmdModifica"));
    }

    void gapInTheNumbersShowsTheSlotOfThePosition() {
        AccountStage stage({"1|Solo|s@solo.it|mail.solo.it|25|1|u|p|EHLO|0|1"});
        QCOMPARE(stage.entries(), QStringList{"Solo [s@solo.it]"});
        stage.press(0);
        QCOMPARE(stage.text("txtNomeVisual"), "");
        QVERIFY(!stage.checked("chkUsaSMTP"));
        QCOMPARE(stage.control<QComboBox>("cmbSaluto")->currentText(), "HELO");
        QVERIFY(stage.ends.isEmpty());
    }

    void positionPastTheTableEndsTheProgram() {
        AccountStage stage({"0|a|a@b.it||25|0|||EHLO|0|0", "0|b|b@b.it||25|0|||EHLO|0|0"});
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage.press(1);
        QVERIFY2(stage.box().startsWith("Errore 9:"), qPrintable(stage.box()));
        QCOMPARE(stage.ends, QList<int>{1});
    }

    void loginBoxSetsItsFourControls() {
        AccountStage stage;
        stage.click("chkAutentick");
        verifyEnabled(stage, login, true);
        stage.click("chkAutentick");
        verifyEnabled(stage, login, false);
    }

    void advancedBoxSetsItsFourControlsAndNothingElse() {
        AccountStage stage;
        const QStringList four{"cmbSaluto", "txtOutPort", "lbl(6)", "lbl(12)"};
        for (const bool on : {true, false}) {
            stage.click("chkAvanzate");
            for (const QString& name : four)
                QCOMPARE(stage.enabled(name), on);
            verifyEnabled(stage, login, false);
            verifyEnabled(stage, server, true);
        }
    }

    void choosingAnEntryLeavesTheAdvancedBoxAsItIs() {
        AccountStage stage(three);
        for (const bool on : {true, false}) {
            stage.check("chkAvanzate", on);
            for (const int position : {0, 1, 2}) {
                stage.press(position);
                QCOMPARE(stage.checked("chkAvanzate"), on);
                QCOMPARE(stage.enabled("txtOutPort"), on);
            }
        }
    }

    void uncheckedServerBoxTurnsEightControlsOff() {
        AccountStage stage;
        stage.click("chkAutentick");
        stage.click("chkUsaSMTP");
        verifyEnabled(stage, server, false);
        verifyEnabled(stage, login, false);
        QVERIFY(!stage.enabled("chkAutentick"));
        QVERIFY(stage.checked("chkAutentick"));
    }

    void checkedServerBoxPuts25OverATypedPort() {
        AccountStage stage;
        stage.type("txtServerPORT", "587");
        stage.click("chkUsaSMTP");
        QCOMPARE(stage.text("txtServerPORT"), "587");
        stage.click("chkUsaSMTP");
        QCOMPARE(stage.text("txtServerPORT"), "25");
        verifyEnabled(stage, server, true);
        QVERIFY(stage.enabled("chkAutentick"));
        verifyEnabled(stage, login, false);
    }

    void checkedServerBoxTurnsTheLoginOnWhereItIsNeeded() {
        AccountStage stage;
        stage.click("chkAutentick");
        stage.click("chkUsaSMTP");
        stage.click("chkUsaSMTP");
        verifyEnabled(stage, login, true);
    }

    void rightPressOpensTheMenuAndLeavesThePosition() {
        AccountStage stage(three);
        stage.press(1);
        stage.press(2, Qt::RightButton);
        QCOMPARE(popup(), "mnuElenco");
        QCOMPARE(stage.list().ListIndex(), 1);
        QCOMPARE(stage.text("txtNomeVisual"), "Bianchi");
    }

    void rightPressOnAnEmptyListOpensNothing() {
        AccountStage stage;
        QTest::mousePress(stage.list().viewport(), Qt::RightButton, {}, QPoint(20, 20));
        QCOMPARE(popup(), "");
    }

    void menuKeyOpensTheMenu() {
        AccountStage stage(three);
        QContextMenuEvent ask(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
        QApplication::sendEvent(stage.list().viewport(), &ask);
        QCOMPARE(popup(), "mnuElenco");
    }

    void menuItemDeletesTheChosenEntryWithoutAsking() {
        AccountStage stage(three);
        stage.press(1);
        stage.control<QAction>("mnuElimina")->trigger();
        QCOMPARE(stage.entries(), (QStringList{"Rossi [info@rossi.it]", "Verdi [v@verdi.it]"}));
        QVERIFY(ui::MessageDialog::shown().isEmpty());
        QCOMPARE(stage.records().size(), 2);
        QVERIFY(stage.records().at(1).startsWith("1|Verdi|"));
    }

    void keysThatDelete_data() {
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("left");
        QTest::newRow("Delete") << int(Qt::Key_Delete) << 2;
        QTest::newRow("2") << 2 << 2;
        QTest::newRow("digit two") << int(Qt::Key_2) << 3;
        QTest::newRow("Backspace") << int(Qt::Key_Backspace) << 3;
    }
    void keysThatDelete() {
        QFETCH(int, code);
        QFETCH(int, left);
        AccountStage stage(three);
        stage.press(0);
        stage.key(code);
        QCOMPARE(stage.list().count(), left);
    }

    void entryAfterTheDeletedOneBecomesCurrent() {
        AccountStage stage(three);
        stage.press(0);
        stage.key(Qt::Key_Delete);
        QCOMPARE(stage.list().ListIndex(), 0);
        QCOMPARE(stage.text("txtNomeVisual"), "Bianchi");
        QVERIFY(stage.enabled("cmdModifica"));
    }

    void afterTheLastOneTheNewLastIsChosen() {
        AccountStage stage(three);
        stage.press(2);
        stage.key(Qt::Key_Delete);
        QCOMPARE(stage.list().ListIndex(), 1);
        QCOMPARE(stage.text("txtNomeVisual"), "Bianchi");
        QVERIFY(stage.enabled("cmdModifica"));
    }

    void deletionChoosesTheNextEntryInOneStep() {
        // An entry without server, if chosen on the way, would change the port.
        AccountStage stage(three);
        stage.press(0);
        stage.key(Qt::Key_Delete);
        stage.press(1);
        stage.press(1);
        stage.key(Qt::Key_Delete);
        QCOMPARE(stage.text("txtNomeVisual"), "Bianchi");
        QCOMPARE(stage.text("txtServerPORT"), "");
    }

    void deletingTheLastAccountResetsTheControls() {
        AccountStage stage({three[1]});
        stage.press(0);
        stage.key(Qt::Key_Delete);
        QCOMPARE(stage.list().count(), 0);
        QVERIFY(!stage.enabled("cmdModifica"));
        for (const char* name : {"txtNomeVisual", "txtEmail", "txtServerSMTP", "txtUsername", "txtPassword"})
            QCOMPARE(stage.text(name), "");
        QCOMPARE(stage.text("txtServerPORT"), "25");
        QCOMPARE(stage.text("txtOutPort"), "0");
        QVERIFY(stage.checked("chkUsaSMTP"));
        QVERIFY(!stage.checked("chkAutentick"));
        QCOMPARE(stage.control<QComboBox>("cmbSaluto")->currentIndex(), 0);
        verifyEnabled(stage, server, true);
        verifyEnabled(stage, login, false);
        QCOMPARE(stage.file(), QByteArray());
    }

    void deleteKeyOnAnEmptyListRewritesTheFileEmpty() {
        AccountStage stage;
        stage.writeRecords({"resto"});
        stage.key(Qt::Key_Delete);
        QCOMPARE(stage.file(), QByteArray());
        QCOMPARE(stage.list().count(), 0);
        QVERIFY(!stage.enabled("cmdModifica"));
        QVERIFY(stage.ends.isEmpty());
    }

    void deleteKeyWithNoneChosenDropsTheFirstRecordAndKeepsTheEntries() {
        AccountStage stage(three);
        stage.key(Qt::Key_Delete);
        QCOMPARE(stage.list().count(), 3);
        QCOMPARE(stage.list().ListIndex(), -1);
        QCOMPARE(stage.records().size(), 2);
        QVERIFY(stage.records().at(0).startsWith("0|Bianchi|"));
        QVERIFY(stage.enabled("cmdModifica"));
        QVERIFY(stage.ends.isEmpty());
        stage.reopen();
        QCOMPARE(stage.entries(), (QStringList{"Bianchi [b@bianchi.it]", "Verdi [v@verdi.it]"}));
    }

    void boxThatTakesTheFocusSelectsItsText_data() {
        QTest::addColumn<QString>("name");
        for (const char* name :
             {"txtNomeVisual", "txtEmail", "txtServerSMTP", "txtServerPORT", "txtUsername", "txtPassword"})
            QTest::newRow(name) << name;
    }
    void boxThatTakesTheFocusSelectsItsText() {
        QFETCH(QString, name);
        AccountStage stage(three);
        stage.press(0);
        auto* box = stage.control<QLineEdit>(name);
        box->setFocus(Qt::OtherFocusReason);
        QCOMPARE(box->selectedText().size(), box->text().size());
        QVERIFY(box->hasSelectedText());
        stage.list().setFocus();
        box->deselect();
        const QPoint place(box->width() - 5, box->height() / 2);
        QTest::mouseClick(box, Qt::LeftButton, {}, place);
        QCOMPARE(box->selectionStart(), 0);
        QCOMPARE(box->selectionLength(), int(box->text().size()));
        QTest::mouseClick(box, Qt::LeftButton, {}, place);
        QVERIFY(!box->hasSelectedText());
    }

    void enterChangesTheChosenAccountAndElseMakesOne() {
        AccountStage stage(three);
        QVERIFY(stage.control<QPushButton>("cmdNuovo")->isDefault());
        stage.press(1);
        QVERIFY(stage.control<QPushButton>("cmdModifica")->isDefault());
        stage.type("txtNomeVisual", "Neri");
        QTest::keyClick(stage.control<QLineEdit>("txtNomeVisual"), Qt::Key_Return);
        QCOMPARE(stage.list().count(), 3);
        QCOMPARE(stage.entries().at(1), "Neri [b@bianchi.it]");
    }

    void titleBarAndEscDoNotCloseIt() {
        AccountStage stage;
        QVERIFY(!stage.window->close());
        QTest::keyClick(stage.window.get(), Qt::Key_Escape);
        QVERIFY(stage.window->isVisible());
    }

    void closeButtonHidesItAndKeepsWhatItContains() {
        AccountStage stage(three);
        stage.press(0);
        stage.type("txtNomeVisual", "in corso");
        stage.click("cmdChiudi");
        QVERIFY(!stage.window->isVisible());
        stage.writeRecords({});
        stage.window->show();
        QCOMPARE(stage.list().count(), 3);
        QCOMPARE(stage.list().ListIndex(), 0);
        QCOMPARE(stage.text("txtNomeVisual"), "in corso");
    }
};

TEST_CLASS_WITH(TestFrmAccountElenco, asInTheProgram);

}  // namespace frmaccount_elenco_test

#include "frmaccount_elenco_test.moc"
