// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/HtmlViewPrintJob.h"

#include <algorithm>
#include <QEventLoop>
#include <QPageLayout>
#include <QPageSize>
#include <QPrintEngine>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QTimer>
#include <QVariant>

#include "platform/text/Words.h"

namespace {

constexpr qsizetype longestTitle = 255;
constexpr qsizetype longestReason = 500;

QString asTitle(const QString& text) {
    return text.simplified().left(longestTitle);
}

/// A text string in PDF syntax: UTF-16, in hexadecimal digits.
QByteArray pdfString(const QString& text) {
    QByteArray string = "<FEFF";
    for (const QChar c : text)
        string += QByteArray::number(c.unicode(), 16).rightJustified(4, '0').toUpper();
    return string + '>';
}

}  // namespace

QByteArray withTitle(const QByteArray& pdf, const QString& title) {
    const QString shown = asTitle(title);
    const qsizetype trailer = pdf.lastIndexOf("\ntrailer");
    if (shown.isEmpty() || trailer < 0) return pdf;
    static const QRegularExpression end(
        QStringLiteral("<<(.*/Info (\\d+) 0 R.*)>>\\s*startxref\\s+(\\d+)\\s+%%EOF\\s*$"),
        QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch ends = end.match(QString::fromLatin1(pdf.mid(trailer)));
    if (!ends.hasMatch()) return pdf;
    const QByteArray number = ends.captured(2).toLatin1();
    const QByteArray head = number + " 0 obj\n<<";
    const qsizetype object = pdf.indexOf('\n' + head) + 1;
    const qsizetype after = pdf.indexOf("endobj", object);
    if (object == 0 || after < 0) return pdf;
    const qsizetype entries = object + head.size();

    QByteArray titled = pdf.endsWith('\n') ? pdf : pdf + '\n';
    const QByteArray place = QByteArray::number(titled.size()).rightJustified(10, '0');
    titled += head + "/Title " + pdfString(shown) + '\n' + pdf.mid(entries, after - entries) + "endobj\n";
    const QByteArray table = QByteArray::number(titled.size());
    titled += "xref\n" + number + " 1\n" + place + " 00000 n \ntrailer\n<<" + ends.captured(1).toLatin1() +
              "\n/Prev " + ends.captured(3).toLatin1() + ">>\nstartxref\n" + table + "\n%%EOF\n";
    return titled;
}

QStringList lpArguments(QPrinter& printer, const QString& title) {
    QStringList arguments;
    const auto option = [&arguments](const QString& name, const QString& value) {
        arguments << QStringLiteral("-o") << name + '=' + value;
    };
    if (!printer.printerName().isEmpty()) arguments << QStringLiteral("-d") << printer.printerName();
    if (const QString shown = asTitle(title); !shown.isEmpty()) arguments << QStringLiteral("-t") << shown;
    arguments << QStringLiteral("-n") << QString::number(std::max(1, printer.copyCount()));
    option(QStringLiteral("collate"),
           printer.collateCopies() ? QStringLiteral("true") : QStringLiteral("false"));
    option(QStringLiteral("media"), printer.pageLayout().pageSize().key());
    if (printer.duplex() == QPrinter::DuplexNone)
        option(QStringLiteral("sides"), QStringLiteral("one-sided"));
    else if (printer.duplex() == QPrinter::DuplexShortSide)
        option(QStringLiteral("sides"), QStringLiteral("two-sided-short-edge"));
    else
        option(QStringLiteral("sides"), QStringLiteral("two-sided-long-edge"));
    if (printer.colorMode() == QPrinter::GrayScale)
        option(QStringLiteral("print-color-mode"), QStringLiteral("monochrome"));
    // Qt's key for the dialog's options for the spooler (page ranges, pages per sheet): names and values
    constexpr auto spoolerOptions = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xfe00);
    const QStringList chosen = printer.printEngine()->property(spoolerOptions).toStringList();
    for (qsizetype i = 0; i + 1 < chosen.size(); i += 2)
        option(chosen[i], chosen[i + 1]);
    return arguments;
}

Status spool(const QString& command, const QStringList& arguments, const QByteArray& document,
             int milliseconds) {
    QProcess process;
    QEventLoop loop;
    QObject::connect(&process, &QProcess::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    process.start(command, arguments);
    if (process.waitForStarted(milliseconds)) {
        process.write(document);
        process.closeWriteChannel();
        if (process.state() != QProcess::NotRunning) loop.exec(QEventLoop::ExcludeUserInputEvents);
        const bool ended = process.state() == QProcess::NotRunning;
        if (ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0) return {};
    }
    const QString reason = QString::fromLocal8Bit(process.readAllStandardError().left(longestReason));
    process.kill();
    process.waitForFinished(milliseconds);
    return {ErrorCode::DeviceIo,
            Words::tr("La stampante non ha preso il messaggio. %1").arg(reason).trimmed()};
}
