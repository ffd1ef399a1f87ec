// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/AddrSpec.h"

#include <algorithm>
#include <cstring>

#include "platform/mail/DomainName.h"
#include "platform/text/Blanks.h"
#include "platform/text/Words.h"

namespace mail {
namespace {

constexpr qsizetype maximumLength = 254;  // RFC 5321 4.5.3.1.3: a path of 256 octets, less its angle brackets

bool isLetterOrDigit(unsigned char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// RFC 5322 3.2.3, with the characters of RFC 6532 3.2
bool isAtomText(unsigned char c) {
    return isLetterOrDigit(c) || c >= 0x80 || (c != 0 && std::strchr("!#$%&'*+-/=?^_`{|}~", c) != nullptr);
}

bool isDotAtom(const QByteArray& text) {
    bool expectsText = true;
    for (const char c : text) {
        if (c == '.') {
            if (expectsText) return false;
            expectsText = true;
        } else {
            if (!isAtomText(static_cast<unsigned char>(c))) return false;
            expectsText = false;
        }
    }
    return !expectsText;
}

// RFC 5321 4.1.2: any printable character; a backslash takes the next one as it is
bool isQuotedString(const QByteArray& text) {
    if (text.size() < 2 || !text.startsWith('"') || !text.endsWith('"')) return false;
    for (qsizetype i = 1; i < text.size() - 1; ++i) {
        if (text[i] == '"') return false;
        if (text[i] == '\\' && ++i == text.size() - 1) return false;
    }
    return true;
}

// RFC 5321 4.1.3: an address in square brackets; the server decides whether it is a host
bool isDomainLiteral(const QByteArray& domain) {
    if (domain.size() < 3 || !domain.startsWith('[') || !domain.endsWith(']')) return false;
    return std::all_of(domain.begin() + 1, domain.end() - 1,
                       [](char c) { return isLetterOrDigit(c) || c == '.' || c == ':' || c == '-'; });
}

bool isAscii(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

bool isRefusedCharacter(char32_t c) {
    return c < 0x20 || (c >= 0x7F && c < 0xA0) || c == 0x2028 || c == 0x2029;
}

}  // namespace

Result<Mailbox> parseAddrSpec(const QString& text) {
    const auto refusal = [] {
        return Status(ErrorCode::TypeMismatch, Words::tr("L'indirizzo di posta elettronica non è valido."));
    };
    const QString plain = text::trimBlanks(text).toString();
    if (!plain.isValidUtf16() ||
        std::any_of(plain.begin(), plain.end(), [](QChar c) { return isRefusedCharacter(c.unicode()); })) {
        return refusal();
    }
    const qsizetype at = plain.lastIndexOf(u'@');
    if (at < 0) return refusal();

    Mailbox mailbox;
    mailbox.localPart = plain.left(at).toUtf8();
    mailbox.domain = asciiDomain(plain.mid(at + 1));
    mailbox.needsSmtputf8 = !isAscii(plain.left(at));
    if (!isDotAtom(mailbox.localPart) && !isQuotedString(mailbox.localPart)) return refusal();
    if (!isDomainName(mailbox.domain) && !isDomainLiteral(mailbox.domain)) return refusal();
    if (mailbox.address().size() > maximumLength) return refusal();
    return mailbox;
}

}  // namespace mail
