#pragma once

#include "modules/core/Fallimento.h"

/// The last failures that ended the program: the file "guasti.txt" of the data folder, which
/// docs/formats/guasti.md shows. Nothing reads it but people.
namespace guasti {

/// The file never holds more bytes than this: the oldest entries make room.
inline constexpr qint64 limite = 256 * 1024;

/// Writes down a failure with the time and its circumstances. Passes over every failure of its own. A file
/// that is no text of this kind is set aside as "guasti.txt.rovinato".
void Annota(const Fallimento& fallimento);

/// A text without what might be somebody's: mail addresses, and whatever stands in quotes or comes out of a
/// statement.
QString Ripulito(QString testo);

}  // namespace guasti
