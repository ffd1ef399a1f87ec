// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/MissingImages.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "platform/html/HtmlTokens.h"
#include "platform/html/LocalFile.h"

namespace html {
namespace {

using namespace std::string_view_literals;
using std::string_view;

// "image" is another name of "img" to a parser
constexpr std::array pictures = {"img"sv, "image"sv, "input"sv};

// The address as the URL parser reads it; empty where that is not known here
QString plainAddress(string_view source) {
    QString address = QString::fromUtf8(source.data(), static_cast<qsizetype>(source.size()));
    address.replace(QLatin1String("&amp;"), QString(QChar(0)));
    if (address.contains(u'&')) return {};
    address.replace(QChar(0), u'&').remove(u'\t').remove(u'\n').remove(u'\r').replace(u'\\', u'/');
    return address.trimmed();
}

class Marker {
  public:
    explicit Marker(const QByteArray& html)
        : m_html(html.constData(), static_cast<std::size_t>(html.size())) {}

    /// Where an address of a missing file begins, in order.
    std::vector<qsizetype> places() {
        HtmlTokens tokens(m_html);
        for (auto kind = tokens.next(); kind != HtmlTokens::Kind::End; kind = tokens.next())
            if (kind == HtmlTokens::Kind::Tag) look(tokens.tag());
        std::vector<qsizetype> missing;
        for (const auto& [at, relative] : m_found)
            if (!relative || !m_based) missing.push_back(at);
        std::sort(missing.begin(), missing.end());  // the attributes of a tag are in any order
        return missing;
    }

  private:
    struct Found {
        qsizetype at;
        bool relative;
    };

    void look(const HtmlTag& tag) {
        if (sameHtmlText(tag.name, "base"sv) && !tag.href.empty()) m_based = true;
        const bool picture = std::any_of(pictures.begin(), pictures.end(),
                                         [&tag](string_view name) { return sameHtmlText(tag.name, name); });
        if (picture) judge(tag.src);
        judge(tag.background);
    }

    void judge(string_view source) {
        static const QUrl root(QStringLiteral("file:///"));
        const QString address = source.empty() ? QString() : plainAddress(source);
        if (address.isEmpty()) return;
        const QUrl named(address);
        if (!named.isValid()) return;
        const QUrl file = root.resolved(named);
        if (file.isLocalFile() && !namesLocalFile(file))
            m_found.push_back(
                {source.data() - m_html.data(), named.isRelative() && !address.startsWith(u'/')});
    }

    const string_view m_html;
    std::vector<Found> m_found;
    bool m_based = false;
};

}  // namespace

QString markMissingImages(const QString& source, const QString& mark) {
    const QByteArray html = source.toUtf8();
    const std::vector<qsizetype> places = Marker(html).places();
    if (places.empty()) return source;
    const QByteArray inserted = mark.toUtf8();
    QByteArray marked;
    marked.reserve(html.size() + static_cast<qsizetype>(places.size()) * inserted.size());
    qsizetype from = 0;
    for (const qsizetype at : places) {
        marked.append(html.constData() + from, at - from).append(inserted);
        from = at;
    }
    marked.append(html.constData() + from, html.size() - from);
    return QString::fromUtf8(marked);
}

}  // namespace html
