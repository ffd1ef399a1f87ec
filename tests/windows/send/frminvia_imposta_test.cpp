// SPDX-License-Identifier: GPL-3.0-or-later
// The set-up of a run: the window's lists, the choice of the message, the checks and what a start prepares.
// Above 500 lines: one click with a fixed order of steps, which are best read side by side.
#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include "modules/accounts/bBinary.h"
#include "modules/core/bGlobal.h"
#include "modules/core/bImpostazioni.h"
#include "modules/lang/bVAR.h"
#include "support/SendStage.h"
#include "support/TestClass.h"

namespace frminvia_imposta_test {

using namespace testing_support;
using ui::FileDialog;
using ui::MessageDialog;

namespace {

void writeAccountLines(const QStringList& lines) {
    QFile file(cartellaDati() + "Account.imp");
    if (!file.open(QIODevice::WriteOnly)) qFatal("cannot write Account.imp");
    for (const QString& line : lines)
        file.write(TestoInBit(line).toLatin1() + "\r\n");
}

QStringList entries(const QComboBox& list) {
    QStringList texts;
    for (int i = 0; i < list.count(); ++i)
        texts << list.itemText(i);
    return texts;
}

}  // namespace

class TestFrmInviaImposta : public QObject {
    Q_OBJECT

    /// Expects the one box of a refused start, and that nothing else has changed.
    void verifyRefused(SendStage& stage, const QString& text) {
        QCOMPARE(MessageDialog::shown().size(), 1);
        const auto& box = MessageDialog::shown().constFirst();
        QCOMPARE(box.text, text);
        QCOMPARE(box.title, "Attenti");
        QCOMPARE(box.icon, QMessageBox::Information);
        QCOMPARE(int(box.buttons), int(QMessageBox::Ok));
        QVERIFY(!stage.timer().isActive());
        QVERIFY(stage.enabled("cmdInvia"));
        QVERIFY(!stage.enabled("cmdFerma"));
    }

  private Q_SLOTS:
    void textsAndStatesOfAFreshWindow() {
        SendStage stage({"a@x.it"});
        QCOMPARE(stage.window->windowTitle(), " Invia messaggi");
        const QHash<const char*, const char*> labels{{"lblFile", "File messaggio da inviare:"},
                                                     {"lblMittente", "Account mittente:"},
                                                     {"lblPausa", "Pausa:"},
                                                     {"lblTimeOut", "Timeout:"},
                                                     {"lblBlocco1", "email ogni"},
                                                     {"lblBlocco2", "minuti."},
                                                     {"lblDaInviare", "Email da inviare: 1"},
                                                     {"lblFallite", "Email non inviate: 0"},
                                                     {"lblInviate", "Email inviate: 0"}};
        for (auto it = labels.begin(); it != labels.end(); ++it)
            QCOMPARE(stage.label(it.key()), it.value());
        const QHash<const char*, const char*> buttons{{"cmdFile", "..."},
                                                      {"cmdInvia", "&Invia messaggi"},
                                                      {"cmdFerma", "&Ferma invio"},
                                                      {"cmdChiudi", "&Chiudi"},
                                                      {"chkBlocco", "Non inviare più di"},
                                                      {"chkLog", "Crea File per assistenza."}};
        for (auto it = buttons.begin(); it != buttons.end(); ++it)
            QCOMPARE(stage.control<QAbstractButton>(it.key())->text(), it.value());
        QCOMPARE(stage.control<QLineEdit>("txtFile")->text(), "");
        QCOMPARE(stage.control<QLineEdit>("txtBloccoNum")->text(), "50");
        QCOMPARE(stage.control<QLineEdit>("txtBloccoMin")->text(), "5");
        QVERIFY(!stage.control<QCheckBox>("chkBlocco")->isChecked());
        QVERIFY(!stage.control<QCheckBox>("chkLog")->isChecked());
        QVERIFY(!stage.enabled("txtBloccoNum"));
        QVERIFY(!stage.enabled("txtBloccoMin"));
        QVERIFY(!stage.enabled("cmdFerma"));
        QVERIFY(!stage.timer().isActive());
    }

