// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/Nesting.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>
#include <vector>

#include "platform/html/HtmlTokens.h"

namespace html {
namespace {

using std::string_view;

// What the standard says of an element by its name (HTML standard 13.2.4.2, 13.2.6)
enum Trait : unsigned {
    Void = 1,         // has no content
    Special = 2,      // ends the search for the start of an ordinary element
    Boundary = 4,     // elements around it cannot be closed from inside
    Formatting = 8,   // reopened in the blocks that follow
    EndsPara = 16,    // a paragraph ends where it begins
    Row = 32,         // part of a table
    Outer = 64,       // there is one only, so further tags add to it
    LeavesSvg = 128,  // a drawing ends where it begins
    Heading = 256,
    Marker = 512,   // formatting from outside is not reopened inside it
    Inline = 1024,  // is in a line of text, where formatting is reopened
    Island = 2048,  // inside a drawing it contains HTML again
};

constexpr unsigned block = Special | EndsPara;

using Name = std::uint64_t;

constexpr char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// FNV-1a. Two names of one value would only make the estimate less exact.
constexpr Name hashOf(string_view text) {
    Name value = 14695981039346656037U;
    for (const char c : text)
        value = (value ^ static_cast<unsigned char>(lowered(c))) * 1099511628211U;
    return value;
}

struct Known {
    Name name;
    unsigned traits;
};

struct Entry {
    string_view name;
    unsigned traits;
};

constexpr std::array entries = {
    Entry{"a", Formatting},
    Entry{"address", block},
    Entry{"annotation-xml", Island},
    Entry{"applet", Special | Boundary | Marker | Inline},
    Entry{"area", Void | Special | Inline},
    Entry{"article", block},
    Entry{"aside", block},
    Entry{"b", Formatting | LeavesSvg},
    Entry{"base", Void | Special},
    Entry{"basefont", Void | Special},
    Entry{"bgsound", Void | Special},
    Entry{"big", Formatting | LeavesSvg},
    Entry{"blockquote", block | LeavesSvg},
    Entry{"body", Outer | Special | LeavesSvg},
    Entry{"br", Void | Special | Inline | LeavesSvg},
    Entry{"button", Special | Inline},
    Entry{"caption", Special | Boundary | Row | Marker},
    Entry{"center", block | LeavesSvg},
    Entry{"code", Formatting | LeavesSvg},
    Entry{"col", Void | Special | Row},
    Entry{"colgroup", Special | Row},
    Entry{"dd", block | LeavesSvg},
    Entry{"desc", Island},
    Entry{"details", block},
    Entry{"dialog", EndsPara},
    Entry{"dir", block},
    Entry{"div", block | LeavesSvg},
    Entry{"dl", block | LeavesSvg},
    Entry{"dt", block | LeavesSvg},
    Entry{"em", Formatting | LeavesSvg},
    Entry{"embed", Void | Special | Inline | LeavesSvg},
    Entry{"fieldset", block},
    Entry{"figcaption", block},
    Entry{"figure", block},
    Entry{"font", Formatting},
    Entry{"footer", block},
    Entry{"foreignobject", Island},
    Entry{"form", block},
    Entry{"frame", Void | Special},
    Entry{"frameset", Special},
    Entry{"h1", block | Heading | LeavesSvg},
    Entry{"h2", block | Heading | LeavesSvg},
    Entry{"h3", block | Heading | LeavesSvg},
    Entry{"h4", block | Heading | LeavesSvg},
    Entry{"h5", block | Heading | LeavesSvg},
    Entry{"h6", block | Heading | LeavesSvg},
    Entry{"head", Outer | Special | LeavesSvg},
    Entry{"header", block},
    Entry{"hgroup", block},
    Entry{"hr", Void | block | LeavesSvg},
    Entry{"html", Outer | Special | Boundary},
    Entry{"i", Formatting | LeavesSvg},
    Entry{"iframe", Special},
    Entry{"image", Void | Special | Inline},
    Entry{"img", Void | Special | Inline | LeavesSvg},
    Entry{"input", Void | Special | Inline},
    Entry{"keygen", Void | Special | Inline},
    Entry{"li", block | LeavesSvg},
    Entry{"link", Void | Special},
    Entry{"listing", block | LeavesSvg},
    Entry{"main", block},
    Entry{"marquee", Special | Boundary | Marker | Inline},
    Entry{"menu", block | LeavesSvg},
    Entry{"meta", Void | Special | LeavesSvg},
    Entry{"mi", Island},
    Entry{"mn", Island},
    Entry{"mo", Island},
    Entry{"ms", Island},
    Entry{"mtext", Island},
    Entry{"nav", block},
    Entry{"nobr", Formatting | LeavesSvg},
    Entry{"noembed", Special},
    Entry{"noframes", Special},
    Entry{"noscript", Special},
    Entry{"object", Special | Boundary | Marker | Inline},
    Entry{"ol", block | LeavesSvg},
    Entry{"p", block | LeavesSvg},
    Entry{"param", Void | Special},
    Entry{"plaintext", block},
    Entry{"pre", block | LeavesSvg},
    Entry{"ruby", LeavesSvg},
    Entry{"s", Formatting | LeavesSvg},
    Entry{"script", Special},
    Entry{"section", block},
    Entry{"select", Special | Inline},
    Entry{"small", Formatting | LeavesSvg},
    Entry{"source", Void | Special},
    Entry{"span", LeavesSvg},
    Entry{"strike", Formatting | LeavesSvg},
    Entry{"strong", Formatting | LeavesSvg},
    Entry{"style", Special},
    Entry{"sub", LeavesSvg},
    Entry{"summary", block},
    Entry{"sup", LeavesSvg},
    Entry{"table", Special | Boundary | LeavesSvg},
    Entry{"tbody", Special | Row},
    Entry{"td", Special | Boundary | Row | Marker},
    Entry{"template", Special | Boundary | Marker},
    Entry{"textarea", Special},
    Entry{"tfoot", Special | Row},
    Entry{"th", Special | Boundary | Row | Marker},
    Entry{"thead", Special | Row},
    Entry{"title", Special | Island},
    Entry{"tr", Special | Row},
    Entry{"track", Void | Special},
    Entry{"tt", Formatting | LeavesSvg},
    Entry{"u", Formatting | LeavesSvg},
    Entry{"ul", block | LeavesSvg},
    Entry{"var", LeavesSvg},
    Entry{"wbr", Void | Special | Inline},
    Entry{"xmp", block | Inline},
};

// Ordered by name, so that one is found in a few steps
constexpr auto traitTable = [] {
    std::array<Known, entries.size()> table{};
    std::transform(entries.begin(), entries.end(), table.begin(), [](const Entry& entry) {
        return Known{hashOf(entry.name), entry.traits};
    });
    std::sort(table.begin(), table.end(), [](const Known& a, const Known& b) { return a.name < b.name; });
    return table;
}();

unsigned traitsOf(Name name) {
    const auto found = std::lower_bound(traitTable.begin(), traitTable.end(), name,
                                        [](const Known& known, Name wanted) { return known.name < wanted; });
    return found != traitTable.end() && found->name == name ? found->traits : 0U;
}

constexpr Name anchor = hashOf("a"), button = hashOf("button"), caption = hashOf("caption"),
               dd = hashOf("dd"), dt = hashOf("dt"), form = hashOf("form"), frameset = hashOf("frameset"),
               li = hashOf("li"), math = hashOf("math"), nobr = hashOf("nobr"), ol = hashOf("ol"),
               optgroup = hashOf("optgroup"), option = hashOf("option"), paragraph = hashOf("p"),
               select = hashOf("select"), svg = hashOf("svg"), table = hashOf("table"), td = hashOf("td"),
               templateTag = hashOf("template"), th = hashOf("th"), tr = hashOf("tr"), ul = hashOf("ul");

/// The elements that are open at a place, kept by the rules for tags alone. Every search goes up the path,
/// whose length the caller bounds.
class Path {
  public:
    std::size_t depth() const { return m_open.size() + m_afloat.size() + m_framesets; }

