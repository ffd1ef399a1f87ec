// SPDX-License-Identifier: GPL-3.0-or-later
// A tokenizer of HTML text.
#pragma once

#include <cstddef>
#include <string_view>

namespace html {

/// One tag: its name, and the attributes that a message's composition asks for, as they are in the source:
/// character references are not decoded. Absent ones have a null data(). Of two attributes of one name the
/// first counts.
struct HtmlTag {
    std::string_view name, src, background, style, charset, httpEquiv, content, rel, href, alt;
    std::string_view attributes;  ///< all of them, as they are in the source
    int attributeCount = 0;       ///< duplicates included
    bool selfClosing = false;     ///< ends in "/>", which means something in drawings and formulas alone
};

/// A tokenizer of HTML text: reads the markup from start to end as browsers do (HTML standard 13.2.5),
/// without building a tree. Comments, conditional ones too, and declarations are skipped. Takes time in
/// proportion to the text, whatever it contains.
class HtmlTokens {
  public:
    /// `html` has to outlive the reader: all results are views into it.
    explicit HtmlTokens(std::string_view html) : m_html(html) {}

    enum class Kind {
        Text,     ///< between two tags
        Tag,      ///< a start tag
        EndTag,   ///< its attributes mean nothing
        RawText,  ///< content of a style, script or the like, whose start tag came before
        End,
    };
    Kind next();
    /// Moves past texts and tags up to the next tag that has attributes or whose content is raw text. For
    /// readers to whom nothing else means anything there: most tags of a message have neither.
    void skipBare();
    /// To be called after a start tag whose content is no raw text, as in a drawing.
    void readAsMarkup() { m_rawTextNext = false; }
    /// The last start tag or end tag.
    const HtmlTag& tag() const { return m_tag; }
    /// Of Text and RawText.
    std::string_view text() const { return m_text; }

  private:
    bool atEnd() const { return m_at >= m_html.size(); }
    bool startsMarkup(std::size_t at) const;
    void skipComment();
    std::size_t find(std::string_view wanted, std::size_t from, std::size_t& known) const;
    void readTag();
    void readAttribute();
    std::string_view readValue();
    std::size_t endOfRawText() const;
    template <class Condition>
    std::string_view readUntil(Condition stop);

    std::string_view m_html;
    std::size_t m_at = 0;
    HtmlTag m_tag;
    std::string_view m_text;
    bool m_rawTextNext = false;
    // Where the next end of a comment is, so that no stretch is searched twice
    std::size_t m_commentEnd = 0, m_oddCommentEnd = 0;
};

/// Without regard to the case of ASCII letters.
bool sameHtmlText(std::string_view a, std::string_view b);
bool startsWithHtmlText(std::string_view text, std::string_view start);
/// Blank, tab, line end or form feed.
bool isHtmlBlank(char c);
std::string_view trimmedHtml(std::string_view text);

}  // namespace html
