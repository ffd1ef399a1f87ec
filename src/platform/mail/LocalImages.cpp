// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/LocalImages.h"

#include <algorithm>
#include <QRandomGenerator>
#include <QUrl>

#include "platform/mail/FilePart.h"
#include "platform/mail/HtmlReferences.h"
#include "platform/text/SameText.h"

namespace mail {
namespace {

constexpr qint64 roomForImages = qint64{10} << 20;

// By the signatures that the formats define; empty for anything else
QByteArray imageType(const QByteArray& content) {
    if (content.startsWith("\x89PNG\r\n\x1A\n")) return "image/png";
    if (content.startsWith("\xFF\xD8\xFF")) return "image/jpeg";
    if (content.startsWith("GIF87a") || content.startsWith("GIF89a")) return "image/gif";
    if (content.startsWith("BM") && content.size() >= 26) return "image/bmp";
    if (content.startsWith("RIFF") && content.mid(8, 4) == "WEBP") return "image/webp";
    return {};
}

QByteArray newContentId() {
    auto* random = QRandomGenerator::system();
    return "img." + QByteArray::number(random->generate64(), 36) + '.' +
           QByteArray::number(random->generate64(), 36) + "@vestrola";
}

}  // namespace

// file:///..., file://localhost/... or a plain path, with slashes of either kind. Two slashes in front name
// another machine.
QString localImagePath(const QByteArray& address) {
    QString path = QString::fromUtf8(address);
    path.replace(u'\\', u'/');
    if (path.startsWith(u"file:", Qt::CaseInsensitive)) {
        path = QUrl::fromPercentEncoding(path.mid(5).toUtf8());
        if (path.startsWith(u"//localhost/", Qt::CaseInsensitive)) path = path.mid(11);
        if (path.startsWith(u"///")) path = path.mid(2);
    }
    const bool isAbsolute = path.startsWith(u'/') && !path.startsWith(u"//") && !path.contains(QChar(0));
    return isAbsolute ? path : QString();
}

QStringList localImagePaths(const QString& templateHtml) {
    QStringList paths;
    for (const auto& reference : findReferences(templateHtml.toUtf8()).images) {
        const QString path = localImagePath(reference.value);
        if (!path.isEmpty()) paths << path;
    }
    paths.removeDuplicates();
    return paths;
}

bool LocalImages::isCurrent(const QString& templateHtml, const CarriedFiles& allowed) const {
    return text::sameText(templateHtml, m_template) && allowed == m_allowed &&
           std::all_of(m_seen.begin(), m_seen.end(),
                       [](const Seen& seen) { return FileStamp::of(seen.path) == seen.stamp; });
}

void LocalImages::follow(const QString& templateHtml, const CarriedFiles& allowed) {
    if (isCurrent(templateHtml, allowed)) return;
    m_template = templateHtml;
    m_allowed = allowed;
    m_seen.clear();
    m_images.clear();
    m_places.clear();
    qint64 room = roomForImages;
    QHash<QString, int> placeOfPath;
    for (const auto& reference : findReferences(templateHtml.toUtf8()).images) {
        const QString path = localImagePath(reference.value);
        if (path.isEmpty()) continue;
        auto place = placeOfPath.find(path);
        if (place == placeOfPath.end()) place = placeOfPath.insert(path, take(path, room));
        if (*place >= 0) m_places.insert(reference.value, *place);
    }
}

int LocalImages::take(const QString& path, qint64& room) {
    const FileStamp stamp = FileStamp::of(path);
    m_seen.push_back({path, stamp});
    if (!stamp.exists() || stamp.size > room) return -1;
    const auto read = readCarried(path, m_allowed, room);
    if (!read.ok()) return -1;
    const QByteArray& content = read.value();
    const QByteArray type = imageType(content);
    if (type.isEmpty()) return -1;
    room -= content.size();
    const QByteArray contentId = newContentId();
    m_images.push_back({contentId, SharedLines(imagePart(path, type, contentId, content))});
    return static_cast<int>(m_images.size()) - 1;
}

}  // namespace mail
