// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gumbo.h>

/// How an element is laid out, as far as the shape of its text is concerned.
struct Layout {
    enum class Box { None, Inline, Block, Paragraph, Table, Row, Cell };

    Box box = Box::Inline;
    bool visible = true;          ///< inherited
    bool collapsesBlanks = true;  ///< runs of blanks and line feeds count as one blank; inherited
    bool keepsLineFeeds = false;  ///< inherited
};

/// Layout of an element inside a parent's layout: the one that browsers use for the element, changed by its
/// `hidden` attribute and its inline style.
Layout layoutOf(const GumboElement& element, const Layout& parent);
