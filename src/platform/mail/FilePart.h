// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace mail {

/// Header and base64 body of a part that carries a file, with CR LF line ends, the last one included. The
/// file name is in Content-Disposition by RFC 2231 in UTF-8, and as ASCII in the `name` of Content-Type for
/// readers without RFC 2231.

/// An attachment. The type is derived from the name; a text whose encoding is not known to be UTF-8 and a
/// message or multipart (which may not be base64, RFC 2046 5) are sent as application/octet-stream.
QByteArray attachmentPart(const QString& name, const QByteArray& content);

/// An image shown inside the body. `contentId` has no angle brackets.
QByteArray imagePart(const QString& name, const QByteArray& type, const QByteArray& contentId,
                     const QByteArray& content);

}  // namespace mail
