// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <QString>

/// The text coding of the account file: each character as the eight binary digits of its Windows-1252 byte,
/// most significant first. There is no key in it; it hides a password from a casual look, nothing more.

/// The byte of the text's first character; 0 for a character outside the code page and for an empty text.
std::uint8_t CodiceCarattere(QStringView testo);

/// Eight digits "0" or "1" for each character.
QString TestoInBit(QStringView testo);

/// One character for each eight digits. Anything but "1" counts as 0, digits that are missing at the end do
/// too, and an empty text is one character of code 0.
QString BitInTesto(QStringView cifre);
