#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The sort order "General" of Jet 4 texts (LCID 0x0409, version 0): no case, accents after base letters,
/// hyphens, apostrophes and control characters last of all, trailing blanks without meaning.
namespace jet {

/// Appends bytes to `key` such that keys compare bytewise as the texts compare. Each ends in a zero byte that
/// occurs nowhere else in it, so that keys may be joined. Characters without a known weight sort behind all
/// others, by code point; bytes that are no UTF-8 count as U+FFFD.
void appendSortKey(std::string& key, std::string_view utf8);

/// Below, equal to or above 0 as `left` sorts before, with or behind `right`.
int compareGeneral(std::string_view left, std::string_view right);

/// Appends the key that a text has in an index of the file: 7F and the sort key of the first 255 characters,
/// or its inverted form for a descending column. Returns false, and appends nothing, when the text holds a
/// character whose weight is not known: such a text cannot be kept in an index.
[[nodiscard]] bool appendIndexKey(std::string& key, std::string_view utf8, bool ascending = true);

}  // namespace jet
