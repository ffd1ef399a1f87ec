// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// The sort order "General" of Jet 4 texts (LCID 0x0409, version 0): no case, accents after base letters,
/// hyphens, apostrophes and control characters last of all, trailing blanks without meaning.
namespace jet {

/// Appends bytes to `key` such that keys compare bytewise as the texts compare. Each ends in a zero byte that
/// occurs nowhere else in it, so that keys may be joined. Characters without a known weight sort after all
/// others, by code point; bytes that are no UTF-8 count as U+FFFD.
void appendSortKey(std::string& key, std::string_view utf8);

/// Below, equal to or above 0 as `left` sorts before, with or after `right`.
int compareGeneral(std::string_view left, std::string_view right);

/// Letters with two main weights (ß, Æ, Þ and their like): other programs count them as one or as two places
/// where the place of an accent, hyphen or apostrophe after them is encoded.
enum class LigaturePlaces { One, Two };

/// Appends the key that a text has in an index of the file: 7F and the sort key of the first 255 characters,
/// or its inverted form for a descending column. Returns false, and appends nothing, when the text has a
/// character whose weight is not known.
[[nodiscard]] bool appendIndexKey(std::string& key, std::string_view utf8, bool ascending = true,
                                  LigaturePlaces places = LigaturePlaces::One);

/// The first character that keeps the text out of an index; nothing when its key is certain. That is a
/// character without a known weight, or a letter with two main weights in a text whose key depends on how its
/// places are counted.
std::optional<char32_t> characterWithoutKey(std::string_view utf8);

}  // namespace jet
