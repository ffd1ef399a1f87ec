// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/JetText.h"

#include <algorithm>

#include "platform/jet/Format.h"
#include "platform/text/AnsiTable.h"

namespace jet {

namespace {

// Neither shorter nor longer text is ever compressed.
constexpr size_t shortestCompressed = 3;
constexpr size_t longestCompressed = 1024;
constexpr char32_t replacement = 0xFFFD;

// Lone surrogates are replaced.
template <class UnitAt>
void appendUnits(size_t count, UnitAt unitAt, std::string& out) {
    for (size_t i = 0; i < count; ++i) {
        char32_t c = unitAt(i);
        if (c < 0x80) {
            out += static_cast<char>(c);
            continue;
        }
        if (c >= 0xD800 && c < 0xE000) {
            const char32_t low = i + 1 < count ? unitAt(i + 1) : 0;
            const bool pair = c < 0xDC00 && low >= 0xDC00 && low < 0xE000;
            c = pair ? 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00) : replacement;
            if (pair) ++i;
        }
        appendCodePoint(c, out);
    }
}

// How many bytes from the start are 01 to 7F: nearly all that there is to read, so eight at a time.
size_t asciiRun(std::span<const uint8_t> bytes) {
    constexpr uint64_t ones = 0x0101010101010101u;
    constexpr uint64_t highs = 0x8080808080808080u;
    size_t length = 0;
    for (uint64_t word; length + 8 <= bytes.size(); length += 8) {
        std::memcpy(&word, &bytes[length], 8);
        if (((word | (word - ones)) & highs) != 0) break;  // a high bit, or a borrow from a zero
    }
    while (length < bytes.size() && static_cast<uint8_t>(bytes[length] - 1) < 0x7F)
        ++length;
    return length;
}

std::span<const uint8_t> bytesOf(std::string_view text) {
    return {reinterpret_cast<const uint8_t*>(text.data()), text.size()};
}

void appendCompressed(std::span<const uint8_t> bytes, std::string& out) {
    for (;;) {
        const size_t ascii = asciiRun(bytes);
        out.append(reinterpret_cast<const char*>(bytes.data()), ascii);
        if (ascii == bytes.size()) return;
        const uint8_t byte = bytes[ascii];
        bytes = bytes.subspan(ascii + 1);
        if (byte != 0) {
            appendCodePoint(byte, out);
            continue;
        }
        // Two bytes each, up to a zero byte where a character would begin.
        size_t length = 0;
        while (length < bytes.size() && bytes[length] != 0)
            length += 2;
        appendPlainUtf8(bytes.first(std::min(length, bytes.size())), out);
        if (length >= bytes.size()) return;
        bytes = bytes.subspan(length + 1);
    }
}

}  // namespace

void appendCodePoint(char32_t c, std::string& out) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        const char bytes[] = {static_cast<char>(0xC0 | c >> 6), static_cast<char>(0x80 | (c & 0x3F))};
        out.append(bytes, 2);
    } else if (c < 0x10000) {
        const char bytes[] = {static_cast<char>(0xE0 | c >> 12), static_cast<char>(0x80 | (c >> 6 & 0x3F)),
                              static_cast<char>(0x80 | (c & 0x3F))};
        out.append(bytes, 3);
    } else {
        const char bytes[] = {static_cast<char>(0xF0 | c >> 18), static_cast<char>(0x80 | (c >> 12 & 0x3F)),
                              static_cast<char>(0x80 | (c >> 6 & 0x3F)),
                              static_cast<char>(0x80 | (c & 0x3F))};
        out.append(bytes, 4);
    }
}

void appendPlainUtf8(std::span<const uint8_t> utf16, std::string& out) {
    appendUnits(
        utf16.size() / 2, [&](size_t i) { return load16(&utf16[2 * i]); }, out);
    if (utf16.size() % 2 != 0) appendCodePoint(replacement, out);
}

