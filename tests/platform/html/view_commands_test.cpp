// SPDX-License-Identifier: GPL-3.0-or-later
#include <QClipboard>

#include "platform/html/ViewFixture.h"
#include "support/TestClass.h"

namespace view_commands_test {

// Every command by its number, on a document with a selection, and its undo.
class ViewCommands : public QObject {
    Q_OBJECT

    std::unique_ptr<Desk> m_desk;

    void load(const QString& html) { m_desk->view.setDocumentHTML(html); }
    QVariant run(int command, const QString& value = QString()) {
        return m_desk->view.execCommand(command, value);
    }

  private Q_SLOTS:
    void initTestCase() { m_desk = std::make_unique<Desk>(); }
    void cleanupTestCase() { m_desk.reset(); }

    void formatsTheSelectionAndUndoesIt_data() {
        QTest::addColumn<QString>("html");
        QTest::addColumn<int>("command");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("result");
        const QString p = "<p>uno :::nom::: due</p>";
        QTest::newRow("bold") << p << 5000 << ""
                              << "<p>uno <b>:::nom:::</b> due</p>";
        QTest::newRow("italic") << p << 5023 << ""
                                << "<p>uno <i>:::nom:::</i> due</p>";
        QTest::newRow("underline") << p << 5048 << ""
                                   << "<p>uno <u>:::nom:::</u> due</p>";
        QTest::newRow("ordered list") << p << 5030 << ""
                                      << "<ol><li>uno :::nom::: due</li></ol>";
        QTest::newRow("unordered list") << p << 5051 << ""
                                        << "<ul><li>uno :::nom::: due</li></ul>";
        QTest::newRow("indent") << p << 5018 << ""
                                << "<blockquote style=\"margin: 0 0 0 40px; border: none; padding: 0px;\">"
                                   "<p>uno :::nom::: due</p></blockquote>";
        QTest::newRow("outdent") << "<blockquote><p>uno :::nom::: due</p></blockquote>" << 5031 << "" << p;
        QTest::newRow("justify left") << "<center><p>:::nom:::</p></center>" << 5025 << ""
                                      << "<center><p style=\"text-align: left;\">:::nom:::</p></center>";
        QTest::newRow("justify centre") << p << 5024 << ""
                                        << "<p style=\"text-align: center;\">uno :::nom::: due</p>";
        QTest::newRow("justify right") << p << 5026 << ""
                                       << "<p style=\"text-align: right;\">uno :::nom::: due</p>";
        QTest::newRow("font name") << p << 5044 << "Courier New"
                                   << "<p>uno <font face=\"Courier New\">:::nom:::</font> due</p>";
        QTest::newRow("font size") << p << 5045 << "5"
                                   << "<p>uno <font size=\"5\">:::nom:::</font> due</p>";
        QTest::newRow("fore colour") << p << 5046 << "#ff8000"
                                     << "<p>uno <font color=\"#ff8000\">:::nom:::</font> due</p>";
        QTest::newRow("cut") << p << 5003 << ""
                             << "<p>uno  due</p>";
    }
    void formatsTheSelectionAndUndoesIt() {
        QFETCH(QString, html);
        QFETCH(int, command);
        QFETCH(QString, value);
        QFETCH(QString, result);
        load(html);
        QVERIFY(m_desk->view.find(":::nom:::"));
        QVERIFY(run(command, value).toBool());
        QCOMPARE(m_desk->body().replace("&nbsp;", " "), result);
        QVERIFY(isStable(m_desk->view.documentHTML()));
        QVERIFY(m_desk->view.commandEnabled(HtmlView::Undo));
        QVERIFY(!m_desk->view.commandEnabled(HtmlView::Redo));

        QVERIFY(run(HtmlView::Undo).toBool());
        QCOMPARE(m_desk->body(), html);
        QCOMPARE(m_desk->view.selectedText(), QString(":::nom:::"));
        QVERIFY(!m_desk->view.commandEnabled(HtmlView::Undo));

        QVERIFY(run(HtmlView::Redo).toBool());
        QCOMPARE(m_desk->body().replace("&nbsp;", " "), result);
        QVERIFY(!m_desk->view.commandEnabled(HtmlView::Redo));
    }

