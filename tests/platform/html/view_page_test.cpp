// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/ViewFixture.h"
#include "support/TestClass.h"

namespace view_page_test {

// The elements around the caret and the page itself, as the dialogs show and change them.
class ViewPage : public QObject {
    Q_OBJECT

    std::unique_ptr<Desk> m_desk;

  private Q_SLOTS:
    void initTestCase() { m_desk = std::make_unique<Desk>(); }
    void cleanupTestCase() { m_desk.reset(); }

    void elementsAreListedFromTheCaretOutwards() {
        m_desk->view.setDocumentHTML(
            "<body bgcolor=#ffffff><table><tr><td WIDTH=10 Align=left><b>x</b></td></tr></table>");
        m_desk->view.find("x");
        QStringList tags;
        for (const HtmlView::Element& element : m_desk->view.elementsAtCaret())
            tags += element.tag;
        QCOMPARE(tags.join(' '), QString("b td tr tbody table body"));
        const HtmlView::Attributes cell = m_desk->view.elementsAtCaret().at(1).attributes;
        QCOMPARE(cell, (HtmlView::Attributes{{"width", "10"}, {"align", "left"}}));
    }

    void attributesAreChangedAddedAndRemoved() {
        m_desk->view.setDocumentHTML("<p align=\"left\" class=\"a\" title=\":::nom:::\">x</p>");
        m_desk->view.find("x");
        QVERIFY(m_desk->view.setElementAttributes(
            0, {{"align", "right"}, {"title", ":::nom:::"}, {"ID", "due"}}));
        QCOMPARE(m_desk->body(), QString("<p align=\"right\" title=\":::nom:::\" id=\"due\">x</p>"));
        QVERIFY(m_desk->view.execCommand(HtmlView::Undo).toBool());
        QVERIFY(m_desk->body().contains("align=\"left\"") && m_desk->body().contains("class=\"a\""));
        QVERIFY(!m_desk->body().contains("id="));
        QVERIFY(m_desk->view.execCommand(HtmlView::Redo).toBool());
        QCOMPARE(m_desk->body(), QString("<p align=\"right\" title=\":::nom:::\" id=\"due\">x</p>"));
    }

    void impossibleAttributesAreRefused() {
        m_desk->view.setDocumentHTML("<p>x</p>");
        m_desk->view.find("x");
        QVERIFY(!m_desk->view.setElementAttributes(0, {{"a b", ""}}));
        QVERIFY(!m_desk->view.setElementAttributes(0, {{"", "x"}}));
        QVERIFY(!m_desk->view.setElementAttributes(7, {}));
        QVERIFY(!m_desk->view.setElementAttributes(-1, {}));
        QCOMPARE(m_desk->body(), QString("<p>x</p>"));
    }

    void clickedFieldIsTheInnermostElement() {
        m_desk->view.setDocumentHTML("<form>x<input name=\"text1\" size=\"20\"></form>");
        QTest::mouseClick(m_desk->view.inputWidget(), Qt::LeftButton, Qt::NoModifier,
                          m_desk->placeOf("input").center());
        QTRY_COMPARE(m_desk->view.elementsAtCaret().value(0).tag, QString("input"));
        QVERIFY(m_desk->view.setElementAttributes(0, {{"name", "nome"}}));
        QCOMPARE(m_desk->body(), QString("<form>x<input name=\"nome\"></form>"));
    }

    void pageColoursThatAreNotSetHaveTheirUsualValues() {
        m_desk->view.setDocumentHTML("<p>x</p>");
        const QStringList usual{"#ffffff", "#000000", "#0000ff", "#0000ff", "#800080"};
        for (int i = 0; i < usual.size(); ++i) {
            QCOMPARE(m_desk->view.pageColor(static_cast<HtmlView::PageColor>(i)), usual[i]);
        }
    }

    void pageColoursAreReadAndWrittenUnchanged() {
        m_desk->view.setDocumentHTML("<body bgcolor=yellow text=#112233 link=a alink=b vlink=c>x</body>");
        QCOMPARE(m_desk->view.pageColor(HtmlView::PageColor::Background), QString("yellow"));
        QCOMPARE(m_desk->view.pageColor(HtmlView::PageColor::Text), QString("#112233"));
        for (int i = 0; i < 5; ++i) {
            m_desk->view.setPageColor(static_cast<HtmlView::PageColor>(i), QStringLiteral("#00000%1").arg(i));
        }
        QVERIFY(m_desk->view.documentHTML().contains(
            "<body bgcolor=\"#000000\" text=\"#000001\" link=\"#000002\" "
            "alink=\"#000003\" vlink=\"#000004\">"));
    }

    void bodyAttributesAreReadWrittenAndRemoved() {
        m_desk->view.setDocumentHTML("<body LeftMargin=3 background=a.gif>x</body>");
        QCOMPARE(m_desk->view.bodyAttribute("leftmargin"), QString("3"));
        QCOMPARE(m_desk->view.bodyAttribute("marginwidth"), QString());
        m_desk->view.removeBodyAttribute("leftmargin");
        m_desk->view.setBodyAttribute("leftmargin", "7\"<");
        m_desk->view.setBodyAttribute("marginwidth", "");
        QVERIFY(m_desk->view.documentHTML().contains(
            "<body background=\"a.gif\" leftmargin=\"7&quot;<\" marginwidth=\"\">x</body>"));
        QVERIFY(!m_desk->view.commandEnabled(HtmlView::Undo));
    }

    void marksAreNoPartOfTheDocument() {
        const QString html =
            "<table border=0><tr><td>x</td></tr></table><form><br></form><table border=1><tr><td>y</table>";
        m_desk->view.setDocumentHTML(html);
        const QString before = m_desk->view.documentHTML();
        const QString outline = "getComputedStyle(document.querySelector('td')).outlineStyle";
        QCOMPARE(m_desk->view.evaluate(outline).toString(), QString("none"));
        m_desk->view.setShowBorders(true);
        m_desk->view.setShowDetails(true);
        QCOMPARE(m_desk->view.evaluate(outline).toString(), QString("dotted"));
        QCOMPARE(m_desk->view.evaluate("getComputedStyle(document.querySelectorAll('td')[1]).outlineStyle")
                     .toString(),
                 QString("none"));
        QCOMPARE(m_desk->view.evaluate("getComputedStyle(document.querySelector('form'), '::before').content")
                     .toString(),
                 QString("\"form\""));
        QCOMPARE(m_desk->view.documentHTML(), before);
        m_desk->view.setDocumentHTML(html);
        QCOMPARE(m_desk->view.evaluate(outline).toString(), QString("dotted"));
        m_desk->view.setShowBorders(false);
        m_desk->view.setShowDetails(false);
        QCOMPARE(m_desk->view.evaluate(outline).toString(), QString("none"));
    }

    void everythingWorksOnAFrameSetWithoutDamage() {
        m_desk->view.setDocumentHTML("<frameset cols=\"50%,50%\"><frame src=\"a.htm\"></frameset>");
        const QString before = m_desk->view.documentHTML();
        m_desk->view.insertHTML("<hr>");
        m_desk->view.execCommand(HtmlView::Bold);
        m_desk->view.execCommand(HtmlView::SetFontName, "Verdana");
        QCOMPARE(m_desk->view.documentHTML(), before);
    }
};

TEST_CLASS(ViewPage);

}  // namespace view_page_test

#include "view_page_test.moc"
