// SPDX-License-Identifier: GPL-3.0-or-later
// Input from outside does no harm to the editor: the clipboard, a drop, a hostile message, the end of
// the browser's process.
#include <QClipboard>
#include <QImage>
#include <QLabel>

#include "modules/message/MessaggiNoti.h"
#include "modules/message/MessaggioMss.h"
#include "platform/html/RemoteMessage.h"
#include "platform/html/ViewFixture.h"
#include "support/TestClass.h"
#include "windows/message/editor_stage.h"

namespace frmeditor_sicuro_test {

using namespace testing_support;

namespace {

// What three office programs put on the clipboard.

const char* const wordProcessor =
    "<html xmlns:o=\"urn:schemas-microsoft-com:office:office\"><head><meta name=Generator content=\"W 15\">"
    "<link rel=File-List href=\"file:///C:/x/elenco.xml\"><style><!-- p.MsoNormal {margin:0cm} "
    "@page WordSection1 {size:21cm} --></style><!--[if gte mso 9]><xml><o:OfficeDocumentSettings/></xml>"
    "<![endif]--></head><body lang=IT><!--StartFragment--><p class=MsoNormal style='text-align:center;"
    "mso-outline-level:1'><b>Gentile <span style='mso-fareast-language:EN'>:::nom:::</span></b>"
    "<o:p></o:p></p><!--EndFragment--></body></html>";

const char* const spreadsheet =
    "<html xmlns:x=\"urn:schemas-microsoft-com:office:excel\"><head><meta name=ProgId content=Sheet>"
    "<style><!-- .xl65 {mso-number-format:Standard;} --></style></head><body link=blue><table border=0 "
    "style='border-collapse:collapse;width:96pt'><!--StartFragment--><col width=64 style='mso-width-source:"
    "userset;width:48pt'><tr height=20><td class=xl65 width=64>Articolo</td><td align=right x:num>12,50</td>"
    "</tr><!--EndFragment--></table></body></html>";

const char* const freeOffice =
    "<!DOCTYPE HTML><html><head><meta http-equiv=\"content-type\" content=\"text/html; charset=utf-8\"/>"
    "<title></title><meta name=\"generator\" content=\"Ufficio libero\"/><style type=\"text/css\">p { "
    "line-height: 115% }</style></head><body lang=\"it-IT\"><p style=\"line-height: 100%\">Offerta "
    "<font color=\"#ff0000\"><b>:::campo1:::</b></font></p></body></html>";

const char* const script = "document.body.setAttribute('fatto', 1)";

constexpr int browserStart = 30000;  // milliseconds; only a busy machine needs as much

}  // namespace

class TestSicuro : public QObject {
    Q_OBJECT

    std::unique_ptr<EditorStage> m_stage;
    EditorStage& stage() { return *m_stage; }
    QString visibleText() { return stage().design().evaluate("document.body.textContent").toString(); }
    QString saved() { return QString::fromLatin1(bodyOf(stage().bytes("s.mss"))); }
    QByteArray saved(const QString& name) { return bodyOf(stage().bytes(name)); }
    std::optional<messaggiNoti::Noto> knownOf(const QString& name) {
        return messaggiNoti::Cerca(stage().path(name), messaggiNoti::Impronta(stage().bytes(name)));
    }
    QString imageFile() {
        QImage image(20, 10, QImage::Format_RGB32);
        image.fill(Qt::red);
        if (!image.save(stage().path("foto.png"))) qFatal("cannot write the image");
        return stage().path("foto.png");
    }
    static QString addressOf(const HtmlView& view) { return view.evaluate("location.href").toString(); }

  private Q_SLOTS:
    void initTestCase() { m_stage = std::make_unique<EditorStage>(); }
    void cleanupTestCase() { m_stage.reset(); }
    void init() { stage().begin(); }

