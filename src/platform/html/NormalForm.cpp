// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/NormalForm.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/html/ParseTree.h"

namespace {

using namespace std::string_view_literals;

constexpr std::string_view noBreakSpace = "\xC2\xA0"sv;

bool isVoidElement(const GumboElement& element) {
    if (element.tag_namespace != GUMBO_NAMESPACE_HTML) return false;
    switch (element.tag) {
        case GUMBO_TAG_AREA:
        case GUMBO_TAG_BASE:
        case GUMBO_TAG_BASEFONT:
        case GUMBO_TAG_BGSOUND:
        case GUMBO_TAG_BR:
        case GUMBO_TAG_COL:
        case GUMBO_TAG_EMBED:
        case GUMBO_TAG_FRAME:
        case GUMBO_TAG_HR:
        case GUMBO_TAG_IMG:
        case GUMBO_TAG_INPUT:
        case GUMBO_TAG_KEYGEN:
        case GUMBO_TAG_LINK:
        case GUMBO_TAG_META:
        case GUMBO_TAG_PARAM:
        case GUMBO_TAG_SOURCE:
        case GUMBO_TAG_TRACK:
        case GUMBO_TAG_WBR:
            return true;
        default:
            return false;
    }
}

bool holdsRawText(const GumboElement& element) {
    if (element.tag_namespace != GUMBO_NAMESPACE_HTML) return false;
    switch (element.tag) {
        case GUMBO_TAG_STYLE:
        case GUMBO_TAG_SCRIPT:
        case GUMBO_TAG_XMP:
        case GUMBO_TAG_IFRAME:
        case GUMBO_TAG_NOEMBED:
        case GUMBO_TAG_NOFRAMES:
        case GUMBO_TAG_PLAINTEXT:
            return true;
        default:
            return false;
    }
}

// The parser drops one line feed after these start tags
bool losesFirstLineFeed(const GumboElement& element) {
    return element.tag_namespace == GUMBO_NAMESPACE_HTML &&
           (element.tag == GUMBO_TAG_PRE || element.tag == GUMBO_TAG_TEXTAREA ||
            element.tag == GUMBO_TAG_LISTING);
}

bool startsWithLineFeed(const GumboElement& element) {
    if (element.children.length == 0) return false;
    const auto* first = static_cast<const GumboNode*>(element.children.data[0]);
    return (first->type == GUMBO_NODE_TEXT || first->type == GUMBO_NODE_WHITESPACE) &&
           first->v.text.text[0] == '\n';
}

QByteArray tagName(const GumboElement& element) {
    GumboStringPiece original = element.original_tag;
    gumbo_tag_from_original_text(&original);
    if (element.tag_namespace == GUMBO_NAMESPACE_SVG) {
        const char* mixedCase = gumbo_normalize_svg_tagname(&original);
        if (mixedCase != nullptr) return mixedCase;
    }
    if (element.tag != GUMBO_TAG_UNKNOWN) return gumbo_normalized_tagname(element.tag);
    QByteArray name(original.data, static_cast<qsizetype>(original.length));
    name.replace('\0', "\xEF\xBF\xBD");
    for (char& c : name) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return name;
}

QByteArray attributeName(const GumboAttribute& attribute) {
    QByteArray name(attribute.name);
    switch (attribute.attr_namespace) {
        case GUMBO_ATTR_NAMESPACE_XLINK:
            return "xlink:" + name;
        case GUMBO_ATTR_NAMESPACE_XML:
            return "xml:" + name;
        case GUMBO_ATTR_NAMESPACE_XMLNS:
            return name == "xmlns" ? name : "xmlns:" + name;
        case GUMBO_ATTR_NAMESPACE_NONE:
            break;
    }
    return name;
}

void append(QByteArray& out, std::string_view text) {
    out.append(text.data(), static_cast<qsizetype>(text.size()));
}

enum class Place { Text, AttributeValue };

void appendEscaped(QByteArray& out, std::string_view text, Place place) {
    const std::string_view special = place == Place::Text ? "&<>\xC2"sv : "&\"\xC2"sv;
    std::size_t from = 0;
    for (std::size_t at = text.find_first_of(special); at != text.npos;
         at = text.find_first_of(special, at + 1)) {
        std::string_view reference;
        std::size_t length = 1;
        switch (text[at]) {
            case '&':
                reference = "&amp;"sv;
                break;
            case '<':
                reference = "&lt;"sv;
                break;
            case '>':
                reference = "&gt;"sv;
                break;
            case '"':
                reference = "&quot;"sv;
                break;
            default:
                if (text.substr(at, noBreakSpace.size()) != noBreakSpace) continue;
                reference = "&nbsp;"sv;
                length = noBreakSpace.size();
        }
        append(out, text.substr(from, at - from));
        append(out, reference);
        from = at + length;
    }
    append(out, text.substr(from));
}

// The identifiers cannot contain the quote that ended them in the source, so one of the two kinds always fits
void appendIdentifier(QByteArray& out, std::string_view identifier) {
    const char quote = identifier.find('"') == identifier.npos ? '"' : '\'';
    out += ' ';
    out += quote;
    append(out, identifier);
    out += quote;
}

void appendDoctype(QByteArray& out, const GumboDocument& document) {
    const std::string_view publicId(document.public_identifier);
    const std::string_view systemId(document.system_identifier);
    append(out, "<!DOCTYPE "sv);
    append(out, document.name);
    if (!publicId.empty()) {
        append(out, " PUBLIC"sv);
        appendIdentifier(out, publicId);
        if (!systemId.empty()) appendIdentifier(out, systemId);
    } else if (!systemId.empty()) {
        append(out, " SYSTEM"sv);
        appendIdentifier(out, systemId);
    }
    out += '>';
}

void appendStartTag(QByteArray& out, const GumboElement& element) {
    out += '<';
    out += tagName(element);
    for (unsigned i = 0; i < element.attributes.length; ++i) {
        const auto& attribute = *static_cast<const GumboAttribute*>(element.attributes.data[i]);
        out += ' ';
        out += attributeName(attribute);
        append(out, "=\""sv);
        appendEscaped(out, attribute.value, Place::AttributeValue);
        out += '"';
    }
    out += '>';
    if (losesFirstLineFeed(element) && startsWithLineFeed(element)) out += '\n';
}

void appendEndTag(QByteArray& out, const GumboElement& element) {
    append(out, "</"sv);
    out += tagName(element);
    out += '>';
}

void appendText(QByteArray& out, const GumboNode& node) {
    const GumboElement* parent = node.parent != nullptr ? elementOf(*node.parent) : nullptr;
    if (parent != nullptr && holdsRawText(*parent)) {
        append(out, node.v.text.text);
    } else {
        appendEscaped(out, node.v.text.text, Place::Text);
    }
}

void appendComment(QByteArray& out, const GumboNode& node) {
    append(out, "<!--"sv);
    append(out, node.v.text.text);
    append(out, "-->"sv);
}

struct OpenElement {
    const GumboNode* node;
    unsigned nextChild = 0;
};

}  // namespace

QByteArray normalForm(const GumboNode& document) {
    QByteArray out;
    if (document.v.document.has_doctype) appendDoctype(out, document.v.document);
    std::vector<OpenElement> path{{&document}};
    while (!path.empty()) {
        OpenElement& current = path.back();
        const GumboVector& children = childrenOf(*current.node);
        if (current.nextChild == children.length) {
            if (const GumboElement* element = elementOf(*current.node)) appendEndTag(out, *element);
            path.pop_back();
            continue;
        }
        const auto* child = static_cast<const GumboNode*>(children.data[current.nextChild++]);
        if (const GumboElement* element = elementOf(*child)) {
            appendStartTag(out, *element);
            if (!isVoidElement(*element)) path.push_back({child});
        } else if (child->type == GUMBO_NODE_COMMENT) {
            appendComment(out, *child);
        } else {
            appendText(out, *child);
        }
    }
    return withoutMarks(std::move(out));
}
