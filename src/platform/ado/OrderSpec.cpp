// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/OrderSpec.h"

#include <algorithm>
#include <bit>
#include <charconv>

#include "platform/ado/RawValue.h"
#include "platform/jet/GeneralOrder.h"

namespace ado {

namespace {

using jet::Type;

constexpr char nullMark = 0x00;
constexpr char valueMark = 0x7f;

void appendBigEndian(std::string& key, uint64_t bits, int length = 8) {
    for (int shift = 8 * (length - 1); shift >= 0; shift -= 8)
        key.push_back(static_cast<char>(bits >> shift & 0xff));
}

/// A whole number that fits that many bytes.
void appendInteger(std::string& key, int64_t number, int length = 8) {
    appendBigEndian(key, static_cast<uint64_t>(number) ^ 1ull << (8 * length - 1), length);
}

void appendReal(std::string& key, double number) {
    const auto bits = std::bit_cast<uint64_t>(number == 0 ? 0.0 : number);
    appendBigEndian(key, bits >> 63 ? ~bits : bits ^ 1ull << 63);
}

/// True sorts before False, as -1 before 0.
void appendYesNo(std::string& key, bool yes) {
    key.push_back(static_cast<char>(yes ? 0x00 : 0xff));
}

/// The sign, then the whole number that all numerics of a column are; all bytes inverted below 0.
void appendNumeric(std::string& key, const jet::Bytes& bytes) {
    const size_t start = key.size();
    key.push_back(static_cast<char>(0x80));
    bool zero = true;
    for (size_t i = 1; i < numericLength; ++i) {
        const uint8_t byte = bytes[(i - 1) / 4 * 4 + 4 - (i - 1) % 4];
        zero = zero && byte == 0;
        key.push_back(static_cast<char>(byte));
    }
    if (zero || (bytes[0] & 0x80) == 0) return;
    for (size_t i = start; i < key.size(); ++i)
        key[i] = static_cast<char>(~key[i]);
}

void appendField(std::string& key, const jet::RowView& row, size_t column) {
    const Type type = row.definition().columns[column].type;
    if (type != Type::YesNo && row.isNull(column)) {
        key.push_back(nullMark);
        return;
    }
    key.push_back(valueMark);
    switch (type) {
        case Type::YesNo:
            return appendYesNo(key, row.yesNo(column));
        case Type::Byte:
        case Type::Integer:
            return appendInteger(key, row.integer(column), 2);
        case Type::Long:
            return appendInteger(key, row.integer(column), 4);
        case Type::Text: {
            std::string text;
            row.text(column, text);
            return jet::appendSortKey(key, text);
        }
        default:
            break;
    }
    const jet::Value value = row.value(column);
    if (const auto* currency = std::get_if<jet::Currency>(&value)) {
        appendInteger(key, currency->tenThousandths);
    } else if (const auto* date = std::get_if<jet::Date>(&value)) {
        appendReal(key, date->days);
    } else if (const auto* real = std::get_if<double>(&value)) {
        appendReal(key, *real);
    } else if (const auto* bytes = std::get_if<jet::Bytes>(&value); bytes && bytes->size() == numericLength) {
        appendNumeric(key, *bytes);
    } else {
        key.back() = nullMark;  // a damaged row
    }
}

}  // namespace

bool OrderSpec::uses(size_t column) const {
    return group == column ||
           std::any_of(parts.begin(), parts.end(), [&](const Part& part) { return part.column == column; });
}

std::string OrderSpec::toText() const {
    std::string text;
    if (group) text += '=' + std::to_string(*group);
    for (const Part& part : parts)
        text += (part.ascending ? '+' : '-') + std::to_string(part.column);
    return text;
}

OrderSpec OrderSpec::fromText(std::string_view text) {
    OrderSpec spec;
    for (size_t at = 0; at < text.size();) {
        const char mark = text[at++];
        size_t column = 0;
        at = static_cast<size_t>(std::from_chars(text.data() + at, text.data() + text.size(), column).ptr -
                                 text.data());
        if (mark == '=') {
            spec.group = column;
        } else {
            spec.parts.push_back({column, mark == '+'});
        }
    }
    return spec;
}

bool OrderSpec::canSort(Type type) {
    switch (type) {
        case Type::YesNo:
        case Type::Byte:
        case Type::Integer:
        case Type::Long:
        case Type::Currency:
        case Type::Single:
        case Type::Double:
        case Type::Date:
        case Type::Text:
        case Type::Numeric:
            return true;
        default:
            return false;
    }
}

bool OrderSpec::canGroup(Type type) {
    return type == Type::YesNo || type == Type::Byte || type == Type::Integer || type == Type::Long;
}

bool OrderSpec::holds(const jet::RowView& row) const {
    if (!group) return true;
    if (row.definition().columns[*group].type == Type::YesNo) return row.yesNo(*group) == (number != 0);
    return row.integer(*group) == number && !row.isNull(*group);
}

void OrderSpec::appendKey(std::string& key, const jet::RowView& row) const {
    for (const Part& part : parts) {
        const size_t start = key.size();
        appendField(key, row, part.column);
        if (part.ascending) continue;
        for (size_t i = start; i < key.size(); ++i)
            key[i] = static_cast<char>(~key[i]);
    }
}

std::string OrderSpec::keyOf(const jet::RowView& row) const {
    std::string key;
    appendKey(key, row);
    return key;
}

}  // namespace ado