    void blockFieldsAreEnabledExactlyWhenTheBoxIsChecked() {
        SendStage stage({"a@x.it"});
        stage.click("chkBlocco");
        QVERIFY(stage.enabled("txtBloccoNum"));
        QVERIFY(stage.enabled("txtBloccoMin"));
        stage.click("chkBlocco");
        QVERIFY(!stage.enabled("txtBloccoNum"));
        QVERIFY(!stage.enabled("txtBloccoMin"));
    }

    void barsAndLabelsStartAtTheCountOfTheSelection() {
        QList<SampleFolder::Columns> rows(1250, {{"email", "a@x.it"}});
        rows.append({{"email", "b@x.it"}, {"sel", "0"}});
        SendStage stage(rows);
        QCOMPARE(stage.counters(), (QList<double>{1250, 0, 0}));
        for (const char* bar : {"prgDaInviare", "prgFallite", "prgInviate"})
            QCOMPARE(stage.control<ui::ProgressCounter>(bar)->maximum(), 1250.0);
        QCOMPARE(stage.label("lblDaInviare"), "Email da inviare: 1.250");
        QCOMPARE(stage.label("lblFallite"), "Email non inviate: 0");
    }

    void labelKeepsWhatIsBeforeItsFirstColon() {
        SendStage stage({"a@x.it"});
        stage.control<QLabel>("lblDaInviare")->setText("To do: now: 7");
        stage.control<QLabel>("lblFallite")->setText("without");
        stage.window->SetPrgBar();
        QCOMPARE(stage.label("lblDaInviare"), "To do: 1");
        QCOMPARE(stage.label("lblFallite"), " 0");
    }

    void pauseAndTimeoutListsStartAtTheirFirstEntry() {
        SendStage stage({"a@x.it"});
        const QComboBox& pause = *stage.control<QComboBox>("cmbPausa");
        QCOMPARE(entries(pause),
                 (QStringList{"0.0 secondi", "0.5 secondi", "1.0 secondi", "1.5 secondi", "2.0 secondi",
                              "2.5 secondi", "3.0 secondi", "3.5 secondi", "4.0 secondi", "4.5 secondi",
                              "5.0 secondi", "10 secondi", "20 secondi", "30 secondi", "60 secondi"}));
        QCOMPARE(pause.currentIndex(), 0);
        const QComboBox& timeout = *stage.control<QComboBox>("cmbTimeout");
        QCOMPARE(entries(timeout),
                 (QStringList{"5  secondi", "10 secondi", "20 secondi", "30 secondi", "60 secondi"}));
        QCOMPARE(timeout.currentIndex(), 0);
    }

    void listsAreFilledWithoutALanguageToo() {
        SendStage stage({"a@x.it"});
        bVAR::goSecondi.clear();
        stage.window->CaricaDati();
        QCOMPARE(stage.control<QComboBox>("cmbPausa")->itemText(11), "10 ");
        QCOMPARE(stage.control<QComboBox>("cmbTimeout")->itemText(0), "5  ");
    }

    void accountNumberedZeroIsChosenByDefault() {
        SendStage stage({"a@x.it"});
        writeAccountLines({"1|Uno|uno@x.it|h|25|0|||EHLO|0|1", "0|Zero|zero@x.it|h|25|0|||EHLO|0|1"});
        stage.window->CaricaDati();
        const QComboBox& accounts = *stage.control<QComboBox>("cmbAccount");
        QCOMPARE(entries(accounts), (QStringList{"Uno [uno@x.it]", "Zero [zero@x.it]"}));
        QCOMPARE(accounts.currentText(), "Zero [zero@x.it]");
        QCOMPARE(accounts.currentData().toInt(), 0);
    }

    void withoutAnAccountNumberedZeroNothingIsChosen() {
        SendStage fresh({"a@x.it"});
        writeAccountLines({"2|Due|due@x.it|h|25|0|||EHLO|0|1"});
        fresh.window = std::make_unique<frmInvia>([] {});
        fresh.window->complete();
        fresh.open();
        QCOMPARE(fresh.control<QComboBox>("cmbAccount")->count(), 1);
        QCOMPARE(fresh.control<QComboBox>("cmbAccount")->currentIndex(), -1);
        fresh.pick();
        MessageDialog::queue(1);
        fresh.click("cmdInvia");
        verifyRefused(fresh, "Creare un mittente per inviare i messaggi.");
    }

