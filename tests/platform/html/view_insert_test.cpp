// SPDX-License-Identifier: GPL-3.0-or-later
#include <QClipboard>
#include <QImage>
#include <QTemporaryDir>

#include "platform/html/ViewFixture.h"
#include "support/TestClass.h"

namespace view_insert_test {

// What comes into a document from outside: fragments, images, links, the clipboard, drops.
class ViewInsert : public QObject {
    Q_OBJECT

    std::unique_ptr<Desk> m_desk;
    QTemporaryDir m_folder;

    QString imageFile(const QString& name) const {
        const QString path = m_folder.filePath(name);
        QImage image(20, 10, QImage::Format_RGB32);
        image.fill(Qt::red);
        if (!image.save(path)) qFatal("cannot write the image");
        return path;
    }

    void paste(const QString& html, const QString& text = QString()) {
        auto* data = new QMimeData;
        if (!html.isNull()) data->setHtml(html);
        if (!text.isNull()) data->setText(text);
        QGuiApplication::clipboard()->setMimeData(data);
        m_desk->view.execCommand(HtmlView::Paste);
    }

  private Q_SLOTS:
    void initTestCase() { m_desk = std::make_unique<Desk>(); }
    void cleanupTestCase() { m_desk.reset(); }

    void insertsTheFragmentAsItIsWrittenAndUndoesIt_data() {
        QTest::addColumn<QString>("fragment");
        QTest::addColumn<QString>("result");
        const auto inText = [](const char* name, const QString& fragment, const QString& normal) {
            QTest::newRow(name) << fragment << "<p>uno " + normal + "due</p>";
        };
        const auto between = [](const char* name, const QString& fragment, const QString& normal) {
            QTest::newRow(name) << fragment << "<p>uno </p>" + normal + "<p>due</p>";
        };
        between("line", "<HR>", "<hr>");
        between("table",
                "<TABLE WIDTH=\"100%\" BORDER=\"0\" CELLSPACING=\"2\" CELLPADDING=\"0\"><TR><TD>Cella1</TD>"
                "<TD>Cella2</TD><TD>Cella3</TD></TR></TABLE>",
                "<table width=\"100%\" border=\"0\" cellspacing=\"2\" "
                "cellpadding=\"0\"><tbody><tr><td>Cella1</td>"
                "<td>Cella2</td><td>Cella3</td></tr></tbody></table>");
        between("form", "<FORM NAME=\"form1\" METHOD=\"get\" ACTION=\"\"></FORM>",
                "<form name=\"form1\" method=\"get\" action=\"\"></form>");
        inText("text field", "<INPUT NAME=\"text1\" TYPE=\"text\" VALUE=\"\" SIZE=\"20\">",
               "<input name=\"text1\" type=\"text\" value=\"\" size=\"20\">");
        inText("text area", "<TEXTAREA NAME=\"textarea1\" COLS=\"40\" ROWS=\"6\"></TEXTAREA>",
               "<textarea name=\"textarea1\" cols=\"40\" rows=\"6\"></textarea>");
        inText("check box", "<INPUT TYPE=\"checkbox\" NAME=\"checkbox1\" VALUE=\"checkbox\">",
               "<input type=\"checkbox\" name=\"checkbox1\" value=\"checkbox\">");
        inText("radio button", "<INPUT TYPE=\"radio\" NAME=\"radiobutton\" VALUE=\"radiobutton\">",
               "<input type=\"radio\" name=\"radiobutton\" value=\"radiobutton\">");
        inText("list",
               "<SELECT NAME=\"select1\" SIZE=\"6\"><OPTION VALUE=\"1\">valore1</OPTION><OPTION "
               "VALUE=\"2\">valore2</OPTION></SELECT>",
               "<select name=\"select1\" size=\"6\"><option value=\"1\">valore1</option><option "
               "value=\"2\">valore2</option></select>");
        inText("hidden field", "<INPUT TYPE=\"hidden\" NAME=\"hiddenField1\">",
               "<input type=\"hidden\" name=\"hiddenField1\">");
        inText("placeholder", ":::campo9:::", ":::campo9:::");
        inText("formatted text with a comment", "<b style=\"color: red\" class=\"x\">a &amp; b</b><!-- c -->",
               "<b style=\"color: red\" class=\"x\">a &amp; b</b><!-- c -->");
    }
    void insertsTheFragmentAsItIsWrittenAndUndoesIt() {
        QFETCH(QString, fragment);
        QFETCH(QString, result);
        m_desk->view.setDocumentHTML("<p>uno due</p>");
        m_desk->caretIn("p", 4);
        QVERIFY(m_desk->view.insertHTML(fragment));
        QCOMPARE(m_desk->body(), result);
        QVERIFY(isStable(m_desk->view.documentHTML()));
        QVERIFY(m_desk->view.execCommand(HtmlView::Undo).toBool());
        QCOMPARE(m_desk->body(), QString("<p>uno due</p>"));
        QVERIFY(m_desk->view.execCommand(HtmlView::Redo).toBool());
        QCOMPARE(m_desk->body(), result);
    }

