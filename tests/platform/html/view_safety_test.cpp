// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QStandardPaths>
#include <QTcpSocket>
#include <QTemporaryDir>

#include "platform/html/RemoteMessage.h"
#include "platform/html/ViewFixture.h"
#include "support/NamesAsked.h"
#include "support/PrivateNetwork.h"
#include "support/TestClass.h"

namespace view_safety_test {

using namespace testing_support;

namespace {

const bool isolated = enterPrivateNetwork(__FILE__) && replaceResolverConfiguration("nameserver 127.0.0.1\n");

// Every way in which a page causes name look-ups without a request
const char* const namesPage =
    "<html><head><meta http-equiv='x-dns-prefetch-control' content='on'>"
    "<meta http-equiv='X-DNS-Prefetch&#45;Control' content=' ON '>"
    "<link rel=dns-prefetch href='//b.example'><link rel=preconnect href='http://c.example'>"
    "<link rel=preload as=image href='http://d.example/x'></head><body><p>testo</p>"
    "<a id=link href='http://a.example/x'>vai</a><img src='http://e.example/x.png'>"
    "<area href='http://f.example/'><svg><a href='http://g.example/'><text>x</text></a></svg>"
    "<iframe srcdoc=\"<meta http-equiv=x-dns-prefetch-control content=on><a href='http://h.example/'>x</a>"
    "\"></iframe><form action='http://i.example/'><input type=submit></form></body></html>";

/// What a page delays by some milliseconds happens before the last of so many frames.
void rest(const HtmlView& view) {
    for (int i = 0; i < 12; ++i)
        settle(view);
}

}  // namespace

// A message is only shown, and a browser that crashes takes nothing along.
class ViewSafety : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void nothingIsFetchedWhileEditingAndPreviewing_data() {
        QTest::addColumn<bool>("design");
        QTest::newRow("design") << true;
        QTest::newRow("browse") << false;
    }
    void nothingIsFetchedWhileEditingAndPreviewing() {
        QFETCH(bool, design);
        CountingServer server;
        Desk desk(remoteMessage(server.address({})),
                  design ? HtmlView::Mode::Design : HtmlView::Mode::Browse);
        QTest::mouseClick(desk.view.inputWidget(), Qt::LeftButton, Qt::NoModifier,
                          desk.placeOf("#link").center());
        desk.press(Qt::Key_Return, Qt::NoModifier, "\r");
        settle(desk.view);
        QCOMPARE(server.visitsSoFar(), 0);
    }

    void noNameIsLookedUpAndNothingIsSent_data() { nothingIsFetchedWhileEditingAndPreviewing_data(); }
    void noNameIsLookedUpAndNothingIsSent() {
        QFETCH(bool, design);
        if (!isolated) QSKIP("this system allows no network of the test's own");
        NamesAsked names;
        names.soFar();
        const auto before = networkAttempts();
        QVERIFY2(before.count("Udp:OutDatagrams") > 0, "the kernel does not count");
        Desk desk(namesPage, design ? HtmlView::Mode::Design : HtmlView::Mode::Browse);
        rest(desk.view);
        QTest::mouseClick(desk.view.inputWidget(), Qt::LeftButton, Qt::NoModifier,
                          desk.placeOf("#link").center());
        settle(desk.view);
        desk.view.setDocumentHTML(QString(namesPage).replace(".example", ".example.org"));
        rest(desk.view);
        const auto after = networkAttempts();
        QCOMPARE(names.soFar(), QByteArrayList());
        QVERIFY(after == before);
        QVERIFY(networkAttempts() != before);  // the test's own query counts
        // the page's own elements are not part of the document
        const QString html = desk.view.documentHTML();
        QVERIFY(html.contains("<meta http-equiv=\"x-dns-prefetch-control\" content=\"on\">"));
        QCOMPARE(html.count("<meta"), 3);
    }

