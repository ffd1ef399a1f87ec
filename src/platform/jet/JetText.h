// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace jet {

/// Text as it is stored: UTF-16LE, or after FF FE the compressed form. That begins with one byte for each
/// character below U+0100; a zero byte switches to UTF-16LE and back.

/// Appends the UTF-8 form of one character.
void appendCodePoint(char32_t c, std::string& out);

/// Appends the UTF-8 form of stored text to `out`. Lone surrogates and a cut last unit become U+FFFD.
void appendUtf8(std::span<const uint8_t> stored, std::string& out);

/// The same for UTF-16LE that is never compressed, as in a definition.
void appendPlainUtf8(std::span<const uint8_t> utf16, std::string& out);

/// The same for text of Jet 3, which is stored in Windows-1252.
void appendAnsiAsUtf8(std::span<const uint8_t> stored, std::string& out);

/// UTF-16 units of UTF-8 text; invalid bytes become U+FFFD.
std::u16string toUtf16(std::string_view utf8);
/// The inverse; lone surrogates become U+FFFD.
std::string toUtf8(std::u16string_view text);

/// Bytes to store. The compressed form is used when it is allowed, shorter and possible for all the text.
/// Nothing for the rare text that no form can store: U+FEFF at the start together with a unit whose low byte
/// is zero.
std::optional<std::vector<uint8_t>> encodeText(std::u16string_view text, bool mayCompress);
/// The compressed form of text of the characters 01 to 7F alone; nothing where that is not the form to store.
std::optional<std::vector<uint8_t>> compressAscii(std::string_view text);

}  // namespace jet