    void insertsIntoTheEmptyDocument() {
        m_desk->view.setDocumentHTML("<HTML>\r\n<BODY>\r\n</BODY>\r\n</HTML>");
        QVERIFY(m_desk->view.insertHTML(":::nom:::"));
        m_desk->type("!");
        QCOMPARE(m_desk->body().trimmed(), QString(":::nom:::!"));
    }

    void replacesTheSelection() {
        m_desk->view.setDocumentHTML("<p>uno <b>due</b> tre</p>");
        m_desk->view.find("due");
        QVERIFY(m_desk->view.insertHTML(":::rgs:::"));
        QCOMPARE(m_desk->body(), QString("<p>uno <b>:::rgs:::</b> tre</p>"));
    }

    void formIsNeverInsideAForm() {
        m_desk->view.setDocumentHTML("<form name=\"a\">x<input></form>");
        m_desk->view.find("x");
        QVERIFY(m_desk->view.insertHTML("<form name=\"b\"></form>"));
        QVERIFY(isStable(m_desk->view.documentHTML()));
        QVERIFY(m_desk->body().endsWith("</form><form name=\"b\"></form>"));
    }

    void fieldGoesIntoTheFormJustInserted() {
        m_desk->view.setDocumentHTML("");
        m_desk->view.insertHTML("<form name=\"form1\"></form>");
        m_desk->view.insertHTML("<input name=\"text1\">");
        QCOMPARE(m_desk->body(), QString("<form name=\"form1\"><input name=\"text1\"></form>"));
    }

    void imageOfAFileIsInsertedAndShown() {
        const QString path = imageFile(QStringLiteral("l'insegna è.png"));
        m_desk->view.setDocumentHTML("<p>x</p>");
        QVERIFY(m_desk->view.insertImage({path, "Insegna", "20", "", "left"}));
        QCOMPARE(m_desk->body(), QStringLiteral("<p><img src=\"file://%1/l'insegna%20%C3%A8.png\" "
                                                "alt=\"Insegna\" width=\"20\" align=\"left\" "
                                                "border=\"0\">x</p>")
                                     .arg(m_folder.path()));
        QTRY_COMPARE(m_desk->view.evaluate("document.images[0].naturalWidth").toInt(), 20);
        QVERIFY(m_desk->view.execCommand(HtmlView::Undo).toBool());
        QCOMPARE(m_desk->body(), QString("<p>x</p>"));
    }

    void imageAddressKeepsItsPlaceholder() {
        m_desk->view.setDocumentHTML("");
        QVERIFY(m_desk->view.insertImage({"http://example.it/:::campo1:::.gif?a=1&b=2", "", "", "", ""}));
        QVERIFY(m_desk->body().contains("src=\"http://example.it/:::campo1:::.gif?a=1&amp;b=2\""));
    }