    void dataIsTakenForImagesAlone() {
        const QString font =
            QStandardPaths::locate(QStandardPaths::FontsLocation, "truetype/dejavu/DejaVuSans.ttf");
        QFile file(font);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString face = "data:font/ttf;base64," + QString::fromLatin1(file.readAll().toBase64());
        Desk desk("<style>@font-face { font-family: F; src: url(" + face +
                      ") } @import url(data:text/css,p{color:rgb(4,5,6)}); b { font-family: F }</style>"
                      "<style>@import url(data:text/css,p{background-color:rgb(4,5,6)});</style>"
                      "<link rel=stylesheet href=\"data:text/css,p{color:rgb(1,2,3)}\">"
                      "<p style=\"font-weight: bold\">x <b>y</b></p><img src=\"data:image/gif;base64,"
                      "R0lGODlhAQABAIAAAAAAAP///yH5BAEAAAAALAAAAAABAAEAAAIBRAA7\">"
                      "<object data=\"data:text/html,x\"></object><iframe src=\"data:text/html,x\"></iframe>",
                  HtmlView::Mode::Browse);
        QTRY_COMPARE(desk.view.evaluate("document.images[0].naturalWidth").toInt(), 1);
        settle(desk.view);
        const QString style = "getComputedStyle(document.querySelector('p'))";
        QCOMPARE(desk.view.evaluate(style + ".color").toString(), QString("rgb(0, 0, 0)"));
        QCOMPARE(desk.view.evaluate(style + ".backgroundColor").toString(), QString("rgba(0, 0, 0, 0)"));
        QCOMPARE(desk.view.evaluate(style + ".fontWeight").toString(), QString("700"));
        QTRY_COMPARE(desk.view.evaluate("Array.from(document.fonts, (face) => face.status)[0]").toString(),
                     QString("error"));
        QCOMPARE(desk.view
                     .evaluate("Array.from(document.querySelectorAll('iframe,object'), (each) =>"
                               " each.contentDocument ? each.contentDocument.body.innerHTML : '').join()")
                     .toString(),
                 QString(","));
    }

