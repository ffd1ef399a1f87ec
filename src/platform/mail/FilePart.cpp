// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/FilePart.h"

#include <algorithm>
#include <QMimeDatabase>

#include "platform/mail/HeaderText.h"

namespace mail {
namespace {

const char* const namelessFile = "file";
constexpr qsizetype fallbackLimit = 60;
constexpr qsizetype lineLength = 76;

// The name without folders, of Unix or Windows paths
QString bareName(const QString& name) {
    const QString line = singleLine(name);
    const qsizetype cut = std::max(line.lastIndexOf(u'/'), line.lastIndexOf(u'\\'));
    const QString bare = line.mid(cut + 1).trimmed();
    return bare.isEmpty() ? QString::fromLatin1(namelessFile) : bare;
}

// Letters without their accents, single blanks, "_" for what old readers and file systems cannot handle
QByteArray asciiName(const QString& name) {
    QByteArray plain;
    for (const QChar c : name.normalized(QString::NormalizationForm_KD)) {
        if (c.isMark() || c.isLowSurrogate()) continue;
        const bool known =
            c.unicode() < 0x80 && (c.isLetterOrNumber() || QStringView(u" !#$&'()+,-.;@_").contains(c));
        plain += known ? static_cast<char>(c.unicode()) : '_';
    }
    plain = plain.simplified();
    if (plain.isEmpty()) return namelessFile;
    if (plain.size() <= fallbackLimit) return plain;
    const qsizetype dot = plain.lastIndexOf('.');
    const QByteArray suffix = dot >= 0 && plain.size() - dot <= 10 ? plain.mid(dot) : QByteArray();
    return plain.left(fallbackLimit - suffix.size()).trimmed() + suffix;
}

QByteArray base64Lines(const QByteArray& content) {
    const QByteArray encoded = content.toBase64();
    QByteArray lines;
    lines.reserve(encoded.size() + 2 * (encoded.size() / lineLength + 2));
    for (qsizetype at = 0; at < encoded.size(); at += lineLength) {
        lines.append(encoded.constData() + at, std::min(lineLength, encoded.size() - at));
        lines += "\r\n";
    }
    return lines.isEmpty() ? QByteArray("\r\n") : lines;
}

QByteArray filePart(const QString& name, const QByteArray& type, const char* charset, const char* disposition,
                    const QByteArray& contentId, const QByteArray& content) {
    const bool fits = qstrlen("Content-Type: ;") + static_cast<std::size_t>(type.size()) <= 78;
    QByteArray part = (fits ? "Content-Type: " : "Content-Type:\r\n ") + type;
    if (charset != nullptr) part += QByteArray("; charset=") + charset;
    part += parameter("name", QString::fromLatin1(asciiName(name)));
    part += QByteArray("\r\nContent-Disposition: ") + disposition + parameter("filename", name);
    if (!contentId.isEmpty()) part += "\r\nContent-Id: <" + contentId + '>';
    return part + "\r\nContent-Transfer-Encoding: base64\r\n\r\n" + base64Lines(content);
}

}  // namespace

QByteArray attachmentPart(const QString& givenName, const QByteArray& content) {
    const QString name = bareName(givenName);  // Qt's search reads beyond its table for a name with a NUL
    QByteArray type = QMimeDatabase().mimeTypeForFile(name, QMimeDatabase::MatchExtension).name().toLatin1();
    const char* charset = nullptr;
    if (type.startsWith("text/") && QString::fromUtf8(content).toUtf8() == content) charset = "utf-8";
    const bool mayStand = type.contains('/') && !type.startsWith("message/") &&
                          !type.startsWith("multipart/") && !type.startsWith("inode/") &&
                          (charset != nullptr || !type.startsWith("text/"));
    if (!mayStand) type = "application/octet-stream";
    return filePart(name, type, charset, "attachment", {}, content);
}

QByteArray imagePart(const QString& name, const QByteArray& type, const QByteArray& contentId,
                     const QByteArray& content) {
    return filePart(bareName(name), type, nullptr, "inline", contentId, content);
}

}  // namespace mail
