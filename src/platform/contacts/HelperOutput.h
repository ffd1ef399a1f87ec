#pragma once

#include <optional>
#include <QByteArray>

#include "platform/contacts/ContactFolder.h"

namespace contacts {

/// What the helper `vestrola-pst` prints, a JSON object in UTF-8 on each line: {"walls": [...]}, the walls
/// that it has raised around itself, which may be missing; then {"count": N}, the number of entries of the
/// contacts folder; then one line for each entry, with the eight values of a contact as texts under the names
/// of ContactFolder.h, or {} for an entry that is no contact. A value that is missing is empty.
///
/// Nothing of it is believed: the helper may be in the hands of whoever made the file.

/// The longest line that is taken for one of the helper's.
inline constexpr qsizetype longestEntry = 1024 * 1024;
/// The most that is taken from it, in bytes and in entries.
inline constexpr qsizetype largestOutput = 64LL * 1024 * 1024;
inline constexpr int mostEntries = 1000000;

/// Reads it as it comes.
class HelperOutput {
  public:
    /// Takes what the helper has said since. False when nothing more is wanted: after a line that is not as
    /// described, as many entries as counted, or a bound. The entries end there.
    bool take(const QByteArray& bytes);
    /// What there is of the folder; none where the count never came: the helper did not reach the folder.
    std::optional<ContactFolder> folder() &&;

  private:
    bool takeLine(QByteArrayView line);

    QByteArray m_pending;   ///< the start of a line whose end has not come
    qsizetype m_taken = 0;  ///< bytes in all
    int m_count = -1;       ///< what the helper told, within the bound; -1: not yet
    bool m_ended = false;
    ContactFolder m_folder;
};

/// All of it at once.
std::optional<ContactFolder> readHelperOutput(const QByteArray& output);

/// The contact of an entry's line, which is a JSON object; none where it has no values.
std::optional<Contact> contactOfEntry(QByteArrayView line);

}  // namespace contacts
