// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>
#include <string>

#include "platform/jet/TableDefinition.h"
#include "platform/Phrase.h"

namespace jet {

/// Bytes to store for a value, nothing for Null. Throws Failure for a value that the column cannot store:
/// another type (TypeMismatch), a number out of range (Overflow), text or bytes too long (FieldTooSmall), or
/// a column that cannot be written (NotSupported); the text names the column. Of a memo it is the content,
/// which Row does not take (see LongValue.h).
std::optional<Bytes> encodeValue(const Column& column, const Value& value);
/// The value of a yes/no column; Null is False.
bool yesNoValue(const Column& column, const Value& value);

/// Whether the engine can store values in the column. If not, `why` completes "Il campo … ".
bool isWritable(const Column& column, Phrase& why);

/// Bytes that a column takes in the fixed area.
size_t fixedLength(const Column& column);
/// Appends the UTF-8 form of a text column's stored bytes.
void appendStoredText(const Column& column, std::span<const uint8_t> bytes, std::string& out);
/// The number in a column of whole numbers; 0 for Null, and where bytes are too few.
int64_t wholeNumber(const Column& column, const StoredField& field);
/// Value of stored bytes. Bytes too short for their type are Null.
Value decodeValue(const Column& column, std::span<const uint8_t> bytes);

}  // namespace jet
