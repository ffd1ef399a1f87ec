// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/policy/SpfMacro.h"

#include <algorithm>
#include <optional>
#include <QByteArrayList>

#include "platform/policy/DomainText.h"

namespace policy::spf {

namespace {

constexpr int allParts = 128;  // no name has more labels

/// One piece of a macro-string.
struct Piece {
    QByteArray literal;  ///< its text, where `letter` is 0
    char letter = 0;     ///< as written
    int parts = 0;       ///< rightmost ones to keep; 0: all
    bool reversed = false;
    QByteArray delimiters = ".";
    qsizetype end = 0;  ///< offset after it
};

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// The content of "%{...}", from after the brace
std::optional<Piece> readMacro(const QByteArray& text, qsizetype at) {
    static const QByteArray letters = "slodiphcrtv", delimiters = ".-+,/_=";
    Piece piece;
    if (at >= text.size() || !letters.contains(QByteArray(1, text[at]).toLower())) return std::nullopt;
    piece.letter = text[at++];
    if (at < text.size() && isDigit(text[at])) {
        for (; at < text.size() && isDigit(text[at]); ++at)
            piece.parts = std::min(allParts, piece.parts * 10 + (text[at] - '0'));
        if (piece.parts == 0) return std::nullopt;
    }
    if (at < text.size() && (text[at] == 'r' || text[at] == 'R')) {
        piece.reversed = true;
        ++at;
    }
    QByteArray own;
    for (; at < text.size() && delimiters.contains(text[at]); ++at)
        own += text[at];
    if (!own.isEmpty()) piece.delimiters = own;
    if (at >= text.size() || text[at] != '}') return std::nullopt;
    piece.end = at + 1;
    return piece;
}

std::optional<Piece> readPiece(const QByteArray& text, qsizetype at, Place place) {
    const char c = text[at];
    if (c != '%') {
        const bool isLiteral = (c > ' ' && c < 0x7f) || (c == ' ' && place == Place::Explanation);
        if (!isLiteral) return std::nullopt;
        Piece piece;
        piece.literal = QByteArray(1, c);
        piece.end = at + 1;
        return piece;
    }
    const char next = at + 1 < text.size() ? text[at + 1] : '\0';
    if (next == '{') {
        auto piece = readMacro(text, at + 2);
        const bool onlyExplained = piece && QByteArray("crt").contains(char(piece->letter | 0x20));
        if (onlyExplained && place == Place::Domain) return std::nullopt;
        return piece;
    }
    Piece piece;
    piece.end = at + 2;
    if (next == '%') piece.literal = "%";
    if (next == '_') piece.literal = " ";
    if (next == '-') piece.literal = "%20";
    if (piece.literal.isEmpty()) return std::nullopt;
    return piece;
}

bool isTopLabel(const QByteArray& label) {
    const auto isAlphanumeric = [](char c) { return isDigit(c) || isLetter(c); };
    if (label.isEmpty() || !isAlphanumeric(label.front()) || !isAlphanumeric(label.back())) return false;
    const bool allowed =
        std::all_of(label.begin(), label.end(), [&](char c) { return isAlphanumeric(c) || c == '-'; });
    return allowed && !std::all_of(label.begin(), label.end(), isDigit);
}

std::optional<QHostAddress> asIpv4(const QHostAddress& address) {
    bool isIpv4 = false;
    const quint32 ipv4 = address.toIPv4Address(&isIpv4);
    return isIpv4 ? std::optional(QHostAddress(ipv4)) : std::nullopt;
}

QByteArray readableAddress(const QHostAddress& address) {
    return asIpv4(address).value_or(address).toString().toLatin1();
}

QByteArray addressText(const QHostAddress& address) {
    if (asIpv4(address)) return readableAddress(address);
    QByteArray nibbles;
    const Q_IPV6ADDR octets = address.toIPv6Address();
    for (int i = 0; i < 16; ++i)
        nibbles += (i ? "." : "") + QByteArray::number(octets[i] >> 4, 16) + '.' +
                   QByteArray::number(octets[i] & 15, 16);
    return nibbles;
}

QByteArray valueOf(char letter, const MacroValues& values) {
    const qsizetype at = values.sender.lastIndexOf('@');
    switch (letter) {
        case 's':
            return values.sender;
        case 'l':
            return values.sender.left(at);
        case 'o':
            return values.sender.mid(at + 1);
        case 'd':
            return values.domain;
        case 'i':
            return addressText(values.address);
        case 'p':
            return values.validated;
        case 'h':
            return values.helo;
        case 'c':
            return readableAddress(values.address);
        case 'r':
            return values.receiver;
        case 't':
            return QByteArray::number(values.when.toSecsSinceEpoch());
        default:
            return asIpv4(values.address) ? "in-addr" : "ip6";
    }
}

QByteArray transformed(const QByteArray& value, const Piece& piece) {
    QByteArrayList parts;
    QByteArray part;
    for (const char c : value) {
        if (piece.delimiters.contains(c)) {
            parts.append(part);
            part.clear();
        } else {
            part += c;
        }
    }
    parts.append(part);
    if (piece.reversed) std::reverse(parts.begin(), parts.end());
    if (piece.parts > 0 && parts.size() > piece.parts) parts = parts.mid(parts.size() - piece.parts);
    return parts.join('.');
}

}  // namespace

bool isMacroString(const QByteArray& text, Place place) {
    for (qsizetype at = 0; at < text.size();) {
        const auto piece = readPiece(text, at, place);
        if (!piece) return false;
        at = piece->end;
    }
    return true;
}

bool isDomainSpec(const QByteArray& text) {
    if (text.isEmpty()) return false;
    bool endsInMacro = false;
    QByteArray end;  // what follows the last macro
    for (qsizetype at = 0; at < text.size();) {
        const auto piece = readPiece(text, at, Place::Domain);
        if (!piece) return false;
        endsInMacro = piece->letter != 0;
        end = piece->letter ? QByteArray() : end + text.sliced(at, piece->end - at);
        at = piece->end;
    }
    if (endsInMacro) return true;
    if (end.endsWith('.')) end.chop(1);
    const qsizetype point = end.lastIndexOf('.');
    return point >= 0 && isTopLabel(end.sliced(point + 1));
}

bool needsValidatedName(const QByteArray& text) {
    for (qsizetype at = 0; at < text.size();) {
        const auto piece = readPiece(text, at, Place::Explanation);
        if (!piece) return false;
        if ((piece->letter | 0x20) == 'p' && piece->letter) return true;
        at = piece->end;
    }
    return false;
}

QByteArray expand(const QByteArray& text, const MacroValues& values) {
    QByteArray expanded;
    for (qsizetype at = 0; at < text.size();) {
        const auto piece = readPiece(text, at, Place::Explanation);
        if (!piece) break;
        at = piece->end;
        if (!piece->letter) {
            expanded += piece->literal;
            continue;
        }
        const QByteArray value = transformed(valueOf(char(piece->letter | 0x20), values), *piece);
        const bool escaped = piece->letter < 'a';
        expanded += escaped ? value.toPercentEncoding() : value;
    }
    return expanded;
}

QByteArray expandDomain(const QByteArray& text, const MacroValues& values) {
    constexpr qsizetype longestName = 253;
    QByteArray name = plainName(expand(text, values));
    while (name.size() > longestName) {
        const qsizetype point = name.indexOf('.');
        if (point < 0) break;
        name.remove(0, point + 1);
    }
    return name;
}

}  // namespace policy::spf
