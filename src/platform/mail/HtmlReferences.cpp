#include "platform/mail/HtmlReferences.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace mail {
namespace {

using namespace std::string_view_literals;
using std::string_view;

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}
bool isLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}
char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool sameText(string_view a, string_view b) {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return lower(x) == lower(y); });
}

bool startsWith(string_view text, string_view start) {
    return text.size() >= start.size() && sameText(text.substr(0, start.size()), start);
}

std::size_t findText(string_view text, string_view wanted, std::size_t from) {
    if (from > text.size()) return text.npos;
    const auto found =
        std::search(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(), wanted.begin(),
                    wanted.end(), [](char x, char y) { return lower(x) == lower(y); });
    return found == text.end() ? text.npos : static_cast<std::size_t>(found - text.begin());
}

string_view trimmed(string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

bool hasWord(string_view words, string_view wanted) {
    while (!(words = trimmed(words)).empty()) {
        const auto end = std::find_if(words.begin(), words.end(), isBlank);
        if (sameText({words.begin(), end}, wanted)) return true;
        words.remove_prefix(static_cast<std::size_t>(end - words.begin()));
    }
    return false;
}

// The references that serialised addresses hold; any other one stays as it is, which makes the address
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
    while (!text.empty()) {
        const auto found = std::find_if(references.begin(), references.end(), [text](const auto& reference) {
            return startsWith(text, reference.first);
        });
        if (text.front() == '&' && found != references.end()) {
            out.append(found->second.data(), static_cast<qsizetype>(found->second.size()));
            text.remove_prefix(found->first.size());
        } else {
            out += text.front();
            text.remove_prefix(1);
        }
    }
    return out;
}

// The attributes that matter, of one tag; absent ones are null
struct Tag {
    string_view name, src, background, style, charset, httpEquiv, content, rel, href;
};

class Reader {
  public:
    explicit Reader(const QByteArray& html)
        : m_html(html.constData(), static_cast<std::size_t>(html.size())) {}

    HtmlReferences read() {
        while ((m_at = m_html.find('<', m_at)) != m_html.npos && m_at + 1 < m_html.size())
            readMarkup();
        // the attributes of one tag may stand in any order
        const auto inOrder = [](const auto& a, const auto& b) { return a.from < b.from; };
        std::sort(m_found.images.begin(), m_found.images.end(), inOrder);
        std::sort(m_found.charsets.begin(), m_found.charsets.end(), inOrder);
        return std::move(m_found);
    }

  private:
    void readMarkup() {
        const char next = m_html[m_at + 1];
        const bool isEnd = next == '/' && m_at + 2 < m_html.size();
        if (m_html.compare(m_at, 4, "<!--") == 0) {
            skipComment();
        } else if (isLetter(next)) {
            ++m_at;
            const Tag tag = readTag();
            use(tag);
            passRawText(tag.name);
        } else if (isEnd && isLetter(m_html[m_at + 2])) {
            m_at += 2;
            readTag();
        } else if (isEnd || next == '!' || next == '?') {
            readUntil([](char c) { return c == '>'; });  // browsers make a comment of it
        } else {
            ++m_at;
        }
    }

    // Its opening may be its end as well: "<!-->" and "<!--->" are whole comments
    void skipComment() {
        const std::size_t end = m_html.find("-->"sv, m_at + 2);
        const std::size_t oddEnd = m_html.find("--!>"sv, m_at + 4);
        if (end == m_html.npos && oddEnd == m_html.npos)
            m_at = m_html.size();
        else
            m_at = end < oddEnd ? end + 3 : oddEnd + 4;
    }

    bool atEnd() const { return m_at >= m_html.size(); }

    template <class Condition>
    string_view readUntil(Condition stop) {
        const std::size_t from = m_at;
        while (!atEnd() && !stop(m_html[m_at]))
            ++m_at;
        return m_html.substr(from, m_at - from);
    }

    void skipBlanks() {
        readUntil([](char c) { return !isBlank(c); });
    }

    Tag readTag() {
        Tag tag;
        tag.name = readUntil([](char c) { return isBlank(c) || c == '/' || c == '>'; });
        for (;;) {
            readUntil([](char c) { return !isBlank(c) && c != '/'; });
            if (atEnd()) return tag;
            if (m_html[m_at] == '>') {
                ++m_at;
                return tag;
            }
            readAttribute(tag);
        }
    }

    void readAttribute(Tag& tag) {
        const std::size_t from = m_at++;  // a "=" in front is part of the name
        readUntil([](char c) { return isBlank(c) || c == '/' || c == '>' || c == '='; });
        const string_view name = m_html.substr(from, m_at - from);
        skipBlanks();
        if (atEnd() || m_html[m_at] != '=') return;
        ++m_at;
        skipBlanks();
        if (string_view* place = placeOf(tag, name); place != nullptr && place->data() == nullptr) {
            *place = readValue();
        } else {
            readValue();
        }
    }