    /// False where the tag's content is read as markup whatever its name: in a drawing.
    bool start(const HtmlTag& tag) {
        const Name name = hashOf(tag.name);
        const unsigned traits = traitsOf(name);
        if (inDrawing() && (traits & LeavesSvg) == 0) {
            if (!tag.selfClosing) push(name, (traits & Island) != 0 ? Boundary | Special : 0U, true);
            return false;
        }
        while (inDrawing())
            pop();
        const bool raw = m_framesets == 0;
        if ((traits & Outer) != 0 || (inList() && !startsInList(name, traits))) return raw;
        closeBefore(name, traits);
        if ((traits & (Special | Inline)) != Special) reopen();
        if ((traits & Void) != 0) return raw;
        if ((traits & Row) != 0 && !hasAround(table)) return raw;
        if (name == form && std::exchange(m_inForm, true)) return raw;
        if (name == frameset) {
            ++m_framesets;
            return false;
        }
        const bool drawing = name == svg || name == math;
        if (drawing && tag.selfClosing) return raw;
        const Name alike = (traits & Formatting) != 0 ? hashOf(tag.attributes) ^ name : 0;
        if (alike != 0) keepThree(alike);
        push(name, traits, drawing, alike);
        return raw;
    }

    void end(const HtmlTag& tag) {
        const Name name = hashOf(tag.name);
        const unsigned traits = traitsOf(name);
        if ((traits & Outer) != 0) return;
        if (inDrawing()) return endInDrawing(name);
        if (inList() && name != select && name != option && name != optgroup && name != templateTag) return;
        if ((traits & Formatting) != 0) return endFormatting(name);
        if (name == form) return endForm();
        if (name == frameset) {
            m_framesets -= m_framesets > 0 ? 1 : 0;
            return;
        }
        if (name == li)
            return closeTo(
                [](const Open& open) { return open.name == li; },
                [](const Open& open) { return isBoundary(open) || open.name == ol || open.name == ul; });
        if ((traits & Row) != 0 || name == table || name == templateTag)
            return closeTo([name](const Open& open) { return open.name == name; }, isTable);
        if ((traits & Heading) != 0)
            return closeTo([](const Open& open) { return (open.traits & Heading) != 0; }, isBoundary);
        const bool ordinary = (traits & Special) == 0;
        closeTo([name](const Open& open) { return open.name == name; }, ordinary ? isSpecial : isBoundary);
    }

