// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/DomainName.h"

#include <algorithm>
#include <QHostAddress>
#include <QUrl>

#include "platform/text/Blanks.h"

namespace mail {
namespace {

constexpr qsizetype maximumLabel = 63;
constexpr qsizetype maximumName = 253;

bool isDecimal(char c) {
    return c >= '0' && c <= '9';
}

bool isLetterOrDigit(char c) {
    return isDecimal(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool isLabel(const QByteArray& label) {
    return !label.isEmpty() && label.size() <= maximumLabel && label.front() != '-' && label.back() != '-' &&
           std::all_of(label.begin(), label.end(),
                       [](char c) { return isLetterOrDigit(c) || c == '-' || c == '_'; });
}

// No top-level domain is one, but the system's resolver reads such a name as an address (RFC 3696 2)
bool isNumber(const QByteArray& label) {
    return std::all_of(label.begin(), label.end(), isDecimal) || label.startsWith("0x") ||
           label.startsWith("0X");
}

bool isIpAddress(const QString& text) {
    const bool mayBe = std::all_of(text.begin(), text.end(), [](QChar c) {
        return c.unicode() < 0x80 && (isLetterOrDigit(c.toLatin1()) || QStringView(u".:%").contains(c));
    });
    return mayBe && (text.contains(u':') || text.count(u'.') == 3) && !QHostAddress(text).isNull();
}

}  // namespace

QByteArray asciiDomain(const QString& domain) {
    const bool isAscii =
        std::all_of(domain.begin(), domain.end(), [](QChar c) { return c.unicode() < 0x80; });
    return isAscii ? domain.toLatin1() : QUrl::toAce(domain);
}

bool isDomainName(const QByteArray& text) {
    const auto labels = text.split('.');
    return text.size() <= maximumName && std::all_of(labels.begin(), labels.end(), isLabel);
}

QString connectableHost(const QString& name) {
    QString plain = text::trimBlanks(name).toString();
    if (isIpAddress(plain)) return plain;
    QByteArray host = asciiDomain(plain);
    if (host.endsWith('.')) host.chop(1);
    return isDomainName(host) && !isNumber(host.split('.').last()) ? QString::fromLatin1(host) : QString();
}

}  // namespace mail
