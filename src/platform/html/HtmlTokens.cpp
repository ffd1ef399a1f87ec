// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/HtmlTokens.h"

#include <algorithm>
#include <array>

namespace html {
namespace {

using namespace std::string_view_literals;
using std::string_view;

constexpr bool isLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}
char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// What a character ends inside a tag, and what most names consist of
constexpr unsigned char atBlank = 1, atSlash = 2, atTagEnd = 4, atEquals = 8, letterOrDigit = 16;

constexpr std::array<unsigned char, 256> classes = [] {
    std::array<unsigned char, 256> table{};
    for (const char blank : " \t\n\r\f"sv)
        table[static_cast<unsigned char>(blank)] = atBlank;
    table['/'] = atSlash;
    table['>'] = atTagEnd;
    table['='] = atEquals;
    for (unsigned char c = 0; c < 0x80; ++c)
        if (isLetter(static_cast<char>(c)) || (c >= '0' && c <= '9')) table[c] = letterOrDigit;
    return table;
}();

bool isAny(char c, int wanted) {
    return (classes[static_cast<unsigned char>(c)] & wanted) != 0;
}

string_view* placeOf(HtmlTag& tag, string_view name) {
    static constexpr std::array<std::pair<string_view, string_view HtmlTag::*>, 9> places = {
        {{"src"sv, &HtmlTag::src},
         {"href"sv, &HtmlTag::href},
         {"alt"sv, &HtmlTag::alt},
         {"style"sv, &HtmlTag::style},
         {"rel"sv, &HtmlTag::rel},
         {"background"sv, &HtmlTag::background},
         {"content"sv, &HtmlTag::content},
         {"charset"sv, &HtmlTag::charset},
         {"http-equiv"sv, &HtmlTag::httpEquiv}}};
    for (const auto& [known, place] : places)
        if (sameHtmlText(name, known)) return &(tag.*place);
    return nullptr;
}

}  // namespace

bool sameHtmlText(string_view a, string_view b) {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return lower(x) == lower(y); });
}

bool startsWithHtmlText(string_view text, string_view start) {
    return text.size() >= start.size() && sameHtmlText(text.substr(0, start.size()), start);
}

bool isHtmlBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

