// SPDX-License-Identifier: GPL-3.0-or-later
// A message as one recipient will get it, and the findings about it.
#include <QAccessible>

#include "platform/ado/Waiting.h"
#include "support/AsInTheProgram.h"
#include "support/LockedFile.h"
#include "support/TestClass.h"
#include "windows/strumenti/prova_stage.h"

namespace frmprova_test {

using namespace testing_support;

class TestFrmProva : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theFirstOfTheSelectionIsOnShowWithTheEditorsMessage() {
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        QCOMPARE(stage.line("txtDestinatario"), "1 di 3:  Alfa <alfa@x.it>");
        QCOMPARE(stage.line("txtOggetto"), "Alfa");
        QCOMPARE(stage.its<QPlainTextEdit>("TESTO")->toPlainText(), "Gentile Anna");
        QVERIFY(stage.its<HtmlView>("HTML")->knownHTML().contains("<p>Gentile Anna</p>"));
        QVERIFY(stage.text("lblAllegati").startsWith("Nessun allegato.  Messaggio intero: "));
        QVERIFY(stage.text("lblStato").isEmpty());
    }

    void nextAndPreviousFollowTheOrderOfARun() {
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        QVERIFY(!stage.its<QPushButton>("cmdPrecedente")->isEnabled() || stage.line("txtOggetto") == "Alfa");
        stage.press("cmdSuccessivo");
        QCOMPARE(stage.line("txtOggetto"), "Beta");
        QVERIFY(stage.its<HtmlView>("HTML")->knownHTML().contains("Gentile :::nom:::"));
        stage.press("cmdSuccessivo");
        QCOMPARE(stage.line("txtOggetto"), "Gamma");
        QVERIFY(!stage.its<QPushButton>("cmdSuccessivo")->isEnabled());
        stage.press("cmdPrecedente");
        QCOMPARE(stage.line("txtOggetto"), "Beta");
    }

    void aSearchGoesRoundTheSelectionAndHeedsNoCase() {
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        const auto search = [&](const QString& text) {
            stage.its<QLineEdit>("txtCerca")->setText(text);
            QTest::keyClick(stage.its<QLineEdit>("txtCerca"), Qt::Key_Return);
            return QTest::qWaitFor([&] { return !stage.its<QTimer>("tmrRicerca")->isActive(); }, 60000);
        };
        QVERIFY(search("GINO"));
        QCOMPARE(stage.line("txtOggetto"), "Gamma");
        QVERIFY(search("@x.it"));
        QCOMPARE(stage.line("txtOggetto"), "Alfa");
        QVERIFY(search("nessuno"));
        QCOMPARE(stage.line("txtOggetto"), "Alfa");
        QCOMPARE(stage.text("lblStato"), "Nessun destinatario selezionato contiene \"nessuno\".");
    }

    void findingsAreSortedByWeightAndLeadToTheFirstRecipient() {
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        stage.prova();
        QVERIFY(stage.counted());
        const int row = stage.finding("\":::nom:::\" è vuoto per 1 di 3");
        QCOMPARE(row, 0);
        QVERIFY(stage.findings()[0].startsWith("Grave: "));
        QVERIFY(stage.findings().constLast().startsWith("Consiglio: "));
        stage.its<QListWidget>("lstRilievi")->setCurrentRow(row);
        QVERIFY(stage.its<QPushButton>("cmdVai")->isEnabled());
        stage.press("cmdVai");
        QCOMPARE(stage.line("txtOggetto"), "Beta");
        stage.its<QListWidget>("lstRilievi")->setCurrentRow(int(stage.findings().size()) - 1);
        QVERIFY(!stage.its<QPushButton>("cmdVai")->isEnabled());
    }

    void theFileOfTheSendWindowIsOfferedAndAnotherCanBeChosen() {
        ProvaStage stage(threeRecipients());
        MessaggioMss other{"Secondo", "NR", {}, "<p>due</p>"};
        stage.sendFile = stage.folder.writeMessage("invio.mss", other);
        other.Oggetto = "Terzo";
        const QString third = stage.folder.writeMessage("terzo.mss", other);
        stage.editorFile = stage.folder.writeMessage();
        auto* files = stage.its<QComboBox>("cmbFile");
        QCOMPARE(files->count(), 2);
        QTest::keyClick(files, Qt::Key_Down);
        QCOMPARE(stage.line("txtOggetto"), "Secondo");
        ui::FileDialog::queue(third);
        stage.press("cmdFile");
        QCOMPARE(files->count(), 3);
        QCOMPARE(stage.line("txtOggetto"), "Terzo");
    }

    void withoutAMessageAClearSentenceIsShown() {
        ProvaStage stage(threeRecipients());
        QVERIFY(stage.text("lblStato").startsWith("Nessun messaggio"));
        QVERIFY(stage.ends.isEmpty());
        stage.press("cmdInviaProva");
        QCOMPARE(stage.text("lblEsito"), "Scegliere un messaggio prima di inviare la prova.");
        for (const char* name : {"cmdPrecedente", "cmdSuccessivo", "cmdCerca"})
            QVERIFY2(!stage.its<QPushButton>(name)->isEnabled(), name);
    }

    void aDamagedMessageIsReportedAndTheWindowLivesOn() {
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.path("rotto.mss");
        QFile file(stage.editorFile);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("rotto");
        file.close();
        stage.sendFile = stage.folder.writeMessage();
        QVERIFY(stage.text("lblStato").startsWith("Il file non contiene un messaggio intero"));
        QTest::keyClick(stage.its<QComboBox>("cmbFile"), Qt::Key_Down);
        QCOMPARE(stage.line("txtOggetto"), "Alfa");
        QVERIFY(stage.text("lblStato").isEmpty());
    }

