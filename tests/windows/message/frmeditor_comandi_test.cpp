// SPDX-License-Identifier: GPL-3.0-or-later
// Every command of the editor: its texts, the view it goes to, what it does, whether it marks the document,
// and that it can be undone.
#include <QClipboard>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QToolBar>

#include "support/CommandCaption.h"
#include "support/TestClass.h"
#include "windows/entry/Finestre.h"
#include "windows/message/editor_stage.h"

namespace frmeditor_comandi_test {

using namespace testing_support;

namespace {

/// The properties of a command that a test needs.
struct Comando {
    const char* name;
    const char* caption;
};

constexpr Comando commands[] = {
    {"cmdUndo", "Indietro"},
    {"cmdRedo", "Avanti"},
    {"cmdTaglia", "&Taglia"},
    {"cmdCopia", "&Copia"},
    {"cmdIncolla", "&Incolla"},
    {"cmdSelezionaTutto", "Seleziona tutto"},
    {"cmdTrova", "Trova"},
    {"cmdBold", "Grassetto"},
    {"cmdItalic", "Corsivo"},
    {"cmdUnderline", "Sottolineato"},
    {"cmdNumerato", "Elenco numerato"},
    {"cmdPuntato", "Elenco puntato"},
    {"cmdSX", "Sposta a sinistra"},
    {"cmdDX", "Sposta a destra"},
    {"cmdLeft", "Allinea a sinistra"},
    {"cmdCenter", "Allinea al centro"},
    {"cmdRight", "Allinea a destra"},
    {"cmdGiustify", "Giustifica"},
    {"cmdImage", "Inserisci immagine"},
    {"cmdLink", "Collegamento"},
    {"cmdTableInsRow", "Inserisci riga"},
    {"cmdTableInsCol", "Inserisci colonna"},
    {"cmdTableDelRow", "Elimina riga"},
    {"cmdTableDelCol", "Elimina colonna"},
    {"cmdHR", "Linea orizzontale"},
    {"cmdTable", "Inserisci tabella"},
    {"cmdModuliForm", "Form"},
    {"cmdModuliText", "Text"},
    {"cmdModuliTextArea", "Text Area"},
    {"cmdModuliCheckBox", "Check Box"},
    {"cmdModuliRadioButton", "Radio Button"},
    {"cmdModuliList", "List"},
    {"cmdModuliListMenu", "List Menu"},
    {"cmdModuliHidden", "Hidden"},
    {"cmdShowDetails", "Visualizza dettagli"},
    {"cmdShowBorder", "Visualizza bordi"},
    {"cmdPriBassa", "Priorità bassa"},
    {"cmdPriAlta", "Priorità alta"},
    {"cmdProprieta", "Prorietà messaggio"},
    {"cmdAllegatiNew", "Nuovo Allegato"},
    {"cmdAllegatiDel", "Elimina Allegato"},
};

struct Inserted {
    const char* name;
    const char* caption;
    const char* text;
};

constexpr Inserted snippets[] = {
    {"cmdHR", "", "<hr>"},
    {"cmdTable", "",
     "<table width=\"100%\" border=\"0\" cellspacing=\"2\" cellpadding=\"0\"><tbody><tr><td>Cella1</td>"
     "<td>Cella2</td><td>Cella3</td></tr></tbody></table>"},
    {"cmdModuliForm", "", "<form name=\"form1\" method=\"get\" action=\"\"></form>"},
    {"cmdModuliText", "", "<input name=\"text1\" type=\"text\" value=\"\" size=\"20\">"},
    {"cmdModuliTextArea", "", "<textarea name=\"textarea1\" cols=\"40\" rows=\"6\"></textarea>"},
    {"cmdModuliCheckBox", "", "<input type=\"checkbox\" name=\"checkbox1\" value=\"checkbox\">"},
    {"cmdModuliRadioButton", "", "<input type=\"radio\" name=\"radiobutton\" value=\"radiobutton\">"},
    {"cmdModuliList", "",
     "<select name=\"select1\" size=\"6\"><option value=\"1\">valore1</option><option "
     "value=\"2\">valore2</option></select>"},
    {"cmdModuliListMenu", "",
     "<select name=\"select1\"><option value=\"1\">valore1</option><option "
     "value=\"2\">valore2</option></select>"},
    {"cmdModuliHidden", "", "<input type=\"hidden\" name=\"hiddenField1\">"},
    {"cmdVarRgs", "Ragione Sociale", ":::rgs:::"},
    {"cmdVarNom", "Nome", ":::nom:::"},
    {"cmdVarEmail", "Email", ":::email:::"},
    {"cmdVarPiva", "P.Iva o Cod.Fis.", ":::piva:::"},
    {"cmdVarInd", "Indirizzo", ":::ind:::"},
    {"cmdVarCap", "CAP", ":::cap:::"},
    {"cmdVarLoc", "Località", ":::loc:::"},
    {"cmdVarProv", "Provincia", ":::prov:::"},
    {"cmdVarTel", "Telefono", ":::tel:::"},
    {"cmdVarFax", "Fax", ":::fax:::"},
    {"cmdVarCampo1", "Campo 1", ":::campo1:::"},
    {"cmdVarCampo2", "Campo 2", ":::campo2:::"},
    {"cmdVarCampo3", "Campo 3", ":::campo3:::"},
    {"cmdVarCampo4", "Campo 4", ":::campo4:::"},
    {"cmdVarCampo5", "Campo 5", ":::campo5:::"},
    {"cmdVarCampo6", "Campo 6", ":::campo6:::"},
    {"cmdVarCampo7", "Campo 7", ":::campo7:::"},
    {"cmdVarCampo8", "Campo 8", ":::campo8:::"},
    {"cmdVarCampo9", "Campo 9", ":::campo9:::"},
};

QByteArray toolOutput(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0) qFatal("%s failed", qUtf8Printable(program));
    return process.readAllStandardOutput();
}

const char* const table =
    "<table><tbody><tr><td id=\"a\">1</td><td>2</td></tr><tr><td>3</td><td>4</td></tr></tbody></table>";

}  // namespace

