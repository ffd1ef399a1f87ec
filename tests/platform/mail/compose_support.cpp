// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/compose_support.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include "platform/mail/wire_reader.h"
#include "support/WholeText.h"

namespace compose {
namespace {

QByteArray headerBlock(const QByteArray& message) {
    return message.left(message.indexOf("\r\n\r\n") + 2);
}

}  // namespace

mail::MessageData plainMessage() {
    mail::MessageData message;
    message.FromName = "Orto Facile";
    message.FromAddress = "info@orto.example";
    message.ToName = "Mario Rossi";
    message.ToAddress = "m.rossi@example.it";
    message.Subject = "Le novita di maggio";
    message.BodyHtml = "<html><head></head><body><p>Buongiorno Mario</p></body></html>";
    message.BodyText = "Buongiorno Mario";
    return message;
}

QByteArray wire(const mail::MessageData& message) {
    const auto composed = mail::Composer().compose(message);
    EXPECT_TRUE(composed.ok()) << composed.status().text().toStdString();
    return composed.ok() ? wholeOf(composed.value().text) : QByteArray();
}

std::vector<QByteArray> headers(const QByteArray& message, const QByteArray& name) {
    std::vector<QByteArray> values;
    QByteArray block = headerBlock(message);
    block.replace("\r\n ", " ").replace("\r\n\t", "\t");
    for (const QByteArray& line : block.replace("\r\n", "\n").split('\n')) {
        const qsizetype colon = line.indexOf(':');
        if (colon >= 0 && line.left(colon).compare(name, Qt::CaseInsensitive) == 0) {
            values.push_back(line.mid(colon + 2));
        }
    }
    return values;
}

QByteArray header(const QByteArray& message, const QByteArray& name) {
    const auto values = headers(message, name);
    EXPECT_EQ(values.size(), 1u) << name.toStdString();
    return values.empty() ? QByteArray() : values.front();
}

QString complaintAbout(const QByteArray& message) {
    return wire::read(message).complaints.join('\n');
}

QString makeFile(const QString& path, const QByteArray& content) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    EXPECT_EQ(file.write(content), content.size());
    return path;
}

QByteArray pngContent(qsizetype size) {
    QByteArray content("\x89PNG\r\n\x1A\n", 8);
    while (content.size() < size)
        content += static_cast<char>(content.size() * 7);
    return content;
}

namespace {

// Line ends as sent, NUL as a blank
QString travelled(QString text) {
    text.replace("\r\n", "\n").replace('\r', '\n').replace('\n', "\r\n").replace(QChar(0), ' ');
    return QString::fromUtf8(text.toUtf8());
}

bool hasSomethingToSee(QString text) {
    static const QRegularExpression unseen(
        "[\\s\\x{0}\\x{85}\\x{a0}\\x{ad}\\x{34f}\\x{1680}\\x{2000}-\\x{200f}\\x{2028}\\x{2029}\\x{202f}\\x{"
        "205f}"
        "\\x{2060}\\x{3000}\\x{feff}]");
    return !text.remove(unseen).isEmpty();
}

}  // namespace

bool hasTextForm(const mail::MessageData& message) {
    const bool hasHtml = !message.BodyHtml.toUtf8().trimmed().isEmpty();
    return !hasHtml || hasSomethingToSee(message.BodyText) || message.BodyHtml.contains(" alt=") ||
           hasSomethingToSee(message.Subject) || message.BodyHtml.contains("href=");
}

QString complaintAboutText(const mail::MessageData& message, QString read) {
    // a message that is one text alone ends with a line end
    const QString sent = travelled(message.BodyText);
    if (!hasSomethingToSee(sent)) return {};
    // The rest after the text is the list of links.
    static const QRegularExpression list("\r\nCollegamenti:\r\n([^\r\n]*[a-z]:[^\r\n]*\r\n)+(\r\n)?$");
    if (const auto links = list.match(read); links.hasMatch() && !sent.contains("Collegamenti:"))
        read.truncate(links.capturedStart());
    if (read.endsWith("\r\n") && !sent.endsWith("\r\n")) read.chop(2);
    if (read == sent) return {};
    // Of consecutive lines without a word some are omitted, and nothing else.
    const auto words = [](const QString& text) { return text.simplified().remove(' '); };
    const bool hasGap = sent.contains(QRegularExpression("(^|\r\n)[^\\S\r\n]*\r\n[^\\S\r\n]*\r\n"));
    return hasGap && words(read) == words(sent) ? QString() : read + "\n--- sent:\n" + sent;
}

}  // namespace compose
