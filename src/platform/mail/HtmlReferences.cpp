// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/HtmlReferences.h"

#include <algorithm>
#include <array>
#include <QString>
#include <string_view>
#include <utility>

#include "platform/html/HtmlTokens.h"

namespace mail {
namespace {

using namespace std::string_view_literals;
using html::HtmlTag;
using html::HtmlTokens;
using html::isHtmlBlank;
using html::sameHtmlText;
using html::startsWithHtmlText;
using html::trimmedHtml;
using std::string_view;

constexpr qsizetype longestLinkText = 300;
constexpr qsizetype mostAlternativeText = 4000;

// `wanted` is in lower case and begins with a letter
std::size_t findText(string_view text, string_view wanted) {
    const std::array<char, 2> first = {wanted.front(), static_cast<char>(wanted.front() - 'a' + 'A')};
    for (std::size_t at = 0; (at = text.find_first_of(string_view(first.data(), 2), at)) != text.npos; ++at)
        if (startsWithHtmlText(text.substr(at), wanted)) return at;
    return text.npos;
}

bool hasWord(string_view words, string_view wanted) {
    while (!(words = trimmedHtml(words)).empty()) {
        const auto end = std::find_if(words.begin(), words.end(), isHtmlBlank);
        if (sameHtmlText({words.begin(), end}, wanted)) return true;
        words.remove_prefix(static_cast<std::size_t>(end - words.begin()));
    }
    return false;
}

bool isWebAddress(string_view address) {
    return startsWithHtmlText(address, "https://"sv) || startsWithHtmlText(address, "http://"sv);
}

// The references that serialised addresses contain; any other one stays unchanged, which makes the address
// unknown
QByteArray decoded(string_view text) {
    static constexpr std::array<std::pair<string_view, string_view>, 7> references = {
        {{"&amp;"sv, "&"sv},
         {"&quot;"sv, "\""sv},
         {"&#39;"sv, "'"sv},
         {"&apos;"sv, "'"sv},
         {"&lt;"sv, "<"sv},
         {"&gt;"sv, ">"sv},
         {"&nbsp;"sv, "\xC2\xA0"sv}}};
    QByteArray out;
    out.reserve(static_cast<qsizetype>(text.size()));
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t plain = std::min(text.find('&', at), text.size());
        out.append(text.data() + at, static_cast<qsizetype>(plain - at));
        if ((at = plain) == text.size()) break;
        const auto found = std::find_if(references.begin(), references.end(), [&](const auto& reference) {
            return startsWithHtmlText(text.substr(at), reference.first);
        });
        const bool known = found != references.end();
        out.append(known ? found->second.data() : "&",
                   known ? static_cast<qsizetype>(found->second.size()) : 1);
        at += known ? found->first.size() : 1;
    }
    return out;
}

// Without half a character at its end
string_view startOf(string_view text, std::size_t octets) {
    if (text.size() <= octets) return text;
    while (octets > 0 && (static_cast<unsigned char>(text[octets]) & 0xC0) == 0x80)
        --octets;
    return text.substr(0, octets);
}

// Whether the texts before and after the tag are shown separately
bool separatesWords(string_view tagName) {
    static constexpr std::array names = {"br"sv, "p"sv,  "div"sv, "td"sv, "th"sv, "tr"sv,    "li"sv,
                                         "h1"sv, "h2"sv, "h3"sv,  "h4"sv, "hr"sv, "table"sv, "img"sv};
    return std::any_of(names.begin(), names.end(),
                       [tagName](string_view name) { return sameHtmlText(tagName, name); });
}

QByteArray inOneLine(const QByteArray& text) {
    return QString::fromUtf8(text).simplified().toUtf8();
}

class Reader {
  public:
    explicit Reader(const QByteArray& html)
        : m_html(html.constData(), static_cast<std::size_t>(html.size())), m_tokens(m_html) {}

    HtmlReferences read() {
        using Kind = HtmlTokens::Kind;
        for (Kind kind = nextKind(); kind != Kind::End; kind = nextKind()) {
            if (kind == Kind::Text)
                showText(m_tokens.text());
            else if (kind == Kind::Tag)
                use(m_tokens.tag());
            else if (kind == Kind::EndTag)
                useEnd(m_tokens.tag());
            else if (sameHtmlText(m_tokens.tag().name, "style"sv))
                findStyleImages(m_tokens.text());
        }
        endLink();
        // the attributes of one tag may be in any order
        const auto inOrder = [](const auto& a, const auto& b) { return a.from < b.from; };
        std::sort(m_found.images.begin(), m_found.images.end(), inOrder);
        std::sort(m_found.charsets.begin(), m_found.charsets.end(), inOrder);
        std::sort(m_found.addresses.begin(), m_found.addresses.end(), inOrder);
        return std::move(m_found);
    }

  private:
    /// A link's text is read whole. Outside of links only attributes and styles mean anything.
    HtmlTokens::Kind nextKind() {
        if (!m_inLink) m_tokens.skipBare();
        return m_tokens.next();
    }

