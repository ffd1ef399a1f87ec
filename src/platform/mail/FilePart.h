#pragma once

#include <QByteArray>
#include <QString>

namespace mail {

/// Header and base64 body of a part that carries a file, with CR LF line ends, the last one included. The
/// file name stands by RFC 2231 in UTF-8 in Content-Disposition, and in ASCII letters as the `name` of
/// Content-Type for readers that know no better.

/// An attachment. The type follows from the name; a text whose encoding is not known to be UTF-8 and a
/// message or multipart (which may not be base64, RFC 2046 5) go as plain octets.
QByteArray attachmentPart(const QString& name, const QByteArray& content);

/// An image shown inside the body. `contentId` stands without angle brackets.
QByteArray imagePart(const QString& name, const QByteArray& type, const QByteArray& contentId,
                     const QByteArray& content);

}  // namespace mail
