// SPDX-License-Identifier: GPL-3.0-or-later
#include <memory>
#include <QPrintDialog>
#include <QPrinter>
#include <QSaveFile>
#include <QStandardPaths>

#include "platform/html/HtmlViewLive.h"
#include "platform/html/HtmlViewPrintJob.h"
#include "platform/text/Words.h"

// A view on paper, or in a PDF file.

namespace {

constexpr int printMilliseconds = 60000;

}  // namespace

Result<bool> HtmlView::Live::print(bool prompt, const QString& title) {
    if (!ensure()) return m_failed ? Status(ErrorCode::FileNotFound, m_failure) : noAnswer();
    QPrinter printer(QPrinter::HighResolution);
    if (prompt) {
        const bool wanted =
            printPrompt ? printPrompt(printer) : QPrintDialog(&printer, &view).exec() == QDialog::Accepted;
        if (!wanted) return false;
    }
    const bool toFile = printer.outputFormat() == QPrinter::PdfFormat;
    const QString spooler = QStandardPaths::findExecutable(QStringLiteral("lp"));
    if (!toFile && spooler.isEmpty()) return printPictures(printer);

    const Result<QString> own = askText(QStringLiteral("document.title"));
    if (!own.ok()) return own.status();
    const QString name = own.value().trimmed().isEmpty() ? title : own.value();
    const Result<QByteArray> pdf = pages(printer);
    if (!pdf.ok()) return pdf.status();
    const QByteArray document = withTitle(pdf.value(), name);
    const Status done = toFile ? writePdf(printer.outputFileName(), document)
                               : spool(spooler, lpArguments(printer, name), document, printMilliseconds);
    if (!done.ok()) return done;
    return true;
}

/// The document as a PDF, of the pages and the layout that the printer was given.
Result<QByteArray> HtmlView::Live::pages(const QPrinter& printer) {
    const auto pdf = std::make_shared<QByteArray>();
    const auto over = std::make_shared<bool>(false);
    const bool some = printer.printRange() == QPrinter::PageRange;
    browser.pdf(printer.pageLayout(), some ? printer.pageRanges() : QPageRanges(),
                [this, pdf, over](const QByteArray& document) {
                    *pdf = document;
                    *over = true;
                    wakeWaiting();
                });
    waitFor([this, &over] { return *over || !live; }, printMilliseconds);
    if (!*over) return noAnswer();
    if (pdf->isEmpty()) return Status(ErrorCode::DeviceIo, Words::tr("Impossibile stampare il messaggio."));
    return *pdf;
}

Status HtmlView::Live::writePdf(const QString& path, const QByteArray& document) {
    QSaveFile file(path);
    file.setDirectWriteFallback(true);  // a file that may be written, in a folder that may not
    if (file.open(QIODevice::WriteOnly) && file.write(document) == document.size() && file.commit())
        return {};
    return {ErrorCode::DeviceIo, Words::tr("Impossibile scrivere %1: %2").arg(path, file.errorString())};
}

/// For a system that has printers but not the command `lp`.
Result<bool> HtmlView::Live::printPictures(QPrinter& printer) {
    bool over = false;
    bool printed = false;
    browser.print(printer, [this, &over, &printed](bool success) {
        over = true;
        printed = success;
        wakeWaiting();
    });
    // the printer belongs to the caller, so this returns only when nothing prints on it any more
    while (!over && browser.widget != nullptr)
        waitFor([&over] { return over; }, printMilliseconds);
    return printed;
}
