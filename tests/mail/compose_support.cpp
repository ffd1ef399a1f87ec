#include "mail/compose_support.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "mail/wire_reader.h"

namespace compose {
namespace {

QByteArray headerBlock(const QByteArray& message) {
    return message.left(message.indexOf("\r\n\r\n") + 2);
}

}  // namespace

mail::MessageData plainMessage() {
    mail::MessageData message;
    message.fromName = "Orto Facile";
    message.fromAddress = "info@orto.example";
    message.toName = "Mario Rossi";
    message.toAddress = "m.rossi@example.it";
    message.subject = "Le novita di maggio";
    message.bodyHtml = "<html><head></head><body><p>Buongiorno Mario</p></body></html>";
    message.bodyText = "Buongiorno Mario";
    return message;
}

QByteArray wire(const mail::MessageData& message) {
    const auto composed = mail::Composer().compose(message);
    EXPECT_TRUE(composed.ok()) << composed.status().text().toStdString();
    return composed.ok() ? composed.value().text.whole() : QByteArray();
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

}  // namespace compose