    string_view readValue() {
        if (atEnd()) return {};
        const char quote = m_html[m_at];
        if (quote != '"' && quote != '\'') {
            return readUntil([](char c) { return isBlank(c) || c == '>'; });
        }
        ++m_at;
        const string_view value = m_html.substr(m_at, m_html.find(quote, m_at) - m_at);
        m_at = std::min(m_html.size(), m_at + value.size() + 1);
        return value;
    }

    static string_view* placeOf(Tag& tag, string_view name) {
        switch (name.size()) {
            case 3:
                return sameText(name, "src"sv) ? &tag.src : sameText(name, "rel"sv) ? &tag.rel : nullptr;
            case 4:
                return sameText(name, "href"sv) ? &tag.href : nullptr;
            case 5:
                return sameText(name, "style"sv) ? &tag.style : nullptr;
            case 7:
                return sameText(name, "charset"sv)   ? &tag.charset
                       : sameText(name, "content"sv) ? &tag.content
                                                     : nullptr;
            case 10:
                return sameText(name, "background"sv)   ? &tag.background
                       : sameText(name, "http-equiv"sv) ? &tag.httpEquiv
                                                        : nullptr;
            default:
                return nullptr;
        }
    }

    void use(const Tag& tag) {
        if (!tag.style.empty()) findStyleImages(tag.style);
        addImage(trimmed(tag.background));
        if (sameText(tag.name, "img"sv)) {
            addImage(trimmed(tag.src));
        } else if (sameText(tag.name, "meta"sv)) {
            useMeta(tag);
        } else if (sameText(tag.name, "a"sv) || sameText(tag.name, "area"sv)) {
            useLink(tag);
        }
    }

    void useMeta(const Tag& tag) {
        if (!tag.charset.empty()) add(m_found.charsets, tag.charset);
        if (!sameText(trimmed(tag.httpEquiv), "content-type"sv)) return;
        const std::size_t at = findText(tag.content, "charset"sv, 0);
        if (at == tag.content.npos) return;
        string_view value = trimmed(tag.content.substr(at + "charset"sv.size()));
        if (value.empty() || value.front() != '=') return;
        value = trimmed(value.substr(1));
        value = value.substr(0, value.find(';'));
        if (!value.empty()) add(m_found.charsets, value);
    }

    void useLink(const Tag& tag) {
        if (!m_found.unsubscribe.isEmpty() || !hasWord(tag.rel, "unsubscribe"sv)) return;
        const string_view address = trimmed(tag.href);
        if (startsWith(address, "https://"sv) || startsWith(address, "http://"sv) ||
            startsWith(address, "mailto:"sv)) {
            m_found.unsubscribe = decoded(address);
        }
    }

    // Style sheets may hold images; the content of scripts and other raw text is no markup
    void passRawText(string_view tagName) {
        for (const string_view name : {"style"sv, "script"sv, "textarea"sv, "title"sv, "xmp"sv, "iframe"sv,
                                       "noembed"sv, "noframes"sv}) {
            if (!sameText(tagName, name)) continue;
            std::size_t end = m_at;
            do {
                end = m_html.find("</"sv, end);
                end = end == m_html.npos ? m_html.size() : end;
            } while (end < m_html.size() && !startsWith(m_html.substr(end + 2), name) && ++end > 0);
            if (name == "style"sv) findStyleImages(m_html.substr(m_at, end - m_at));
            m_at = end;
            return;
        }
    }

    void findStyleImages(string_view style) {
        while (true) {
            const std::size_t at = findText(style, "url("sv, 0);
            if (at == style.npos) return;
            style = style.substr(at + 4);
            while (!style.empty() && isBlank(style.front()))
                style.remove_prefix(1);
            string_view end = ")"sv;
            for (const string_view quote : {"\""sv, "'"sv, "&quot;"sv, "&#39;"sv, "&apos;"sv}) {
                if (!startsWith(style, quote)) continue;
                style.remove_prefix(quote.size());
                end = quote;
                break;
            }
            const std::size_t length = style.find(end);
            if (length == style.npos) return;
            addImage(trimmed(style.substr(0, length)));
            style.remove_prefix(length);
        }
    }

    void addImage(string_view address) {
        const bool mayBeLocal =
            startsWith(address, "/"sv) || startsWith(address, "\\"sv) || startsWith(address, "file:"sv);
        if (mayBeLocal) add(m_found.images, address);
    }

    void add(std::vector<HtmlReferences::Place>& places, string_view text) {
        places.push_back({text.data() - m_html.data(), static_cast<qsizetype>(text.size()), decoded(text)});
    }

    const string_view m_html;
    std::size_t m_at = 0;
    HtmlReferences m_found;
};

}  // namespace

HtmlReferences findReferences(const QByteArray& html) {
    return Reader(html).read();
}

}  // namespace mail
