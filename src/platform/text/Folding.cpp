// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/Folding.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <QString>
#include <unordered_map>

namespace text {

namespace {

constexpr uint64_t everyByte(uint64_t byte) {
    return byte * 0x0101010101010101;
}
constexpr uint64_t highBits = everyByte(0x80);

bool isAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

char lowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
}

/// The same for eight bytes at once, none of which has its high bit set.
uint64_t lowerAscii(uint64_t bytes) {
    const uint64_t fromA = bytes + everyByte(0x80 - 'A');
    const uint64_t behindZ = bytes + everyByte(0x7F - 'Z');
    return bytes | (fromA & ~behindZ & highBits) >> 2;
}

std::string foldByUnicode(const QString& text) {
    const QString apart = text.normalized(QString::NormalizationForm_KD);
    QString kept;
    for (const QChar c : apart)
        if (c.category() != QChar::Mark_NonSpacing) kept += c;
    return kept.toUpper().toCaseFolded().toStdString();  // "ß" is "ss" in capitals only
}

/// The folded forms of the characters that take two bytes: all accented letters of Latin, Greek, Cyrillic.
const std::string& foldedPair(char lead, char follow) {
    constexpr unsigned first = 0x80;
    constexpr unsigned end = 0x800;
    static const std::array<std::string, end - first> forms = [] {
        std::array<std::string, end - first> made;
        for (unsigned c = first; c < end; ++c)
            made[c - first] = foldByUnicode(QString(QChar(static_cast<char16_t>(c))));
        return made;
    }();
    return forms[((static_cast<unsigned char>(lead) & 0x1Fu) << 6 |
                  (static_cast<unsigned char>(follow) & 0x3Fu)) -
                 first];
}

/// Folded forms of other runs seen so far: lists contain the same few characters over and over.
const std::string& foldedRun(std::string_view run) {
    constexpr size_t mostRuns = 4096;
    struct Hash : std::hash<std::string_view> {
        using is_transparent = void;
    };
    static std::unordered_map<std::string, std::string, Hash, std::equal_to<>> known;
    if (const auto found = known.find(run); found != known.end()) return found->second;
    if (known.size() >= mostRuns) known.clear();
    const QString text = QString::fromUtf8(run.data(), static_cast<qsizetype>(run.size()));
    return known.emplace(run, foldByUnicode(text)).first->second;
}

/// Lower case in place, up to the first byte that is not ASCII; how many bytes that is.
size_t lowerPlain(const char* from, size_t size, char* to) {
    size_t done = 0;
    for (uint64_t bytes = 0; done + sizeof(bytes) <= size; done += sizeof(bytes)) {
        std::memcpy(&bytes, from + done, sizeof(bytes));
        if ((bytes & highBits) != 0) break;
        bytes = lowerAscii(bytes);
        std::memcpy(to + done, &bytes, sizeof(bytes));
    }
    for (; done < size && isAscii(from[done]); ++done)
        to[done] = lowerAscii(from[done]);
    return done;
}

/// A well-formed character of two bytes is at the start of the run.
bool startsWithPair(std::string_view run) {
    const auto byte = [&](size_t i) { return static_cast<unsigned char>(run[i]); };
    return run.size() >= 2 && byte(0) >= 0xC2 && byte(0) <= 0xDF && (byte(1) & 0xC0) == 0x80;
}

}  // namespace

void appendFolded(std::string_view utf8, std::string& out) {
    while (!utf8.empty()) {
        const size_t before = out.size();
        out.resize(before + utf8.size());
        const size_t plain = lowerPlain(utf8.data(), utf8.size(), out.data() + before);
        out.resize(before + plain);
        utf8.remove_prefix(plain);
        while (startsWithPair(utf8)) {
            out += foldedPair(utf8[0], utf8[1]);
            utf8.remove_prefix(2);
        }
        size_t other = 0;
        while (other < utf8.size() && !isAscii(utf8[other]) && !startsWithPair(utf8.substr(other)))
            ++other;
        if (other > 0) out += foldedRun(utf8.substr(0, other));
        utf8.remove_prefix(other);
    }
}

std::string folded(QStringView text) {
    std::string form;
    appendFolded(text.toUtf8().toStdString(), form);
    return form;
}

}  // namespace text