    void reportsTheStateOfTheSelection() {
        load(
            "<p align=center><b><i><u><font face='Courier New' size=5 "
            "color=#ff8000>uno</font></u></i></b></p><p>due</p>");
        m_desk->view.find("uno");
        QCOMPARE(run(HtmlView::GetFontName).toString(), QString("Courier New"));
        QCOMPARE(run(HtmlView::GetFontSize).toString(), QString("5"));
        QCOMPARE(run(HtmlView::GetForeColor).toString(), QString("#ff8000"));
        for (const int on :
             {HtmlView::Bold, HtmlView::Italic, HtmlView::Underline, HtmlView::JustifyCenter}) {
            QVERIFY(m_desk->view.commandState(on));
        }
        QVERIFY(!m_desk->view.commandState(HtmlView::JustifyLeft));
        m_desk->view.find("due");
        QVERIFY(!m_desk->view.commandState(HtmlView::Bold));
        QVERIFY(!m_desk->view.commandState(HtmlView::JustifyCenter));
        QVERIFY(m_desk->view.commandEnabled(HtmlView::Cut));
        m_desk->caretIn("p");
        run(HtmlView::GetFontName);
        QVERIFY(!m_desk->view.commandEnabled(HtmlView::Cut));
        QVERIFY(!m_desk->view.commandEnabled(HtmlView::Copy));
        QVERIFY(m_desk->view.commandEnabled(HtmlView::SelectAll));
    }

    void foreColourOfAPlainDocumentIsBlack() {
        load("<p>uno</p>");
        QCOMPARE(run(HtmlView::GetForeColor).toString(), QString("#000000"));
    }

    void fontOfABareCaretAppliesToTheTextTypedNext() {
        load("<HTML>\r\n<BODY>\r\n</BODY>\r\n</HTML>");
        const QString before = m_desk->view.documentHTML();
        run(HtmlView::SetFontName, "Verdana");
        run(HtmlView::SetFontSize, "2");
        QCOMPARE(m_desk->view.documentHTML(), before);
        QCOMPARE(run(HtmlView::GetFontName).toString(), QString("Verdana"));
        QCOMPARE(run(HtmlView::GetFontSize).toString(), QString("2"));
        m_desk->type("ciao");
        QCOMPARE(m_desk->body().simplified(), QString("<font face=\"Verdana\" size=\"2\">ciao</font>"));
    }

    void selectAllSelectsTheWholeText() {
        load("<p>uno</p><p>due</p>");
        QVERIFY(run(HtmlView::SelectAll).toBool());
        QCOMPARE(m_desk->view.selectedText().simplified(), QString("uno due"));
        QVERIFY(!m_desk->view.commandEnabled(HtmlView::Undo));
    }

    void copyPutsTheSelectionOnTheClipboardAndLeavesTheDocument() {
        load("<p>uno <b>:::nom:::</b></p>");
        const QString before = m_desk->view.documentHTML();
        m_desk->view.find(":::nom:::");
        QGuiApplication::clipboard()->clear();
        QVERIFY(run(HtmlView::Copy).toBool());
        QTRY_COMPARE(QGuiApplication::clipboard()->text(), QString(":::nom:::"));
        QCOMPARE(m_desk->view.documentHTML(), before);
    }

    void pasteInsertsWhatWasCopied() {
        load("<p>uno <b>due</b></p><p id=fine>tre</p>");
        m_desk->view.find("due");
        QVERIFY(run(HtmlView::Copy).toBool());
        QTRY_COMPARE(QGuiApplication::clipboard()->text(), QString("due"));
        m_desk->caretIn("#fine");
        QVERIFY(run(HtmlView::Paste).toBool());
        QVERIFY(m_desk->body().contains("due</b>") && m_desk->body().endsWith("tre</p>"));
        QVERIFY(run(HtmlView::Undo).toBool());
        QCOMPARE(m_desk->body(), QString("<p>uno <b>due</b></p><p id=\"fine\">tre</p>"));
    }

