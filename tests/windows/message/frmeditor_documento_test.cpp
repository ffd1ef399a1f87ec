// SPDX-License-Identifier: GPL-3.0-or-later
// The life of a document in the editor: new, open, save, changed, the guard, the body's way through the
// views.
#include <QDir>
#include <QTabBar>

#include "platform/html/ViewFixture.h"
#include "support/TestClass.h"
#include "windows/entry/Finestre.h"
#include "windows/message/editor_stage.h"

namespace frmeditor_documento_test {

using namespace testing_support;
using ui::FileDialog;
using ui::MessageDialog;

namespace {

const QString question = "Il messaggio non è stato salvato.\r\nVuoi salvarlo prima di continuare?";

/// A message file by its parts.
QByteArray message(const QByteArray& subject, const QByteArray& priority, const QByteArray& attachments,
                   const QByteArray& body) {
    return "[<INI-SUBJ>]" + subject + "[<END-SUBJ>]\r\n[<INI-PRIO>]" + priority +
           "[<END-PRIO>]\r\n[<INI-ALLG>]\r\n" + attachments + "[<END-ALLG>]\r\n[<INI-MESS>]\r\n" + body +
           "[<END-MESS>]\r\n";
}

}  // namespace

class TestDocumento : public QObject {
    Q_OBJECT

    std::unique_ptr<EditorStage> m_stage;
    EditorStage& stage() { return *m_stage; }
    void change() { stage().type("x"); }

  private Q_SLOTS:
    void initTestCase() { m_stage = std::make_unique<EditorStage>(); }
    void cleanupTestCase() { m_stage.reset(); }
    void init() { stage().begin(); }

    void aNewDocumentIsEmptyAndClean() {
        change();
        stage().start("cmdPriAlta");
        stage().start("cmdShowDetails");
        stage().start("cmdShowBorder");
        stage().editor().Commands().GetEdit("txtOggetto")->setText("oggetto");
        stage().editor().NuovoMessaggio();
        QCOMPARE(stage().editor().titoloFile, "[NuovoFile.mss]");
        QCOMPARE(stage().title(), "Editor Messaggi - [NuovoFile.mss]");
        QVERIFY(!stage().marked());
        QCOMPARE(stage().subject(), "");
        QCOMPARE(stage().tool("cmdPriAlta").Checked(), 0);
        QCOMPARE(stage().tool("cmdPriBassa").Checked(), 0);
        QCOMPARE(stage().tool("cmdShowDetails").Checked(), 0);
        QCOMPARE(stage().tool("cmdShowBorder").Checked(), 1);
        QCOMPARE(stage().source().Text(), "<HTML>\r\n<BODY>\r\n</BODY>\r\n</HTML>");
        QCOMPARE(stage().body().trimmed(), "");
        QCOMPARE(stage().editor().WEB->documentHTML().value(), stage().design().documentHTML().value());
    }

    void aFileWhoseBodyIsRefusedLeavesTheDocumentOnShow_data() {
        QTest::addColumn<QByteArray>("body");
        QTest::newRow("deep") << QByteArray("<div>").repeated(100000);
        QTest::newRow("large") << QByteArray(17 << 20, 'x');
        QTest::newRow("larger than memory is spent on") << (QByteArray(1 << 20, 'x') + "\r\n").repeated(70);
    }
    void aFileWhoseBodyIsRefusedLeavesTheDocumentOnShow() {
        QFETCH(QByteArray, body);
        stage().write("buono.mss", message("uno", "HI", "", "<p>uno</p>\r\n"));
        stage().open("buono.mss");
        change();
        QTRY_VERIFY(stage().body().contains("x"));
        const QString before = stage().body();
        stage().write("cattivo.mss", message("due", "LW", "/manca.txt\r\n", body + "\r\n"));
        MessageDialog::queue(MessageDialog::No);
        MessageDialog::queue(MessageDialog::Ok);
        stage().open("cattivo.mss");
        QCOMPARE(MessageDialog::queued(), 0);
        QCOMPARE(MessageDialog::shown().size(), 2);  // the guard's, and this one
        QVERIFY(MessageDialog::shown()[1].text.startsWith("Il corpo del messaggio non si può aprire: "));
        QCOMPARE(MessageDialog::shown()[1].style, int{MessageDialog::Notice});
        QCOMPARE(MessageDialog::shown()[1].title, "Attenzione");
        QCOMPARE(stage().body(), before);
        QCOMPARE(stage().subject(), "uno");
        QCOMPARE(stage().tool("cmdPriAlta").Checked(), 1);
        QCOMPARE(stage().title(), "Editor Messaggi - [buono.mss*]");
        QCOMPARE(stage().editor().percorsoFile, stage().path("buono.mss"));
        stage().start("cmdSalva");
        QVERIFY(bodyOf(stage().bytes("buono.mss")).contains(before.trimmed().toLatin1()));
    }

