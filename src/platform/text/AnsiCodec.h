// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <QByteArray>
#include <QString>
#include <QStringList>

#include "platform/text/AnsiTable.h"

/// The 8-bit text of the program's files: Windows-1252 on every machine. The five bytes that the code page
/// leaves undefined (81 8D 8F 90 9D) stand for U+0081, U+008D, U+008F, U+0090 and U+009D in both directions,
/// so that each byte has its own character and any file is unchanged by reading and writing. ansiCharacter()
/// in AnsiTable.h returns the character of a byte.
namespace text {

/// The byte of a character, or none where the code page does not contain it.
std::optional<std::uint8_t> ansiCode(char32_t character);

/// Takes the first character off a non-empty text: one UTF-16 unit, or two where they are a pair.
char32_t takeCharacter(QStringView& text);

QString fromAnsi(QByteArrayView bytes);

/// A character outside the code page becomes one "?", also where it takes two UTF-16 units.
QByteArray toAnsi(QStringView text);

/// The characters of a text that the code page does not contain, each once, in the order of the text.
QStringList outsideAnsi(QStringView text);

}  // namespace text
