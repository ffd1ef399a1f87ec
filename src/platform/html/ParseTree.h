// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gumbo.h>

#include <cstddef>
#include <memory_resource>
#include <QByteArray>

#include "platform/Status.h"

/// Gumbo's tree of one document, with all the memory it takes.
///
/// Nesting, attributes and open formatting elements can make the work of the standard's algorithm grow with
/// the square of the text. So the tags are checked first, and the time and the memory of the parse are
/// bounded as well; what exceeds the bounds of platform/html/Bounds.h, or these, is refused.
class ParseTree {
  public:
    explicit ParseTree(const QByteArray& utf8);
    ParseTree(const ParseTree&) = delete;
    ParseTree& operator=(const ParseTree&) = delete;

    /// Why the document was refused.
    const Status& status() const { return m_status; }
    /// Where the status is ok: not null, and no deeper than html::mostDepth. Lives as long as this object.
    const GumboNode* document() const { return m_document; }

  private:
    QByteArray m_text;  // the tree points into it
    Status m_status;
    std::pmr::unsynchronized_pool_resource m_memory;
    const GumboNode* m_document = nullptr;
};

/// Children of a document, an element or a template; empty for all other nodes.
const GumboVector& childrenOf(const GumboNode& node);

/// The element's part of a node that is an element or a template, else null.
const GumboElement* elementOf(const GumboNode& node);

/// True for an element of HTML itself (not SVG or MathML) with that tag.
bool isHtmlElement(const GumboNode& node, GumboTag tag);

/// Removes the marks from a text that was made from the tree. They precede some end tags of forms, for the
/// parser's sake; see ParseTree.cpp.
QByteArray withoutMarks(QByteArray text);