    void aSourceThatIsRefusedStaysInItsViewAndTheDocumentAsItWas() {
        stage().fill("<p>uno</p>");
        const QString before = stage().body();
        stage().chooseTab(1);
        const QString deep = QString("<div>").repeated(30000);
        stage().source().setText(deep);
        for (const int tab : {0, 2}) {
            MessageDialog::reset();
            MessageDialog::queue(MessageDialog::Ok);
            QTabBar* tabs = stage().editor().tb->tabBar();
            QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(tab).center());
            QCOMPARE(stage().editor().tb->currentIndex(), 1);
            QCOMPARE(MessageDialog::shown().size(), 1);
            QVERIFY(MessageDialog::shown()[0].text.contains("uno dentro l'altro"));
            QCOMPARE(stage().source().Text(), deep);
            QCOMPARE(stage().body(), before);
        }
        stage().source().setText("<p>due</p>");
        stage().chooseTab(0);
        QCOMPARE(stage().body(), "<p>due</p>");
    }

    void aBodyThatGrewTooDeepIsSavedWithANotice() {
        stage().fill("<p>uno</p>");
        stage().design().evaluate(
            "{ let place = document.body; for (let i = 0; i < 505; i += 1)"
            " place = place.appendChild(document.createElement('div'));"
            " place.append('fondo'); 1 }");
        MessageDialog::queue(MessageDialog::Ok);
        stage().saveAs("profondo.mss");
        QCOMPARE(MessageDialog::shown().size(), 1);
        QVERIFY(MessageDialog::shown()[0].text.contains("non si potrà né aprire né inviare"));
        QCOMPARE(bodyOf(stage().bytes("profondo.mss")).count("<div>"), 505);
        MessageDialog::queue(MessageDialog::Ok);
        stage().chooseTab(1);
        QCOMPARE(stage().source().Text().count("<div>"), 505);
        stage().source().setText("<p>due</p>");
        stage().chooseTab(0);
    }

    void aKeyInTheDesignViewMarksTheDocument() {
        change();
        QTRY_COMPARE(stage().editor().titoloFile, "[NuovoFile.mss*]");
        QCOMPARE(stage().title(), "Editor Messaggi - [NuovoFile.mss*]");
        stage().editor().SegnaModificato();
        QCOMPARE(stage().editor().titoloFile, "[NuovoFile.mss*]");
    }

    void typingASubjectMarksTheDocument() {
        auto& field = EditorStage::in<QLineEdit>(stage().editor(), "txtOggetto");
        QTest::keyClicks(&field, "a");
        QVERIFY(stage().marked());
    }

    void leavingTheBodyForAnotherControlMarksTheDocument() {
        stage().design().setFocus();
        settle(stage().design());
        QVERIFY(!stage().marked());
        EditorStage::in<QLineEdit>(stage().editor(), "txtOggetto").setFocus();
        QTRY_VERIFY(stage().marked());
    }

    void typingInTheSourceViewSetsNoMark() {
        stage().chooseTab(1);
        stage().editor().NuovoMessaggio();
        auto* text = stage().source().findChild<QWidget*>("sourceText");
        QTest::keyClicks(text, "abc");
        QVERIFY(stage().source().Text().startsWith("abc"));
        QVERIFY(!stage().marked());
    }

