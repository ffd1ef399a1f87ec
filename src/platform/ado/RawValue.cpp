// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/RawValue.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <QUuid>

namespace ado {

namespace {

constexpr size_t guidLength = 16;

// A numeric: 0x80 or 0 for the sign, then the digits as a whole number of four groups, the highest first,
// each little endian.
constexpr size_t groups = 4;
constexpr size_t groupLength = 4;
constexpr uint8_t negative = 0x80;

/// In a stored GUID the first three parts are little endian numbers.
QByteArray swapped(const char* bytes) {
    QByteArray guid(bytes, guidLength);
    std::reverse(guid.begin(), guid.begin() + 4);
    std::reverse(guid.begin() + 4, guid.begin() + 6);
    std::reverse(guid.begin() + 6, guid.begin() + 8);
    return guid;
}

using Magnitude = std::array<uint32_t, groups>;  ///< the highest group first

/// Multiplies and adds; false when the number does not fit.
bool appendDigit(Magnitude& number, uint32_t digit) {
    uint64_t carry = digit;
    for (size_t group = groups; group-- > 0;) {
        carry += uint64_t{number[group]} * 10;
        number[group] = static_cast<uint32_t>(carry);
        carry >>= 32;
    }
    return carry == 0;
}

/// Divides by ten; what is left over.
uint32_t takeDigit(Magnitude& number) {
    uint64_t rest = 0;
    for (uint32_t& group : number) {
        rest = rest << 32 | group;
        group = static_cast<uint32_t>(rest / 10);
        rest %= 10;
    }
    return static_cast<uint32_t>(rest);
}

Magnitude magnitudeOf(const jet::Bytes& bytes) {
    Magnitude number;
    for (size_t group = 0; group < groups; ++group) {
        const uint8_t* p = &bytes[1 + group * groupLength];
        number[group] = p[0] | p[1] << 8 | p[2] << 16 | static_cast<uint32_t>(p[3]) << 24;
    }
    return number;
}

jet::Value numericValue(const jet::Bytes& bytes, size_t scale) {
    Magnitude number = magnitudeOf(bytes);
    const bool minus = bytes[0] & negative;
    if (scale == 0 && number[0] == 0 && number[1] == 0 && number[2] >> 31 == 0) {
        const auto value = static_cast<int64_t>(uint64_t{number[2]} << 32 | number[3]);
        return minus ? -value : value;
    }
    std::string digits;  // from the last
    while (number != Magnitude{} || digits.size() <= scale)
        digits += static_cast<char>('0' + takeDigit(number));
    if (scale > 0) digits.insert(scale, 1, '.');
    std::reverse(digits.begin(), digits.end());
    if (scale > 0) digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.back() == '.') digits.pop_back();
    if (minus && digits != "0") digits.insert(0, 1, '-');
    return jet::Decimal{digits};
}

}  // namespace

jet::Value readable(const jet::Column& column, jet::Value stored) {
    const auto* bytes = std::get_if<jet::Bytes>(&stored);
    if (!bytes) return stored;
    if (column.type == jet::Type::Guid && bytes->size() == guidLength)
        return QUuid::fromRfc4122(swapped(reinterpret_cast<const char*>(bytes->data())))
            .toString()
            .toUpper()
            .toStdString();
    if (column.type == jet::Type::Numeric && bytes->size() == numericLength)
        return numericValue(*bytes, column.scale);
    return stored;
}

std::optional<jet::Bytes> guidBytes(const std::string& text) {
    const QUuid guid = QUuid::fromString(QString::fromStdString(text).trimmed());
    if (guid.isNull() && !QString::fromStdString(text).contains(QLatin1String("00000000-0000")))
        return std::nullopt;
    const QByteArray bytes = swapped(guid.toRfc4122().constData());
    return jet::Bytes(bytes.begin(), bytes.end());
}

std::optional<jet::Bytes> numericBytes(std::string_view number, const jet::Column& column) {
    constexpr size_t mostDigits = 28;
    const bool minus = number.starts_with('-');
    if (minus || number.starts_with('+')) number.remove_prefix(1);
    const size_t point = std::min(number.find('.'), number.size());
    std::string digits(number.substr(0, point));
    std::string decimals(number.substr(std::min(point + 1, number.size())));
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (digits.size() + decimals.size() == 0 || !std::all_of(digits.begin(), digits.end(), isDigit) ||
        !std::all_of(decimals.begin(), decimals.end(), isDigit))
        return std::nullopt;
    const bool up = decimals.size() > column.scale && decimals[column.scale] >= '5';
    decimals.resize(column.scale, '0');
    digits += decimals;
    if (up) {
        size_t at = digits.size();
        while (at > 0 && digits[at - 1] == '9')
            digits[--at] = '0';
        if (at > 0)
            ++digits[at - 1];
        else
            digits.insert(0, 1, '1');
    }
    digits.erase(0, digits.find_first_not_of('0'));
    if (digits.size() > std::min<size_t>(column.precision, mostDigits)) return std::nullopt;
    Magnitude magnitude{};
    for (const char digit : digits)
        if (!appendDigit(magnitude, static_cast<uint32_t>(digit - '0'))) return std::nullopt;
    jet::Bytes bytes(numericLength);
    bytes[0] = minus && !digits.empty() ? negative : 0;
    for (size_t group = 0; group < groups; ++group)
        for (size_t i = 0; i < groupLength; ++i)
            bytes[1 + group * groupLength + i] = static_cast<uint8_t>(magnitude[group] >> 8 * i);
    return bytes;
}

std::string plainDecimal(double number) {
    std::array<char, 512> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    return {text.data(), end.ptr};
}

}  // namespace ado
