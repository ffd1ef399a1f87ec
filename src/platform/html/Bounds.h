#pragma once

#include <QString>
#include <string_view>

#include "platform/Status.h"

/// What a body may ask for. Above it a body is refused, by every reader alike, before the browser sees it.
namespace html {

/// UTF-16 units. Pictures that a body carries itself count with it.
constexpr qsizetype mostCharacters = qsizetype{16} << 20;
/// Elements one inside the other. Browsers put what lies deeper than 512 elsewhere.
constexpr int mostDepth = 500;
constexpr int mostElements = 1'000'000;
/// Of one tag.
constexpr int mostAttributes = 1'000;

/// Success, or why a body of that many UTF-16 units is refused.
Status boundSize(qsizetype characters);
/// Success, or why a body with these tags is refused: Overflow, with a text for the user. Reads the tags
/// only, in time proportional to the text, so it comes first; the depth is then measured at the tree.
Status boundTags(std::string_view utf8);
Status boundDepth(int depth);
/// For a body that cannot be read within its bounds of time and memory, or at all.
Status unreadable();

/// Success where HtmlDocument takes the body, else the reason for which it refuses it.
Status readable(const QString& html);

}  // namespace html
