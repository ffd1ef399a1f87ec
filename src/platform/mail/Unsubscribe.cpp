#include "platform/mail/Unsubscribe.h"

#include <algorithm>
#include <QUrl>

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

}  // namespace

QString markedUnsubscribe(const QString& templateHtml) {
    const QString link =
        withoutLineEnds(QString::fromUtf8(findReferences(templateHtml.toUtf8()).unsubscribe));
    return namesItsGoal(link) ? link : QString();
}

QByteArray unsubscribeLink(const QString& link, const Mailbox& sender) {
    // As a URI may stand in a header (RFC 3986): printable ASCII without blanks and angle brackets
    const QString given = link.size() <= longestLink ? withoutLineEnds(link) : QString();
    const QByteArray encoded = namesItsGoal(given) ? QUrl(given).toEncoded() : QByteArray();
    const bool stands = !encoded.isEmpty() && encoded.size() <= longestLink &&
                        std::all_of(encoded.begin(), encoded.end(),
                                    [](char c) { return c > 0x20 && c < 0x7F && c != '<' && c != '>'; });
    return stands ? encoded : mailLink(sender);
}

}  // namespace mail
