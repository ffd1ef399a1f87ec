// SPDX-License-Identifier: GPL-3.0-or-later
// Values of rows, and the types of columns.
#pragma once

#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace jet {

/// Column types as they are in a table definition.
enum class Type : uint8_t {
    YesNo = 1,
    Byte = 2,
    Integer = 3,
    Long = 4,
    Currency = 5,
    Single = 6,
    Double = 7,
    Date = 8,
    Binary = 9,
    Text = 10,
    Ole = 11,
    Memo = 12,
    Guid = 15,
    Numeric = 16,
};

/// The numbers that a column of whole numbers can store.
struct WholeRange {
    int64_t least;
    int64_t greatest;
    constexpr bool contains(int64_t number) const { return number >= least && number <= greatest; }
};
/// `type` is Byte, Integer or Long.
constexpr WholeRange wholeRange(Type type) {
    if (type == Type::Byte) return {0, std::numeric_limits<uint8_t>::max()};
    if (type == Type::Integer)
        return {std::numeric_limits<int16_t>::min(), std::numeric_limits<int16_t>::max()};
    return {std::numeric_limits<int32_t>::min(), std::numeric_limits<int32_t>::max()};
}

using Bytes = std::vector<uint8_t>;

/// Days since 1899-12-30, the time of day in the fraction.
struct Date {
    double days = 0;
    bool operator==(const Date&) const = default;
};

/// Amount in ten-thousandths.
struct Currency {
    int64_t tenThousandths = 0;
    bool operator==(const Currency&) const = default;
};

/// A number written out, with a point before the decimals: for one with more digits than a double keeps. Rows
/// never contain it; see ado/RawValue.h.
struct Decimal {
    std::string text;
    bool operator==(const Decimal&) const = default;
};

/// One value of a row. std::monostate is Null, which is distinct from the empty text.
///   yes/no: bool · byte, integer, long: int64_t · single, double: double · date: Date · currency: Currency
///   text, memo: std::string in UTF-8 · everything else: the raw Bytes
using Value =
    std::variant<std::monostate, bool, int64_t, double, Date, Currency, std::string, Bytes, Decimal>;

/// Stored bytes of one column in a row, for reading only. A yes/no has none: it is Null for False.
struct StoredField {
    bool null = true;
    std::span<const uint8_t> bytes = {};
};

}  // namespace jet