    void withoutASelectionTheTemplateIsOnShow() {
        ProvaStage stage({{{"rgs", "A"}, {"email", "a@x.it"}, {"sel", "0"}}});
        stage.editorFile = stage.folder.writeMessage();
        QVERIFY(stage.text("lblStato").startsWith("Nessun destinatario è selezionato"));
        QCOMPARE(stage.line("txtOggetto"), ":::rgs:::");
        QVERIFY(!stage.its<QPushButton>("cmdSuccessivo")->isEnabled());
        QVERIFY(!stage.its<QPushButton>("cmdCerca")->isEnabled());
    }

    void aDatabaseThatIsGoneIsReported() {
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        stage.folder.hideDatabase();
        QVERIFY(stage.text("lblStato").startsWith("I destinatari non si possono leggere"));
        QVERIFY(stage.finding("I campi dei destinatari non si possono controllare") >= 0);
        QVERIFY(stage.ends.isEmpty());
    }

    void aTableThatIsDamagedMeanwhileIsReportedAndTheWindowLivesOn() {
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        QVERIFY(stage.prova().isVisible() && stage.counted());
        stage.folder.damagePagesWith("x.it");
        stage.press("cmdSuccessivo");
        QVERIFY2(stage.text("lblStato").startsWith("I destinatari non si possono leggere"),
                 qPrintable(stage.text("lblStato")));
        stage.prova().Carica();
        QVERIFY(stage.counted());
        QVERIFY(stage.finding("I campi dei destinatari non si possono controllare") >= 0);
        QVERIFY(stage.ends.isEmpty());
    }

    void aDatabaseThatAnotherProgramLocksIsReportedOnceTheWaitIsCancelled() {
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        QVERIFY(stage.prova().isVisible() && stage.counted());
        const auto before = ado::setWaitHook({[](auto) { return false; }, {}});
        LockedFile lock(stage.folder.database());
        stage.press("cmdSuccessivo");
        QVERIFY(stage.text("lblStato").startsWith("I destinatari non si possono leggere"));
        stage.prova().Carica();
        QVERIFY(stage.finding("I campi dei destinatari non si possono controllare") >= 0);
        lock.release();
        stage.prova().Carica();
        ado::setWaitHook(before);
        QVERIFY(stage.counted());
        QVERIFY(stage.text("lblStato").isEmpty());
        QCOMPARE(stage.line("txtOggetto"), "Alfa");
        QCOMPARE(stage.finding("I campi dei destinatari non si possono controllare"), -1);
    }

    void anAddressThatNoMailCanGoToIsReported() {
        ProvaStage stage({{{"rgs", "A"}, {"email", "senza chiocciola"}}});
        stage.editorFile = stage.folder.writeMessage();
        QVERIFY(stage.text("lblAllegati").contains("Il messaggio non può partire"));
    }

    void attachmentsAreListedWithTheirSizes() {
        ProvaStage stage(threeRecipients());
        QFile file(stage.folder.path("listino.pdf"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(2048, 'x'));
        file.close();
        stage.editorFile = stage.folder.writeMessage(
            "m.mss",
            {"S", "NR", {stage.folder.path("listino.pdf"), stage.folder.path("manca.pdf")}, "<p>x</p>"});
        QVERIFY(stage.text("lblAllegati").contains("listino.pdf ("));
        QVERIFY(stage.text("lblAllegati").contains("manca.pdf (non c'è)"));
        QVERIFY(stage.finding("manca.pdf") >= 0);
    }

    void escLeavesTheWindow() {
        ProvaStage stage(threeRecipients());
        QTest::keyClick(&stage.prova(), Qt::Key_Escape);
        QVERIFY(stage.prova().isHidden());
    }

    void everyControlHasAnAccessibleName() {
        ProvaStage stage(threeRecipients());
        for (const QWidget* control : stage.prova().findChildren<QWidget*>()) {
            if (control->focusPolicy() == Qt::NoFocus || control->objectName().isEmpty() ||
                control->objectName().startsWith("qt_"))
                continue;
            auto* face = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(control));
            QVERIFY2(!face->text(QAccessible::Name).isEmpty(), qPrintable(control->objectName()));
        }
    }

    void inputWidgetOfTheMessageIsNamedAsItsView() {
        ProvaStage stage(threeRecipients());
        const HtmlView& view = *stage.its<HtmlView>("HTML");
        QVERIFY(QTest::qWaitFor([&] { return view.inputWidget() != nullptr; }, 60000));
        QCOMPARE(view.inputWidget()->accessibleName(), "Messaggio in HTML");
    }

    void mnemonicsAreDistinct() {
        ProvaStage stage(threeRecipients());
        QStringList letters;
        for (const QPushButton* button : stage.prova().findChildren<QPushButton*>())
            if (const qsizetype at = button->text().indexOf('&'); at >= 0)
                letters << button->text().mid(at + 1, 1).toLower();
        QCOMPARE(letters.removeDuplicates(), 0);
    }

    void nothingIsWrittenToTheRecipients() {
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        const QStringList before = SampleFolder::selected();
        stage.prova();
        QVERIFY(stage.counted());
        stage.press("cmdSuccessivo");
        QCOMPARE(SampleFolder::selected(), before);
    }
};

TEST_CLASS_WITH(TestFrmProva, asInTheProgram);

}  // namespace frmprova_test

#include "frmprova_test.moc"
