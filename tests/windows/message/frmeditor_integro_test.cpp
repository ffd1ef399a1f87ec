// SPDX-License-Identifier: GPL-3.0-or-later
// The editor never damages a message: opened, looked at in every tab and saved any number of times, its body
// stays unchanged. And the send window offers what was written.
#include <QDir>

#include "modules/message/MessaggioMss.h"
#include "platform/html/HtmlDocument.h"
#include "platform/html/LargeNewsletter.h"
#include "platform/text/AnsiCodec.h"
#include "support/TestClass.h"
#include "windows/message/editor_stage.h"

namespace frmeditor_integro_test {

using namespace testing_support;

namespace {

QString contentOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) qFatal("cannot read %s", qUtf8Printable(path));
    return QString::fromUtf8(file.readAll());
}

}  // namespace

class TestIntegro : public QObject {
    Q_OBJECT

    std::unique_ptr<EditorStage> m_stage;
    EditorStage& stage() { return *m_stage; }

    void throughTheTabs() {
        for (const int tab : {1, 2, 0, 2, 1, 0})
            stage().chooseTab(tab);
    }
    void reopen(const QString& name) {
        stage().editor().NuovoMessaggio();
        stage().open(name);
    }

  private Q_SLOTS:
    void initTestCase() { m_stage = std::make_unique<EditorStage>(); }
    void cleanupTestCase() { m_stage.reset(); }
    void init() { stage().begin(); }

    void aNewsletterStaysAsItWasOpened_data() {
        QTest::addColumn<QString>("html");
        const QDir corpus(TEST_DATA_DIR "/html");
        const QStringList names = corpus.entryList({"*.html"}, QDir::Files);
        QVERIFY(names.size() >= 30);
        for (const QString& name : names)
            QTest::newRow(qPrintable(name)) << contentOf(corpus.filePath(name));
        QTest::newRow("whole catalogue") << largeNewsletter();
    }
    void aNewsletterStaysAsItWasOpened() {
        QFETCH(QString, html);
        // Characters outside the code page are written to the file as the editor encodes them.
        HtmlDocument reader;
        if (!reader.setDocumentHTML(html).ok()) qFatal("the text is refused");
        const QString first = reader.documentHTML();
        ScriviMessaggio(stage().path("n.mss"), {"Notizie", "NR", {}, first.contains("&#") ? first : html});
        reopen("n.mss");
        QVERIFY(stage().design().documentHTML().value() == first);
        stage().start("cmdSalva");
        const QByteArray saved = stage().bytes("n.mss");
        QCOMPARE(QString::fromLatin1(bodyOf(saved)).count(":::"), html.count(":::"));
        reopen("n.mss");
        throughTheTabs();
        QVERIFY(stage().design().documentHTML().value() == first);
        stage().start("cmdSalva");
        QVERIFY(stage().bytes("n.mss") == saved);
    }

    void whatTheCodePageDoesNotContainSurvivesAsAReference() {
        stage().fill(QString::fromUtf8("<p>\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D \xF0\x9F\x8E\x84 è €</p>"));
        stage().saveAs("r.mss");
        QVERIFY(!bodyOf(stage().bytes("r.mss")).contains('?'));
        const QString before = stage().design().evaluate("document.body.textContent").toString();
        reopen("r.mss");
        QCOMPARE(stage().design().evaluate("document.body.textContent").toString(), before);
        QVERIFY(bodyOf(stage().bytes("r.mss")).contains(text::toAnsi(QString::fromUtf8("è €"))));
    }

    void placeholdersSurviveEverywhere() {
        const QString body =
            "<p title=\":::nom:::\">Gentile :::nom::: "
            "<a href=\"http://x.it/?u=:::email:::&amp;c=:::campo1:::\">qui</a></p>";
        stage().fill(body);
        stage().saveAs("p.mss");
        reopen("p.mss");
        throughTheTabs();
        QCOMPARE(stage().body(), body);
    }

    void theSendWindowOffersWhatWasWritten() {
        stage().type("Gentile ");
        stage().start("cmdVarNom");
        stage().saveAs("s.mss");
        const QString offered = LeggiCorpoMss(stage().path("s.mss"));
        QString written = stage().design().documentHTML().value();
        QCOMPARE(offered, written.replace("\n", "\r\n") + "\r\n");
        QVERIFY2(offered.contains("Gentile"), qPrintable(offered));
        QVERIFY2(offered.contains(":::nom:::"), qPrintable(offered));
    }

    void theBrowserComesWithTheFirstOpeningOnly() {
        // A window of its own, as at the start of the program.
        frmEditor another(aroundEditor());
        another.Carica();
        QVERIFY(!another.DHTML->isLive());
        QVERIFY(!another.WEB->isLive());
        QVERIFY(!another.DHTML->inputWidget());
    }
};

TEST_CLASS(TestIntegro);

}  // namespace frmeditor_integro_test

#include "frmeditor_integro_test.moc"
