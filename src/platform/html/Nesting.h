// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace html {

/// The cost of a text for a parser, estimated before one sees it.
struct Nesting {
    /// Nested elements, estimated from the tags alone: those that the standard closes without an end tag are
    /// closed, and formatting that is reopened in each block is counted. For ordinary text it is close to the
    /// depth of the tree; for text that is made to be deep it is not much less.
    int depth = 0;
    int elements = 0;    ///< start tags
    int attributes = 0;  ///< of the tag with the most of them; all of <body> and <html> count as of one
};

/// Reads the tags once, in time proportional to the text. Stops as soon as a value is above `most`; the
/// values are then those so far.
Nesting reckonNesting(std::string_view html, const Nesting& most);

}  // namespace html