    void findGoesRoundTheDocument() {
        load("<p>Uno due uno</p>");
        QVERIFY(m_desk->view.find("uno"));
        QVERIFY(m_desk->view.find("uno"));
        QVERIFY(m_desk->view.find("uno"));
        QCOMPARE(m_desk->view.selectedText(), QString("Uno"));
        QVERIFY(m_desk->view.find("uno", HtmlView::FindCaseSensitive));
        QCOMPARE(m_desk->view.selectedText(), QString("uno"));
        QVERIFY(m_desk->view.find("due", HtmlView::FindBackwards));
        QVERIFY(!m_desk->view.find("quattro"));
        QVERIFY(!m_desk->view.find(""));
    }

    void typingIsUndoneInOneStep() {
        load("<p>x</p>");
        m_desk->type("buongiorno");
        QCOMPARE(m_desk->body(), QString("<p>buongiornox</p>"));
        QVERIFY(run(HtmlView::Undo).toBool());
        QCOMPARE(m_desk->body(), QString("<p>x</p>"));
        QVERIFY(run(HtmlView::Redo).toBool());
        QCOMPARE(m_desk->body(), QString("<p>buongiornox</p>"));
    }

    void commandBetweenTwoWordsMakesThreeSteps() {
        load("<p>x</p>");
        m_desk->type("uno");
        run(HtmlView::Bold);
        m_desk->type("due");
        QCOMPARE(m_desk->body(), QString("<p>uno<b>due</b>x</p>"));
        run(HtmlView::Undo);
        QCOMPARE(m_desk->body(), QString("<p>unox</p>"));
        run(HtmlView::Undo);
        QCOMPARE(m_desk->body(), QString("<p>x</p>"));
    }

    void newParagraphByTheEnterKey() {
        load("<p>unodue</p>");
        m_desk->caretIn("p", 3);
        m_desk->press(Qt::Key_Return, Qt::NoModifier, "\r");
        QCOMPARE(m_desk->body(), QString("<p>uno</p><p>due</p>"));
        m_desk->press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m_desk->body(), QString("<p>unodue</p>"));
        m_desk->press(Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(m_desk->body(), QString("<p>uno</p><p>due</p>"));
    }

    void deletedTextComesBack() {
        load("<table><tbody><tr><td>uno</td></tr></tbody></table><form><input name=\"a\"></form><p>fine</p>");
        const QString before = m_desk->body();
        run(HtmlView::SelectAll);
        m_desk->press(Qt::Key_Delete);
        QVERIFY(!m_desk->body().contains("uno"));
        QVERIFY(run(HtmlView::Undo).toBool());
        QCOMPARE(m_desk->body(), before);
    }

    void nothingIsUndoneOverASetDocument() {
        load("<p>uno</p>");
        m_desk->type("x");
        load("<p>due</p>");
        QVERIFY(!m_desk->view.commandEnabled(HtmlView::Undo));
        QCOMPARE(run(HtmlView::Undo).toBool(), false);
        QCOMPARE(m_desk->body(), QString("<p>due</p>"));
    }

    void dialogCommandsAndUnknownNumbersDoNothing() {
        load("<p>uno</p>");
        for (const int id : {5008, 5016, 5017, 5052, 5001, 0, -1})
            QCOMPARE(run(id).toBool(), false);
        QCOMPARE(m_desk->body(), QString("<p>uno</p>"));
        QCOMPARE(m_desk->view.queryStatus(5001), HtmlView::Unsupported);
        QCOMPARE(m_desk->view.queryStatus(HtmlView::Bold), HtmlView::Enabled);
    }

    void browseViewRunsNoEditingCommand() {
        Desk browse("<p>uno</p>", HtmlView::Mode::Browse);
        for (const int id : {5000, 5003, 5030, 5032, 5033, 5044, 5046, 5049, 5020}) {
            QCOMPARE(browse.view.execCommand(id, "x").toBool(), false);
            QCOMPARE(browse.view.queryStatus(id), HtmlView::Disabled);
        }
        QVERIFY(!browse.view.insertHTML("<hr>"));
        QVERIFY(!browse.view.setLink({"x"}));
        QVERIFY(!browse.view.insertImage({"x", {}, {}, {}, {}}));
        browse.type("due");
        QCOMPARE(browse.body(), QString("<p>uno</p>"));
        QVERIFY(browse.view.execCommand(HtmlView::SelectAll).toBool());
        QCOMPARE(browse.view.selectedText(), QString("uno"));
    }
};

TEST_CLASS(ViewCommands);

}  // namespace view_commands_test

#include "view_commands_test.moc"
