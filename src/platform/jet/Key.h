// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "platform/jet/Row.h"
#include "platform/jet/TableDefinition.h"
#include "platform/Phrase.h"

/// Keys of index entries. One part for each column of the index: Null is 00; else 7F and
///   yes/no          00 True, FF False (never Null)
///   whole numbers   big endian, sign bit flipped (byte: as it is); currency likewise
///   single, double, date   big endian, sign bit flipped, or all bits where it was set
///   GUID, binary    groups of 8 bytes, the last filled with 00, each followed by 09 if more follows, else by
///                   the number of bytes used; a GUID in the order in which it is written out
///   text            see GeneralOrder.h
/// Descending: all bytes inverted, but for the 09; text gets one more 00.
namespace jet {

/// Bytes that a key may have. Three entries of this length fit on an index page, so each page that is
/// too full can be split.
inline constexpr size_t longestKey = 1180;

/// What a key is made of: the stored bytes of a column. Null means False for a yes/no column.
using FieldOf = std::function<StoredField(const Column&)>;
inline FieldOf fieldsOf(const Row& row) {
    return [&row](const Column& column) { return row.field(column); };
}

/// Why keys of that index cannot be made, whatever is in the rows; completes "… non può essere aggiornato,
/// perché ". Empty when they can.
Phrase whyNotKept(const TableDefinition& definition, const Index& index);
/// Whether no file made by Access was seen with such an index. Its own entries have to show the form then.
bool needsProof(const TableDefinition& definition, const Index& index);

/// The key of a row that is to be written. Throws Failure (NotSupported), naming the column, for text whose
/// key is not known for sure, and for a key that is too long.
Bytes keyToWrite(const TableDefinition& definition, const Index& index, const FieldOf& field);
/// The keys that a row in a file may have: none when its text has characters of unknown weight, two when it
/// has a letter that other programs count in two ways.
std::vector<Bytes> possibleKeys(const TableDefinition& definition, const Index& index, const FieldOf& field);

/// How many columns of the index are Null.
size_t countNulls(const TableDefinition& definition, const Index& index, const FieldOf& field);
/// Whether the row has an entry in the index.
bool isIndexed(const TableDefinition& definition, const Index& index, const FieldOf& field);

/// What the key of a row with that number begins with, where the index begins with the column: one of whole
/// numbers that contains it, or a yes/no (0 is False).
Bytes keyOfNumber(const Column& column, bool ascending, int64_t number);
/// Key of an ascending long.
Bytes longKey(int32_t value);
/// The long that a key begins with; nothing for Null or another key.
std::optional<int32_t> longAtStart(const Bytes& key, bool ascending);

}  // namespace jet
