#pragma once

#include <optional>

#include "platform/jet/TableDefinition.h"

namespace ado {

/// The engine hands out GUIDs and numerics as the bytes that stand in the file.

/// `stored`, of that column, as a text in braces for a GUID, as a number for a numeric (a whole one where it
/// has no decimals and is not too long); everything else, and bytes of a wrong length, as it is.
jet::Value readable(const jet::Column& column, jet::Value stored);

/// Bytes of a GUID written with or without its braces.
std::optional<jet::Bytes> guidBytes(const std::string& text);
/// Bytes of a numeric; nothing for a number that has too many digits for the column.
std::optional<jet::Bytes> numericBytes(double number, const jet::Column& column);

}  // namespace ado
