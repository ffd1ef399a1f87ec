// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/Layout.h"

#include <QByteArray>
#include <QList>

namespace {

using Box = Layout::Box;

Box usualBox(GumboTag tag) {
    switch (tag) {
        // never shown, or shown only where the embedded content cannot be
        case GUMBO_TAG_AREA:
        case GUMBO_TAG_AUDIO:
        case GUMBO_TAG_BASE:
        case GUMBO_TAG_CANVAS:
        case GUMBO_TAG_DATALIST:
        case GUMBO_TAG_HEAD:
        case GUMBO_TAG_IFRAME:
        case GUMBO_TAG_LINK:
        case GUMBO_TAG_META:
        case GUMBO_TAG_NOEMBED:
        case GUMBO_TAG_NOFRAMES:
        case GUMBO_TAG_PARAM:
        case GUMBO_TAG_RP:
        case GUMBO_TAG_SCRIPT:
        case GUMBO_TAG_STYLE:
        case GUMBO_TAG_TEMPLATE:
        case GUMBO_TAG_TITLE:
        case GUMBO_TAG_VIDEO:
            return Box::None;
        case GUMBO_TAG_P:
            return Box::Paragraph;
        case GUMBO_TAG_TABLE:
            return Box::Table;
        case GUMBO_TAG_TR:
            return Box::Row;
        case GUMBO_TAG_TD:
        case GUMBO_TAG_TH:
            return Box::Cell;
        case GUMBO_TAG_ADDRESS:
        case GUMBO_TAG_ARTICLE:
        case GUMBO_TAG_ASIDE:
        case GUMBO_TAG_BLOCKQUOTE:
        case GUMBO_TAG_BODY:
        case GUMBO_TAG_CAPTION:
        case GUMBO_TAG_CENTER:
        case GUMBO_TAG_DD:
        case GUMBO_TAG_DETAILS:
        case GUMBO_TAG_DIR:
        case GUMBO_TAG_DIV:
        case GUMBO_TAG_DL:
        case GUMBO_TAG_DT:
        case GUMBO_TAG_FIELDSET:
        case GUMBO_TAG_FIGCAPTION:
        case GUMBO_TAG_FIGURE:
        case GUMBO_TAG_FOOTER:
        case GUMBO_TAG_FORM:
        case GUMBO_TAG_H1:
        case GUMBO_TAG_H2:
        case GUMBO_TAG_H3:
        case GUMBO_TAG_H4:
        case GUMBO_TAG_H5:
        case GUMBO_TAG_H6:
        case GUMBO_TAG_HEADER:
        case GUMBO_TAG_HGROUP:
        case GUMBO_TAG_HR:
        case GUMBO_TAG_LEGEND:
        case GUMBO_TAG_LI:
        case GUMBO_TAG_LISTING:
        case GUMBO_TAG_MAIN:
        case GUMBO_TAG_MENU:
        case GUMBO_TAG_NAV:
        case GUMBO_TAG_OL:
        case GUMBO_TAG_OPTGROUP:
        case GUMBO_TAG_OPTION:
        case GUMBO_TAG_PLAINTEXT:
        case GUMBO_TAG_PRE:
        case GUMBO_TAG_SECTION:
        case GUMBO_TAG_SUMMARY:
        case GUMBO_TAG_UL:
        case GUMBO_TAG_XMP:
            return Box::Block;
        default:
            return Box::Inline;
    }
}

// Titles, descriptions, styles and scripts of a drawing are not drawn
Box boxInDrawing(GumboTag tag) {
    const bool hidden =
        tag == GUMBO_TAG_TITLE || tag == GUMBO_TAG_DESC || tag == GUMBO_TAG_STYLE || tag == GUMBO_TAG_SCRIPT;
    return hidden ? Box::None : Box::Inline;
}

bool isPreformatted(GumboTag tag) {
    return tag == GUMBO_TAG_PRE || tag == GUMBO_TAG_TEXTAREA || tag == GUMBO_TAG_LISTING ||
           tag == GUMBO_TAG_XMP || tag == GUMBO_TAG_PLAINTEXT;
}

void setDisplay(Layout& layout, const QByteArray& value) {
    if (value == "none") {
        layout.box = Box::None;
    } else if (value == "table-row") {
        layout.box = Box::Row;
    } else if (value == "table-cell") {
        layout.box = Box::Cell;
    } else if (value == "table") {
        layout.box = Box::Table;
    } else if (value == "inline" || value == "contents" || value.startsWith("inline-")) {
        layout.box = Box::Inline;
    } else if (value == "block" || value == "list-item" || value == "flex" || value == "grid" ||
               value == "flow-root" || value == "table-caption") {
        if (layout.box != Box::Paragraph) layout.box = Box::Block;
    }
}

void setWhiteSpace(Layout& layout, const QByteArray& value) {
    if (value == "pre" || value == "pre-wrap" || value == "break-spaces") {
        layout.collapsesBlanks = false;
        layout.keepsLineFeeds = true;
    } else if (value == "pre-line") {
        layout.collapsesBlanks = true;
        layout.keepsLineFeeds = true;
    } else if (value == "normal" || value == "nowrap") {
        layout.collapsesBlanks = true;
        layout.keepsLineFeeds = false;
    }
}

void applyStyle(Layout& layout, const QByteArray& style) {
    for (const QByteArray& declaration : style.toLower().split(';')) {
        const qsizetype colon = declaration.indexOf(':');
        if (colon < 0) continue;
        const QByteArray property = declaration.left(colon).trimmed();
        QByteArray value = declaration.mid(colon + 1);
        value = value.left(value.indexOf('!') < 0 ? value.size() : value.indexOf('!')).trimmed();
        if (property == "display") {
            setDisplay(layout, value);
        } else if (property == "white-space") {
            setWhiteSpace(layout, value);
        } else if (property == "visibility") {
            layout.visible =
                value == "visible" || (layout.visible && value != "hidden" && value != "collapse");
        }
    }
}

}  // namespace

Layout layoutOf(const GumboElement& element, const Layout& parent) {
    Layout layout = parent;
    const bool isHtml = element.tag_namespace == GUMBO_NAMESPACE_HTML;
    layout.box = isHtml ? usualBox(element.tag) : boxInDrawing(element.tag);
    if (isHtml && isPreformatted(element.tag)) setWhiteSpace(layout, "pre");
    if (gumbo_get_attribute(&element.attributes, "hidden") != nullptr) layout.box = Box::None;
    if (layout.box == Box::None) return layout;
    if (const GumboAttribute* style = gumbo_get_attribute(&element.attributes, "style")) {
        applyStyle(layout, style->value);
    }
    return layout;
}
