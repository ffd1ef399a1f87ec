// SPDX-License-Identifier: GPL-3.0-or-later
#include <QFontInfo>

#include "platform/html/ViewFixture.h"
#include "support/TestClass.h"

namespace view_fonts_test {

// The font of text that names none: shown, reported, and never in the document unless a command writes it.
class ViewFonts : public QObject {
    Q_OBJECT

    std::unique_ptr<SureView> m_view;
    QString m_there;  // the family that the desktop shows for "Verdana"

    void load(const QString& html) { m_view->setDocumentHTML(html); }
    int width(const QString& selector) const { return placeOf(*m_view, selector).width(); }
    QString fontName() { return m_view->execCommand(HtmlView::GetFontName).toString(); }
    QString body() const {
        const QString html = m_view->documentHTML();
        const qsizetype from = html.indexOf('>', html.indexOf("<body")) + 1;
        return html.mid(from, html.lastIndexOf("</body>") - from);
    }

  private Q_SLOTS:
    void initTestCase() {
        QFont verdana("Verdana");
        verdana.setStyleHint(QFont::SansSerif);
        m_there = QFontInfo(verdana).family();
        m_view = std::make_unique<SureView>(HtmlView::Mode::Design);
        m_view->resize(700, 500);
        m_view->setDefaultFont("Verdana");
        m_view->show();
        m_view->wake();
    }
    void cleanupTestCase() { m_view.reset(); }

    void textWithoutAFontIsShownInTheDefaultFont() {
        load(QString("<span id=bare>Gentile cliente Wim</span><br>"
                     "<span id=there style='font-family: \"%1\"'>Gentile cliente Wim</span><br>"
                     "<span id=serif style='font-family: serif'>Gentile cliente Wim</span>")
                 .arg(m_there));
        QVERIFY(width("#there") != width("#serif"));
        QCOMPARE(width("#bare"), width("#there"));
    }

    void aFontThatIsNotThereIsShownInTheDefaultFont() {
        load(QString("<font id=missing face='Quella Che Manca'>Gentile cliente Wim</font><br>"
                     "<font id=named face=Verdana>Gentile cliente Wim</font><br>"
                     "<span id=there style='font-family: \"%1\"'>Gentile cliente Wim</span>")
                 .arg(m_there));
        QCOMPARE(width("#missing"), width("#there"));
        QCOMPARE(width("#named"), width("#there"));
    }

    void aNewTableIsShownAndReportedInTheDefaultFont() {
        load("<HTML>\r\n<BODY>\r\n</BODY>\r\n</HTML>");
        m_view->execCommand(HtmlView::SetFontName, "Verdana");
        const QString table = "<table><tbody><tr><td><span>Cella1</span></td></tr></tbody></table>";
        QVERIFY(m_view->insertHTML(table));
        QCOMPARE(body().simplified(), table);
        QVERIFY(m_view->find("Cella1"));
        QCOMPARE(fontName(), QString("Verdana"));
        const int shown = width("span");
        load(QString("<table><tr><td><span style='font-family: \"%1\"'>Cella1</span></td></tr></table>")
                 .arg(m_there));
        QCOMPARE(shown, width("span"));
    }

    void aDocumentOfItsOwnFontKeepsIt() {
        load(
            "<style>body { font-family: serif }</style>"
            "<span id=bare>Gentile cliente Wim</span><br>"
            "<span id=serif style='font-family: serif'>Gentile cliente Wim</span>");
        QCOMPARE(width("#bare"), width("#serif"));
    }

    void theDefaultFontIsNoPartOfTheDocument() {
        SureView plain(HtmlView::Mode::Design);
        plain.show();
        plain.wake();
        for (const char* html : {"<HTML>\r\n<BODY>\r\n</BODY>\r\n</HTML>", "<p>uno</p>",
                                 "<table><tr><td>Cella1</td></tr></table>"}) {
            load(html);
            plain.setDocumentHTML(html);
            QCOMPARE(m_view->documentHTML(), plain.documentHTML());
        }
    }

    void aCommandWritesTheFontThatTheTextIsShownInAlready_data() {
        QTest::addColumn<QString>("family");
        QTest::newRow("the default font") << "Verdana";
        QTest::newRow("the one that stands in for it") << m_there;
    }
    void aCommandWritesTheFontThatTheTextIsShownInAlready() {
        QFETCH(QString, family);
        load("<p>uno</p>");
        QVERIFY(m_view->find("uno"));
        QVERIFY(m_view->execCommand(HtmlView::SetFontName, family).toBool());
        QCOMPARE(body(), QString("<p><font face=\"%1\">uno</font></p>").arg(family));
        QCOMPARE(fontName(), family);
    }

    void aFontThatWasWrittenIsReportedByItsOwnName() {
        load("<p><font face=\"Courier New\">uno</font></p>");
        QVERIFY(m_view->find("uno"));
        QCOMPARE(fontName(), QString("Courier New"));
    }

    void theDefaultFontOutlivesTheBrowsersProcess() {
        load("<p>uno</p>");
        endBrowserOf(*m_view);
        m_view->wake();
        QVERIFY(m_view->find("uno"));
        QCOMPARE(fontName(), QString("Verdana"));
    }
};

TEST_CLASS(ViewFonts);

}  // namespace view_fonts_test

#include "view_fonts_test.moc"