void appendUtf8(std::span<const uint8_t> stored, std::string& out) {
    if (stored.size() >= 2 && stored[0] == 0xFF && stored[1] == 0xFE)
        return appendCompressed(stored.subspan(2), out);
    appendPlainUtf8(stored, out);
}

void appendAnsiAsUtf8(std::span<const uint8_t> stored, std::string& out) {
    for (const uint8_t byte : stored)
        appendCodePoint(text::ansiCharacter(byte), out);
}

std::u16string toUtf16(std::string_view utf8) {
    std::u16string out;
    out.reserve(utf8.size());
    for (size_t i = 0; i < utf8.size();) {
        if (const size_t ascii = asciiRun(bytesOf(utf8.substr(i))); ascii > 0) {
            const size_t at = out.size();
            out.resize(at + ascii);
            std::copy_n(utf8.begin() + static_cast<ptrdiff_t>(i), ascii,
                        out.begin() + static_cast<ptrdiff_t>(at));
            i += ascii;
            continue;
        }
        const uint8_t lead = static_cast<uint8_t>(utf8[i++]);
        const int more = lead < 0x80                   ? 0
                         : lead >= 0xC2 && lead < 0xE0 ? 1
                         : lead >> 4 == 0xE            ? 2
                         : lead >= 0xF0 && lead < 0xF5 ? 3
                                                       : -1;
        char32_t c = more <= 0 ? lead : lead & (0x3Fu >> more);
        int taken = 0;
        while (taken < more && i + static_cast<size_t>(taken) < utf8.size() &&
               (static_cast<uint8_t>(utf8[i + static_cast<size_t>(taken)]) & 0xC0) == 0x80) {
            c = c << 6 | (static_cast<uint8_t>(utf8[i + static_cast<size_t>(taken)]) & 0x3F);
            ++taken;
        }
        static constexpr char32_t least[] = {0, 0x80, 0x800, 0x10000};
        const bool valid =
            more >= 0 && taken == more && c >= least[more] && c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF);
        if (!valid) {
            out += static_cast<char16_t>(replacement);
            continue;
        }
        i += static_cast<size_t>(more);
        if (c >= 0x10000) {
            out += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
            out += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
        } else {
            out += static_cast<char16_t>(c);
        }
    }
    return out;
}

std::optional<std::vector<uint8_t>> compressAscii(std::string_view text) {
    if (text.size() < shortestCompressed || text.size() > longestCompressed ||
        asciiRun(bytesOf(text)) != text.size())
        return std::nullopt;
    std::vector<uint8_t> bytes(text.size() + 2);
    bytes[0] = 0xFF;
    bytes[1] = 0xFE;
    std::copy(text.begin(), text.end(), bytes.begin() + 2);
    return bytes;
}

std::string toUtf8(std::u16string_view text) {
    std::string out;
    appendUnits(
        text.size(), [&](size_t i) { return text[i]; }, out);
    return out;
}

std::optional<std::vector<uint8_t>> encodeText(std::u16string_view text, bool mayCompress) {
    std::vector<uint8_t> bytes;
    const bool single = std::all_of(text.begin(), text.end(), [](char16_t c) { return c != 0 && c < 0x100; });
    if (mayCompress && single && text.size() >= shortestCompressed && text.size() <= longestCompressed) {
        bytes.reserve(text.size() + 2);
        bytes = {0xFF, 0xFE};
        for (char16_t c : text)
            bytes.push_back(static_cast<uint8_t>(c));
        return bytes;
    }
    if (!text.empty() && text.front() == 0xFEFF) {
        // Plain, its first bytes would be taken for the mark of the compressed form.
        if (std::any_of(text.begin(), text.end(), [](char16_t c) { return (c & 0xFF) == 0; }))
            return std::nullopt;
        bytes = {0xFF, 0xFE, 0x00};
    }
    for (char16_t c : text) {
        bytes.push_back(static_cast<uint8_t>(c));
        bytes.push_back(static_cast<uint8_t>(c >> 8));
    }
    return bytes;
}

}  // namespace jet
