// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

/// Readers of the forms of text in a message. Each is strict and appends the violations of its standard to
/// `complaints`.
namespace wire {

/// UTF-8 without a broken character.
QString utf8(const QByteArray& octets, QStringList& complaints);

/// Unstructured text or a phrase: encoded words only (RFC 2047), or none at all.
QString headerText(const QByteArray& value, QStringList& complaints);

/// RFC 2045 6.7 and 6.8; lines of at most 76 octets.
QByteArray quotedPrintable(const QByteArray& text, QStringList& complaints);
QByteArray base64(const QByteArray& text, QStringList& complaints);

/// What follows a header's first word: "; name=value" in the forms of RFC 2045 and RFC 2231.
QMap<QByteArray, QString> parameters(const QByteArray& text, QStringList& complaints);

}  // namespace wire