    // Checks the test itself: without the filter there are connections
    void countingServerCounts() {
        CountingServer server;
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, server.serverPort());
        QVERIFY(socket.waitForConnected());
        QCOMPARE(server.visitsSoFar(), 1);
        QCOMPARE(server.visitsSoFar(), 1);
    }

    void noScriptOfAMessageRuns_data() {
        QTest::addColumn<bool>("design");
        QTest::newRow("design") << true;
        QTest::newRow("browse") << false;
    }
    void noScriptOfAMessageRuns() {
        QFETCH(bool, design);
        const QString act = QStringLiteral("document.body.setAttribute('fatto', 1)");
        Desk desk(
            QStringLiteral("<body onload=\"%1\" onfocus=\"%1\"><script>%1</script><p onclick=\"%1\" "
                           "onmouseover=\"%1\" onkeydown=\"%1\">testo</p><img src=x onerror=\"%1\"><svg "
                           "onload=\"%1\"><script>%1</script></svg><iframe "
                           "srcdoc=\"<script>parent.%1</script>\"></iframe>"
                           "<details open ontoggle=\"%1\"></details><a id=a href=\"javascript:%1\">vai</a>"
                           "<input autofocus onfocus=\"%1\"><marquee onstart=\"%1\">x</marquee></body>")
                .arg(act),
            design ? HtmlView::Mode::Design : HtmlView::Mode::Browse);
        const QString before = desk.view.documentHTML();
        for (const char* place : {"p", "#a"}) {
            QTest::mouseClick(desk.view.inputWidget(), Qt::LeftButton, Qt::NoModifier,
                              desk.placeOf(place).center());
        }
        desk.press(Qt::Key_Left);
        desk.view.evaluate("document.querySelector('#a').click()");
        settle(desk.view);
        QVERIFY(!desk.view.documentHTML().contains("fatto=\"1\""));
        QCOMPARE(desk.view.documentHTML(), before);
    }

    void messageCannotLeadTheViewAway_data() {
        QTest::addColumn<QString>("html");
        QTest::newRow("refresh") << "<meta http-equiv=refresh content='0;url=%1'><p>testo</p>";
        QTest::newRow("refresh to data")
            << "<meta http-equiv=refresh content='0;url=data:text/html,altro'><p>testo</p>";
        QTest::newRow("link") << "<p>testo</p><a id=x href='%1'>vai</a>";
        QTest::newRow("link to a local file") << "<p>testo</p><a id=x href='file:///etc/passwd'>vai</a>";
        QTest::newRow("link to a new window") << "<p>testo</p><a id=x href='%1' target=_blank>vai</a>";
        QTest::newRow("link to download") << "<p>testo</p><a id=x href='data:text/plain,x' download>vai</a>";
        QTest::newRow("link to mail") << "<p>testo</p><a id=x href='mailto:a@b.it'>vai</a>";
        QTest::newRow("form")
            << "<p>testo</p><form action='%1'><input name=a><input type=submit id=x></form>";
        QTest::newRow("form with post")
            << "<p>testo</p><form method=post action='%1'><input type=submit id=x></form>";
        QTest::newRow("frame") << "<p>testo</p><iframe src='data:text/html,<b id=x>altro</b>'></iframe>";
    }
    void messageCannotLeadTheViewAway() {
        QFETCH(QString, html);
        CountingServer server;
        Desk desk(html.contains("%1") ? html.arg(server.address("via")) : html, HtmlView::Mode::Browse);
        if (html.contains("id=x")) {
            desk.view.evaluate("{ const x = document.querySelector('#x'); if (x) x.click(); 1 }");
            QTest::mouseClick(desk.view.inputWidget(), Qt::LeftButton, Qt::NoModifier,
                              desk.placeOf("#x").center());
        }
        settle(desk.view);
        QCOMPARE(server.visitsSoFar(), 0);
        QCOMPARE(desk.view.evaluate("location.href").toString(), desk.address);
        QVERIFY(desk.body().contains("<p>testo</p>"));
        QCOMPARE(
            desk.view
                .evaluate(
                    "frames.length ? String(frames[0].document && frames[0].document.body.innerHTML) : ''")
                .toString()
                .contains("altro"),
            false);
    }

    void localImagesShow() {
        QTemporaryDir folder;
        QImage image(20, 10, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(folder.filePath("a.png")));
        Desk desk(
            QStringLiteral("<img src='file://%1/a.png'><p style=\"background: url(file://%1/a.png)\">x</p>")
                .arg(folder.path()),
            HtmlView::Mode::Browse);
        QTRY_COMPARE(desk.view.evaluate("document.images[0].naturalWidth").toInt(), 20);
    }

    void otherLocalFilesAreNotRead() {
        QTemporaryDir folder;
        QFile file(folder.filePath("a.css"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("p { color: rgb(1, 2, 3) }");
        file.close();
        Desk desk(
            QStringLiteral("<link rel=stylesheet href='file://%1/a.css'><p>x</p><img src='file:///dev/zero'>"
                           "<iframe src='file:///etc/passwd'></iframe>")
                .arg(folder.path()),
            HtmlView::Mode::Browse);
        settle(desk.view);
        QCOMPARE(desk.view.evaluate("getComputedStyle(document.querySelector('p')).color").toString(),
                 QString("rgb(0, 0, 0)"));
    }

    void textOutlivesTheBrowsersProcess() {
        Desk desk("<p>uno</p>");
        desk.type("due ");
        QTRY_VERIFY(desk.view.knownHTML().contains("due uno"));
        QSignalSpy complete(&desk.view, &HtmlView::documentComplete);
        endBrowserOf(desk.view);
        QCOMPARE(desk.body(), QString("<p>due uno</p>"));
        QTRY_COMPARE(complete.count(), 1);
        QCOMPARE(desk.body(), QString("<p>due uno</p>"));
        QVERIFY(desk.view.insertHTML("tre "));
        QCOMPARE(desk.body(), QString("<p>tre due uno</p>"));
        QVERIFY(desk.view.commandEnabled(HtmlView::Undo));
    }

    void aCopyOfTheDocumentBeforeThatComesLateIsNotTakenForThisOne() {
        Desk desk("<p>uno</p>");
        for (int i = 0; i < 4; ++i) {
            QTRY_VERIFY(desk.view.isLive());
            QVERIFY(desk.view.insertHTML("due "));
            desk.view.setDocumentHTML("<p>tre</p>");
            endBrowserOf(desk.view);
            QCOMPARE(desk.body(), QString("<p>tre</p>"));
        }
    }

    void everyNewProcessCanEdit() {
        Desk desk("<p>uno</p>");
        for (int i = 0; i < 8; ++i) {
            desk.view.setDocumentHTML("<p>uno</p>");  // again: one that often ends the browser is given up
            endBrowserOf(desk.view);
            QTRY_VERIFY(desk.view.isLive());
            QVERIFY(desk.view.insertHTML("due "));
            QCOMPARE(desk.body(), QString("<p>due uno</p>"));
        }
    }

    void commandDuringTheCrashReturns() {
        Desk desk("<p>uno</p>");
        desk.killRenderer();
        QVERIFY(!desk.view.HtmlView::execCommand(HtmlView::Bold).ok());
        QCOMPARE(desk.body(), QString("<p>uno</p>"));
        QTRY_VERIFY(desk.view.isLive());
    }

    void documentThatKillsTheBrowserAgainAndAgainIsGivenUpWithItsText() {
        Desk desk("<p>uno</p>");
        for (int i = 0; i < 3; ++i) {
            QTRY_VERIFY(desk.view.isLive());
            endBrowserOf(desk.view);
        }
        QTRY_VERIFY(desk.view.findChild<QLabel*>());  // the notice in the document's place
        QVERIFY(!desk.view.isLive());
        QCOMPARE(desk.body(), QString("<p>uno</p>"));
        QCOMPARE(desk.view.HtmlView::execCommand(HtmlView::Bold).status().code(), ErrorCode::FileNotFound);
        desk.view.setDocumentHTML("<p>due</p>");
        QTRY_VERIFY(desk.view.isLive());
        QCOMPARE(desk.body(), QString("<p>due</p>"));
    }
};

TEST_CLASS(ViewSafety);

}  // namespace view_safety_test

#include "view_safety_test.moc"
