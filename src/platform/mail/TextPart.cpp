// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/TextPart.h"

#include <algorithm>

#include "platform/mail/HeaderText.h"
#include "platform/mail/HtmlReferences.h"
#include "platform/mail/WebAddress.h"

namespace mail {
namespace {

constexpr int mostEmptyLines = 2;

// Newsletters fill the space after their preheader with these
bool hasNoWidth(QChar c) {
    return c == QChar(0x00AD) || c == QChar(0x034F) || (c >= QChar(0x200B) && c <= QChar(0x200F)) ||
           c == QChar(0x2060) || c == QChar(0xFEFF) || c == QChar(0);
}

QString listOfLinks(const HtmlReferences& html, const QString& text) {
    QString list;
    for (const HtmlReferences::Link& link : html.links) {
        const QString uri = QString::fromUtf8(
            asUri({link.address.constData(), static_cast<std::size_t>(link.address.size())}));
        if (text.contains(uri) || text.contains(QString::fromUtf8(link.address))) continue;
        const QString shown = QString::fromUtf8(link.text);
        list += (isBlankText(shown) ? QString() : shown + QLatin1String(": ")) + uri + QLatin1String("\r\n");
    }
    return list;
}

}  // namespace

bool isBlankText(QStringView text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.isSpace() || hasNoWidth(c); });
}

QString withoutLongGaps(const QString& text) {
    QString out;
    int emptyLines = 0;
    const QStringView all = text;
    qsizetype kept = 0;  // after this nothing was left out, and nothing is appended yet
    for (qsizetype from = 0; from < all.size();) {
        const auto lineEnd =
            std::find_if(all.begin() + from, all.end(), [](QChar c) { return c == u'\r' || c == u'\n'; });
        qsizetype end = lineEnd - all.begin();
        const bool empty = isBlankText(all.sliced(from, end - from));
        if (end < all.size()) end += all.sliced(end).startsWith(QLatin1String("\r\n")) ? 2 : 1;
        emptyLines = empty ? emptyLines + 1 : 0;
        if (emptyLines > mostEmptyLines) {
            out += all.sliced(kept, from - kept);
            kept = end;
        }
        from = end;
    }
    if (kept == 0) return text;
    out += all.sliced(kept);
    return out;
}

QString textPart(const QString& bodyText, const HtmlReferences& html, const QString& subject) {
    QString text = withoutLongGaps(bodyText);
    if (isBlankText(text)) text = QString::fromUtf8(html.alternativeTexts);
    if (isBlankText(text)) text = singleLine(subject);
    const QString links = listOfLinks(html, text);
    if (links.isEmpty()) return text;
    if (isBlankText(text)) text.clear();
    if (!text.isEmpty() && !text.endsWith(u'\n') && !text.endsWith(u'\r')) text += QLatin1String("\r\n");
    return text + (text.isEmpty() ? QLatin1String() : QLatin1String("\r\n")) +
           QLatin1String("Collegamenti:\r\n") + links;
}

}  // namespace mail
