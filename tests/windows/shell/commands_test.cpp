// SPDX-License-Identifier: GPL-3.0-or-later
// The one handler of all commands.
#include <QLabel>
#include <QMenu>
#include <QTimer>

#include "platform/system/ProgramFolder.h"
#include "support/TestClass.h"
#include "windows/send/frmInvia.h"
#include "windows/shell/frmInfoSu.h"
#include "windows/shell/shell_support.h"

namespace commands_test {

using namespace testing_support;
using ui::MessageDialog;

namespace {

const char* const all[] = {"cmdFileAccount",
                           "cmdEsci",
                           "cmdEditor",
                           "cmdMailingSalva",
                           "cmdMailingApri",
                           "cmdMailingImpTXT",
                           "cmdMailingImpOE",
                           "cmdMailingImpMSO",
                           "cmdMailingImpDB",
                           "cmdInvia",
                           "cmdPopMailingHead",
                           "cmdPopMailingDel",
                           "cmdPopMailingCopia",
                           "cmdPopMailingRinomina",
                           "cmdPopMailingNew",
                           "cmdPopMailingSelAllGRP",
                           "cmdPopMailingSelNotGRP",
                           "cmdPopMailingSelAllDB",
                           "cmdPopMailingSelNotDB",
                           "cmdPopMailingUserNew",
                           "cmdPopMailingUserMod",
                           "cmdPopMailingUserDel",
                           "cmdPopMailingSvuotaCartella",
                           "cmdHelpGuida",
                           "cmdHelpHomePage",
                           "cmdHelpInviaMail",
                           "cmdHelpInfoSu",
                           "cmdLang"};

}  // namespace

class TestCommands : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        bVAR::AddDestinatario = "Nessun destinatario";
        bVAR::Attenzione = "Attenti";
    }

    void recordsetAndCommandExistForEveryCommandAlsoForOneThatDoesNotUseThem_data() {
        QTest::addColumn<QString>("name");
        for (const char* name : all)
            QTest::newRow(name) << name;
        QTest::newRow("unknown") << "cmdNiente";
    }
    void recordsetAndCommandExistForEveryCommandAlsoForOneThatDoesNotUseThem() {
        QFETCH(QString, name);
        StoreStage stage;
        stage.window();
        stage.folder.hideDatabase();
        MessageDialog::queue(1);
        stage.command(name);
        QVERIFY2(stage.failure().startsWith("Errore 53:"), qPrintable(stage.failure()));
        QCOMPARE(stage.ends, QList<int>{1});
        QVERIFY(!QFile::exists(stage.folder.path("data/LayoutMain.imp")));
    }

    void namesAreComparedWholeAndWithCase_data() {
        QTest::addColumn<QString>("name");
        for (const char* name :
             {"cmdEsc", "cmdEsci ", "cmdesci", "CMDESCI", "", "cmdEsciX", "cmdPopMailingSelAll"})
            QTest::newRow(name) << name;
    }
    void namesAreComparedWholeAndWithCase() {
        QFETCH(QString, name);
        StoreStage stage;
        stage.addRecipient(1, "A", "a@x.it", false);
        stage.clickNode("K1");
        stage.command(name);
        QVERIFY(stage.ends.isEmpty());
        QVERIFY(MessageDialog::shown().isEmpty());
        QCOMPARE(stage.count("tb_destinatari", "sel = True"), 0);
    }

    void groupAndRecipientCommandsReachTheirRoutines() {
        StoreStage stage;
        stage.addRecipient(1, "A", "a@x.it", false);
        stage.addRecipient(1, "B", "b@x.it", false);
        stage.window();
        stage.clickNode("K1");
        stage.command("cmdPopMailingSelAllGRP");
        QCOMPARE(stage.count("tb_destinatari", "sel = True"), 2);
        stage.command("cmdPopMailingSelNotGRP");
        QCOMPARE(stage.count("tb_destinatari", "sel = True"), 0);
        stage.command("cmdPopMailingSelAllDB");
        QCOMPARE(stage.count("tb_destinatari", "sel = True"), 2);
        stage.command("cmdPopMailingSelNotDB");
        QCOMPARE(stage.count("tb_destinatari", "sel = True"), 0);
        stage.command("cmdPopMailingNew");
        QCOMPARE(stage.look("SELECT nome FROM tb_gruppi WHERE id_up = 1"), "Nuovo gruppo");
        stage.command("cmdPopMailingCopia");
        QCOMPARE(stage.count("tb_gruppi", "nome = 'Clienti_Copia'"), 1);
        QCOMPARE(stage.count("tb_destinatari", "id_grp <> 1"), 2);
        MessageDialog::queue(MessageDialog::Yes);
        stage.command("cmdPopMailingUserDel");
        QCOMPARE(stage.count("tb_destinatari", "id_grp = 1"), 1);
        MessageDialog::queue(MessageDialog::Yes);
        stage.command("cmdPopMailingSvuotaCartella");
        QCOMPARE(stage.count("tb_destinatari", "id_grp = 1"), 0);
        MessageDialog::queue(MessageDialog::Ok);
        stage.command("cmdPopMailingDel");
        QCOMPARE(stage.count("tb_gruppi", "id = 1"), 1);
        stage.clickNode("K2");
        stage.command("cmdPopMailingHead");
        QCOMPARE(stage.look("SELECT id_up FROM tb_gruppi WHERE id = 2"), "0");
        stage.command("cmdPopMailingRinomina");
        QVERIFY(stage.tree().findChild<QWidget*>("qt_editing_widget") ||
                QApplication::focusWidget() != static_cast<QWidget*>(&stage.tree()));
        QVERIFY(stage.ends.isEmpty());
    }

    void recipientCommandsOpenTheirFormModally_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("mode");
        QTest::newRow("new") << "cmdPopMailingUserNew" << 0;
        QTest::newRow("edit") << "cmdPopMailingUserMod" << 1;
    }
    void recipientCommandsOpenTheirFormModally() {
        QFETCH(QString, name);
        QFETCH(int, mode);
        StoreStage stage;
        stage.addRecipient(1, "A");
        stage.window();
        stage.clickNode("K1");
        bool seen = false;
        stage.whenFormOpens([&](frmDestinatario& form) {
            seen = form.isModal() && form.parentWidget() == &stage.window() && form.modo == mode;
        });
        stage.command(name);
        QVERIFY(seen);
    }

    void aCommandOnNoNodeIsAnUnhandledFailureOrDoesNothingWorse() {
        StoreStage stage;
        stage.window();
        QVERIFY(!nodoCorrente);
        MessageDialog::queue(1);
        stage.command("cmdPopMailingSelAllGRP");
        QCOMPARE(stage.ends, QList<int>{1});
    }

    void theAccountCommandOpensTheAccountWindowModally() {
        StoreStage stage;
        stage.window();
        bool seen = false;
        closeModalWindow([&](QWidget& window) {
            seen = window.objectName() == "frmAccount" && window.parentWidget() == &stage.window();
        });
        stage.command("cmdFileAccount");
        QVERIFY(seen);
    }

    void pickingAnotherLanguageTakesItForTheNextStart() {
        StoreStage stage;
        ui::CommandList* list = stage.window().Commands().GetList("cmdLang");
        QVERIFY(!list->Caption(1).isEmpty());
        list->AddText("Deutsch");
        auto* menu = stage.window().findChild<QMenu*>("mnuLingua");
        MessageDialog::queue(1);
        menu->actions().constLast()->trigger();
        QCOMPARE(readFile(stage.folder.path("LANGz.lng")), "Deutsch\r\n");
        QCOMPARE(MessageDialog::shown().size(), 1);
        QCOMPARE(MessageDialog::shown()[0].style, 64);
    }

    void sendingWithNothingSelectedShowsTheBoxAndNoSendWindow() {
        StoreStage stage;
        stage.addRecipient(1, "A", "a@x.it", false);
        stage.window();
        MessageDialog::queue(1);
        // A send window that opens all the same must not keep the test waiting.
        QTimer::singleShot(0, &stage.window(), [] { finestre::Invia().hide(); });
        stage.command("cmdInvia");
        const auto& boxes = MessageDialog::shown();
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(boxes[0].text, "Nessun destinatario");
        QCOMPARE(boxes[0].title, "Attenti");
        QCOMPARE(boxes[0].style, 64);
        QVERIFY(!finestre::Invia().isVisible());
    }

    void sendingOpensTheFilledSendWindowModally() {
        StoreStage stage;
        stage.addRecipient(1, "A");
        stage.addRecipient(1, "B");
        stage.window();
        bool seen = false;
        QTimer::singleShot(0, this, [&] {
            frmInvia& window = finestre::Invia();
            seen = window.isVisible() && window.isModal() && window.parentWidget() == &stage.window() &&
                   window.findChild<QLabel*>("lblDaInviare")->text() == "Email da inviare: 2";
            window.hide();
        });
        stage.command("cmdInvia");
        QVERIFY(seen);
    }

    void commandsWhileAModalWindowIsUpAreIgnored() {
        StoreStage stage;
        stage.window();
        QTimer::singleShot(0, this, [&] {
            stage.command("cmdEsci");
            stage.command("cmdMailingApri");
            finestre::InfoSu().hide();
        });
        stage.command("cmdHelpInfoSu");
        QVERIFY(stage.ends.isEmpty());
        QVERIFY(MessageDialog::shown().isEmpty());
        stage.command("cmdEsci");
        QCOMPARE(stage.ends, QList<int>{0});
    }

    void aFailedCommandDoesNotBlockTheNext() {
        StoreStage stage;
        stage.window();
        stage.folder.hideDatabase();
        MessageDialog::queue(1);
        stage.command("cmdInvia");
        stage.folder.showDatabase();
        stage.command("cmdEsci");
        QCOMPARE(stage.ends, (QList<int>{1, 0}));
    }

    void helpCommandsOpenTheirAddresses_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("target");
        QTest::newRow("home page") << "cmdHelpHomePage"
                                   << "https://www.quintara.example/";
        QTest::newRow("mail") << "cmdHelpInviaMail"
                              << "mailto:info@quintara.example";
        QTest::newRow("guide") << "cmdHelpGuida"
                               << "file://" + sys::helpFolder() + "it/index.html";
    }
    void helpCommandsOpenTheirAddresses() {
        QFETCH(QString, name);
        QFETCH(QString, target);
        StoreStage stage;
        stage.window();
        const Opener opener;
        stage.command(name);
        QCOMPARE(opener.opened(), target);
    }

    void aDesktopThatOpensNothingIsIgnored() {
        StoreStage stage;
        stage.window();
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", "/nowhere");
        for (const char* name : {"cmdHelpHomePage", "cmdHelpInviaMail", "cmdHelpGuida"})
            stage.command(name);
        qputenv("PATH", path);
        QVERIFY(stage.ends.isEmpty());
        QVERIFY(MessageDialog::shown().isEmpty());
    }
};

TEST_CLASS(TestCommands);

}  // namespace commands_test

#include "commands_test.moc"