    void textOfAnOfficeProgramLandsAsContentMarksAndCanBeUndone_data() {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QString>("body");
        QTest::newRow("word processor")
            << wordProcessor << "<p style=\"text-align:center\"><b>Gentile :::nom:::</b></p>";
        QTest::newRow("spreadsheet")
            << spreadsheet
            << "<table border=\"0\" style=\"border-collapse:collapse; width:96pt\"><colgroup><col "
               "width=\"64\" "
               "style=\"width:48pt\"></colgroup><tbody><tr height=\"20\"><td width=\"64\">Articolo</td>"
               "<td align=\"right\">12,50</td></tr></tbody></table>";
        QTest::newRow("free office") << freeOffice
                                     << "<p style=\"line-height: 100%\">Offerta <font color=\"#ff0000\">"
                                        "<b>:::campo1:::</b></font></p>";
    }
    void textOfAnOfficeProgramLandsAsContentMarksAndCanBeUndone() {
        QFETCH(QString, html);
        QFETCH(QString, body);
        auto* data = new QMimeData;
        data->setHtml(html);
        data->setText("altro");
        QApplication::clipboard()->setMimeData(data);
        stage().fill("<p><br></p>");
        stage().caret("p", 0);
        stage().start("cmdIncolla");
        QCOMPARE(stage().body(), body);
        QVERIFY(stage().marked());
        stage().saveAs("s.mss");
        stage().open("s.mss");
        QCOMPARE(stage().body(), body);
        stage().fill("<p><br></p>");
        stage().caret("p", 0);
        QTest::keyClick(stage().design().inputWidget(), Qt::Key_V, Qt::ControlModifier);
        QTRY_COMPARE(stage().body(), body);
        stage().start("cmdUndo");
        QCOMPARE(stage().body(), "<p><br></p>");
        stage().start("cmdRedo");
        QCOMPARE(stage().body(), body);
    }

    void savedMessageIsKnownWithAllThatItNames() {
        stage().fill("<p>uno<img src=\"file://" + imageFile() + "\"></p>");
        stage().editor().Allegati().InsFile(imageFile());
        stage().saveAs("s.mss");
        const auto known = knownOf("s.mss");
        QVERIFY(known.has_value());
        QCOMPARE(known->daConfermare, QStringList());
        stage().write("s.mss", stage().bytes("s.mss").replace("uno", "due"));
        QVERIFY(!knownOf("s.mss").has_value());
    }

    void filesOfAReceivedMessageStayUnknownThroughSavesUntilConfirmed() {
        const QString image = imageFile(), theirs = stage().path("loro.pdf"), mine = stage().path("mio.pdf");
        stage().write("loro.pdf", "x");
        stage().write("mio.pdf", "x");
        ScriviMessaggio(stage().path("ricevuto.mss"),
                        {"Offerta", "NR", {theirs}, "<p>uno<img src=\"" + image + "\"></p>"});
        stage().open("ricevuto.mss");
        ui::FileDialog::queue(mine);
        stage().start("cmdAllegatiNew");
        stage().start("cmdSalva");
        const QStringList unknown{theirs, image};
        QVERIFY(knownOf("ricevuto.mss").has_value());
        QCOMPARE(knownOf("ricevuto.mss")->daConfermare, unknown);
        stage().open("ricevuto.mss");
        stage().saveAs("altro.mss");
        QCOMPARE(knownOf("altro.mss")->daConfermare, unknown);
        // Confirmed, as the send window does, and saved once more.
        messaggiNoti::Annota(stage().path("altro.mss"), messaggiNoti::Impronta(stage().bytes("altro.mss")),
                             {});
        stage().open("altro.mss");
        stage().start("cmdSalva");
        QCOMPARE(knownOf("altro.mss")->daConfermare, QStringList());
        // The next document is the user's own again.
        stage().start("cmdNewMess");
        stage().editor().Allegati().InsFile(theirs);
        stage().saveAs("mio.mss");
        QCOMPARE(knownOf("mio.mss")->daConfermare, QStringList());
    }

