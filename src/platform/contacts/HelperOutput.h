// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QByteArray>

#include "platform/contacts/ContactFolder.h"

namespace contacts {

/// The output of the helper `vestrola-pst`, a JSON object in UTF-8 on each line: {"walls": [...]}, the
/// restrictions that it has set for itself, which may be missing; then {"count": N}, the number of entries of
/// the contacts folder; then one line for each entry, with the eight values of a contact as texts under the
/// names of ContactFolder.h, or {} for an entry that is no contact. A value that is missing is empty.
///
/// Nothing of it is trusted: the file's author may have taken control of the helper.

/// The longest line that is accepted.
inline constexpr qsizetype longestEntry = 1024 * 1024;
/// The most that is read, in bytes and in entries.
inline constexpr qsizetype largestOutput = 64LL * 1024 * 1024;
inline constexpr int mostEntries = 1000000;

/// The incremental reader of that output.
class HelperOutput {
  public:
    /// Takes the next part of the output. False when nothing more is read: after an invalid line, after as
    /// many entries as counted, or at a bound. The entries end there.
    bool take(const QByteArray& bytes);
    /// The folder as far as it was read; none without a count: the helper did not reach the folder.
    std::optional<ContactFolder> folder() &&;

  private:
    bool takeLine(QByteArrayView line);

    QByteArray m_pending;   ///< the start of an incomplete line
    qsizetype m_taken = 0;  ///< bytes in all
    int m_count = -1;       ///< the helper's count, within the bound; -1: not yet
    bool m_ended = false;
    ContactFolder m_folder;
};

/// The contact of an entry's line, which is a JSON object; none where it has no values.
std::optional<Contact> contactOfEntry(QByteArrayView line);

}  // namespace contacts
