// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/InnerText.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/html/Layout.h"
#include "platform/html/ParseTree.h"

namespace {

using Box = Layout::Box;

/// Takes text and breaks in document order and lays them out.
class TextFlow {
  public:
    void addText(const char* text, const Layout& layout) {
        for (; *text != '\0'; ++text) {
            const char c = *text;
            const bool isLineFeed = c == '\n' || c == '\r';
            if (isLineFeed && layout.keepsLineFeeds) {
                addLineFeed();
            } else if (layout.collapsesBlanks && (c == ' ' || c == '\t' || c == '\f' || isLineFeed)) {
                m_blankPending = !m_atLineStart;
            } else {
                addCharacter(c);
            }
        }
    }

    /// A line end that is kept wherever it occurs, as from <br>.
    void addLineFeed() {
        settle();
        m_out += "\r\n";
        m_atLineStart = true;
    }

    void addTab() {
        settle();
        m_out += '\t';
        m_atLineStart = true;
    }

    /// At least so many line ends between what precedes and what follows; none at the ends of the whole
    /// text.
    void requireLineFeeds(int count) {
        if (count == 0) return;
        m_blankPending = false;
        m_atLineStart = true;
        m_lineFeedsDue = std::max(m_lineFeedsDue, count);
    }

    QByteArray take() { return std::move(m_out); }

  private:
    // Blanks at the end of a line vanish, required line ends are written before what follows them
    void settle() {
        m_blankPending = false;
        if (!m_out.isEmpty()) {
            for (int i = 0; i < m_lineFeedsDue; ++i)
                m_out += "\r\n";
        }
        m_lineFeedsDue = 0;
    }

    void addCharacter(char c) {
        const bool blank = m_blankPending;
        settle();
        if (blank) m_out += ' ';
        m_out += c;
        m_atLineStart = false;
    }

    QByteArray m_out;
    bool m_atLineStart = true;
    bool m_blankPending = false;
    int m_lineFeedsDue = 0;
};

int lineFeedsAround(Box box) {
    switch (box) {
        case Box::Paragraph:
            return 2;
        case Box::Block:
        case Box::Table:
            return 1;
        default:
            return 0;
    }
}

struct Opened {
    const GumboNode* node;
    Layout layout;
    std::size_t around;  // place in the path of the nearest box that is not inline: the table of a row, the
                         // row of a cell
    unsigned nextChild = 0;
    bool hasPart = false;  // it had a row or a cell already
};

/// Traverses the body with its own path instead of the call stack.
class Walk {
  public:
    explicit Walk(const GumboNode& body) { open(body, Layout()); }

    QByteArray run() {
        while (!m_path.empty()) {
            Opened& current = m_path.back();
            const GumboVector& children = childrenOf(*current.node);
            if (current.nextChild < children.length) {
                enter(*static_cast<const GumboNode*>(children.data[current.nextChild++]));
            } else {
                m_flow.requireLineFeeds(lineFeedsAround(current.layout.box));
                m_path.pop_back();
            }
        }
        return m_flow.take();
    }

  private:
    void enter(const GumboNode& node) {
        const Layout around = m_path.back().layout;
        if (elementOf(node) != nullptr) {
            if (isHtmlElement(node, GUMBO_TAG_BR)) {
                m_flow.addLineFeed();
            } else {
                open(node, around);
            }
        } else if (node.type != GUMBO_NODE_COMMENT && around.visible) {
            m_flow.addText(node.v.text.text, around);
        }
    }

    void open(const GumboNode& node, const Layout& around) {
        const Layout layout = layoutOf(*elementOf(node), around);
        if (layout.box == Box::None) return;
        const bool isPart = layout.box == Box::Row || layout.box == Box::Cell;
        std::size_t whole = m_path.empty() ? 0 : m_path.back().around;
        if (isPart && !m_path.empty() && std::exchange(m_path[whole].hasPart, true)) {
            layout.box == Box::Row ? m_flow.addLineFeed() : m_flow.addTab();
        }
        m_flow.requireLineFeeds(lineFeedsAround(layout.box));
        if (layout.box != Box::Inline) whole = m_path.size();
        m_path.push_back({&node, layout, whole});
    }

    std::vector<Opened> m_path;
    TextFlow m_flow;
};

const GumboNode* findChild(const GumboNode& node, GumboTag tag) {
    const GumboVector& children = childrenOf(node);
    for (unsigned i = 0; i < children.length; ++i) {
        const auto* child = static_cast<const GumboNode*>(children.data[i]);
        if (isHtmlElement(*child, tag)) return child;
    }
    return nullptr;
}

}  // namespace

QByteArray visibleText(const GumboNode& document) {
    const GumboNode* html = findChild(document, GUMBO_TAG_HTML);
    const GumboNode* body = html != nullptr ? findChild(*html, GUMBO_TAG_BODY) : nullptr;
    return body != nullptr ? withoutMarks(Walk(*body).run()) : QByteArray();
}