string_view trimmedHtml(string_view text) {
    while (!text.empty() && isHtmlBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isHtmlBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

namespace {

constexpr std::size_t shortestRawTextTag = 3;

bool hasRawText(string_view tagName) {
    static constexpr std::array names = {"style"sv, "script"sv, "textarea"sv, "title"sv,
                                         "xmp"sv,   "iframe"sv, "noembed"sv,  "noframes"sv};
    if (tagName.size() < shortestRawTextTag) return false;
    return std::any_of(names.begin(), names.end(),
                       [tagName](string_view name) { return sameHtmlText(tagName, name); });
}

}  // namespace

HtmlTokens::Kind HtmlTokens::next() {
    if (m_rawTextNext) {
        m_rawTextNext = false;
        const std::size_t end = endOfRawText();
        m_text = m_html.substr(m_at, end - m_at);
        m_at = end;
        return Kind::RawText;
    }
    while (!atEnd()) {
        if (!startsMarkup(m_at)) {
            const std::size_t from = m_at++;
            while (!atEnd() && !startsMarkup(m_at))
                m_at = std::min(m_html.find('<', m_at + 1), m_html.size());
            m_text = m_html.substr(from, m_at - from);
            return Kind::Text;
        }
        const char following = m_html[m_at + 1];
        if (isLetter(following)) {
            ++m_at;
            readTag();
            m_rawTextNext = hasRawText(m_tag.name);
            return Kind::Tag;
        }
        if (m_html.compare(m_at, 4, "<!--") == 0) {
            skipComment();
        } else if (following == '/' && isLetter(m_html[m_at + 2])) {
            m_at += 2;
            readTag();
            return Kind::EndTag;
        } else {
            readUntil([](char c) { return c == '>'; });  // browsers turn it into a comment
            if (!atEnd()) ++m_at;
        }
    }
    return Kind::End;
}

void HtmlTokens::skipBare() {
    if (m_rawTextNext) return;
    while ((m_at = std::min(m_html.find('<', m_at), m_html.size())) != m_html.size()) {
        std::size_t at = m_at + 1;
        const bool endTag = at < m_html.size() && m_html[at] == '/';
        if (endTag) ++at;
        const std::size_t from = at;
        while (at < m_html.size() && isAny(m_html[at], letterOrDigit))
            ++at;
        const bool bare = at < m_html.size() && m_html[at] == '>' && isLetter(m_html[from]);
        if (!bare || (!endTag && hasRawText(m_html.substr(from, at - from)))) return;
        m_at = at + 1;
    }
}

bool HtmlTokens::startsMarkup(std::size_t at) const {
    if (m_html[at] != '<' || at + 1 >= m_html.size()) return false;
    const char following = m_html[at + 1];
    return isLetter(following) || following == '!' || following == '?' ||
           (following == '/' && at + 2 < m_html.size());
}

std::size_t HtmlTokens::find(string_view wanted, std::size_t from, std::size_t& known) const {
    if (known == m_html.npos || known >= from) return known;
    return known = m_html.find(wanted, from);
}

// Its opening may be its end as well: "<!-->" and "<!--->" are whole comments
void HtmlTokens::skipComment() {
    const std::size_t end = find("-->"sv, m_at + 2, m_commentEnd);
    const std::size_t oddEnd = find("--!>"sv, m_at + 4, m_oddCommentEnd);
    if (end == m_html.npos && oddEnd == m_html.npos)
        m_at = m_html.size();
    else
        m_at = end < oddEnd ? end + 3 : oddEnd + 4;
}

template <class Condition>
string_view HtmlTokens::readUntil(Condition stop) {
    const std::size_t from = m_at;
    const auto end = std::find_if(m_html.begin() + static_cast<std::ptrdiff_t>(from), m_html.end(), stop);
    m_at = static_cast<std::size_t>(end - m_html.begin());
    return m_html.substr(from, m_at - from);
}

void HtmlTokens::readTag() {
    m_tag = {};
    m_tag.name = readUntil([](char c) { return isAny(c, atBlank | atSlash | atTagEnd); });
    const std::size_t from = m_at;
    for (;;) {
        const string_view between = readUntil([](char c) { return !isAny(c, atBlank | atSlash); });
        if (atEnd()) return;
        if (m_html[m_at] == '>') {
            m_tag.attributes = m_html.substr(from, m_at - from);
            m_tag.selfClosing = !between.empty() && between.back() == '/';
            ++m_at;
            return;
        }
        ++m_tag.attributeCount;
        readAttribute();
    }
}

void HtmlTokens::readAttribute() {
    const std::size_t from = m_at++;  // a "=" in front is part of the name
    readUntil([](char c) { return isAny(c, atBlank | atSlash | atTagEnd | atEquals); });
    const string_view name = m_html.substr(from, m_at - from);
    readUntil([](char c) { return !isHtmlBlank(c); });
    if (atEnd() || m_html[m_at] != '=') return;
    ++m_at;
    readUntil([](char c) { return !isHtmlBlank(c); });
    const string_view value = readValue();
    string_view* const place = placeOf(m_tag, name);
    if (place != nullptr && place->data() == nullptr) *place = value;
}

string_view HtmlTokens::readValue() {
    if (atEnd()) return {};
    const char quote = m_html[m_at];
    if (quote != '"' && quote != '\'') return readUntil([](char c) { return isHtmlBlank(c) || c == '>'; });
    ++m_at;
    const string_view value = m_html.substr(m_at, m_html.find(quote, m_at) - m_at);
    m_at = std::min(m_html.size(), m_at + value.size() + 1);
    return value;
}

std::size_t HtmlTokens::endOfRawText() const {
    for (std::size_t end = m_at; (end = m_html.find("</"sv, end)) != m_html.npos; ++end)
        if (startsWithHtmlText(m_html.substr(end + 2), m_tag.name)) return end;
    return m_html.size();
}

}  // namespace html