    void clickedImageIsChangedInItsPlace() {
        m_desk->view.setDocumentHTML(
            QStringLiteral("<p>x<img src=\"%1\" width=\"60\" height=\"40\" class=\"k\"></p>")
                .arg(QUrl::fromLocalFile(imageFile("a.png")).toString()));
        QVERIFY(!m_desk->view.selectedImage());
        const QRect place = m_desk->placeOf("img");
        QTest::mouseClick(m_desk->view.inputWidget(), Qt::LeftButton, Qt::NoModifier, place.center());
        QTRY_VERIFY(m_desk->view.selectedImage().has_value());
        HtmlView::ImageInfo image = *m_desk->view.selectedImage();
        QCOMPARE(image.width, QString("60"));
        image.width.clear();
        image.alternativeText = "Foto";
        QVERIFY(m_desk->view.insertImage(image));
        QCOMPARE(m_desk->body(),
                 QStringLiteral("<p>x<img src=\"%1\" height=\"40\" class=\"k\" alt=\"Foto\"></p>")
                     .arg(QUrl::fromLocalFile(m_folder.filePath("a.png")).toString()));
    }

    void selectionBecomesALink() {
        m_desk->view.setDocumentHTML("<p>vai <b>qui</b> ora</p>");
        m_desk->view.find("qui");
        const QString address = "http://example.it/?u=:::email:::&c=1";
        QVERIFY(m_desk->view.setLink({address}));
        QCOMPARE(
            m_desk->body(),
            QString("<p>vai <b><a href=\"http://example.it/?u=:::email:::&amp;c=1\">qui</a></b> ora</p>"));
        QCOMPARE(m_desk->view.link().address, address);
        QVERIFY(m_desk->view.setLink({"mailto::::email:::"}));
        QVERIFY(m_desk->body().contains("href=\"mailto::::email:::\""));
        QVERIFY(m_desk->view.setLink({}));
        QCOMPARE(m_desk->body(), QString("<p>vai <b>qui</b> ora</p>"));
        QCOMPARE(m_desk->view.link().address, QString());
        for (int i = 0; i < 3; ++i)
            QVERIFY(m_desk->view.execCommand(HtmlView::Undo).toBool());
        QCOMPARE(m_desk->body(), QString("<p>vai <b>qui</b> ora</p>"));
    }

    void linkWithoutSelectionInsertsItsText() {
        m_desk->view.setDocumentHTML("<p>x</p>");
        QVERIFY(m_desk->view.setLink({":::campo1:::"}, "Il tuo <sito>"));
        QCOMPARE(m_desk->body(), QString("<p><a href=\":::campo1:::\">Il tuo &lt;sito&gt;</a>x</p>"));
        m_desk->type("y");
        QVERIFY(m_desk->body().contains("</a>yx") || m_desk->body().contains("y</a>x"));
    }

    void theMarkOfALinkThatUnsubscribesLeavesTheOtherWords() {
        m_desk->view.setDocumentHTML(
            "<p><a rel=\"nofollow Unsubscribe\" href=\"https://x.it/a\">via</a></p>");
        m_desk->view.find("via");
        HtmlView::LinkInfo link = m_desk->view.link();
        QVERIFY(link.unsubscribes);
        link.address = "https://x.it/b";
        QVERIFY(m_desk->view.setLink(link));
        QCOMPARE(m_desk->body(),
                 QString("<p><a rel=\"nofollow Unsubscribe\" href=\"https://x.it/b\">via</a></p>"));
        link.unsubscribes = false;
        QVERIFY(m_desk->view.setLink(link));
        QCOMPARE(m_desk->body(), QString("<p><a rel=\"nofollow\" href=\"https://x.it/b\">via</a></p>"));
        QVERIFY(!m_desk->view.link().unsubscribes);
        link.unsubscribes = true;
        QVERIFY(m_desk->view.setLink(link));
        const QString marked =
            "<p><a rel=\"nofollow unsubscribe one-click\" href=\"https://x.it/b\">via</a></p>";
        QCOMPARE(m_desk->body(), marked);
        for (int i = 0; i < 2; ++i)
            QVERIFY(m_desk->view.execCommand(HtmlView::Undo).toBool());
        QVERIFY(m_desk->view.link().unsubscribes);
        for (int i = 0; i < 2; ++i)
            QVERIFY(m_desk->view.execCommand(HtmlView::Redo).toBool());
        QCOMPARE(m_desk->body(), marked);
    }