    void saveWritesOverThePathAndClearsTheMark() {
        stage().saveAs("uno.mss");
        QVERIFY(stage().editor().fileAperto);
        QCOMPARE(stage().editor().percorsoFile, stage().path("uno.mss"));
        QCOMPARE(stage().title(), "Editor Messaggi - [uno.mss]");
        QCOMPARE(FileDialog::shown().constLast().title, "Salva messaggio");
        QCOMPARE(FileDialog::shown().constLast().filter, "Message File (*.mss)|*.mss");
        change();
        QTRY_COMPARE(stage().title(), "Editor Messaggi - [uno.mss*]");
        stage().start("cmdSalva");
        QCOMPARE(stage().title(), "Editor Messaggi - [uno.mss]");
        QVERIFY(stage().bytes("uno.mss").contains("x"));
        QCOMPARE(FileDialog::shown().size(), 1);
    }

    void theFirstSaveAsksForAPathAndCancelWritesNothing() {
        change();
        FileDialog::queueCancel();
        stage().start("cmdSalva");
        QCOMPARE(FileDialog::shown().size(), 1);
        QVERIFY(!stage().editor().fileAperto);
        QVERIFY(stage().marked());
        QCOMPARE(stage().editor().percorsoFile, "");
    }

    void aNewDocumentIsSavedOverTheFileOfTheOneBefore() {
        stage().type("primo");
        stage().saveAs("a.mss");
        stage().start("cmdNewMess");
        QVERIFY(!stage().bytes("a.mss").isEmpty());
        stage().type("secondo");
        stage().start("cmdSalva");
        QCOMPARE(FileDialog::shown().size(), 1);
        QVERIFY(stage().bytes("a.mss").contains("secondo"));
        QVERIFY(!stage().bytes("a.mss").contains("primo"));
        QCOMPARE(stage().title(), "Editor Messaggi - [a.mss]");
    }

    void guardedCommandsAskOnlyAboutAChangedDocument() {
        stage().start("cmdNewMess");
        QCOMPARE(MessageDialog::shown().size(), 0);
        for (const char* command : {"cmdNewMess", "cmdApriMess", "cmdEsci"}) {
            stage().begin();
            change();
            MessageDialog::queue(MessageDialog::No);
            if (command == QByteArray("cmdApriMess")) FileDialog::queueCancel();
            stage().start(command);
            QVERIFY(stage().oneBox(question, 68));
        }
        QVERIFY(!stage().editor().isVisible());
    }

    void yesSavesToTheKnownPathAndContinues() {
        stage().saveAs("b.mss");
        stage().type("testo");
        MessageDialog::queue(MessageDialog::Yes);
        stage().start("cmdNewMess");
        QVERIFY(stage().bytes("b.mss").contains("testo"));
        QCOMPARE(stage().body().trimmed(), "");
        QCOMPARE(FileDialog::shown().size(), 1);
    }

    void yesAndACancelledDialogLoseTheDocument() {
        change();
        MessageDialog::queue(MessageDialog::Yes);
        FileDialog::queueCancel();
        stage().start("cmdNewMess");
        QCOMPARE(stage().body().trimmed(), "");
        QVERIFY(!stage().marked());
        QCOMPARE(stage().title(), "Editor Messaggi - [NuovoFile.mss]");
    }

    void openReadsEveryPart() {
        stage().write("allegato.pdf", QByteArray(1028, 'x'));
        stage().write("m.mss",
                      message("  Ciao [<END-SUBJ>]", "LW", stage().path("allegato.pdf").toUtf8() + "\r\n",
                              "<p>Gentile :::nom:::</p>\r\n"));
        stage().open("m.mss");
        QCOMPARE(FileDialog::shown().constLast().title, "Apri messaggio");
        QCOMPARE(FileDialog::shown().constLast().filter, "Message File (*.mss)|*.mss");
        QCOMPARE(stage().subject(), "Ciao");
        QCOMPARE(stage().tool("cmdPriBassa").Checked(), 1);
        QCOMPARE(stage().tool("cmdPriAlta").Checked(), 0);
        QCOMPARE(stage().editor().Allegati().Percorsi(), QStringList(stage().path("allegato.pdf")));
        QCOMPARE(stage().body(), "<p>Gentile :::nom:::</p>");
        QCOMPARE(stage().title(), "Editor Messaggi - [m.mss]");
        QVERIFY(stage().editor().fileAperto);
        QCOMPARE(stage().editor().percorsoFile, stage().path("m.mss"));
        QVERIFY(!stage().marked());
    }

