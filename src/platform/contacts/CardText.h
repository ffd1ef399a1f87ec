#pragma once

#include <QByteArrayView>
#include <QString>

/// Texts as the files of address books hold them.
namespace contacts {

/// UTF-8 where the bytes are that, Windows-1252 otherwise: what programs write that name no character set.
QString cardText(QByteArrayView bytes);

/// The text in a character set known by its IANA name; as cardText() where the name is empty or unknown.
QString cardText(QByteArrayView bytes, const QByteArray& charset);

/// A text file as UTF-8 or single bytes without byte order mark: UTF-16 with a mark is converted.
QByteArray withoutByteOrderMark(const QByteArray& file);

/// Lets every line break (CR LF, CR, LF) of the text be CR LF.
QString withLineBreaks(const QString& text);

/// Takes the next line off `rest`, which must not be empty; CR LF, CR or LF ends it. The line is a view into
/// the same bytes.
QByteArrayView takeLine(QByteArrayView& rest);

}  // namespace contacts
