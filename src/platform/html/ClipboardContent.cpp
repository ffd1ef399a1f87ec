// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/ClipboardContent.h"

#include <algorithm>
#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QJsonArray>
#include <QMimeData>
#include <QUrl>

namespace {

bool namesFiles(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
}

QJsonArray imageFiles(const QMimeData& data) {
    QJsonArray images;
    for (const QUrl& url : data.urls()) {
        const bool image = url.isLocalFile() && !QImageReader::imageFormat(url.toLocalFile()).isEmpty();
        if (image) images.append(QString::fromLatin1(url.toEncoded()));
    }
    return images;
}

QString asAddress(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG")) return {};
    return QStringLiteral("data:image/png;base64,") + QString::fromLatin1(bytes.toBase64());
}

}  // namespace

QJsonObject clipboardContent(const QMimeData& data) {
    QJsonArray images = imageFiles(data);
    if (namesFiles(data)) return images.isEmpty() ? QJsonObject() : QJsonObject{{"images", images}};
    QJsonObject content;
    if (data.hasHtml()) content["html"] = data.html();
    if (data.hasText()) content["text"] = data.text();
    if (!data.hasHtml() && data.hasImage()) {
        const QString picture = asAddress(qvariant_cast<QImage>(data.imageData()));
        if (!picture.isEmpty()) images.append(picture);
    }
    if (!content.isEmpty() || !images.isEmpty()) content["images"] = images;
    return content;
}
