// SPDX-License-Identifier: GPL-3.0-or-later
#include <QClipboard>
#include <QImage>
#include <QMimeData>
#include <QTemporaryDir>

#include "platform/html/ViewFixture.h"
#include "support/TestClass.h"

namespace view_images_test {

// A missing picture is handled inside the browser's process and is not visible outside.
class ViewImages : public QObject {
    Q_OBJECT

    static constexpr const char* missing =
        "<p>a<img src=\"foto/1.jpg\" alt=\"uno\">b<img src=\"/assente/2.jpg\">c</p>";

    static bool isAskedFor(const Desk& desk, int image) {
        return desk.view.evaluate(QStringLiteral("document.images[%1].src").arg(image))
            .toString()
            .startsWith("file:");
    }

  private Q_SLOTS:
    void aMissingOneIsNotAskedFor_data() {
        QTest::addColumn<bool>("design");
        QTest::newRow("design") << true;
        QTest::newRow("browse") << false;
    }
    void aMissingOneIsNotAskedFor() {
        QFETCH(bool, design);
        const Desk desk(missing, design ? HtmlView::Mode::Design : HtmlView::Mode::Browse);
        QVERIFY(!isAskedFor(desk, 0));
        QVERIFY(!isAskedFor(desk, 1));
        QCOMPARE(desk.body(), QString(missing));
    }

    void oneThatIsThereShows() {
        const QTemporaryDir folder;
        const QString path = folder.filePath("c'è.png");
        QVERIFY(QImage(3, 2, QImage::Format_RGB32).save(path));
        const Desk desk("<p><img src=\"" + path + "\"></p>");
        QTRY_COMPARE(desk.view.evaluate("document.images[0].naturalWidth").toInt(), 3);
        QVERIFY(isAskedFor(desk, 0));
    }

    void itsAddressIsThatOfTheDocument() {
        Desk desk(QString("<body background=\"assente.gif\">%1</body>").arg(missing));
        QCOMPARE(desk.view.bodyAttribute("background"), QString("assente.gif"));
        desk.view.evaluate("editor.selectObject(document.images[0])");
        QCOMPARE(desk.view.selectedImage()->source, QString("foto/1.jpg"));
        const auto elements = desk.view.elementsAtCaret();
        QCOMPARE(elements[0].tag, QString("img"));
        QCOMPARE(elements[0].attributes[0], qMakePair(QString("src"), QString("foto/1.jpg")));
    }

    void changingItsOtherAttributesLeavesTheAddress() {
        Desk desk(missing);
        desk.view.evaluate("editor.selectObject(document.images[0])");
        HtmlView::ImageInfo image = *desk.view.selectedImage();
        image.alternativeText = "due";
        QVERIFY(desk.view.insertImage(image));
        QVERIFY(!isAskedFor(desk, 0));
        QVERIFY2(desk.body().contains("<img src=\"foto/1.jpg\" alt=\"due\">"), qPrintable(desk.body()));
        image.source = "foto/3.jpg";
        QVERIFY(desk.view.insertImage(image));
        QVERIFY2(desk.body().contains("<img src=\"foto/3.jpg\" alt=\"due\">"), qPrintable(desk.body()));
        desk.view.execCommand(HtmlView::Undo);
        desk.view.execCommand(HtmlView::Undo);
        QCOMPARE(desk.body(), QString(missing));
    }

    void deletingAndUndoingRestoreIt() {
        Desk desk(missing);
        desk.selectAll();
        desk.press(Qt::Key_Delete);
        QVERIFY(!desk.body().contains("img"));
        desk.view.execCommand(HtmlView::Undo);
        QCOMPARE(desk.body(), QString(missing));
    }

    void aCopyContainsTheAddressesOfTheDocument() {
        Desk desk(missing);
        desk.selectAll();
        desk.view.execCommand(HtmlView::Copy);
        QTRY_VERIFY(QApplication::clipboard()->mimeData() &&
                    QApplication::clipboard()->mimeData()->hasHtml());
        const QString copied = QApplication::clipboard()->mimeData()->html();
        QVERIFY2(copied.contains("src=\"foto/1.jpg\""), qPrintable(copied));
        QVERIFY2(copied.contains("/assente/2.jpg\""), qPrintable(copied));
        QVERIFY2(!copied.contains("data:"), qPrintable(copied));
        QCOMPARE(desk.body(), QString(missing));
        QVERIFY(!desk.view.commandEnabled(HtmlView::Undo));
        // what the document contains already may come back
        desk.view.execCommand(HtmlView::Paste);
        QVERIFY2(desk.body().contains("src=\"foto/1.jpg\""), qPrintable(desk.body()));
        QVERIFY2(desk.body().contains("/assente/2.jpg\""), qPrintable(desk.body()));
    }

    void theTextOutlivesTheBrowsersProcess() {
        Desk desk(missing);
        desk.view.documentHTML();
        endBrowserOf(desk.view);
        desk.view.wake();
        QCOMPARE(desk.body(), QString(missing));
        QVERIFY(!isAskedFor(desk, 0));
    }
};

TEST_CLASS(ViewImages);

}  // namespace view_images_test

#include "view_images_test.moc"
