// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <vector>

#include "platform/mail/CarriedFile.h"
#include "platform/mail/FileStamp.h"
#include "platform/mail/MessageText.h"

namespace mail {

/// The path that an image's address refers to, where that is a file on this machine; else empty. Links
/// are not resolved.
QString localImagePath(const QByteArray& address);

/// The paths that a template names as images, each once and in its order, whether they are there or not.
QStringList localImagePaths(const QString& templateHtml);

/// The images on this machine that a template names, ready to be embedded in messages.
///
/// Only the template is read, never a personalised body: no value of a recipient can name a file that is then
/// read. A file is embedded when its first bytes are those of a PNG, JPEG, GIF, BMP or WebP image and the
/// images taken so far, in the template's order, stay within 10 MB together.
class LocalImages {
  public:
    struct Image {
        QByteArray contentId;  ///< without angle brackets
        SharedLines part;      ///< the complete part
    };

    /// Reads the files again if the template, `allowed`, or one of them has changed. Files that are not in
    /// `allowed` are left out.
    void follow(const QString& templateHtml, const CarriedFiles& allowed = {});

    const std::vector<Image>& images() const { return m_images; }

    /// Index in images() of the image that an address of the template refers to; -1 for anything else.
    int find(const QByteArray& address) const { return m_places.value(address, -1); }

  private:
    struct Seen {
        QString path;
        FileStamp stamp;
    };

    bool isCurrent(const QString& templateHtml, const CarriedFiles& allowed) const;
    int take(const QString& path, qint64& room);

    QString m_template;
    CarriedFiles m_allowed;
    std::vector<Seen> m_seen;
    std::vector<Image> m_images;
    QHash<QByteArray, int> m_places;
};

}  // namespace mail
