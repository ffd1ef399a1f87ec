// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

/// Names of tables and columns, in UTF-8: the same whatever the case of their letters. Letters beyond U+FFFF
/// are left unchanged.
namespace jet {

/// Below, equal to or above 0 as `left` sorts before, with or after `right`: by code units of UTF-16,
/// capitals taken for their small letters.
int compareNames(std::string_view left, std::string_view right);

bool sameName(std::string_view left, std::string_view right);

}  // namespace jet