    /// Formatting that was closed with the block around it is reopened.
    void text() {
        if (!inDrawing() && !inList()) reopen();
    }

  private:
    struct Open {
        Name name;
        unsigned traits;
        bool drawing;
        Name alike;  // formatting of one kind; 0: not reopened
    };
    /// Formatting that was closed with the block around it and comes back in the next one.
    struct Afloat {
        Name name;
        Name alike;
        std::size_t marker;  // place in the path of the element that ends it
    };

    static bool isBoundary(const Open& open) { return (open.traits & Boundary) != 0; }
    static bool isSpecial(const Open& open) { return (open.traits & Special) != 0; }
    static bool isTable(const Open& open) { return open.name == table || open.name == templateTag; }

    bool inDrawing() const {
        return !m_open.empty() && m_open.back().drawing && (m_open.back().traits & Boundary) == 0;
    }

    /// In a list to choose from, where most tags mean nothing.
    bool inList() const {
        std::size_t at = m_open.size();
        while (at > 0 && (m_open[at - 1].name == option || m_open[at - 1].name == optgroup))
            --at;
        return at > 0 && m_open[at - 1].name == select;
    }

    /// What ends the list is closed with it.
    bool startsInList(Name name, unsigned traits) {
        if (name == option || name == optgroup || name == templateTag) return true;
        static constexpr std::array ending = {hashOf("input"), hashOf("keygen"), hashOf("textarea"), select};
        const bool ends = std::find(ending.begin(), ending.end(), name) != ending.end() ||
                          (((traits & Row) != 0 || name == table) && hasAround(table));
        if (!ends) return false;
        closeTo([](const Open& open) { return open.name == select; }, isTable);
        return name != select;
    }

    void reopen() {
        auto first = m_afloat.end();
        while (first != m_afloat.begin() && std::prev(first)->marker == lastMarker())
            --first;
        for (auto each = first; each != m_afloat.end(); ++each)
            m_open.push_back({each->name, Formatting, false, each->alike});
        m_afloat.erase(first, m_afloat.end());
    }

    void push(Name name, unsigned traits, bool drawing, Name alike = 0) {
        if ((traits & Marker) != 0) m_markers.push_back(m_open.size());
        m_open.push_back({name, traits, drawing, alike});
    }

    std::size_t lastMarker() const { return m_markers.empty() ? 0 : m_markers.back(); }

    void pop() {
        const Open last = m_open.back();
        m_open.pop_back();
        if ((last.traits & Marker) != 0) {
            while (!m_afloat.empty() && m_afloat.back().marker >= m_open.size() &&
                   m_afloat.back().marker != 0)
                m_afloat.pop_back();
            m_markers.pop_back();
        } else if (last.alike != 0) {
            m_afloat.push_back({last.name, last.alike, lastMarker()});
        }
        if (last.name == form) m_inForm = false;
    }

    // As many elements as that stay open
    void popTo(std::size_t count) {
        while (m_open.size() > count)
            pop();
    }

    /// Closes the innermost element that `wanted` names, and all inside it, unless `border` is in between.
    template <class Wanted, class Border>
    void closeTo(Wanted wanted, Border border) {
        for (std::size_t at = m_open.size(); at-- > 0;) {
            if (wanted(m_open[at])) {
                popTo(at);
                return;
            }
            if (border(m_open[at])) return;
        }
    }

    bool hasAround(Name name) const {
        return std::any_of(m_open.rbegin(), m_open.rend(),
                           [name](const Open& open) { return open.name == name; });
    }

