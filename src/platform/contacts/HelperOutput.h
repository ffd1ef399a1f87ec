#pragma once

#include <optional>
#include <QByteArray>

#include "platform/contacts/ContactFolder.h"

namespace contacts {

/// What the helper `vestrola-pst` prints, a JSON object in UTF-8 on each line: first {"count": N}, the number
/// of entries of the contacts folder; then one line for each entry, with the eight values of a contact as
/// texts under the names of ContactFolder.h, or {} for an entry that is no contact. A value that is missing
/// is empty.

/// The longest line that is taken for one of the helper's.
inline constexpr qsizetype longestEntry = 1024 * 1024;

/// Reads it. None where the first line is not the count: the helper did not reach the folder. The entries end
/// before the first line that is not as described, is not complete, or lies beyond the count.
std::optional<ContactFolder> readHelperOutput(const QByteArray& output);

}  // namespace contacts
