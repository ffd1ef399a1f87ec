// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <string_view>

#include "platform/Status.h"

/// The limits of a body. A body above them is refused, by every reader alike, before the browser sees it.
namespace html {

/// UTF-16 units. Pictures that a body carries itself count with it.
constexpr qsizetype mostCharacters = qsizetype{16} << 20;
/// Nested elements. Browsers move what is deeper than 512 elsewhere.
constexpr int mostDepth = 500;
constexpr int mostElements = 1'000'000;
/// Of one tag.
constexpr int mostAttributes = 1'000;

/// Success, or why a body of that many UTF-16 units is refused.
Status boundSize(qsizetype characters);
/// Success, or why a body with these tags is refused: Overflow, with a text for the user. Reads the tags
/// only, in time proportional to the text, so it comes first; the depth is then measured on the tree.
Status boundTags(std::string_view utf8);
Status boundDepth(int depth);
/// For a body that cannot be read within its bounds of time and memory, or at all.
Status unreadable();

/// Success where HtmlDocument accepts the body, else why it refuses it.
Status readable(const QString& html);

}  // namespace html