    void aMessageThatIsOpenedAndSavedAgainHasTheSameBytes() {
        const QByteArray whole =
            message("s", "NR", "", "<html><head></head><body><p>uno</p>\r\n<p>due</p></body></html>\r\n");
        stage().write("m.mss", whole);
        for (int i = 0; i < 2; ++i) {
            stage().open("m.mss");
            stage().start("cmdSalva");
            QCOMPARE(stage().bytes("m.mss"), whole);
        }
    }

    void onlyTheTwoCapitalCodesSetAPriority_data() {
        QTest::addColumn<QByteArray>("code");
        QTest::addColumn<int>("low");
        QTest::addColumn<int>("high");
        QTest::newRow("high") << QByteArray("HI") << 0 << 1;
        QTest::newRow("low") << QByteArray("LW") << 1 << 0;
        QTest::newRow("normal") << QByteArray("NR") << 0 << 0;
        QTest::newRow("small letters") << QByteArray("hi") << 0 << 0;
    }
    void onlyTheTwoCapitalCodesSetAPriority() {
        QFETCH(QByteArray, code);
        QFETCH(int, low);
        QFETCH(int, high);
        stage().write("p.mss", message("s", code, "", "<p>x</p>\r\n"));
        stage().open("p.mss");
        QCOMPARE(stage().tool("cmdPriBassa").Checked(), low);
        QCOMPARE(stage().tool("cmdPriAlta").Checked(), high);
        stage().start("cmdSalva");
        const QByteArray saved = low ? "LW" : high ? "HI" : "NR";
        QVERIFY(stage().bytes("p.mss").contains("[<INI-PRIO>]" + saved + "[<END-PRIO>]\r\n"));
    }

    void highIsWrittenWhereBothPrioritiesAreOn() {
        for (const char* name : {"cmdPriBassa", "cmdPriAlta"})
            stage().tool(name).setChecked(1);
        stage().saveAs("alta.mss");
        QVERIFY(stage().bytes("alta.mss").contains("[<INI-PRIO>]HI[<END-PRIO>]\r\n"));
    }

    void cancellingTheOpenDialogKeepsTheDocument() {
        stage().fill("<p>resta</p>");
        FileDialog::queueCancel();
        stage().start("cmdApriMess");
        QCOMPARE(stage().body(), "<p>resta</p>");
        QVERIFY(!stage().editor().fileAperto);
    }

    void aMissingAttachmentIsReportedLeftOutAndMarksTheDocument() {
        stage().write("m.mss", message("s", "NR", "C:\\dati\\perso.pdf\r\n", "<p>x</p>\r\n"));
        MessageDialog::queue(MessageDialog::Ok);
        stage().open("m.mss");
        QVERIFY(stage().oneBox("Il file perso.pdf allegato non esiste più o è stato spostato.", 64));
        QVERIFY(stage().editor().Allegati().Percorsi().isEmpty());
        QCOMPARE(stage().title(), "Editor Messaggi - [m.mss*]");
    }

    void theFileHasTheRowsOfAMessage() {
        stage().write("a.txt", "x");
        stage().editor().Allegati().InsFile(stage().path("a.txt"));
        stage().editor().Commands().GetEdit("txtOggetto")->setText(" Offerta di fine anno ");
        stage().start("cmdPriAlta");
        stage().fill("<p>uno</p>\n<p>due</p>");
        stage().saveAs("r.mss");
        QCOMPARE(stage().bytes("r.mss"),
                 message(" Offerta di fine anno ", "HI", stage().path("a.txt").toUtf8() + "\r\n",
                         "<html><head></head><body><p>uno</p>\r\n<p>due</p></body></html>\r\n"));
    }

