// SPDX-License-Identifier: GPL-3.0-or-later
// Conversions of the values that the engine returns as bytes, GUIDs and numerics, and back.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/jet/TableDefinition.h"

namespace ado {

/// The engine returns GUIDs and numerics as the bytes that are in the file.

/// Bytes of a numeric: its sign, then four groups of digits.
inline constexpr std::size_t numericLength = 17;

/// `stored`, of that column, as a text in braces for a GUID, as a whole number for a numeric without decimals
/// that is not too long, as a Decimal with all its digits for another one; everything else, and bytes of a
/// wrong length, as it is.
jet::Value readable(const jet::Column& column, jet::Value stored);

/// Bytes of a GUID written with or without its braces.
std::optional<jet::Bytes> guidBytes(const std::string& text);
/// Bytes of a numeric, rounded to the column's decimals, from a number written plainly (a sign, digits, a
/// point and digits, no exponent). Nothing for what is no such number, or has too many digits for the column.
std::optional<jet::Bytes> numericBytes(std::string_view number, const jet::Column& column);
/// A number in that form, with the digits that distinguish it from every other double.
std::string plainDecimal(double number);

}  // namespace ado
