// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>
#include <string>
#include <string_view>

namespace text {

/// Texts that differ only in case, accents or compatibility forms (full-width letters, ligatures) have the
/// same folded form, which is in UTF-8: a search text is folded once and then compared by bytes. By the
/// rules of Unicode (NFKD without its marks, case folding); "ø" and "ł" are separate letters.
///
/// Appends the folded form of UTF-8 text; invalid bytes count as U+FFFD.
void appendFolded(std::string_view utf8, std::string& out);

std::string folded(QStringView text);

}  // namespace text
