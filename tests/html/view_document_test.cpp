#include "html/ViewFixture.h"
#include "platform/html/HtmlDocument.h"

class ViewDocument : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void keepsItsTextUntilItIsShown() {
        HtmlView view(HtmlView::Mode::Design);
        view.setDocumentHTML("<P>ciao");
        QVERIFY(!view.isLive());
        QVERIFY(view.inputWidget() == nullptr);
        QCOMPARE(view.documentHTML(), QString("<html><head></head><body><p>ciao</p></body></html>"));
        QVERIFY(!view.isLive());
    }

    void showingBringsTheBrowserWithTheText() {
        HtmlView view(HtmlView::Mode::Design);
        view.setDocumentHTML("<P>ciao");
        QSignalSpy complete(&view, &HtmlView::documentComplete);
        view.show();
        QTRY_VERIFY(view.isLive());
        QCOMPARE(complete.count(), 1);
        QCOMPARE(view.documentHTML(), QString("<html><head></head><body><p>ciao</p></body></html>"));
    }

    void settingIsCompleteWhenItReturns() {
        Desk desk;
        QSignalSpy complete(&desk.view, &HtmlView::documentComplete);
        desk.view.setDocumentHTML("<b>due</b>");
        QCOMPARE(complete.count(), 1);
        QCOMPARE(desk.body(), QString("<b>due</b>"));
    }

    void typingChangesTheDocument() {
        Desk desk;
        desk.type("Salve ");
        QCOMPARE(desk.body(), QString("<p>Salve Gentile cliente</p>"));
    }
};

QTEST_MAIN(ViewDocument)
#include "view_document_test.moc"