    void accountFileWithoutLinesLeavesTheListEmptyAndTheStartIsRefused() {
        SendStage stage({"a@x.it"});
        writeAccountLines({});
        stage.window->CaricaDati();
        QCOMPARE(stage.control<QComboBox>("cmbAccount")->count(), 0);
        stage.pick();
        MessageDialog::queue(1);
        stage.click("cmdInvia");
        verifyRefused(stage, "Creare un mittente per inviare i messaggi.");
    }

    void withoutAMessageTheStartIsRefused_data() {
        QTest::addColumn<QString>("path");
        QTest::newRow("empty") << "";
        QTest::newRow("other ending") << "/tmp/prova.txt";
        QTest::newRow("fewer than three characters") << "ss";
    }
    void withoutAMessageTheStartIsRefused() {
        QFETCH(QString, path);
        SendStage stage({"a@x.it"});
        stage.control<QLineEdit>("txtFile")->setText(path);
        MessageDialog::queue(1);
        stage.click("cmdInvia");
        verifyRefused(stage, "Selezionare un messaggio prima di continuare.");
    }

    void pathEndingInCapitalsPasses() {
        SendStage stage({"a@x.it"});
        const QString path = stage.folder.path("PROVA.MSS");
        QVERIFY(QFile::copy(stage.folder.writeMessage(), path));
        stage.pick(path);
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 1}));
    }

    void lettersInTheBlockNumberAreRefused() {
        SendStage stage({"a@x.it"});
        stage.pick();
        stage.click("chkBlocco");
        stage.control<QLineEdit>("txtBloccoNum")->setText("tanti");
        MessageDialog::queue(1);
        stage.click("cmdInvia");
        verifyRefused(stage, "Inserire il numero di messaggi massimo da inviare entro [X] minuti.");
    }

    void lettersInTheBlockMinutesAreRefused() {
        SendStage stage({"a@x.it"});
        stage.pick();
        stage.click("chkBlocco");
        stage.control<QLineEdit>("txtBloccoMin")->setText("");
        MessageDialog::queue(1);
        stage.click("cmdInvia");
        verifyRefused(stage, "Inserire l'intervallo in minuti per l'invio massimo di [X] email.");
    }

    void checksRunInTheirOrderAndStopAtTheFirstThatFails() {
        SendStage stage({"a@x.it"});
        writeAccountLines({});
        stage.window->CaricaDati();
        stage.click("chkBlocco");
        stage.control<QLineEdit>("txtBloccoNum")->setText("tanti");
        stage.control<QLineEdit>("txtBloccoMin")->setText("pochi");
        const auto refused = [&](const char* text) {
            MessageDialog::reset();
            MessageDialog::queue(1);
            stage.click("cmdInvia");
            verifyRefused(stage, text);
            return !QTest::currentTestFailed();
        };
        QVERIFY(refused("Selezionare un messaggio prima di continuare."));
        stage.pick();
        QVERIFY(refused("Creare un mittente per inviare i messaggi."));
        writeAccountLines({"0|Zero|zero@x.it|h|25|0|||EHLO|0|1"});
        stage.window->CaricaDati();
        QVERIFY(refused("Inserire il numero di messaggi massimo da inviare entro [X] minuti."));
        stage.control<QLineEdit>("txtBloccoNum")->setText("50");
        QVERIFY(refused("Inserire l'intervallo in minuti per l'invio massimo di [X] email."));
    }

    void blockFieldsAreNotLookedAtWithTheBoxUnchecked() {
        SendStage stage({"a@x.it"});
        stage.control<QLineEdit>("txtBloccoNum")->setText("tanti");
        stage.control<QLineEdit>("txtBloccoMin")->setText("pochi");
        QVERIFY(stage.run());
        QVERIFY(MessageDialog::shown().isEmpty());
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 1}));
    }

    void messageDialogHasTitleAndFilterAndItsFileIsShown() {
        SendStage stage({"a@x.it"});
        const QString path = stage.folder.writeMessage();
        stage.pick(path);
        const auto& asked = FileDialog::shown().constFirst();
        QCOMPARE(asked.title, "Apri il messaggio");
        QCOMPARE(asked.filter, "Message File (*.mss)|*.mss");
        QVERIFY(!asked.save);
        QCOMPARE(stage.control<QLineEdit>("txtFile")->text(), path);
    }

    void cancellingTheMessageDialogEndsTheProgram() {
        SendStage stage({"a@x.it"});
        FileDialog::queueCancel();
        MessageDialog::queue(1);
        stage.click("cmdFile");
        QCOMPARE(stage.ends, QList<int>{1});
        const auto& box = MessageDialog::shown().constFirst();
        QCOMPARE(box.text, "Errore 32755:\r\n\r\nÈ stato scelto Annulla");
        QCOMPARE(box.title, "Vestrola");
        QCOMPARE(box.icon, QMessageBox::Critical);
    }

    void messageWithoutABodyMarkerEndsTheProgram() {
        SendStage stage({"a@x.it"});
        QFile broken(stage.folder.path("rotto.mss"));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write("[<INI-SUBJ>]x[<END-SUBJ>]\r\n");
        broken.close();
        MessageDialog::queue(1);
        stage.pick(broken.fileName());
        QCOMPARE(stage.ends, QList<int>{1});
        QCOMPARE(MessageDialog::shown().constFirst().text, "Errore 62:\r\n\r\nInput oltre la fine del file");
        QCOMPARE(stage.control<QLineEdit>("txtFile")->text(), "");
    }

    void vanishedFileLeavesTheControlsLockedAndOnlyStopUnlocksThem() {
        SendStage stage({"a@x.it"});
        const QString path = stage.folder.writeMessage();
        stage.pick(path);
        QVERIFY(QFile::remove(path));
        stage.folder.addRecipient({{"rgs", "Z"}, {"email", "z@x.it"}});
        stage.control<QComboBox>("cmbPausa")->setCurrentIndex(3);
        MessageDialog::queue(1);
        stage.click("cmdInvia");
        // The steps before the look at the file have been done.
        QCOMPARE(stage.counters(), (QList<double>{2, 0, 0}));
        QCOMPARE(stage.timer().interval(), 1500);
        const auto& box = MessageDialog::shown().constFirst();
        QCOMPARE(box.text, "Il File messaggio è stato eliminato o spostato.");
        QCOMPARE(box.title, "Attenzione");
        QCOMPARE(box.icon, QMessageBox::Information);
        QVERIFY(!stage.timer().isActive());
        const auto locked = {"chkLog",     "txtFile",   "cmdFile",   "cmbAccount", "cmbPausa",
                             "cmbTimeout", "chkBlocco", "cmdChiudi", "cmdInvia"};
        for (const char* name : locked)
            QVERIFY2(!stage.enabled(name), name);
        QVERIFY(stage.enabled("cmdFerma"));
        stage.click("cmdFerma");
        for (const char* name : locked)
            QVERIFY2(stage.enabled(name), name);
        QVERIFY(!stage.enabled("cmdFerma"));
        QVERIFY(!stage.timer().isActive());
        QVERIFY(stage.sink.attempts().isEmpty());
    }

    void databaseThatCannotBeCountedDoesNotKeepTheRunFromStarting() {
        SendStage stage({"a@x.it"});
        stage.pick();
        stage.folder.addRecipient({{"rgs", "Z"}, {"email", "z@x.it"}});
        stage.folder.hideDatabase();
        stage.start();
        QVERIFY(stage.timer().isActive());
        QCOMPARE(stage.counters(), (QList<double>{1, 0, 0}));
        QVERIFY(stage.waitForEnd());
        stage.folder.showDatabase();
        QVERIFY(MessageDialog::shown().isEmpty());
        QVERIFY(stage.ends.isEmpty());
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 0}));
        QCOMPARE(SampleFolder::selected(), (QStringList{"a@x.it", "z@x.it"}));
    }

    void blockFieldsAreNotTouchedByTheLock() {
        SendStage stage({"a@x.it"});
        stage.pick();
        stage.click("chkBlocco");
        stage.click("cmdInvia");
        QVERIFY(!stage.enabled("chkBlocco"));
        QVERIFY(stage.enabled("txtBloccoNum"));
        QVERIFY(stage.enabled("txtBloccoMin"));
        QVERIFY(stage.waitForEnd());
    }

    void pickedBodyGoesOutWhileSubjectAndPriorityComeFromTheFileAtTheStart() {
        SendStage stage({"a@x.it"});
        MessaggioMss message{"primo oggetto", "NR", {}, "<html><body>primo corpo</body></html>"};
        stage.pick(stage.folder.writeMessage("m.mss", message));
        message = {"secondo oggetto", "HI", {}, "<html><body>secondo corpo</body></html>"};
        stage.folder.writeMessage("m.mss", message);
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.header(0, "Subject"), "secondo oggetto");
        QCOMPARE(stage.smtp().Priority, 1);
        QVERIFY(stage.sink.messages().constFirst().data.contains("primo corpo"));
        QVERIFY(!stage.sink.messages().constFirst().data.contains("secondo corpo"));
    }

    void fileWhoseBodyIsRefusedLeavesThePickedOneAndItsBody_data() {
        QTest::addColumn<QString>("body");
        QTest::newRow("deep") << QString("<div>").repeated(100000);
        QTest::newRow("large") << QString(17 << 20, 'x');
        QTest::newRow("larger than memory is spent on") << (QString(1 << 20, 'x') + "\r\n").repeated(70);
    }
    void fileWhoseBodyIsRefusedLeavesThePickedOneAndItsBody() {
        QFETCH(QString, body);
        SendStage stage({"a@x.it"});
        const QString good = stage.folder.writeMessage("m.mss", {"Uno", "NR", {}, "<p>corpo uno</p>"});
        const QString bad = stage.folder.writeMessage("n.mss", {"Due", "NR", {}, body});
        MessageDialog::queue(MessageDialog::Ok);
        stage.pick(bad);
        QCOMPARE(stage.control<QLineEdit>("txtFile")->text(), "");
        QCOMPARE(MessageDialog::shown().size(), 1);
        QVERIFY(MessageDialog::shown()[0].text.startsWith("Il corpo del messaggio non si può aprire: "));
        QCOMPARE(MessageDialog::shown()[0].style, int{MessageDialog::Notice});
        stage.pick(good);
        MessageDialog::queue(MessageDialog::Ok);
        stage.pick(bad);
        QCOMPARE(MessageDialog::shown().size(), 2);
        QCOMPARE(stage.control<QLineEdit>("txtFile")->text(), good);
        QVERIFY(stage.ends.isEmpty());
        stage.start();
        QVERIFY(stage.waitForEnd());
        QVERIFY(stage.sink.messages().constFirst().data.contains("corpo uno"));
    }

    void typedPathSendsTheBodyThatWasPickedBefore() {
        SendStage stage({"a@x.it"});
        stage.pick(
            stage.folder.writeMessage("a.mss", {"A", "NR", {}, "<html><body>corpo di A</body></html>"}));
        const QString other =
            stage.folder.writeMessage("b.mss", {"B", "NR", {}, "<html><body>corpo di B</body></html>"});
        stage.control<QLineEdit>("txtFile")->setText(other);
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.header(0, "Subject"), "B");
        QVERIFY(stage.sink.messages().constFirst().data.contains("corpo di A"));
    }

    void priorityIsComparedExactly_data() {
        QTest::addColumn<QString>("code");
        QTest::addColumn<int>("number");
        QTest::newRow("HI") << "HI" << 1;
        QTest::newRow("LW") << "LW" << 5;
        QTest::newRow("NR") << "NR" << 3;
        QTest::newRow("hi") << "hi" << 3;
        QTest::newRow("empty") << "" << 3;
    }
    void priorityIsComparedExactly() {
        QFETCH(QString, code);
        QFETCH(int, number);
        SendStage stage({"a@x.it"});
        stage.smtp().Priority = 9;
        stage.pick(stage.folder.writeMessage("p.mss", {"P", code, {}, "<p>p</p>"}));
        stage.click("cmdInvia");
        QCOMPARE(stage.smtp().Priority, number);
        QVERIFY(stage.waitForEnd());
    }

    void missingAttachmentIsANoticeAndTheRunContinuesWithoutIt() {
        SendStage stage({"a@x.it"});
        const QString present = stage.folder.path("listino prezzi.txt");
        QFile file(present);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("uno");
        file.close();
        const MessaggioMss message{"X", "NR", {" " + present + " ", "C:\\via\\manca.pdf"}, "<p>x</p>"};
        stage.smtp().Attachments.Add("resto", "di prima");
        stage.pick(stage.folder.writeMessage("x.mss", message));
        MessageDialog::queue(1);
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(MessageDialog::shown().size(), 1);
        const auto& box = MessageDialog::shown().constFirst();
        QCOMPARE(box.text, "Il file manca.pdf allegato non esiste più o è stato spostato.");
        QCOMPARE(box.title, "Attenzione");
        QCOMPARE(box.icon, QMessageBox::Information);
        QCOMPARE(stage.smtp().Attachments.items().size(), 1);
        QCOMPARE(stage.smtp().Attachments.items().constFirst().path, present);
        QCOMPARE(stage.smtp().Attachments.items().constFirst().name, "listino prezzi.txt");
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 1}));
        QVERIFY(stage.sink.messages().constFirst().data.contains("listino prezzi.txt"));
    }

    void cutMessageFileStartsTheRunWithWhatItHas() {
        SendStage stage({"a@x.it"});
        const QString path = stage.folder.writeMessage();
        stage.pick(path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[<INI-SUBJ>]tagliato[<END-SUBJ>]\r\n[<INI-PRIO>]LW[<END-PRIO>]\r\n[<INI-ALLG>]\r\n");
        file.close();
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.header(0, "Subject"), "tagliato");
        QCOMPARE(stage.smtp().Priority, 5);
    }

    // The account is found by its number, not by its place in the list.
    void senderAndGreetingComeFromTheChosenAccount() {
        SendStage stage({"a@x.it"});
        writeAccountLines({"0|Zero|zero@x.it|127.0.0.1|25|0|||EHLO|0|1",
                           QString("3|Tre Due|tre@x.it|127.0.0.1|%1|0|||HELO|0|1").arg(stage.sink.port())});
        stage.window->CaricaDati();
        stage.control<QComboBox>("cmbAccount")->setCurrentIndex(1);
        QVERIFY(stage.run());
        QCOMPARE(stage.smtp().FromAddress, "tre@x.it");
        QCOMPARE(stage.smtp().FromName, "Tre Due");
        QCOMPARE(stage.smtp().HeloMode, 1);
        QCOMPARE(stage.smtp().BodyFormat, 1);
        QCOMPARE(stage.sink.greetings(), QList<QByteArray>{"HELO"});
        QCOMPARE(stage.sink.messages().constFirst().sender, "tre@x.it");
    }

    void anyGreetingButEhloIsHelo_data() {
        QTest::addColumn<QString>("greeting");
        QTest::addColumn<int>("mode");
        QTest::newRow("EHLO") << "EHLO" << 0;
        QTest::newRow("HELO") << "HELO" << 1;
        QTest::newRow("empty") << "" << 1;
        QTest::newRow("ehlo") << "ehlo" << 1;
    }
    void anyGreetingButEhloIsHelo() {
        QFETCH(QString, greeting);
        QFETCH(int, mode);
        SendStage stage({"a@x.it"});
        writeAccountLines(
            {QString("0|Z|z@x.it|127.0.0.1|%1|0|||%2|0|1").arg(stage.sink.port()).arg(greeting)});
        stage.window->CaricaDati();
        QVERIFY(stage.run());
        QCOMPARE(stage.smtp().HeloMode, mode);
    }

    void outgoingPortThatIsNoPortKeepsTheFormerOne_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("port");
        QTest::newRow("zero") << "0" << 0;
        QTest::newRow("letters") << "abc" << 4242;
        QTest::newRow("empty") << "" << 4242;
        QTest::newRow("too large") << "65536" << 4242;
        QTest::newRow("negative") << "-1" << 4242;
    }
    void outgoingPortThatIsNoPortKeepsTheFormerOne() {
        QFETCH(QString, text);
        QFETCH(int, port);
        SendStage stage({"a@x.it"});
        writeAccountLines(
            {QString("0|Z|z@x.it|127.0.0.1|%1|0|||EHLO|%2|1").arg(stage.sink.port()).arg(text)});
        stage.window->CaricaDati();
        stage.smtp().OutPort = 4242;
        stage.pick();
        stage.click("cmdInvia");
        QCOMPARE(int(stage.smtp().OutPort), port);
        QVERIFY(stage.waitForEnd());
    }
};

TEST_CLASS(TestFrmInviaImposta);

}  // namespace frminvia_imposta_test

#include "frminvia_imposta_test.moc"
