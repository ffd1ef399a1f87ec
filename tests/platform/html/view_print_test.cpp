// SPDX-License-Identifier: GPL-3.0-or-later
#include <sys/prctl.h>
#include <csignal>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>

#include "platform/html/HtmlViewPrintJob.h"
#include "platform/html/ViewFixture.h"
#include "support/TestClass.h"

namespace view_print_test {

namespace {

QByteArray toolOutput(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0) qFatal("%s failed", qUtf8Printable(program));
    return process.readAllStandardOutput();
}

QImage picture(const QString& path) {
    QImage image;
    image.loadFromData(toolOutput("pdftoppm", {"-r", "60", "-f", "1", "-l", "1", path}), "PPM");
    return image;
}

int coloured(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) != qRgb(255, 255, 255) ? 1 : 0;
    return count;
}

/// A print spooler of the test's own with one queue, "banco", which keeps its jobs.
class Spooler {
  public:
    Spooler() {
        QDir folder(m_folder.path());
        for (const char* name : {"spool/tmp", "cache", "run", "etc"})
            folder.mkpath(name);
        const QString socket = folder.filePath("run/cups");
        write("etc/cupsd.conf", "Listen " + socket +
                                    "\nLogLevel debug\nMaxLogSize 0\nDefaultAuthType None\nBrowsing No\n"
                                    "PreserveJobFiles Yes\n<Location />\nAllow all\n</Location>\n"
                                    "<Policy default>\n<Limit All>\nAllow all\n</Limit>\n</Policy>\n");
        QString files = "FileDevice Yes\nPrintcap\nDataDir /usr/share/cups\nServerBin /usr/lib/cups\n";
        for (const auto& [name, place] : {std::pair("ServerRoot", "etc"),
                                          {"StateDir", "run"},
                                          {"CacheDir", "cache"},
                                          {"RequestRoot", "spool"},
                                          {"TempDir", "spool/tmp"},
                                          {"AccessLog", "access"},
                                          {"PageLog", "pages"},
                                          {"ErrorLog", "log"}})
            files += QString("%1 %2\n").arg(name, folder.filePath(place));
        write("etc/cups-files.conf", files);
        m_process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
        m_process.start("/usr/sbin/cupsd", {"-f", "-c", folder.filePath("etc/cupsd.conf"), "-s",
                                            folder.filePath("etc/cups-files.conf")});
        if (!QTest::qWaitFor([&] { return QFile::exists(socket); }, 60000)) qFatal("no spooler");
        qputenv("CUPS_SERVER", socket.toLocal8Bit());
        toolOutput("/usr/sbin/lpadmin", {"-p", "banco", "-E", "-v", "file:///dev/null", "-m", "raw"});
        toolOutput("/usr/sbin/lpadmin", {"-d", "banco"});
    }
    ~Spooler() {
        qunsetenv("CUPS_SERVER");
        m_process.terminate();
        m_process.waitForFinished();
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }
    /// What the log says, up to the end of the job.
    QByteArray logOfJob(int number) const {
        QByteArray log;
        const QByteArray end = "[Job " + QByteArray::number(number) + "] Job completed.";
        const bool ended = QTest::qWaitFor(
            [&] {
                QFile file(path("log"));
                log = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
                return log.contains(end);
            },
            30000);
        if (!ended) qFatal("the job does not end: %s", log.constData());
        return log;
    }

  private:
    void write(const QString& name, const QString& text) const {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0) qFatal("cannot write");
    }
    QTemporaryDir m_folder;
    QProcess m_process;
};

}  // namespace

