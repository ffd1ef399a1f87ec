// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDir>
#include <QFile>

#include "platform/html/HtmlDocument.h"
#include "platform/html/LargeNewsletter.h"
#include "platform/html/ViewFixture.h"
#include "platform/text/AnsiCodec.h"
#include "support/Repetitions.h"
#include "support/TestClass.h"

namespace view_corpus_test {

// Newsletters as people really write and paste them: the view and the reader without a browser agree on each.
class ViewCorpus : public QObject {
    Q_OBJECT

    static QString withoutBrowser(const QString& html) {
        HtmlDocument document;
        if (!document.setDocumentHTML(html).ok()) qFatal("the text is refused");
        return document.documentHTML();
    }

    static void corpus() {
        QTest::addColumn<QString>("html");
        const QDir folder(TEST_DATA_DIR "/html");
        for (const QString& name : folder.entryList({"*.html"}, QDir::Files)) {
            QFile file(folder.filePath(name));
            if (!file.open(QIODevice::ReadOnly)) qFatal("cannot read %s", qPrintable(name));
            QTest::newRow(qPrintable(name)) << QString::fromUtf8(file.readAll());
        }
        QTest::newRow("whole catalogue") << largeNewsletter();
    }

    static QString firstDifference(const QString& text, const QString& expected) {
        qsizetype at = 0;
        while (at < text.size() && at < expected.size() && text[at] == expected[at])
            ++at;
        return QStringLiteral("at %1: %2\nexpected: %3")
            .arg(at)
            .arg(text.mid(std::max<qsizetype>(at - 60, 0), 200),
                 expected.mid(std::max<qsizetype>(at - 60, 0), 200));
    }

    std::unique_ptr<Desk> m_desk;

  private Q_SLOTS:
    void initTestCase() { m_desk = std::make_unique<Desk>(); }
    void cleanupTestCase() { m_desk.reset(); }

    void hasTheNormalFormOfTheReaderWithoutABrowserInWindows1252WithEveryPlaceholder_data() { corpus(); }
    void hasTheNormalFormOfTheReaderWithoutABrowserInWindows1252WithEveryPlaceholder() {
        QFETCH(QString, html);
        m_desk->view.setDocumentHTML(html);
        const QString shown = m_desk->view.documentHTML();
        const QString expected = withoutBrowser(html);
        QVERIFY2(shown == expected, qPrintable(firstDifference(shown, expected)));
        QVERIFY(text::fromAnsi(text::toAnsi(shown)) == shown);
        QCOMPARE(shown.count(":::"), html.count(":::"));
    }

    void staysUnchangedHoweverOftenItIsReadAgain_data() { corpus(); }
    void staysUnchangedHoweverOftenItIsReadAgain() {
        QFETCH(QString, html);
        m_desk->view.setDocumentHTML(html);
        const QString first = m_desk->view.documentHTML();
        const int turns = first.size() > 100'000 ? 1 : testing_support::repetitions(3);
        for (int turn = 0; turn < turns; ++turn) {
            // what a file's reader passes on
            m_desk->view.setDocumentHTML(first + "\r\n");
            const QString again = m_desk->view.documentHTML();
            QVERIFY2(again == first, qPrintable(firstDifference(again, first)));
        }
        const QString readWithout = withoutBrowser(first);
        QVERIFY2(readWithout == first, qPrintable(firstDifference(readWithout, first)));
    }

    // What docs/formats/html.md says of documents that the two readers read differently
    void differsFromTheOtherReaderOnlyWhereItIsKnown_data() {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QString>("view");
        QTest::addColumn<QString>("reader");
        QTest::newRow("more than three formatting elements left open over a paragraph")
            << "<b><i><u><s><a>uno<p>due</b>tre</i>quattro</u>"
            << "<b><i><u><s><a>uno</a></s></u></i></b><u><s><a></a></s></u><u><s><a></a></s></u>"
               "<s><a><p><u><i><b>due</b>tre</i>quattro</u></p></a></s>"
            << "<b><i><u><s><a>uno</a></s></u><s><a><p><u><b>due</b>trequattro</u></p></a></s></i></"
               "b><u><s><a></a></s></u>";
        QTest::newRow("isindex")
            << "<isindex>"
            << "<isindex></isindex>"
            << "<form><hr><label>This is a searchable index. Enter search keywords: <input "
               "name=\"isindex\"></label><hr></form>";
    }
    void differsFromTheOtherReaderOnlyWhereItIsKnown() {
        QFETCH(QString, html);
        QFETCH(QString, view);
        QFETCH(QString, reader);
        m_desk->view.setDocumentHTML(html);
        QCOMPARE(m_desk->body(), view);
        QVERIFY(withoutBrowser(html).contains("<body>" + reader + "</body>"));
    }

    void keepsWhatIsNestedAsDeepAsTheReadersTake() {
        const QString html =
            QStringLiteral("<div>").repeated(498) + "x" + QStringLiteral("</div>").repeated(498);
        m_desk->view.setDocumentHTML(html);
        QCOMPARE(m_desk->body(), html);
        QVERIFY(withoutBrowser(html).contains("<body>" + html + "</body>"));
    }

    void refusesWhatTheOtherReaderRefuses() {
        m_desk->view.setDocumentHTML("<p>uno</p>");
        const QString before = m_desk->view.documentHTML();
        for (const QString& html : {QString("<div>").repeated(100000), QString("<div>").repeated(499),
                                    QString((16 << 20) + 1, 'x')}) {
            const Status set = m_desk->view.HtmlView::setDocumentHTML(html);
            QCOMPARE(set.code(), ErrorCode::Overflow);
            QCOMPARE(set.text(), HtmlDocument().setDocumentHTML(html).text());
            QCOMPARE(m_desk->view.documentHTML(), before);
        }
        QVERIFY(m_desk->view.responds().ok());
    }
};

TEST_CLASS(ViewCorpus);

}  // namespace view_corpus_test

#include "view_corpus_test.moc"
