#include <QAction>
#include <QFile>
#include <QMenuBar>

#include "core/bGlobal.h"
#include "core/bMain.h"
#include "core/Finestre.h"
#include "lang/bVAR.h"
#include "platform/ui/CommandBars.h"
#include "shell/frmMain.h"
#include "support/SendStage.h"

using namespace testing_support;
using ui::MessageDialog;

namespace {

QAction* command(const char* name) {
    auto* action = finestre::Main().findChild<QAction*>(name);
    if (!action) qFatal("no command %s", name);
    return action;
}

}  // namespace

class TestMain : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void startReadsThePathWritesTheLogAndShowsTheTitledWindow() {
        SendStage stage;
        percorsoDB.clear();
        connDB.clear();
        QFile log(stage.folder.path("Error.txt"));
        QVERIFY(!log.exists());
        SubMain();
        QVERIFY(log.open(QIODevice::ReadOnly));
        QVERIFY(log.readAll().startsWith("Inizio applicazione: "));
        QCOMPARE(percorsoDB, stage.folder.database());
        QCOMPARE(connDB, "Provider = Microsoft.Jet.OLEDB.4.0; Data Source = " + percorsoDB);
        QVERIFY(finestre::Main().isVisible());
        QCOMPARE(finestre::Main().windowTitle(), "Vestrola - Ver. 3.0.2130");
        QVERIFY(!QApplication::overrideCursor());
    }

    void missingPathFileDoesNotKeepTheProgramFromStarting() {
        SendStage stage;
        QVERIFY(QFile::remove(stage.folder.path("data/pathDBase.imp")));
        percorsoDB.clear();
        SubMain();
        QCOMPARE(percorsoDB, "");
        QVERIFY(finestre::Main().isVisible());
        QVERIFY(stage.ends.isEmpty());
    }

    void fileMenuHasItsCommandsAndMnemonics() {
        SendStage stage;
        auto* file = finestre::Main().findChild<QMenu*>("mnuFile");
        QVERIFY(file);
        QCOMPARE(file->title(), "&File");
        QCOMPARE(command("cmdInvia")->text(), "&Invia messaggi");
        QCOMPARE(command("cmdEsci")->text(), "&Esci");
        auto* bars = finestre::Main().findChild<ui::CommandBars*>();
        QVERIFY(bars);
        QCOMPARE(bars->GetToolButton("cmdInvia")->Description(), "Invia i messaggi");
    }

    void sendingWithNothingSelectedShowsTheBoxAndNoSendWindow() {
        SendStage stage;
        stage.folder.addRecipient({{"email", "a@x.it"}, {"sel", "0"}});
        MessageDialog::queue(1);
        command("cmdInvia")->trigger();
        QCOMPARE(MessageDialog::shown().size(), 1);
        const auto& box = MessageDialog::shown().constFirst();
        QCOMPARE(box.text, "Nessun destinatario");
        QCOMPARE(box.title, "Attenti");
        QCOMPARE(box.icon, QMessageBox::Information);
        QVERIFY(!finestre::Invia().isVisible());
    }

    void sendingOpensTheSendWindowModallyWithItsListsFilled() {
        SendStage stage({"a@x.it", "b@x.it"});
        bool seen = false;
        QTimer::singleShot(0, this, [&] {
            frmInvia& window = finestre::Invia();
            seen = window.isVisible() && window.isModal();
            QCOMPARE(window.parentWidget(), &finestre::Main());
            QCOMPARE(window.findChild<QLabel*>("lblDaInviare")->text(), "Email da inviare: 2");
            QCOMPARE(window.findChild<QComboBox*>("cmbAccount")->count(), 1);
            window.findChild<QPushButton*>("cmdChiudi")->click();
        });
        command("cmdInvia")->trigger();
        QVERIFY(seen);
        QVERIFY(!finestre::Invia().isVisible());
    }

    void theSendWindowIsOneInstanceThatKeepsItsContent() {
        SendStage stage({"a@x.it"});
        frmInvia* first = nullptr;
        for (int opening = 0; opening < 2; ++opening) {
            QTimer::singleShot(0, this, [&] {
                frmInvia& window = finestre::Invia();
                if (first) {
                    QCOMPARE(&window, first);
                    QCOMPARE(window.findChild<QLineEdit*>("txtFile")->text(), "prova");
                }
                first = &window;
                window.findChild<QLineEdit*>("txtFile")->setText("prova");
                window.findChild<QPushButton*>("cmdChiudi")->click();
            });
            command("cmdInvia")->trigger();
        }
        QVERIFY(first);
    }

    void commandsDuringACommandAreIgnored() {
        SendStage stage({"a@x.it"});
        QTimer::singleShot(0, this, [&] {
            finestre::Main().ComandoPremuto("cmdEsci");
            finestre::Invia().findChild<QPushButton*>("cmdChiudi")->click();
        });
        command("cmdInvia")->trigger();
        QVERIFY(stage.ends.isEmpty());
    }

    void unknownCommandHasNoEffect() {
        SendStage stage({"a@x.it"});
        finestre::Main().ComandoPremuto("cmdInv");
        finestre::Main().ComandoPremuto("CMDESCI");
        finestre::Main().ComandoPremuto("");
        QVERIFY(stage.ends.isEmpty());
        QVERIFY(!finestre::Invia().isVisible());
    }

    void databaseThatWentAwayIsAnUnhandledFailureOfACommand() {
        SendStage stage({"a@x.it"});
        stage.folder.hideDatabase();
        MessageDialog::queue(1);
        command("cmdInvia")->trigger();
        QCOMPARE(stage.ends, QList<int>{1});
        QVERIFY(MessageDialog::shown().constFirst().text.startsWith("Errore "));
        QCOMPARE(MessageDialog::shown().constFirst().icon, QMessageBox::Critical);
    }

    void missingAccountFileIsAnUnhandledFailureOfSending() {
        SendStage stage({"a@x.it"});
        QVERIFY(QFile::remove(stage.folder.path("data/Account.imp")));
        MessageDialog::queue(1);
        command("cmdInvia")->trigger();
        QCOMPARE(stage.ends, QList<int>{1});
        QVERIFY(MessageDialog::shown().constFirst().text.startsWith("Errore 53:"));
        QVERIFY(!finestre::Invia().isVisible());
    }

    void exitCommandAndTitleBarEndTheProgramWithoutAQuestion() {
        SendStage stage({"a@x.it"});
        finestre::Main().show();
        command("cmdEsci")->trigger();
        QCOMPARE(stage.ends, QList<int>{0});
        finestre::Main().close();
        QCOMPARE(stage.ends, (QList<int>{0, 0}));
        QVERIFY(MessageDialog::shown().isEmpty());
    }
};

QTEST_MAIN(TestMain)
#include "test_gui_main.moc"