    void use(const HtmlTag& tag) {
        if (tag.attributeCount == 0 && !m_inLink) return;  // most of them
        if (!tag.style.empty()) findStyleImages(tag.style);
        addImage(trimmedHtml(tag.background));
        addAddress(trimmedHtml(tag.href));
        addAddress(trimmedHtml(tag.src));
        if (sameHtmlText(tag.name, "img"sv)) {
            addImage(trimmedHtml(tag.src));
            addAlternativeText(tag.alt);
        } else if (sameHtmlText(tag.name, "meta"sv)) {
            useMeta(tag);
        } else if (sameHtmlText(tag.name, "a"sv)) {
            useUnsubscribe(tag);
            endLink();
            beginLink(tag);
        } else if (sameHtmlText(tag.name, "area"sv)) {
            useUnsubscribe(tag);
            beginLink(tag);
            showText(tag.alt);
            endLink();
        } else if (m_inLink && separatesWords(tag.name)) {
            showText(" "sv);
        }
    }

    void useEnd(const HtmlTag& tag) {
        if (!m_inLink) return;
        if (sameHtmlText(tag.name, "a"sv))
            endLink();
        else if (separatesWords(tag.name))
            showText(" "sv);
    }

    void useMeta(const HtmlTag& tag) {
        if (!tag.charset.empty()) add(m_found.charsets, tag.charset);
        if (!sameHtmlText(trimmedHtml(tag.httpEquiv), "content-type"sv)) return;
        const std::size_t at = findText(tag.content, "charset"sv);
        if (at == tag.content.npos) return;
        string_view value = trimmedHtml(tag.content.substr(at + "charset"sv.size()));
        if (value.empty() || value.front() != '=') return;
        value = trimmedHtml(value.substr(1));
        value = value.substr(0, value.find(';'));
        if (!value.empty()) add(m_found.charsets, value);
    }

    void useUnsubscribe(const HtmlTag& tag) {
        if (!m_found.unsubscribe.isEmpty() || !hasWord(tag.rel, "unsubscribe"sv)) return;
        const string_view address = trimmedHtml(tag.href);
        if (!isWebAddress(address) && !startsWithHtmlText(address, "mailto:"sv)) return;
        m_found.unsubscribe = decoded(address);
        m_found.oneClick = hasWord(tag.rel, "one-click"sv);
    }

    void beginLink(const HtmlTag& tag) {
        const string_view address = trimmedHtml(tag.href);
        m_inLink = m_found.links.size() < HtmlReferences::mostLinks &&
                   (isWebAddress(address) || startsWithHtmlText(address, "mailto:"sv) ||
                    startsWithHtmlText(address, "tel:"sv));
        if (m_inLink) m_link = {{}, decoded(address)};
    }

    void showText(string_view source) {
        if (!m_inLink || m_link.text.size() > longestLinkText) return;
        m_link.text += decoded(startOf(source, longestLinkText));
    }

    void endLink() {
        if (!std::exchange(m_inLink, false)) return;
        m_link.text = inOneLine(m_link.text);
        const bool known =
            std::any_of(m_found.links.begin(), m_found.links.end(), [this](const HtmlReferences::Link& link) {
                return link.text == m_link.text && link.address == m_link.address;
            });
        if (!known) m_found.links.push_back(std::move(m_link));
    }

    void addAlternativeText(string_view source) {
        showText(" "sv);
        showText(source);
        if (m_found.alternativeTexts.size() > mostAlternativeText) return;
        const QByteArray text = inOneLine(decoded(startOf(source, mostAlternativeText)));
        if (!text.isEmpty()) m_found.alternativeTexts += text + "\r\n";
    }

    void findStyleImages(string_view style) {
        while (true) {
            const std::size_t at = findText(style, "url("sv);
            if (at == style.npos) return;
            style = style.substr(at + 4);
            while (!style.empty() && isHtmlBlank(style.front()))
                style.remove_prefix(1);
            string_view end = ")"sv;
            for (const string_view quote : {"\""sv, "'"sv, "&quot;"sv, "&#39;"sv, "&apos;"sv}) {
                if (!startsWithHtmlText(style, quote)) continue;
                style.remove_prefix(quote.size());
                end = quote;
                break;
            }
            const std::size_t length = style.find(end);
            if (length == style.npos) return;
            addImage(trimmedHtml(style.substr(0, length)));
            style.remove_prefix(length);
        }
    }

    void addImage(string_view address) {
        const bool mayBeLocal = startsWithHtmlText(address, "/"sv) || startsWithHtmlText(address, "\\"sv) ||
                                startsWithHtmlText(address, "file:"sv);
        if (mayBeLocal) add(m_found.images, address);
    }

    void addAddress(string_view address) {
        if (isWebAddress(address)) add(m_found.addresses, address);
    }

    void add(std::vector<HtmlReferences::Place>& places, string_view text) {
        places.push_back({text.data() - m_html.data(), static_cast<qsizetype>(text.size()), decoded(text)});
    }

    const string_view m_html;
    HtmlTokens m_tokens;
    HtmlReferences m_found;
    bool m_inLink = false;
    HtmlReferences::Link m_link;
};

}  // namespace

HtmlReferences findReferences(const QByteArray& html) {
    return Reader(html).read();
}

}  // namespace mail
