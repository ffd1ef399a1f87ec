#include "platform/text/AnsiCodec.h"

#include <algorithm>
#include <array>

namespace text {

namespace {

// Characters of the bytes 80 to 9F; all other bytes are their own character.
constexpr std::array<char16_t, 32> upperControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::array<char16_t, 256> characters = [] {
    std::array<char16_t, 256> table{};
    for (std::size_t code = 0; code < table.size(); ++code) {
        table[code] = code >= 0x80 && code < 0xA0 ? upperControls[code - 0x80] : static_cast<char16_t>(code);
    }
    return table;
}();

}  // namespace

std::optional<std::uint8_t> ansiCode(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return static_cast<std::uint8_t>(character);
    const auto found = std::find(upperControls.begin(), upperControls.end(), character);
    if (found == upperControls.end()) return std::nullopt;
    return static_cast<std::uint8_t>(0x80 + (found - upperControls.begin()));
}

char32_t takeCharacter(QStringView& text) {
    const bool pair = text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
    const char32_t character = pair ? QChar::surrogateToUcs4(text[0], text[1]) : text[0].unicode();
    text = text.mid(pair ? 2 : 1);
    return character;
}

char16_t ansiCharacter(std::uint8_t code) {
    return characters[code];
}

QString fromAnsi(QByteArrayView bytes) {
    QString result(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), result.begin(),
                   [](char byte) { return QChar(ansiCharacter(static_cast<std::uint8_t>(byte))); });
    return result;
}

QByteArray toAnsi(QStringView text) {
    QByteArray result;
    result.reserve(text.size());
    while (!text.isEmpty())
        result.append(static_cast<char>(ansiCode(takeCharacter(text)).value_or('?')));
    return result;
}

}  // namespace text
