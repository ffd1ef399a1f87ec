// SPDX-License-Identifier: GPL-3.0-or-later
// How the windows look: nothing is cut, also with longer texts and larger fonts; names and order for
// assistive programs and the keyboard. With VESTROLA_SHOTS set to a folder, pictures of the windows are left
// there.
#include <QScopedValueRollback>

#include "modules/core/Prodotto.h"
#include "modules/lang/bVAR.h"
#include "platform/ui/Desktop.h"
#include "support/AsInTheProgram.h"
#include "support/LookCheck.h"
#include "support/SendStage.h"
#include "support/TestClass.h"
#include "windows/entry/Finestre.h"
#include "windows/shell/frmMain.h"

namespace look_test {

using namespace testing_support;

class TestLook : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void sendWindowOpensAtItsSizeWithNothingCut() {
        SendStage stage({"a@x.it"});
        QCOMPARE(stage.window->size(), QSize(600, 340).expandedTo(stage.window->sizeHint()));
        QCOMPARE(faultsOfLayout(*stage.window), QStringList());
        keepPicture(*stage.window, "invia");
    }

    void sendWindowWithTextsAThirdLongerGrowsAndCutsNothing() {
        SendStage stage({"a@x.it"});
        makeTextsLonger(*stage.window);
        stage.window->SetPrgBar();
        stage.open();
        QCoreApplication::sendPostedEvents();
        QCOMPARE(faultsOfLayout(*stage.window), QStringList());
        QVERIFY(stage.window->width() <= 800);
        keepPicture(*stage.window, "invia_lunghi");
    }

    void sendWindowWithALargeFontCutsNothing() {
        const QScopedValueRollback seconds(bVAR::goSecondi, QString("secondi"));
        const QFont before = QApplication::font();
        QFont large = before;
        large.setPointSizeF(14);
        QApplication::setFont(large);
        SendStage stage({"a@x.it"});
        QCOMPARE(faultsOfLayout(*stage.window), QStringList());
        keepPicture(*stage.window, "invia_14pt");
        QApplication::setFont(before);
    }

    void pictureOfARunUnderWay() {
        SendStage stage(QList<SampleFolder::Columns>(8, {{"email", "a@x.it"}}));
        stage.pick();
        stage.click("chkBlocco");
        int taken = 0;
        QList<double> duringRun;
        QStringList faults{"not looked at"};
        QObject::connect(&stage.sink, &SmtpSink::attempted, [&] {
            ++taken;
            stage.sink.treat("a@x.it", taken % 2 ? SmtpSink::Treatment::Refuse : SmtpSink::Treatment::Accept);
            if (taken != 6) return;
            duringRun = stage.counters();
            faults = faultsOfLayout(*stage.window);
            keepPicture(*stage.window, "invia_corsa");
        });
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(duringRun, (QList<double>{3, 2, 3}));
        QCOMPARE(faults, QStringList());
        QCOMPARE(stage.counters(), (QList<double>{0, 4, 4}));
        QCOMPARE(faultsOfLayout(*stage.window), QStringList());
        keepPicture(*stage.window, "invia_fine");
    }

    void fieldsAndButtonsHaveTheirSizes() {
        SendStage stage({"a@x.it"});
        for (const char* name :
             {"txtFile", "cmbAccount", "cmbPausa", "cmbTimeout", "txtBloccoNum", "txtBloccoMin"})
            QVERIFY2(stage.control<QWidget>(name)->height() >= 26, name);
        for (const char* name : {"cmdInvia", "cmdFerma", "cmdChiudi"}) {
            QVERIFY2(stage.control<QWidget>(name)->width() >= 100, name);
            QVERIFY2(stage.control<QWidget>(name)->height() >= 28, name);
        }
        QCOMPARE(stage.control<QWidget>("cmdChiudi")->geometry().right(), stage.window->width() - 13);
        QCOMPARE(stage.control<QWidget>("cmdChiudi")->geometry().bottom(), stage.window->height() - 13);
    }

    void barsDoNotMoveWhileTheFiguresGrow() {
        SendStage stage({"a@x.it"});
        const QRect before = stage.control<QWidget>("prgFallite")->geometry();
        stage.control<QLabel>("lblFallite")->setText("Email non inviate: 9.999.999");
        QCoreApplication::sendPostedEvents();
        QCOMPARE(stage.control<QWidget>("prgFallite")->geometry(), before);
    }

    void everyControlHasANameForAssistivePrograms() {
        SendStage stage({"a@x.it"});
        const QHash<QString, QString> names{{"txtFile", "File messaggio da inviare"},
                                            {"cmdFile", "Apri il messaggio"},
                                            {"cmbAccount", "Account mittente"},
                                            {"cmbPausa", "Pausa"},
                                            {"cmbTimeout", "Timeout"},
                                            {"chkBlocco", "Non inviare più di"},
                                            {"txtBloccoNum", "Non inviare più di … email ogni"},
                                            {"txtBloccoMin", "email ogni … minuti."},
                                            {"chkLog", "Crea File per assistenza."},
                                            {"prgDaInviare", "Email da inviare"},
                                            {"prgFallite", "Email non inviate"},
                                            {"prgInviate", "Email inviate"},
                                            {"cmdInvia", "Invia messaggi"},
                                            {"cmdFerma", "Ferma invio"},
                                            {"cmdChiudi", "Chiudi"}};
        QCOMPARE(otherNames(*stage.window, names), QStringList());
        for (const auto* label : stage.window->findChildren<QLabel*>())
            QVERIFY2(label->buddy(), qPrintable(label->objectName()));
    }

    void tabGoesTopToBottom() {
        SendStage stage({"a@x.it"});
        stage.click("chkBlocco");
        stage.control<QWidget>("txtFile")->setFocus();
        QStringList order;
        for (int i = 0; i < 11; ++i) {
            order << stage.window->focusWidget()->objectName();
            QTest::keyClick(stage.window->focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order,
                 (QStringList{"txtFile", "cmdFile", "cmbAccount", "cmbPausa", "cmbTimeout", "chkBlocco",
                              "txtBloccoNum", "txtBloccoMin", "chkLog", "cmdInvia", "cmdChiudi"}));
    }

    void mnemonicsAreDistinct() {
        SendStage stage({"a@x.it"});
        QStringList letters;
        for (const auto* button : stage.window->findChildren<QAbstractButton*>()) {
            const qsizetype at = button->text().indexOf('&');
            if (at >= 0) letters << button->text().mid(at + 1, 1).toLower();
        }
        QCOMPARE(letters.size(), 3);
        QCOMPARE(QSet<QString>(letters.begin(), letters.end()).size(), 3);
    }

    void pictureOfTheMainWindow() {
        SendStage stage({"a@x.it"});
        TitoloPrincipale(finestre::Main());
        finestre::Main().show();
        QVERIFY(QTest::qWaitForWindowExposed(&finestre::Main()));
        QCOMPARE(finestre::Main().windowTitle(), "Vestrola - Ver. 3.0.2130");
        QCOMPARE(faultsOfLayout(finestre::Main()), QStringList());
        keepPicture(finestre::Main(), "principale");
    }
};

TEST_CLASS_WITH(TestLook, asInTheProgram);

}  // namespace look_test

#include "look_test.moc"