    void aNewLinkMayUnsubscribe() {
        m_desk->view.setDocumentHTML("<p>x <b>y</b></p>");
        m_desk->view.find("x y");
        QVERIFY(m_desk->view.setLink({"https://x.it/u", true}));
        QVERIFY2(m_desk->body().contains("<a href=\"https://x.it/u\" rel=\"unsubscribe one-click\">"),
                 qPrintable(m_desk->body()));
        m_desk->view.setDocumentHTML("<p>x</p>");
        QVERIFY(m_desk->view.setLink({"https://x.it/u", true}, "via"));
        QCOMPARE(m_desk->body(),
                 QString("<p><a href=\"https://x.it/u\" rel=\"unsubscribe one-click\">via</a>x</p>"));
    }

    void pastedTextOfAWordProcessorLandsAsContent() {
        m_desk->view.setDocumentHTML("<p id=\"a\"><br></p>");
        paste(
            "<html xmlns:o=\"urn:schemas-microsoft-com:office:office\"><head><meta name=Generator "
            "content=\"W 15\">"
            "<link rel=File-List href=\"file:///C:/x.xml\"><style><!-- p.MsoNormal {margin:0cm} --></style>"
            "<!--[if gte mso 9]><xml><w:View>Normal</w:View></xml><![endif]--></head><body lang=IT>"
            "<!--StartFragment--><p class=MsoNormal "
            "style='mso-margin-top-alt:auto;text-align:center'><b>Gentile "
            "<span lang=EN style='mso-fareast-language:EN'>:::nom:::</span></b><o:p>&nbsp;</o:p></p>"
            "<table class=MsoTableGrid border=1 "
            "style='mso-yfti-tbllook:1184;width:50%'><tr><td>uno</td></tr></table>"
            "<!--EndFragment--></body></html>",
            "Gentile :::nom:::");
        QCOMPARE(
            m_desk->body(),
            QString("<p style=\"text-align:center\"><b>Gentile :::nom:::</b>&nbsp;</p>"
                    "<table border=\"1\" style=\"width:50%\"><tbody><tr><td>uno</td></tr></tbody></table>"));
        QVERIFY(isStable(m_desk->view.documentHTML()));
        QVERIFY(m_desk->view.execCommand(HtmlView::Undo).toBool());
        QCOMPARE(m_desk->body(), QString("<p id=\"a\"><br></p>"));
    }

    void pastedHtmlLosesWhatCouldAct() {
        m_desk->view.setDocumentHTML("<p>x</p>");
        paste(
            "<p onclick=\"f()\">a<script>f()</script><a href=\" javascript:f()\">b</a><iframe "
            "src=x></iframe></p>");
        QCOMPARE(m_desk->body(), QString("<p>a<a>b</a></p><p>x</p>"));
    }

