// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/WebAddress.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <QString>

#include "platform/html/HtmlTokens.h"

namespace mail {
namespace {

using namespace std::string_view_literals;
using html::startsWithHtmlText;
using std::string_view;

bool mayStand(char c) {
    return c > ' ' && c < 0x7F && "<>\\^`{|}"sv.find(c) == string_view::npos;
}

void append(QByteArray& out, string_view octets) {
    static constexpr char digits[] = "0123456789ABCDEF";
    for (const char c : octets) {
        if (c == '\t' || c == '\n' || c == '\r') continue;
        if (mayStand(c)) {
            out += c;
            continue;
        }
        const auto octet = static_cast<unsigned char>(c);
        out += '%';
        out += digits[octet >> 4];
        out += digits[octet & 15];
    }
}

struct Reference {
    std::size_t length = 0;  ///< in the source; 0: none
    QByteArray octets = {};  ///< of its character, UTF-8
};

Reference numericReference(string_view source) {
    const bool hex = source.size() > 2 && (source[2] == 'x' || source[2] == 'X');
    const char* const from = source.data() + (hex ? 3 : 2);
    uint32_t code = 0;
    const auto [end, error] = std::from_chars(std::min(from, source.data() + source.size()),
                                              source.data() + source.size(), code, hex ? 16 : 10);
    const bool ended = end != source.data() + source.size() && *end == ';';
    const bool isCharacter = code != 0 && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
    if (error != std::errc() || !ended || !isCharacter) return {};
    const char32_t character = code;
    return {static_cast<std::size_t>(end - source.data()) + 1, QString::fromUcs4(&character, 1).toUtf8()};
}

// `source` begins with "&"
Reference reference(string_view source) {
    if (source.substr(0, 2) == "&#"sv) return numericReference(source);
    if (startsWithHtmlText(source, "&lt;"sv)) return {4, "<"};
    if (startsWithHtmlText(source, "&gt;"sv)) return {4, ">"};
    if (startsWithHtmlText(source, "&nbsp;"sv)) return {6, "\xC2\xA0"};
    return {};
}

}  // namespace

QByteArray asUri(string_view address) {
    QByteArray out;
    out.reserve(static_cast<qsizetype>(address.size()) + 16);
    append(out, address);
    return out;
}

QByteArray attributeAsUri(string_view source) {
    QByteArray out;
    out.reserve(static_cast<qsizetype>(source.size()) + 16);
    while (!source.empty()) {
        const std::size_t plain = std::min(source.find('&'), source.size());
        append(out, source.substr(0, plain));
        source.remove_prefix(plain);
        if (source.empty()) break;
        const Reference found = reference(source);
        const bool stays = found.length == 0 || (found.octets.size() == 1 && mayStand(found.octets[0]));
        if (stays) {
            out += '&';
            source.remove_prefix(1);
        } else {
            append(out, {found.octets.constData(), static_cast<std::size_t>(found.octets.size())});
            source.remove_prefix(found.length);
        }
    }
    return out;
}

}  // namespace mail
