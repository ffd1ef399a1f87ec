// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/Unsubscribe.h"

#include <algorithm>
#include <QRegularExpression>
#include <QUrl>

#include "platform/mail/HeaderText.h"
#include "platform/mail/HtmlReferences.h"

namespace mail {
namespace {

constexpr qsizetype longestLink = 900;  // it cannot be folded, and a line has at most 998 octets

QByteArray mailLink(const Mailbox& sender) {
    return "mailto:" + sender.localPart.toPercentEncoding("!$'*+") + '@' + sender.domain.toPercentEncoding() +
           "?subject=unsubscribe";
}

// Line ends and tabs inside an address mean nothing in HTML; broken characters mean nothing anywhere
QString withoutLineEnds(QString link) {
    link.removeIf([](QChar c) { return c == u'\r' || c == u'\n' || c == u'\t'; });
    return QString::fromUtf8(link.toUtf8());
}

bool namesItsGoal(const QString& link) {
    const QUrl url(link);
    if (url.scheme() == QLatin1String("mailto")) return parseAddrSpec(url.path(QUrl::FullyDecoded)).ok();
    return (url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http")) &&
           !url.host().isEmpty() && url.userInfo().isEmpty();
}

// As a URI may be in a header (RFC 3986): printable ASCII without blanks and angle brackets; else empty
QByteArray headerLink(const QString& link) {
    const QString given = link.size() <= longestLink ? withoutLineEnds(link) : QString();
    const QByteArray encoded = namesItsGoal(given) ? QUrl(given).toEncoded() : QByteArray();
    const bool stands = encoded.size() <= longestLink &&
                        std::all_of(encoded.begin(), encoded.end(),
                                    [](char c) { return c > 0x20 && c < 0x7F && c != '<' && c != '>'; });
    return stands ? encoded : QByteArray();
}

bool hasPlaceholder(const QString& link) {
    static const QRegularExpression placeholder(":::[a-z0-9]+:::");
    return placeholder.match(link).hasMatch();
}

}  // namespace

QString markedUnsubscribe(const QString& templateHtml) {
    const QString link =
        withoutLineEnds(QString::fromUtf8(findReferences(templateHtml.toUtf8()).unsubscribe));
    return namesItsGoal(link) ? link : QString();
}

bool markedOneClick(const QString& templateHtml) {
    const HtmlReferences references = findReferences(templateHtml.toUtf8());
    return references.oneClick && references.unsubscribe.toLower().startsWith("https://");
}

QByteArray unsubscribeHeaders(const QString& link, bool oneClick, const Mailbox& sender) {
    const QByteArray given = headerLink(link);
    if (given.isEmpty()) return foldedHeader("List-Unsubscribe", '<' + mailLink(sender) + '>');
    if (!oneClick || !given.startsWith("https://") || hasPlaceholder(link))
        return foldedHeader("List-Unsubscribe", '<' + given + '>');
    return foldedHeader("List-Unsubscribe", '<' + given + ">, <" + mailLink(sender) + '>') +
           "List-Unsubscribe-Post: List-Unsubscribe=One-Click\r\n";
}

}  // namespace mail
