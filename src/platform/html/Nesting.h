#pragma once

#include <string_view>

namespace html {

/// How much a text asks of a parser, reckoned before one sees it.
struct Nesting {
    /// Elements one inside the other, reckoned from the tags alone: those that the standard closes without an
    /// end tag are closed, and formatting that is opened anew in each block is counted. For what people
    /// write it is close to the depth of the tree; for what is made to be deep it is not less by much.
    int depth = 0;
    int elements = 0;    ///< start tags
    int attributes = 0;  ///< of the tag with the most of them; all of <body> and <html> count as of one
};

/// Reads the tags once, in time proportional to the text. Stops as soon as a value is above `most`; it is
/// then told as far as it was reckoned.
Nesting reckonNesting(std::string_view html, const Nesting& most);

}  // namespace html
