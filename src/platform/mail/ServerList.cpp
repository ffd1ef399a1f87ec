// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/ServerList.h"

#include "platform/system/OwnFile.h"

namespace mail {

namespace {

constexpr qint64 largestList = 256 * 1024;

Result<QByteArray> listBytes(const QString& path) {
    Result<QByteArray> bytes = sys::readOwnFile(path, largestList);
    if (bytes.status().code() == ErrorCode::FileNotFound) return QByteArray();
    return bytes;
}

}  // namespace

Result<QStringList> readServerList(const QString& path) {
    const Result<QByteArray> bytes = listBytes(path);
    if (!bytes.ok()) return bytes.status();
    QString text = QString::fromUtf8(bytes.value());
    if (text.startsWith(QChar::ByteOrderMark)) text.remove(0, 1);
    QStringList entries;
    for (const QString& line : text.replace(u'\r', u'\n').split(u'\n')) {
        const QString entry = line.trimmed();
        if (!entry.isEmpty() && !entry.startsWith(u'#')) entries += entry;
    }
    return entries;
}

Status addToServerList(const QString& path, const QString& entry) {
    Result<QByteArray> bytes = listBytes(path);
    if (!bytes.ok()) return bytes.status();
    QByteArray text = std::move(bytes).value();
    if (!text.isEmpty() && !text.endsWith('\n') && !text.endsWith('\r')) text += "\r\n";
    text += entry.toUtf8() + "\r\n";
    if (text.size() > largestList) return {ErrorCode::Overflow, QString()};
    return sys::replaceOwnFile(path, text);
}

}  // namespace mail