class TestComandi : public QObject {
    Q_OBJECT

    std::unique_ptr<EditorStage> m_stage;
    EditorStage& stage() { return *m_stage; }

    void rowsOf(const Inserted* from, const Inserted* to) {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("text");
        for (; from != to; ++from)
            QTest::newRow(from->name) << from->name << QString::fromUtf8(from->caption) << from->text;
    }

  private Q_SLOTS:
    void initTestCase() { m_stage = std::make_unique<EditorStage>(); }
    void cleanupTestCase() { m_stage.reset(); }
    void init() { stage().begin(); }

    void everyCommandHasItsCaptionAndIconAndAPlace() {
        for (const Comando& command : commands) {
            QCOMPARE(captionOf(&stage().tool(command.name)), QString::fromUtf8(command.caption));
            auto* action = stage().editor().findChild<QAction*>(command.name);
            QVERIFY2(!action->icon().isNull(), command.name);
            bool stands = false;
            for (QObject* place : action->associatedObjects())
                stands = stands || qobject_cast<QToolBar*>(place) || qobject_cast<QMenu*>(place);
            QVERIFY2(stands, command.name);
        }
        const ui::CommandBars& bars = stage().editor().Commands();
        QCOMPARE(bars.GetComboBox("cmbFontName")->Description(), "Seleziona font");
        QCOMPARE(bars.GetComboBox("cmbFontSize")->Description(), "Font size");
        QCOMPARE(bars.GetPopupMenu("popVariabili")->Description(), "Clicca per visualizzare le variabili");
        QCOMPARE(captionOf(bars.GetCustomPopup("popColors")), "Tabella colori");
    }