    void pastedHtmlInsertsNoFileOfThisMachine_data() {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QString>("result");
        const auto row = [](const char* name, const QString& html, const QString& result) {
            QTest::newRow(name) << html << result;
        };
        row("image", "<p>a<img src=\"file:///etc/passwd\">b</p>", "<p>ab</p>");
        row("hidden image", "<p>a<img style=\"display:none\" src=\"FILE://localhost/etc/passwd\">b</p>",
            "<p>ab</p>");
        row("broken scheme", "<p>a<img src=\" fi&#9;le&#10;:///etc/passwd\">b</p>", "<p>ab</p>");
        row("plain path", "<p>a<img src=\"/etc/passwd\">b</p>", "<p>ab</p>");
        row("backslashes", "<p>a<img src=\"\\\\server\\x.png\">b</p>", "<p>ab</p>");
        row("set of images",
            "<p>a<img src=\"https://x.test/a.png\" srcset=\"a.png 1x, file:///b.png 2x\">b</p>", "<p>ab</p>");
        row("background", "<table background=\"file:///etc/x.png\"><tr><td>a</td></tr></table>",
            "<table><tbody><tr><td>a</td></tr></tbody></table>");
        row("style", "<p style=\"background:url('file:///etc/x.png')\">a</p>", "<p>a</p>");
        row("style with escapes", "<p style=\"background:url(\\66 ile:///etc/x.png)\">a</p>", "<p>a</p>");
        row("style with a plain escape", "<p style=\"background:url(f\\ile:///etc/x.png)\">a</p>",
            "<p>a</p>");
        row("link", "<p><a href=\"file:///etc/passwd\">a</a></p>", "<p><a>a</a></p>");
        row("form control named like a method",
            "<form><input name=\"getAttributeNames\"></form><p>a<img src=\"file:///etc/passwd\">b</p>",
            "<form><input name=\"getAttributeNames\"></form><p>ab</p>");
        row("of the web", "<p>a<img src=\"https://x.test/a.png\">b</p>",
            "<p>a<img src=\"https://x.test/a.png\">b</p>");
        row("placeholder", "<p>a<img src=\":::campo1:::\">b</p>", "<p>a<img src=\":::campo1:::\">b</p>");
        row("inside", "<p>a<img src=\"data:image/gif;base64,R0lG\">b</p>",
            "<p>a<img src=\"data:image/gif;base64,R0lG\">b</p>");
    }
    void pastedHtmlInsertsNoFileOfThisMachine() {
        QFETCH(QString, html);
        QFETCH(QString, result);
        QSignalSpy leftOut(&m_desk->view, &HtmlView::leftOut);
        m_desk->view.setDocumentHTML("");
        paste(html);
        QCOMPARE(m_desk->body(), result);
        m_desk->view.evaluate("1");  // the answer comes after what the page reported before
        QCOMPARE(leftOut.count(), html == result ? 0 : 1);
    }

    void droppedHtmlInsertsNoFileOfThisMachine() {
        m_desk->view.setDocumentHTML("<p>uno</p>");
        QSignalSpy leftOut(&m_desk->view, &HtmlView::leftOut);
        QMimeData data;
        data.setHtml("x<img src=\"file:///etc/passwd\"><img src=\"file:///etc/shadow\">y");
        QVERIFY(dropOn(m_desk->view, data, m_desk->placeOf("p").topLeft() + QPoint(0, 5)));
        QCOMPARE(m_desk->body(), QString("<p>xyuno</p>"));
        m_desk->view.evaluate("1");
        QCOMPARE(leftOut.count(), 1);
        QCOMPARE(leftOut[0][0].toStringList(), (QStringList{"file:///etc/passwd", "file:///etc/shadow"}));
    }

    void cutImageComesBackWhereItIsPasted() {
        const QString path = imageFile("mia.png");
        m_desk->view.setDocumentHTML("<p>x</p>");
        QVERIFY(m_desk->view.insertImage({path, "", "", "", ""}));
        const QString with = m_desk->body();
        QSignalSpy leftOut(&m_desk->view, &HtmlView::leftOut);
        m_desk->selectAll();
        QVERIFY(m_desk->view.execCommand(HtmlView::Cut).toBool());
        QVERIFY(!m_desk->body().contains("mia.png"));
        QTRY_VERIFY(QGuiApplication::clipboard()->mimeData()->html().contains("mia.png"));
        QVERIFY(m_desk->view.execCommand(HtmlView::Paste).toBool());
        QVERIFY2(m_desk->body().contains("mia.png"), qPrintable(m_desk->body()));
        m_desk->view.setDocumentHTML("<p>altro</p>");
        QVERIFY(m_desk->view.execCommand(HtmlView::Paste).toBool());
        QVERIFY(!m_desk->body().contains("mia.png"));
        m_desk->view.evaluate("1");
        QCOMPARE(leftOut.count(), 1);
    }