    void closeBefore(Name name, unsigned traits) {
        const auto is = [](Name wanted) {
            return [wanted](const Open& open) { return open.name == wanted; };
        };
        if ((traits & EndsPara) != 0)
            closeTo(is(paragraph), [](const Open& open) { return isBoundary(open) || open.name == button; });
        if ((traits & Heading) != 0 && !m_open.empty() && (m_open.back().traits & Heading) != 0) pop();
        if (name == li || name == dd || name == dt) closeItem(name);
        if (name == option || name == optgroup) {
            if (!m_open.empty() && m_open.back().name == option) pop();
            if (name == optgroup && inList() && m_open.back().name == optgroup) pop();
        }
        if (name == button) closeTo(is(name), isBoundary);
        if (name == anchor || name == nobr) endFormatting(name);
        if ((traits & Row) != 0) closeRow(name);
        if (name == table)
            closeTo(is(table), [](const Open& open) {
                return open.name == td || open.name == th || open.name == caption || open.name == templateTag;
            });
    }

    void closeItem(Name name) {
        const auto same = [name](const Open& open) {
            return open.name == name || (name != li && (open.name == dd || open.name == dt));
        };
        closeTo(same, [](const Open& open) {
            static constexpr std::array passed = {hashOf("address"), hashOf("div"), paragraph};
            return isSpecial(open) && std::find(passed.begin(), passed.end(), open.name) == passed.end();
        });
    }

    void closeRow(Name name) {
        const bool cell = name == td || name == th;
        for (std::size_t at = m_open.size(); at-- > 0;) {
            const Open& open = m_open[at];
            const bool holds = isTable(open) || (cell && open.name == tr) ||
                               (name == tr && (open.traits & (Row | Marker)) == Row && open.name != tr);
            if (!holds) continue;
            popTo(at + 1);
            return;
        }
    }

    void endInDrawing(Name name) {
        for (std::size_t at = m_open.size(); at-- > 0 && m_open[at].drawing;) {
            if (m_open[at].name != name) continue;
            popTo(at);
            return;
        }
    }

    // A block inside it stays open
    void endFormatting(Name name) {
        bool holdsBlock = false;
        for (std::size_t at = m_open.size(); at-- > 0 && !isBoundary(m_open[at]);) {
            holdsBlock = holdsBlock || isSpecial(m_open[at]);
            if (m_open[at].name != name) continue;
            m_open[at].alike = 0;  // not reopened
            if (holdsBlock) return remove(at);
            popTo(at);
            return;
        }
        for (std::size_t at = m_afloat.size(); at-- > 0 && m_afloat[at].marker == lastMarker();) {
            if (m_afloat[at].name != name) continue;
            m_afloat.erase(m_afloat.begin() + static_cast<std::ptrdiff_t>(at));
            return;
        }
    }

    void endForm() {
        m_inForm = false;
        for (std::size_t at = m_open.size(); at-- > 0 && !isBoundary(m_open[at]);) {
            if (m_open[at].name == form) return remove(at);
        }
    }

    // No marker is above it
    void remove(std::size_t at) { m_open.erase(m_open.begin() + static_cast<std::ptrdiff_t>(at)); }

    // At most three equal formatting elements come back
    void keepThree(Name alike) {
        int found = 0;
        for (std::size_t at = m_open.size(); at-- > lastMarker();) {
            if (m_open[at].alike == alike && ++found >= 3) m_open[at].alike = 0;
        }
        for (std::size_t at = m_afloat.size(); at-- > 0 && m_afloat[at].marker == lastMarker();) {
            if (m_afloat[at].alike == alike && ++found >= 3)
                m_afloat.erase(m_afloat.begin() + static_cast<std::ptrdiff_t>(at));
        }
    }

    std::vector<Open> m_open;
    std::vector<Afloat> m_afloat;
    std::vector<std::size_t> m_markers;
    std::size_t m_framesets = 0;
    bool m_inForm = false;
};

}  // namespace

Nesting reckonNesting(string_view html, const Nesting& most) {
    using Kind = HtmlTokens::Kind;
    HtmlTokens tokens(html);
    Path path;
    Nesting reckoned;
    int outer = 0;
    for (Kind kind = tokens.next(); kind != Kind::End; kind = tokens.next()) {
        if (kind == Kind::EndTag) path.end(tokens.tag());
        if (kind == Kind::Text && !trimmedHtml(tokens.text()).empty()) path.text();
        if (kind != Kind::Tag) continue;
        const HtmlTag& tag = tokens.tag();
        int attributes = tag.attributeCount;
        if ((traitsOf(hashOf(tag.name)) & Outer) != 0) attributes = outer += attributes;
        if (!path.start(tag)) tokens.readAsMarkup();
        reckoned.depth = std::max(reckoned.depth, static_cast<int>(path.depth()));
        reckoned.attributes = std::max(reckoned.attributes, attributes);
        ++reckoned.elements;
        if (reckoned.depth > most.depth || reckoned.elements > most.elements ||
            reckoned.attributes > most.attributes)
            break;
    }
    return reckoned;
}

}  // namespace html
