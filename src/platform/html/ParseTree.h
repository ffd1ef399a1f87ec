#pragma once

#include <gumbo.h>

#include <cstddef>
#include <memory_resource>
#include <QByteArray>

/// Gumbo's tree of one document, with all the memory it takes.
///
/// The time and the memory of a parse are bounded: nesting and open formatting elements can make the work of
/// the standard's algorithm grow with the square of the text. A document that exceeds the bounds is read
/// again without its tags, so that its text survives. No ordinary document comes near them.
class ParseTree {
  public:
    explicit ParseTree(const QByteArray& utf8);
    ParseTree(const ParseTree&) = delete;
    ParseTree& operator=(const ParseTree&) = delete;

    /// Never null; lives as long as this object. Its depth has no bound: walk it without recursion.
    const GumboNode* document() const { return m_document; }

  private:
    bool parse();

    QByteArray m_text;  // the tree points into it
    std::pmr::unsynchronized_pool_resource m_memory;
    const GumboNode* m_document = nullptr;
};

/// Children of a document, an element or a template; empty for all other nodes.
const GumboVector& childrenOf(const GumboNode& node);

/// The element's part of a node that is an element or a template, else null.
const GumboElement* elementOf(const GumboNode& node);

/// True for an element of HTML itself (not SVG or MathML) with that tag.
bool isHtmlElement(const GumboNode& node, GumboTag tag);

/// Takes the marks out of a text that was made from the tree. They stand in front of some end tags of forms,
/// for the parser's sake; see ParseTree.cpp.
QByteArray withoutMarks(QByteArray text);
