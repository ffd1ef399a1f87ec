#include "mail/compose_support.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace compose {
namespace {

QByteArray headerBlock(const QByteArray& message) {
    return message.left(message.indexOf("\r\n\r\n") + 2);
}

QString countComplaint(const QByteArray& message) {
    for (const char* name : {"From", "To", "Subject", "Date", "Message-ID", "MIME-Version", "Content-Type",
                             "List-Unsubscribe"}) {
        const auto count = headers(message, name).size();
        if (count != 1) return QStringLiteral("%1 headers %2").arg(count).arg(QLatin1String(name));
    }
    const QList<QByteArray> known = {
        "from",       "to",           "subject",      "date",
        "message-id", "mime-version", "content-type", "content-transfer-encoding",
        "x-priority", "priority",     "importance",   "list-unsubscribe"};
    for (const QByteArray& line : headerBlock(message).split('\n')) {
        if (line.isEmpty() || line.startsWith(' ') || line.startsWith('\t')) continue;
        if (!known.contains(line.left(line.indexOf(':')).toLower())) {
            return "unexpected header line " + QString::fromUtf8(line);
        }
    }
    return {};
}

QString lineComplaint(const QByteArray& message) {
    bool inHeader = true;
    const auto lines = message.split('\n');
    if (!lines.last().isEmpty()) return QStringLiteral("no line end at the end");
    for (qsizetype i = 0; i + 1 < lines.size(); ++i) {
        if (!lines[i].endsWith('\r') || lines[i].count('\r') != 1) return QStringLiteral("bare CR or LF");
        const QByteArray line = lines[i].chopped(1);
        if (line.contains('\0')) return QStringLiteral("NUL");
        if (line.size() > 998) return QStringLiteral("line of %1 octets").arg(line.size());
        if (line.isEmpty()) inHeader = false;
        const bool breakable = line.mid(line.indexOf(':') + 2).trimmed().contains(' ');
        if (inHeader && line.size() > 78 && breakable) return "header not folded: " + QString::fromUtf8(line);
        if (inHeader && !line.isEmpty() && line.trimmed().isEmpty())
            return QStringLiteral("blank header line");
        if (!inHeader && line.size() > 76 && !line.contains(':'))
            return "long line " + QString::fromUtf8(line);
        if (line.startsWith('.')) return QStringLiteral("line that starts with a point");
        for (const QByteArray& word : line.split(' ')) {
            if (word.contains("=?") && word.size() > 75)
                return "long encoded word " + QString::fromUtf8(word);
        }
    }
    return {};
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
    return composed.ok() ? composed.value().data : QByteArray();
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
    const QString count = countComplaint(message);
    return count.isEmpty() ? lineComplaint(message) : count;
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
