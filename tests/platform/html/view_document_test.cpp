// SPDX-License-Identifier: GPL-3.0-or-later
#include <QFile>

#include "platform/html/HtmlDocument.h"
#include "platform/html/ViewFixture.h"
#include "support/TestClass.h"

namespace view_document_test {

class ViewDocument : public QObject {
    Q_OBJECT

    static bool browserCodeIsLoaded() {
        QFile maps(QStringLiteral("/proc/self/maps"));
        if (!maps.open(QIODevice::ReadOnly)) qFatal("no list of loaded code");
        return maps.readAll().contains("WebEngine");
    }

  private Q_SLOTS:
    void noCodeOfTheBrowserIsLoadedBeforeAViewIsShown() {
        SureView view(HtmlView::Mode::Design);
        view.setDocumentHTML("<p>ciao");
        QVERIFY(!view.documentHTML().isEmpty());
        QVERIFY(!browserCodeIsLoaded());
        view.show();
        QVERIFY(browserCodeIsLoaded());
    }

    void keepsItsTextUntilItIsShown() {
        SureView view(HtmlView::Mode::Design);
        view.setDocumentHTML("<P>ciao");
        QVERIFY(!view.isLive());
        QVERIFY(view.inputWidget() == nullptr);
        QCOMPARE(view.documentHTML(), QString("<html><head></head><body><p>ciao</p></body></html>"));
        QVERIFY(!view.isLive());
    }

    void showingLoadsTheBrowserWithTheText() {
        SureView view(HtmlView::Mode::Design);
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

    void eachTextFollowsFromTheLastWhereverItChanged() {
        const Desk desk("<p>😀 uno</p><p>due</p><p>tre</p>");
        QCOMPARE(desk.body(), QString("<p>&#128512; uno</p><p>due</p><p>tre</p>"));
        const auto first = [&](const char* text) {
            desk.view.evaluate(QString("document.querySelector('p').firstChild.data = '%1'").arg(text));
        };
        first("😁 uno");  // of two units, the first one stays
        QCOMPARE(desk.body(), QString("<p>&#128513; uno</p><p>due</p><p>tre</p>"));
        first("😁");
        desk.view.evaluate("document.querySelector('p:last-child').append('tre')");
        QCOMPARE(desk.body(), QString("<p>&#128513;</p><p>due</p><p>tretre</p>"));
        desk.view.evaluate("document.querySelector('p:last-child').firstChild.data = 'tretre'");
        QCOMPARE(desk.body(), QString("<p>&#128513;</p><p>due</p><p>tretretre</p>"));
        desk.view.evaluate("document.body.textContent = ''");
        QCOMPARE(desk.body(), QString());
    }

    void documentSetWhileTheBrowserComesIsTheOneThatShows() {
        SureView view(HtmlView::Mode::Design);
        view.setDocumentHTML("<p>uno</p>");
        view.show();
        view.setDocumentHTML("<p>due</p>");
        QTRY_VERIFY(view.isLive());
        view.setDocumentHTML("<p>tre</p>");
        QCOMPARE(view.documentHTML(), QString("<html><head></head><body><p>tre</p></body></html>"));
    }

    void charactersOutsideWindows1252AreReferencesAfterTypingToo() {
        Desk desk("<p>x</p>");
        desk.press(0, Qt::NoModifier, QStringLiteral("Ω"));
        desk.press(0, Qt::NoModifier, QStringLiteral("è"));
        QCOMPARE(desk.body(), QStringLiteral("<p>&#937;èx</p>"));
    }

    void doctypeOfTheDocumentRulesItsLayout() {
        Desk desk("<!DOCTYPE html><p>x</p>");
        QCOMPARE(desk.view.evaluate("document.compatMode").toString(), QString("CSS1Compat"));
        desk.view.setDocumentHTML("<p>x</p>");
        QCOMPARE(desk.view.evaluate("document.compatMode").toString(), QString("BackCompat"));
    }

    void twoViewsKeepTheirDocumentsApart() {
        Desk one("<p>uno</p>");
        Desk two("<p>due</p>", HtmlView::Mode::Browse);
        one.view.insertHTML("x");
        QCOMPARE(one.body(), QString("<p>xuno</p>"));
        QCOMPARE(two.body(), QString("<p>due</p>"));
    }

    void typingChangesTheDocument() {
        Desk desk;
        desk.type("Salve ");
        QCOMPARE(desk.body(), QString("<p>Salve Gentile cliente</p>"));
    }
};

TEST_CLASS(ViewDocument);

}  // namespace view_document_test

#include "view_document_test.moc"
