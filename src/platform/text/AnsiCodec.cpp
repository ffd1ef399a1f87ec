// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/AnsiCodec.h"

#include <algorithm>

namespace text {

std::optional<std::uint8_t> ansiCode(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return static_cast<std::uint8_t>(character);
    const auto found = std::find(ansiUpperControls.begin(), ansiUpperControls.end(), character);
    if (found == ansiUpperControls.end()) return std::nullopt;
    return static_cast<std::uint8_t>(0x80 + (found - ansiUpperControls.begin()));
}

char32_t takeCharacter(QStringView& text) {
    const bool pair = text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
    const char32_t character = pair ? QChar::surrogateToUcs4(text[0], text[1]) : text[0].unicode();
    text = text.mid(pair ? 2 : 1);
    return character;
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

QStringList outsideAnsi(QStringView text) {
    QStringList outside;
    while (!text.isEmpty()) {
        const QStringView before = text;
        const char32_t character = takeCharacter(text);
        const QString one = before.chopped(text.size()).toString();
        if (!ansiCode(character) && !outside.contains(one)) outside << one;
    }
    return outside;
}

}  // namespace text
