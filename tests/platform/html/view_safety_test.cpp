#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QTcpSocket>
#include <QTemporaryDir>

#include "platform/html/RemoteMessage.h"
#include "platform/html/ViewFixture.h"

// A message does nothing but show, and a browser that dies takes nothing along.
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

    // The test's own ground: without the filter somebody would have come
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
            desk.view.setDocumentHTML("<p>uno</p>");  // one that ends the browser often is given up
            endBrowserOf(desk.view);
            QTRY_VERIFY(desk.view.isLive());
            QVERIFY(desk.view.insertHTML("due "));
            QCOMPARE(desk.body(), QString("<p>due uno</p>"));
        }
    }

    void commandDuringTheDeathComesBack() {
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

QTEST_MAIN(ViewSafety)
#include "view_safety_test.moc"