    void pictureThatTheUserDropsIntoAReceivedMessageIsHisOwn() {
        ScriviMessaggio(stage().path("ricevuto.mss"), {"Offerta", "NR", {}, "<p>uno</p>"});
        stage().open("ricevuto.mss");
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(imageFile())});
        QVERIFY(dropOn(stage().design(), data, placeOf(stage().design(), "p").topLeft() + QPoint(1, 5)));
        stage().start("cmdSalva");
        QVERIFY(saved("ricevuto.mss").contains("foto.png"));
        QCOMPARE(knownOf("ricevuto.mss")->daConfermare, QStringList());
    }

    void pastedTextLosesItsLocalFilesAndANoticeNamesThem() {
        auto* data = new QMimeData;
        data->setHtml("<p>uno<img style=\"display:none\" src=\"file:///etc/x.png\"></p>");
        QApplication::clipboard()->setMimeData(data);
        stage().fill("<p><br></p>");
        stage().caret("p", 0);
        ui::MessageDialog::reset();
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        QTest::keyClick(stage().design().inputWidget(), Qt::Key_V, Qt::ControlModifier);
        QTRY_COMPARE(ui::MessageDialog::shown().size(), 1);
        QVERIFY(ui::MessageDialog::shown()[0].text.contains("file:///etc/x.png"));
        QCOMPARE(stage().body(), "<p>uno</p>");
    }

    void aDroppedPictureLandsAsContentMarksAndCanBeUndone() {
        stage().fill("<p>uno</p><p id=\"b\">due</p>");
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(imageFile())});
        QVERIFY(dropOn(stage().design(), data, placeOf(stage().design(), "#b").topLeft() + QPoint(1, 5)));
        const QString address = QUrl::fromLocalFile(stage().path("foto.png")).toString();
        const QString body = stage().body();
        QVERIFY2(body.startsWith("<p>uno</p><p id=\"b\"><img src=\"" + address + '"'), qPrintable(body));
        QVERIFY(stage().marked());
        QTRY_COMPARE(stage().design().evaluate("document.images[0].naturalWidth").toInt(), 20);
        stage().chooseTab(2);
        QTRY_COMPARE(stage().editor().WEB->evaluate("document.images[0].naturalWidth").toInt(), 20);
        stage().chooseTab(0);
        stage().saveAs("s.mss");
        QVERIFY(saved().contains("<img src=\"" + address + '"'));
    }

    void aDropIsUndoneInOneStep() {
        stage().fill("<p>uno</p>");
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(imageFile())});
        QVERIFY(dropOn(stage().design(), data, placeOf(stage().design(), "p").topLeft() + QPoint(1, 5)));
        QTRY_VERIFY(stage().tool("cmdUndo").isEnabled());
        stage().start("cmdUndo");
        QCOMPARE(stage().body(), "<p>uno</p>");
    }

    void aDroppedFileThatIsNoPictureIsRefusedWithoutAMark() {
        stage().write("pagina.html", "<b>altro</b>");
        stage().fill("<p>uno</p>");
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(stage().path("pagina.html"))});
        QVERIFY(!dropOn(stage().design(), data, {20, 20}));
        QCOMPARE(stage().body(), "<p>uno</p>");
        QVERIFY(!stage().marked());
    }

    void whatAPastedTextLeavesOnTheWebIsReportedAndTooDeepATextIsRefused() {
        stage().fill("<p>uno</p>");
        stage().caret("p", 0);
        auto* data = new QMimeData;
        data->setHtml(
            "<p><img src=\"http://foto.example/1.png\"><img src=\"http://foto.example/2.png\">due</p>");
        QApplication::clipboard()->setMimeData(data);
        stage().start("cmdIncolla");
        QTRY_COMPARE(stage().hint(), "Nel testo incollato 2 elementi restano sul web: foto.example");
        const QString body = stage().body();
        QVERIFY(body.contains("http://foto.example/2.png"));
        data = new QMimeData;
        data->setHtml(QString("<div>").repeated(30000));
        QApplication::clipboard()->setMimeData(data);
        stage().start("cmdIncolla");
        QVERIFY2(stage().hint().contains("uno dentro l'altro"), qPrintable(stage().hint()));
        QCOMPARE(stage().body(), body);
    }

    void aHostileMessageNeitherRunsNorFetchesNorLeads() {
        CountingServer server;
        const QString act = QString::fromLatin1(script);
        QString html = remoteMessage(server.address({}));
        html.replace("<p>testo</p>",
                     "<meta http-equiv=refresh content=\"0;url=" + server.address("via") + "\"><script>" +
                         act + "</script><p onclick=\"" + act + "\" onmouseover=\"" + act +
                         "\">testo</p><img src=y onerror=\"" + act + "\"><a id=s href=\"javascript:" + act +
                         "\">vai</a><form action=\"" + server.address("modulo") +
                         "\"><input autofocus onfocus=\"" + act +
                         "\"><input id=invia type=submit></form><iframe srcdoc=\"<script>parent." + act +
                         "</script>\"></iframe>");
        ScriviMessaggio(stage().path("s.mss"), {"Vincita", "NR", {}, html});
        frmEditor& editor = stage().editor();
        const QString design = addressOf(*editor.DHTML);
        stage().open("s.mss");
        const QString first = editor.DHTML->documentHTML().value();
        QVERIFY(first.contains(server.address("via")));
        for (const int tab : {0, 2, 1, 0, 2}) {
            stage().chooseTab(tab);
            if (tab == 1) continue;
            const HtmlView& view = tab == 0 ? *editor.DHTML : *editor.WEB;
            for (const char* target : {"p", "#s", "#link", "#invia"}) {
                view.evaluate(QString("document.querySelector('%1').scrollIntoView(); 1").arg(target));
                QTest::mouseClick(view.inputWidget(), Qt::LeftButton, {}, placeOf(view, target).center());
                view.evaluate(QString("document.querySelector('%1').click(); 1").arg(target));
            }
            settle(view);
            QCOMPARE(view.documentHTML().value(), first);
            QVERIFY(!view.evaluate("document.body.hasAttribute('fatto')").toBool());
        }
        QCOMPARE(server.visitsSoFar(), 0);
        QCOMPARE(addressOf(*editor.DHTML), design);
        stage().start("cmdSalva");
        QCOMPARE(saved().remove('\r').trimmed(), first);
    }

    void theTextOutlivesTheBrowsersProcessAndIsSaved() {
        stage().fill("<p>Gentile cliente</p>");
        stage().caret("p", 0);
        stage().type("Spett. ");
        QTRY_VERIFY(stage().design().knownHTML().contains("Spett. "));
        endBrowserOf(stage().design());
        QVERIFY(stage().marked());
        stage().saveAs("s.mss");
        QVERIFY2(saved().contains("Spett."), qPrintable(saved()));
        QVERIFY2(saved().contains("Gentile cliente"), qPrintable(saved()));
        QTRY_VERIFY_WITH_TIMEOUT(stage().design().isLive(), browserStart);
        QVERIFY2(visibleText().contains("Spett."), qPrintable(visibleText()));
        stage().start("cmdVarNom");
        stage().start("cmdSalva");
        QVERIFY2(saved().contains(":::nom:::"), qPrintable(saved()));
        QVERIFY2(saved().contains("Spett."), qPrintable(saved()));
        stage().start("cmdUndo");
        QVERIFY(!stage().body().contains(":::nom:::"));
    }

    void aBrowserThatCrashesUnderAnotherTabLosesNothing() {
        stage().fill("<p>uno</p>");
        stage().chooseTab(1);
        endBrowserOf(stage().design());
        stage().saveAs("s.mss");
        QVERIFY2(saved().contains("<p>uno</p>"), qPrintable(saved()));
        stage().source().setText("<p>due</p>");
        stage().chooseTab(2);
        QTRY_VERIFY_WITH_TIMEOUT(stage().editor().WEB->isLive(), browserStart);
        endBrowserOf(*stage().editor().WEB);
        stage().start("cmdSalva");
        QVERIFY2(saved().contains("<p>due</p>"), qPrintable(saved()));
        QTRY_VERIFY_WITH_TIMEOUT(stage().editor().WEB->isLive(), browserStart);
        QCOMPARE(stage().editor().WEB->evaluate("document.body.textContent").toString(), "due");
        stage().chooseTab(0);
        QCOMPARE(stage().body(), "<p>due</p>");
    }

    void aMessageThatEndsTheBrowserAgainAndAgainCanStillBeSaved() {
        stage().fill("<p>uno</p>");
        for (int i = 0; i < 3; ++i) {
            QTRY_VERIFY_WITH_TIMEOUT(stage().design().isLive(), browserStart);
            endBrowserOf(stage().design());
        }
        QTRY_VERIFY(stage().design().findChild<QLabel*>());  // the notice in the document's place
        QVERIFY(!stage().design().isLive());
        stage().chooseTab(1);
        QVERIFY(stage().source().Text().contains("<p>uno</p>"));
        stage().chooseTab(0);
        stage().saveAs("s.mss");
        QVERIFY2(saved().contains("<p>uno</p>"), qPrintable(saved()));
        stage().start("cmdNewMess");
        QTRY_VERIFY_WITH_TIMEOUT(stage().design().isLive(), browserStart);
        stage().type("due");
        stage().start("cmdSalva");
        QVERIFY2(saved().contains("due"), qPrintable(saved()));
    }
};

TEST_CLASS(TestSicuro);

}  // namespace frmeditor_sicuro_test

#include "frmeditor_sicuro_test.moc"