    void aSaveFromTheSourceViewWritesTheBodyOfTheDesignView() {
        stage().fill("<p>vecchio</p>");
        stage().saveAs("s.mss");
        stage().chooseTab(1);
        stage().source().setText("<html><body><p>nuovo</p></body></html>");
        stage().start("cmdSalva");
        QVERIFY(stage().bytes("s.mss").contains("vecchio"));
        QVERIFY(!stage().bytes("s.mss").contains("nuovo"));
        QVERIFY(!stage().marked());
        stage().chooseTab(0);
        stage().start("cmdSalva");
        QVERIFY(stage().bytes("s.mss").contains("nuovo"));
    }

    void theBodyMovesWithTheTabs() {
        stage().fill("<p>uno</p>");
        stage().chooseTab(1);
        QCOMPARE(stage().source().Text(), "<html><head></head><body><p>uno</p></body></html>");
        stage().source().setText("<p>due");
        stage().chooseTab(2);
        QCOMPARE(stage().body(), "<p>due</p>");
        QCOMPARE(stage().editor().WEB->documentHTML().value(), stage().design().documentHTML().value());
        stage().chooseTab(0);
        stage().fill("<p>tre</p>");
        stage().chooseTab(2);
        QCOMPARE(stage().source().Text(), "<html><head></head><body><p>tre</p></body></html>");
        QCOMPARE(stage().editor().WEB->documentHTML().value(), stage().source().Text());
        stage().chooseTab(1);
        stage().source().setText("<p>quattro");
        stage().chooseTab(0);
        QCOMPARE(stage().body(), "<p>quattro</p>");
    }

    void fromThePreviewNothingMoves() {
        stage().fill("<p>uno</p>");
        stage().chooseTab(2);
        stage().source().setText("<p>mai letto");
        static_cast<void>(stage().editor().WEB->setDocumentHTML("<p>nemmeno</p>"));
        stage().chooseTab(0);
        QCOMPARE(stage().body(), "<p>uno</p>");
        stage().chooseTab(2);
        stage().source().setText("<p>mai letto");
        stage().chooseTab(1);
        QCOMPARE(stage().source().Text(), "<p>mai letto");
    }

    void leavingTheBodyForAnotherTabMarksAndTheOtherTabsDoNot() {
        stage().chooseTab(1);
        QTRY_VERIFY(stage().marked());
        stage().editor().NuovoMessaggio();
        for (const int tab : {2, 1, 2, 0})
            stage().chooseTab(tab);
        settle(stage().design());
        QVERIFY(!stage().marked());
    }

    void aMessageOpenedFromAnotherTabShowsThere() {
        stage().write("m.mss", message("s", "NR", "", "<p>aperto</p>\r\n"));
        stage().chooseTab(1);
        stage().editor().NuovoMessaggio();
        stage().open("m.mss");
        QCOMPARE(stage().source().Text(), "<html><head></head><body><p>aperto</p></body></html>");
        stage().chooseTab(0);
        QCOMPARE(stage().body(), "<p>aperto</p>");
    }

    void aPathThatCannotBeWrittenSetsTitleAndPathAndStaysMarked() {
        change();
        FileDialog::queue(stage().path("manca/x.mss"));
        MessageDialog::queue(MessageDialog::Ok);
        stage().start("cmdSalvaAs");
        QCOMPARE(stage().title(), "Editor Messaggi - [x.mss*]");
        QVERIFY(stage().editor().fileAperto);
        QCOMPARE(stage().ends, QList<int>());
    }

    void aKnownPathThatCannotBeWrittenEndsTheProgram() {
        stage().editor().fileAperto = true;
        stage().editor().percorsoFile = stage().path("manca/x.mss");
        MessageDialog::queue(MessageDialog::Ok);
        stage().start("cmdSalva");
        QCOMPARE(stage().ends, QList<int>{1});
    }

    void aDocumentStartsInVerdanaTwo() {
        stage().editor().NuovoMessaggio();
        stage().type("a");
        QTRY_COMPARE(stage().body().trimmed(), R"(<font face="Verdana" size="2">a</font>)");
    }
};

TEST_CLASS(TestDocumento);

}  // namespace frmeditor_documento_test

#include "frmeditor_documento_test.moc"