// The printed form of a document.
class ViewPrint : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    // The printing library looks up its server once.
    Spooler m_spooler;

    /// Prints into a file as the user would choose it; its path.
    QString printed(
        Desk& desk, const QString& title = {},
        const std::function<void(QPrinter&)>& choices = [](QPrinter&) {}) {
        const QString path = m_folder.filePath("stampa.pdf");
        QFile::remove(path);
        desk.view.setPrintPrompt([&](QPrinter& printer) {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(path);
            choices(printer);
            return true;
        });
        if (!desk.view.print(true, title)) qFatal("not printed");
        return path;
    }

  private Q_SLOTS:
    void aRefusedPromptPrintsNothing() {
        Desk desk("<h1>Listino</h1>");
        int asked = 0;
        desk.view.setPrintPrompt([&asked](QPrinter&) {
            ++asked;
            return false;
        });
        QVERIFY(!desk.view.print(true));
        QCOMPARE(asked, 1);
    }

    void aNewsletterIsPrintedAsTextAndSmall() {
        QString html = "<h1>Listino</h1>";
        for (int i = 0; i < 200; ++i)
            html += QString("<p>Articolo %1: perché no, città e più</p>").arg(i);
        Desk desk(html);
        const QString path = printed(desk);
        const QByteArray text = toolOutput("pdftotext", {path, "-"});
        QVERIFY(text.contains("Listino"));
        QVERIFY(text.contains("Articolo 0: perché no, città e più"));
        QVERIFY(text.contains("Articolo 199: perché no, città e più"));
        QVERIFY(toolOutput("pdfimages", {"-list", path}).count('\n') == 2);  // its headings only
        QVERIFY2(QFile(path).size() < 300000, qPrintable(QString::number(QFile(path).size())));
    }

    void theGuidesAndTheCaretAreNotPrinted() {
        Desk desk(
            "<table width=\"300\"><tbody><tr><td>&nbsp;</td><td>&nbsp;</td></tr></tbody></table>"
            "<form><p>&nbsp;</p></form>");
        QCOMPARE(coloured(picture(printed(desk))), 0);
        desk.view.setShowBorders(true);
        desk.view.setShowDetails(true);
        const QString outline =
            desk.view.evaluate("getComputedStyle(document.querySelector('td')).outlineStyle").toString();
        QCOMPARE(outline, QString("dotted"));
        QCOMPARE(coloured(picture(printed(desk))), 0);
    }

    void aBorderAndABackgroundOfTheDocumentArePrinted() {
        Desk desk(
            "<table border=\"1\" bgcolor=\"#ff0000\" width=\"300\"><tbody><tr><td>&nbsp;</td></tr>"
            "</tbody></table>");
        const QImage page = picture(printed(desk));
        QVERIFY(coloured(page) > 500);
    }

    void theTitleIsTheDocumentsOrTheOneGiven() {
        Desk desk("<html><head><title>Offerte &amp; novità €</title></head><body><p>a</p></body></html>");
        QVERIFY(toolOutput("pdfinfo", {printed(desk, "oggetto")})
                    .contains("Title:           Offerte & novità €\n"));
        desk.view.setDocumentHTML("<p>a</p>");
        const QString before = desk.view.documentHTML();
        const QByteArray about = toolOutput("pdfinfo", {printed(desk, "(Più) \\ \n 漢字 😀")});
        QVERIFY2(about.contains("Title:           (Più) \\ 漢字 😀\n"), about.constData());
        QVERIFY(about.contains("Producer:"));
        QCOMPARE(desk.view.documentHTML(), before);
        QVERIFY(!toolOutput("pdfinfo", {printed(desk)}).contains("Più"));
    }

    void layoutAndPagesAreTheUsers() {
        Desk desk(
            "<p>una</p><p style=\"page-break-before: always\">due</p>"
            "<p style=\"page-break-before: always\">tre</p>");
        const QString path = printed(desk, "t", [](QPrinter& printer) {
            printer.setPageSize(QPageSize(QPageSize::A5));
            printer.setPageOrientation(QPageLayout::Landscape);
            printer.setPrintRange(QPrinter::PageRange);
            printer.setFromTo(2, 2);
        });
        QCOMPARE(toolOutput("pdftotext", {path, "-"}).simplified(), QByteArray("due"));
        const QByteArray about = toolOutput("pdfinfo", {path});
        QVERIFY2(about.contains("Page size:       594.96 x 419.04") && about.contains("Pages:           1\n"),
                 about.constData());
    }

    void theSpoolerGetsTheWholeDocument() {
        const QString path = m_folder.filePath("coda");
        const QByteArray document(1000000, 'x');
        const QStringList arguments{"-c", "cat > \"$0\"; echo \"$@\" >> \"$0\"", path, "-d", "p"};
        QVERIFY(spool("/bin/sh", arguments, document, 60000).ok());
        QFile taken(path);
        QVERIFY(taken.open(QIODevice::ReadOnly));
        QVERIFY(taken.readAll() == document + "-d p\n");
    }

    void aSpoolerThatFailsIsReported() {
        const QByteArray document(1000000, 'x');
        const Status refused = spool("/bin/sh", {"-c", "echo nessuna coda >&2; exit 1"}, document, 60000);
        QCOMPARE(refused.code(), ErrorCode::DeviceIo);
        QVERIFY(refused.text().contains("nessuna coda"));
        QVERIFY(!spool(m_folder.filePath("manca"), {}, document, 60000).ok());
        QVERIFY(!spool("/bin/sh", {"-c", "exec sleep 600"}, document, 100).ok());
        QVERIFY(!spool("/bin/sh", {"-c", "kill -9 $$"}, document, 60000).ok());
    }

    void theSystemsSpoolerGetsTextAndTheChoicesOfTheDialog() {
        Desk desk("<p>Gentile cliente</p>");
        QTimer dialogs;
        connect(&dialogs, &QTimer::timeout, this, [&dialogs] {
            auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            if (!dialog) return;
            dialogs.stop();
            dialog->findChild<QSpinBox*>("copies")->setValue(3);
            dialog->accept();
        });
        dialogs.start(0);
        QVERIFY(desk.view.print(true, "Listino di maggio"));
        const QString job = m_spooler.path("spool/d00001-001");
        QVERIFY(toolOutput("pdftotext", {job, "-"}).contains("Gentile cliente"));
        QVERIFY(toolOutput("pdfinfo", {job}).contains("Listino di maggio"));
        const QByteArray log = m_spooler.logOfJob(1);
        for (const char* part :
             {"argv[0]=\"banco\"", "argv[3]=\"Listino di maggio\"", "argv[4]=\"3\"", "media=", "number-up=1"})
            QVERIFY2(log.contains(part), log.constData());
    }

    void aFileThatCannotBeWrittenIsAFailure() {
        Desk desk("<p>a</p>");
        desk.view.setPrintPrompt([this](QPrinter& printer) {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(m_folder.filePath("manca/a.pdf"));
            return true;
        });
        const Result<bool> done = desk.view.HtmlView::print(true);
        QVERIFY(!done.ok());
        QVERIFY(done.status().text().contains("manca/a.pdf"));
    }

    void severalPrintsInARow() {
        Desk desk("<p>primo</p>");
        QVERIFY(toolOutput("pdftotext", {printed(desk, "a"), "-"}).contains("primo"));
        desk.view.setDocumentHTML("<p>secondo</p>");
        QVERIFY(toolOutput("pdftotext", {printed(desk, "b"), "-"}).contains("secondo"));
    }

    void aTitleIsNotForcedOnADocumentThatCannotTakeIt() {
        for (const QByteArray& odd : {QByteArray(), QByteArray("%PDF-1.4\nx"),
                                      QByteArray("%PDF-1.4\n1 0 obj\n<<\ntrailer\n<</Info 1 "
                                                 "0 R>>\nstartxref\n9\n%%EOF\n"),
                                      QByteArray("\ntrailer\n<</Info 7 0 R /Size 8>>\nstartxref\n0\n%%EOF")})
            QCOMPARE(withTitle(odd, "t"), odd);
    }

    void theSpoolerGetsWhatTheUserChose() {
        QPrinter printer;
        printer.setPageSize(QPageSize(QPageSize::A5));
        printer.setCopyCount(3);
        printer.setColorMode(QPrinter::GrayScale);
        const QString told = lpArguments(printer, "Offerta\ndi maggio").join('|');
        for (const char* part : {"-t|Offerta di maggio|", "-n|3|", "-o|media=A5|", "-o|sides=one-sided",
                                 "-o|print-color-mode=monochrome"})
            QVERIFY2(told.contains(part), qPrintable(told));
        QVERIFY(!lpArguments(printer, " ").contains("-t"));
    }
};

TEST_CLASS(ViewPrint);

}  // namespace view_print_test

#include "view_print_test.moc"