    void aFormattingCommandFormatsWithoutAMarkAndCanBeUndone_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        const QString text = "<p>testo</p>";
        QTest::newRow("bold") << "cmdBold" << text << "<p><b>testo</b></p>";
        QTest::newRow("italic") << "cmdItalic" << text << "<p><i>testo</i></p>";
        QTest::newRow("underline") << "cmdUnderline" << text << "<p><u>testo</u></p>";
        QTest::newRow("numbered") << "cmdNumerato" << text << "<ol><li>testo</li></ol>";
        QTest::newRow("bulleted") << "cmdPuntato" << text << "<ul><li>testo</li></ul>";
        QTest::newRow("left") << "cmdLeft"
                              << "<p align=\"right\">testo</p>"
                              << "<p align=\"right\" style=\"text-align: left;\">testo</p>";
        QTest::newRow("centre") << "cmdCenter" << text << "<p style=\"text-align: center;\">testo</p>";
        QTest::newRow("right") << "cmdRight" << text << "<p style=\"text-align: right;\">testo</p>";
        QTest::newRow("indent") << "cmdDX" << text << "<blockquote";
        QTest::newRow("outdent") << "cmdSX"
                                 << "<blockquote><p>testo</p></blockquote>" << text;
    }
    void aFormattingCommandFormatsWithoutAMarkAndCanBeUndone() {
        QFETCH(QString, name);
        QFETCH(QString, before);
        QFETCH(QString, after);
        stage().fill(before);
        stage().select("p", 0, 5);
        stage().start(name);
        QVERIFY2(stage().body().startsWith(after), qPrintable(stage().body()));
        QVERIFY(!stage().marked());
        stage().start("cmdUndo");
        QCOMPARE(stage().body(), before);
        QVERIFY(stage().marked());
        stage().start("cmdRedo");
        QVERIFY2(stage().body().startsWith(after), qPrintable(stage().body()));
    }

    void giustifyDoesNothing() {
        stage().fill("<p>testo</p>");
        stage().select("p", 0, 5);
        stage().start("cmdGiustify");
        QCOMPARE(stage().body(), "<p>testo</p>");
        QVERIFY(!stage().marked());
        QVERIFY(stage().tool("cmdGiustify").isEnabled());
    }

    void aTableCommandChangesTheTableWithoutAMarkAndCanBeUndone_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("cells");
        QTest::newRow("insert row") << "cmdTableInsRow" << 3 << 6;
        QTest::newRow("insert column") << "cmdTableInsCol" << 2 << 6;
        QTest::newRow("delete row") << "cmdTableDelRow" << 1 << 2;
        QTest::newRow("delete column") << "cmdTableDelCol" << 2 << 2;
    }
    void aTableCommandChangesTheTableWithoutAMarkAndCanBeUndone() {
        QFETCH(QString, name);
        QFETCH(int, rows);
        QFETCH(int, cells);
        stage().fill(table);
        stage().caret("#a");
        QTRY_VERIFY(stage().tool(name).isEnabled());
        stage().start(name);
        QCOMPARE(stage().body().count("<tr>"), rows);
        QCOMPARE(stage().body().count("<td"), cells);
        QVERIFY(!stage().marked());
        stage().start("cmdUndo");
        QCOMPARE(stage().body(), table);
    }

    void fontCommandsTakeTheTextOfTheirListWithoutAMark() {
        stage().fill("<p>testo</p>");
        stage().select("p", 0, 5);
        ui::ComboTool& font = *stage().editor().Commands().GetComboBox("cmbFontName");
        font.setFocus();
        font.setText("Georgia");
        QTest::keyClick(font.lineEdit(), Qt::Key_Return);
        QCOMPARE(stage().body(), "<p><font face=\"Georgia\">testo</font></p>");
        stage().editor().Commands().GetComboBox("cmbFontSize")->setText("5");
        stage().editor().ComandoPremuto("cmbFontSize");
        QCOMPARE(stage().body(), "<p><font face=\"Georgia\" size=\"5\">testo</font></p>");
        QVERIFY(!stage().marked());
        stage().start("cmdUndo");
        QCOMPARE(stage().body(), "<p><font face=\"Georgia\">testo</font></p>");
        stage().start("cmdUndo");
        QCOMPARE(stage().body(), "<p>testo</p>");
    }

    void aSnippetGoesToTheSelectionMarksAndCanBeUndone_data() {
        rowsOf(std::begin(snippets), std::end(snippets));
    }
    void aSnippetGoesToTheSelectionMarksAndCanBeUndone() {
        QFETCH(QString, name);
        QFETCH(QString, caption);
        QFETCH(QString, text);
        if (!caption.isEmpty()) {
            QCOMPARE(captionOf(&stage().tool(name)), caption);
            QCOMPARE(stage().tool(name).Description(), caption);
        }
        stage().fill("<div>prima dopo</div>");
        stage().caret("div", 6);
        stage().start(name);
        QVERIFY2(stage().body().contains(text), qPrintable(stage().body()));
        QVERIFY(stage().body().indexOf("prima") < stage().body().indexOf(text));
        QVERIFY(stage().marked());
        stage().start("cmdUndo");
        QCOMPARE(stage().body(), "<div>prima dopo</div>");
    }

    void anInsertionWithoutASelectionIsLostAndMarksAllTheSame() {
        stage().fill("<p>testo</p>");
        stage().design().evaluate("getSelection().removeAllRanges(), 1");
        QVERIFY(!stage().marked());
        stage().start("cmdHR");
        QCOMPARE(stage().body(), "<p>testo</p>");
        QVERIFY(stage().marked());
    }

    void aPlaceholderReplacesWhatIsSelected() {
        stage().fill("<p>Gentile cliente</p>");
        stage().select("p", 8, 15);
        stage().start("cmdVarNom");
        QCOMPARE(stage().body(), "<p>Gentile :::nom:::</p>");
    }

    void aPlaceholderGoesToTheDesignViewAlsoFromTheSourceView() {
        stage().fill("<p>Gentile </p>");
        stage().caret("p", 8);
        stage().chooseTab(1);
        const QString source = stage().source().Text();
        stage().editor().ComandoPremuto("cmdVarNom");
        QCOMPARE(stage().source().Text(), source);
        QVERIFY(stage().body().contains(":::nom:::"));
    }

    void cutCopyAndPasteWorkOnTheDesignView() {
        stage().fill("<p>uno due</p>");
        stage().select("p", 0, 4);
        stage().start("cmdCopia");
        QVERIFY(!stage().marked());
        QTRY_COMPARE(QApplication::clipboard()->text(), "uno ");
        stage().start("cmdTaglia");
        QVERIFY(stage().marked());
        QTRY_COMPARE(stage().body(), "<p>due</p>");
        QApplication::clipboard()->setText("tre ");
        stage().caret("p", 0);
        stage().editor().titoloFile = "[NuovoFile.mss]";
        stage().start("cmdIncolla");
        QVERIFY(stage().marked());
        QTRY_VERIFY(stage().body().contains("tre"));
        stage().editor().titoloFile = "[NuovoFile.mss]";
        stage().start("cmdSelezionaTutto");
        QVERIFY(stage().design().selectedText().value().contains("due"));
        QVERIFY(!stage().marked());
    }

    void cutAndPasteAreUndoneAndRedone() {
        const auto startWhenOn = [this](const char* name) {
            QTRY_VERIFY2(stage().tool(name).isEnabled(), name);
            stage().start(name);
        };
        stage().fill("<p>uno due</p>");
        stage().select("p", 0, 4);
        startWhenOn("cmdTaglia");
        startWhenOn("cmdIncolla");
        const QString pasted = stage().body();
        startWhenOn("cmdUndo");
        QCOMPARE(stage().body(), "<p>due</p>");
        startWhenOn("cmdUndo");
        QCOMPARE(stage().body(), "<p>uno due</p>");
        startWhenOn("cmdRedo");
        startWhenOn("cmdRedo");
        QCOMPARE(stage().body(), pasted);
    }

    void undoAndRedoMark() {
        stage().fill("<p>testo</p>");
        stage().select("p", 0, 5);
        stage().start("cmdBold");
        for (const char* name : {"cmdUndo", "cmdRedo"}) {
            stage().editor().titoloFile = "[NuovoFile.mss]";
            QTRY_VERIFY2(stage().tool(name).isEnabled(), name);
            stage().start(name);
            QVERIFY2(stage().marked(), name);
        }
        QCOMPARE(stage().body(), "<p><b>testo</b></p>");
    }

    void formattingGoesToTheDesignViewWhateverTabIsOnShow() {
        stage().fill("<p>testo</p>");
        stage().select("p", 0, 5);
        stage().chooseTab(1);
        const QString source = stage().source().Text();
        stage().editor().ComandoPremuto("cmdBold");
        QCOMPARE(stage().source().Text(), source);
        QCOMPARE(stage().body(), "<p><b>testo</b></p>");
        stage().chooseTab(0);
        stage().select("p", 0, 5);
        stage().chooseTab(2);
        stage().editor().ComandoPremuto("cmdItalic");
        QCOMPARE(stage().body(), "<p><i>testo</i></p>");
    }

    void onThePreviewTabTheOtherCommandsOfBothViewsDoNothing() {
        stage().fill("<p>testo</p>");
        stage().select("p", 0, 5);
        stage().chooseTab(2);
        const QString source = stage().source().Text();
        for (const auto& [name, marks] : {std::pair("cmdTaglia", true),
                                          {"cmdIncolla", true},
                                          {"cmdRedo", true},
                                          {"cmdCopia", false},
                                          {"cmdSelezionaTutto", false},
                                          {"cmdTrova", false}}) {
            stage().editor().titoloFile = "[NuovoFile.mss]";
            stage().editor().ComandoPremuto(name);
            QCOMPARE(stage().marked(), marks);
        }
        QCOMPARE(stage().body(), "<p>testo</p>");
        QCOMPARE(stage().source().Text(), source);
    }

    void onTheSourceTabTheSameCommandsWorkOnTheSource() {
        stage().chooseTab(1);
        stage().source().setText("uno due");
        stage().editor().titoloFile = "[NuovoFile.mss]";
        stage().start("cmdSelezionaTutto");
        stage().start("cmdCopia");
        QVERIFY(!stage().marked());
        QCOMPARE(QApplication::clipboard()->text(), "uno due");
        stage().start("cmdTaglia");
        QCOMPARE(stage().source().Text(), "");
        QVERIFY(stage().marked());
        stage().start("cmdIncolla");
        QCOMPARE(stage().source().Text(), "uno due");
        stage().editor().titoloFile = "[NuovoFile.mss]";
        stage().start("cmdUndo");
        QCOMPARE(stage().source().Text(), "");
        QVERIFY(stage().marked());
        stage().start("cmdRedo");
        QCOMPARE(stage().source().Text(), "uno due");
    }

    void onThePreviewTabUndoOnlyMarks() {
        stage().fill("<p>testo</p>");
        stage().select("p", 0, 5);
        stage().start("cmdBold");
        const QString bold = stage().body();
        stage().chooseTab(2);
        stage().editor().titoloFile = "[NuovoFile.mss]";
        stage().editor().ComandoPremuto("cmdUndo");
        QVERIFY(stage().marked());
        QCOMPARE(stage().body(), bold);
    }

    void aNameThatIsNotKnownHasNoEffect() {
        stage().fill("<p>testo</p>");
        for (const char* name : {"cmdbold", "cmdBol", "", "cmdLang", "cmdVarCampo10"})
            stage().editor().ComandoPremuto(name);
        QCOMPARE(stage().body(), "<p>testo</p>");
        QVERIFY(!stage().marked());
    }

    void printAsksFirst() {
        int asked = 0;
        stage().design().setPrintPrompt([&asked](QPrinter&) {
            ++asked;
            return false;
        });
        stage().start("cmdStampa");
        QCOMPARE(asked, 1);
        QVERIFY(!stage().marked());
        stage().design().setPrintPrompt({});
    }

    void printAsksInTheDialogOfTheDesktop() {
        bool shown = false;
        stage().inDialog<QPrintDialog>([&shown](QPrintDialog& dialog) {
            shown = dialog.isVisible();
            dialog.reject();
        });
        stage().start("cmdStampa");
        QVERIFY(shown);
    }

    void printingWritesThePagesOfTheDocument() {
        stage().fill("<h1>Listino :::campo1:::</h1><p style=\"page-break-before: always\">seconda</p>");
        stage().editor().Commands().GetEdit("txtOggetto")->setText("Offerta di maggio, più o meno");
        const QString path = stage().path("stampa.pdf");
        stage().design().setPrintPrompt([&path](QPrinter& printer) {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(path);
            return true;
        });
        stage().start("cmdStampa");
        stage().design().setPrintPrompt({});
        QVERIFY(stage().bytes("stampa.pdf").startsWith("%PDF-"));
        const QByteArray about = toolOutput("pdfinfo", {path});
        QVERIFY2(about.contains("Pages:           2\n"), about.constData());
        QVERIFY2(about.contains("Title:           Offerta di maggio, più o meno\n"), about.constData());
        const QList<QByteArray> pages = toolOutput("pdftotext", {path, "-"}).split('\f');
        QVERIFY(pages[0].contains("Listino :::campo1:::"));
        QVERIFY(pages[1].contains("seconda"));
    }

    void aFileThatCannotBeWrittenIsReported() {
        stage().fill("<p>testo</p>");
        const QString path = stage().path("manca/stampa.pdf");
        stage().design().setPrintPrompt([&path](QPrinter& printer) {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(path);
            return true;
        });
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage().start("cmdStampa");
        QCOMPARE(ui::MessageDialog::shown().size(), 1);
        QVERIFY(ui::MessageDialog::shown()[0].text.contains("manca/stampa.pdf"));
        stage().design().setPrintPrompt({});
        QVERIFY(!stage().marked());
    }
};

TEST_CLASS(TestComandi);

}  // namespace frmeditor_comandi_test

#include "frmeditor_comandi_test.moc"