    void pastedControlsDoNotReplaceTheFunctionsThatClean_data() {
        QTest::addColumn<QString>("html");
        for (const char* name :
             {"attributes", "getAttribute", "getAttributeNames", "removeAttribute", "setAttribute",
              "localName", "childNodes", "replaceWith", "parentNode", "querySelectorAll"})
            QTest::newRow(name)
                << QString(
                       "<form onclick=\"f()\" action=\" java\tscript:f()\" style=\"behavior:url(x)\">"
                       "<input name=\"%1\" onfocus=\"f()\"></form>")
                       .arg(name);
        for (const char* name : {"body", "querySelectorAll", "createTreeWalker", "documentElement"})
            QTest::newRow(qPrintable(QString("document ") + name))
                << QString(
                       "<form name=\"%1\" onclick=\"f()\"></form><img name=\"%1\" onerror=\"f()\">"
                       "<a href=\"javascript:f()\">x</a>")
                       .arg(name);
    }
    void pastedControlsDoNotReplaceTheFunctionsThatClean() {
        QFETCH(QString, html);
        m_desk->view.setDocumentHTML("<p>uno</p>");
        paste(html);
        const QString body = m_desk->body();
        QVERIFY2(body.contains("<form"), qPrintable(body));
        for (const char* bad : {"f()", "behavior"})
            QVERIFY2(!body.contains(bad), qPrintable(body));
    }

    void pastedAddressesHaveASchemeThatIsKnown_data() {
        QTest::addColumn<QString>("attribute");
        QTest::addColumn<bool>("stays");
        for (const char* good : {"href='http://esempio.it/:::campo1:::'", "href='https://:::campo1:::/x'",
                                 "href='mailto::::email:::'", "href=':::campo1:::'", "href='#sotto'",
                                 "href='a/b.html'", "href='tel:+391234'", "href=' HTTP://esempio.it '"})
            QTest::newRow(good) << good << true;
        for (const char* bad : {"href='javascript:f()'",
                                "href='java&#9;script:f()'",
                                "href='&#1;java&#10;script:f()'",
                                "href='JavaScript:f()'",
                                "href='vbscript:f()'",
                                "href='data:text/html,f()'",
                                "href='blob:f()'",
                                "href='view-source:f()'",
                                "href='unknown:f()'",
                                "action='javascript:f()'",
                                "formaction='java&NewLine;script:f()'",
                                "src='data:text/html,f()'",
                                "background='javascript:f()'",
                                "srcset='javascript:f() 2x'",
                                "poster='javascript:f()'",
                                "ping='javascript:f()'",
                                "style='background:url(java\\73 cript:f())'",
                                "style='width:expression(f())'",
                                "srcdoc='f()'",
                                "xlink:href='f()'",
                                "oNclick='f()'"})
            QTest::newRow(bad) << bad << false;
    }
    void pastedAddressesHaveASchemeThatIsKnown() {
        QFETCH(QString, attribute);
        QFETCH(bool, stays);
        m_desk->view.setDocumentHTML("<p>uno</p>");
        paste("<a class=\"k\" " + attribute + ">vai</a>");
        const QString body = m_desk->body();
        QVERIFY2(body.contains(stays ? "<a class=\"k\" href=" : "<a class=\"k\">vai</a>"), qPrintable(body));
        QVERIFY2(!body.contains("f()"), qPrintable(body));
    }

    void pastedThingsOfTheWebStayAndAreReported() {
        m_desk->view.setDocumentHTML("<p>uno</p>");
        QSignalSpy told(&m_desk->view, &HtmlView::staysOnTheWeb);
        paste(
            "<p style=\"background:url('http://a.example/a;b.png');color:red\">x</p>"
            "<img src=\"x.png\" srcset=\"http://b.example/1.png 1x, http://c.example/2.png 2x\">"
            "<video poster=\"http://d.example/p.png\"></video><a href=\"http://z.example/\" "
            "ping=\"http://e.example/ http://f.example/\">y</a>"
            "<p style=\"background:url(data:image/png;base64,AAAA)\">z</p>");
        QTRY_COMPARE(told.count(), 1);
        QStringList hosts;
        for (const QString& address : told[0][0].toStringList())
            hosts << QUrl(address).host();
        QCOMPARE(hosts.join(' '), QString("a.example b.example c.example d.example e.example f.example"));
        QVERIFY(m_desk->body().contains("url('http://a.example/a;b.png'); color:red"));
        QVERIFY(m_desk->body().contains("url(data:image/png;base64,AAAA)"));
        paste("<a href=\"http://z.example/\">senza</a>");
        QTRY_VERIFY(m_desk->body().contains("senza"));
        settle(m_desk->view);
        QCOMPARE(told.count(), 1);
    }

