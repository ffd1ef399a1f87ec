// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/HeaderText.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <vector>

namespace mail {
namespace {

constexpr qsizetype lineLimit = 78;
// Below the 75 that RFC 2047 allows, so that the first word fits after each header's name
constexpr qsizetype wordLimit = 69;
constexpr std::string_view qOpening = "=?utf-8?Q?";
constexpr std::string_view bOpening = "=?utf-8?B?";
constexpr std::string_view closing = "?=";
constexpr qsizetype nameLimit =
    1000;  // of a display name; spam filters cut a header at 8 KB and miss the address
constexpr qsizetype sectionLimit = 60;  // of a parameter's value
constexpr qsizetype payloadLimit = wordLimit - static_cast<qsizetype>(qOpening.size() + closing.size());

// What may be literal in an encoded word anywhere in a header (RFC 2047 5, rule 3)
bool isEncodedWordLiteral(unsigned char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
           (c != 0 && std::strchr("!*+-/", c) != nullptr);
}

bool isAtomText(char c) {
    return isEncodedWordLiteral(static_cast<unsigned char>(c)) ||
           (c != 0 && std::strchr("#$%&'=?^_`{|}~", c) != nullptr);
}

// True when the text can be written as it is and survives folding and reading unchanged
bool isPlain(const QByteArray& text) {
    if (text.startsWith(' ') || text.endsWith(' ') || text.contains("=?")) return false;
    qsizetype word = 0;
    char before = '\0';
    for (const char c : text) {
        if (static_cast<unsigned char>(c) >= 0x7F || (c == ' ' && before == ' ')) return false;
        word = c == ' ' ? 0 : word + 1;
        if (word > wordLimit) return false;
        before = c;
    }
    return true;
}

bool isAscii(const QByteArray& text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

qsizetype qLength(unsigned char c) {
    return isEncodedWordLiteral(c) || c == ' ' ? 1 : 3;
}

void appendQ(QByteArray& out, const QByteArray& piece) {
    static constexpr char digits[] = "0123456789ABCDEF";
    for (const char raw : piece) {
        const auto c = static_cast<unsigned char>(raw);
        if (isEncodedWordLiteral(c)) {
            out += raw;
        } else if (c == ' ') {
            out += '_';
        } else {
            out += '=';
            out += digits[c >> 4];
            out += digits[c & 15];
        }
    }
}

qsizetype characterLength(const QByteArray& utf8, qsizetype at) {
    qsizetype end = at + 1;
    while (end < utf8.size() && (static_cast<unsigned char>(utf8[end]) & 0xC0) == 0x80)
        ++end;
    return end - at;
}

QByteArray encodedWords(const QByteArray& utf8) {
    qsizetype asQ = 0;
    for (const char c : utf8)
        asQ += qLength(static_cast<unsigned char>(c));
    // Base64 for ASCII looks like an attempt to hide something, and filters mark it
    const bool useQ = asQ <= utf8.size() * 4 / 3 || isAscii(utf8);

    QByteArray out;
    out.reserve(utf8.size() * 2 + 32);
    for (qsizetype from = 0; from < utf8.size();) {
        qsizetype to = from;
        qsizetype length = 0;
        while (to < utf8.size()) {
            const qsizetype character = characterLength(utf8, to);
            qsizetype longer = length;
            if (useQ) {
                for (qsizetype i = to; i < to + character; ++i)
                    longer += qLength(static_cast<unsigned char>(utf8[i]));
            } else {
                longer = (to + character - from + 2) / 3 * 4;
            }
            if (longer > payloadLimit) break;
            length = longer;
            to += character;
        }
        const QByteArray piece = utf8.mid(from, to - from);
        if (!out.isEmpty()) out += ' ';
        out.append(useQ ? qOpening.data() : bOpening.data());
        if (useQ) {
            appendQ(out, piece);
        } else {
            out += piece.toBase64();
        }
        out.append(closing.data());
        from = to;
    }
    return out;
}

QByteArray quoted(const QByteArray& text) {
    QByteArray out = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') out += '\\';
        out += c;
    }
    return out + '"';
}

// Without half a character at the end
QString firstCharacters(const QString& text, qsizetype most) {
    return text.left(most > 0 && most < text.size() && text[most - 1].isHighSurrogate() ? most - 1 : most);
}

bool breaksLine(QChar c) {
    return c.category() == QChar::Other_Control || c.unicode() == 0x2028 || c.unicode() == 0x2029;
}

}  // namespace

QString singleLine(QString text) {
    if (std::any_of(text.cbegin(), text.cend(), breaksLine)) {
        std::replace_if(text.begin(), text.end(), breaksLine, QChar(u' '));
    }
    return text;
}

QByteArray unstructuredText(const QString& text) {
    const QByteArray utf8 = singleLine(text).toUtf8();
    return isPlain(utf8) ? utf8 : encodedWords(utf8);
}

QByteArray namedAddress(const QString& name, const QByteArray& address) {
    const QByteArray plain = singleLine(firstCharacters(name, nameLimit)).toUtf8();
    if (plain.trimmed().isEmpty()) return address;
    QByteArray phrase = plain;
    const bool isAtoms =
        std::all_of(plain.begin(), plain.end(), [](char c) { return c == ' ' || isAtomText(c); });
    if (!isAtoms) phrase = quoted(plain);
    // in quotes, backslashes may have lengthened a word, and readers take angle brackets for the address
    if (!isPlain(plain) || !isPlain(phrase) || plain.contains('<') || plain.contains('>'))
        phrase = encodedWords(plain);
    return phrase + " <" + address + '>';
}

QByteArray parameter(const QByteArray& name, const QString& value) {
    const QByteArray utf8 = singleLine(value).toUtf8();
    const QByteArray opening = ";\r\n " + name;
    // measured in quotes: there a quotation mark or a backslash takes two octets
    if (const QByteArray inQuotes = quoted(utf8); isPlain(utf8) && inQuotes.size() <= sectionLimit + 2)
        return opening + '=' + inQuotes;

    std::vector<QByteArray> sections{"utf-8''"};
    for (qsizetype at = 0; at < utf8.size();) {
        const qsizetype length = characterLength(utf8, at);
        const QByteArray character = utf8.mid(at, length).toPercentEncoding({}, "~");
        if (sections.back().size() + character.size() > sectionLimit) sections.emplace_back();
        sections.back() += character;
        at += length;
    }
    if (sections.size() == 1) return opening + "*=" + sections.front();
    QByteArray out;
    for (std::size_t i = 0; i < sections.size(); ++i) {
        out += opening + '*' + QByteArray::number(i) + "*=" + sections[i];
    }
    return out;
}

QByteArray foldedHeader(const QByteArray& name, const QByteArray& value) {
    QByteArray out = name + ':';
    out.reserve(out.size() + value.size() + value.size() / 32 + 8);
    qsizetype column = out.size();
    for (qsizetype from = 0; from < value.size();) {
        qsizetype to = value.indexOf(' ', from);
        if (to < 0) to = value.size();
        const qsizetype length = to - from;
        if (from > 0 && column + 1 + length > lineLimit) {
            out += "\r\n";
            column = 0;
        }
        out += ' ';
        out.append(value.constData() + from, length);
        column += 1 + length;
        from = to + 1;
    }
    return out += "\r\n";
}

}  // namespace mail
