// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

/// The text encodings of the files of address books.
namespace contacts {

/// UTF-8 where the bytes are valid, else Windows-1252: what programs write that name no character set.
QString cardText(QByteArrayView bytes);

/// The text in a character set known by its IANA name; as cardText() where the name is empty or unknown.
QString cardText(QByteArrayView bytes, const QByteArray& charset);

/// A text file as UTF-8 or single bytes without byte order mark: UTF-16 with a mark is converted.
QByteArray withoutByteOrderMark(const QByteArray& file);

/// Converts every line break (CR LF, CR, LF) of the text to CR LF.
QString withLineBreaks(const QString& text);

/// Takes the next line off `rest`, which must not be empty; CR LF, CR or LF ends it. The line is a view into
/// the same bytes.
QByteArrayView takeLine(QByteArrayView& rest);

}  // namespace contacts