    void pastedTextThatIsTooDeepIsRefused() {
        m_desk->view.setDocumentHTML("<p>uno</p>");
        QSignalSpy refused(&m_desk->view, &HtmlView::refused);
        auto* data = new QMimeData;
        data->setHtml(QString("<div>").repeated(30000));
        QGuiApplication::clipboard()->setMimeData(data);
        QCOMPARE(m_desk->view.HtmlView::execCommand(HtmlView::Paste).status().code(), ErrorCode::Overflow);
        QMimeData other;
        other.setHtml(QString("<div>").repeated(30000));
        QVERIFY(!dropOn(m_desk->view, other, {20, 20}));
        QCOMPARE(refused.count(), 1);
        QCOMPARE(m_desk->body(), QString("<p>uno</p>"));
    }

    void pastedTextKeepsItsLines() {
        m_desk->view.setDocumentHTML("<p>x</p>");
        paste(QString(), "uno <b>\r\n  due\ntre");
        QCOMPARE(m_desk->body(), QString("<p>uno &lt;b&gt;<br>&nbsp; due<br>trex</p>"));
    }

    void pastedPictureIsCarriedInTheDocument() {
        m_desk->view.setDocumentHTML("");
        QImage picture(3, 3, QImage::Format_RGB32);
        picture.fill(Qt::blue);
        QGuiApplication::clipboard()->setImage(picture);
        QVERIFY(m_desk->view.execCommand(HtmlView::Paste).toBool());
        QVERIFY(m_desk->body().startsWith("<img src=\"data:image/png;base64,"));
        QTRY_COMPARE(m_desk->view.evaluate("document.images[0].naturalWidth").toInt(), 3);
    }

    void pasteByTheKeyboardIsCleanedToo() {
        m_desk->view.setDocumentHTML("<p>x</p>");
        auto* data = new QMimeData;
        data->setHtml("<p class=MsoNormal>a<o:p></o:p></p>");
        QGuiApplication::clipboard()->setMimeData(data);
        m_desk->press(Qt::Key_V, Qt::ControlModifier);
        QTRY_COMPARE(m_desk->body(), QString("<p>a</p><p>x</p>"));
    }

    void droppedImageFileIsInserted() {
        m_desk->view.setDocumentHTML("<p>uno</p><p id=\"b\">due</p>");
        QSignalSpy dropped(&m_desk->view, &HtmlView::dropped);
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(imageFile("b.png"))});
        const QRect place = m_desk->placeOf("#b");
        QVERIFY(dropOn(m_desk->view, data, place.topLeft() + QPoint(1, 5)));
        QCOMPARE(dropped.count(), 1);
        QVERIFY(m_desk->body().startsWith("<p>uno</p><p id=\"b\"><img src=\"file:///"));
        QVERIFY(m_desk->view.execCommand(HtmlView::Undo).toBool());
        QCOMPARE(m_desk->body(), QString("<p>uno</p><p id=\"b\">due</p>"));
    }

    void droppedFileThatIsNoImageIsRefused() {
        QFile file(m_folder.filePath("a.html"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<b>altro</b>");
        file.close();
        m_desk->view.setDocumentHTML("<p>uno</p>");
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file.fileName())});
        QVERIFY(!dropOn(m_desk->view, data, {20, 20}));
        settle(m_desk->view);
        QCOMPARE(m_desk->body(), QString("<p>uno</p>"));
        QCOMPARE(m_desk->view.evaluate("location.href").toString(), m_desk->address);
    }

    void droppedTextIsInserted() {
        m_desk->view.setDocumentHTML("<p>uno</p>");
        QMimeData data;
        data.setText(":::nom:::");
        QVERIFY(dropOn(m_desk->view, data, m_desk->placeOf("p").topLeft() + QPoint(0, 5)));
        QCOMPARE(m_desk->body(), QString("<p>:::nom:::uno</p>"));
    }
};

TEST_CLASS(ViewInsert);

}  // namespace view_insert_test

#include "view_insert_test.moc"
