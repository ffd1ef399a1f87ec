// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/FieldValue.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>
#include <optional>
#include <span>

#include "platform/ado/DateText.h"
#include "platform/ado/RawValue.h"
#include "platform/ado/Value.h"
#include "platform/jet/ValueCodec.h"
#include "platform/text/Words.h"

namespace ado {

namespace {

using jet::Type;

Status mismatchOf(const jet::Column& column) {
    return {ErrorCode::TypeMismatch, Words::tr("Tipo di dati non corrispondente nel campo \"%1\".")
                                         .arg(QString::fromStdString(column.name))};
}

Status overflowOf(const jet::Column& column) {
    return {ErrorCode::Overflow,
            Words::tr("Valore troppo grande per il campo \"%1\".").arg(QString::fromStdString(column.name))};
}

Result<jet::Value> fitInteger(const Value& value, const jet::Column& column) {
    const Result<qint64> number = value.toInteger();
    if (!number.ok())
        return number.status().code() == ErrorCode::Overflow ? overflowOf(column) : mismatchOf(column);
    if (!jet::wholeRange(column.type).contains(number.value())) return overflowOf(column);
    return jet::Value(static_cast<int64_t>(number.value()));
}

std::optional<double> realOf(const jet::Value& value) {
    if (const auto* yes = std::get_if<bool>(&value)) return *yes ? -1 : 0;
    if (const auto* number = std::get_if<int64_t>(&value)) return static_cast<double>(*number);
    if (const auto* number = std::get_if<double>(&value)) return *number;
    if (const auto* date = std::get_if<jet::Date>(&value)) return date->days;
    if (const auto* amount = std::get_if<jet::Currency>(&value))
        return static_cast<double>(amount->tenThousandths) / 10000;
    if (const auto* text = std::get_if<std::string>(&value)) return readNumber(QString::fromStdString(*text));
    if (const auto* decimal = std::get_if<jet::Decimal>(&value))
        return readNumber(QString::fromStdString(decimal->text));
    return std::nullopt;
}

/// All digits of a number, unchanged or as users of the current locale write it.
Result<jet::Value> fitNumeric(const jet::Value& value, const jet::Column& column) {
    const std::optional<double> number = realOf(value);
    if (!number) return mismatchOf(column);
    std::string plain = plainDecimal(*number);
    if (const auto* decimal = std::get_if<jet::Decimal>(&value)) plain = decimal->text;
    if (const auto* whole = std::get_if<int64_t>(&value)) plain = std::to_string(*whole);
    if (const auto* text = std::get_if<std::string>(&value)) {
        QString written = QString::fromStdString(*text).trimmed();
        if (!written.contains(u'.')) written.replace(QLocale().decimalPoint(), QStringLiteral("."));
        const bool isPlain = written.toStdString().find_first_not_of("+-.0123456789") == std::string::npos;
        if (isPlain && written.count(u'.') <= 1) plain = written.toStdString();
    }
    auto bytes = numericBytes(plain, column);
    return bytes ? Result<jet::Value>(jet::Value(std::move(*bytes))) : overflowOf(column);
}

std::optional<double> daysOf(const jet::Value& value) {
    if (const auto* text = std::get_if<std::string>(&value))
        if (const auto days = readDate(QString::fromStdString(*text), dateOrder(QLocale()))) return days;
    return realOf(value);
}

Result<jet::Value> fitCurrency(const jet::Value& value, const jet::Column& column) {
    if (std::holds_alternative<jet::Currency>(value)) return value;
    const std::optional<double> number = realOf(value);
    if (!number) return mismatchOf(column);
    const double scaled = std::nearbyint(*number * 10000);
    if (!(std::fabs(scaled) < 9.2e18)) return overflowOf(column);
    return jet::Value(jet::Currency{static_cast<int64_t>(scaled)});
}

/// Takes UTF-16 unchanged; false for what is damaged or compressed.
bool takeUtf16(std::span<const uint8_t> stored, QString& text) {
    static_assert(std::endian::native == std::endian::little);
    if (stored.size() % 2 != 0) return false;
    text = QString(static_cast<qsizetype>(stored.size() / 2), Qt::Uninitialized);
    if (!stored.empty()) std::memcpy(text.data(), stored.data(), stored.size());
    if (text.startsWith(QChar::ByteOrderMark)) return false;
    return std::none_of(text.cbegin(), text.cend(), [](QChar c) { return c.isSurrogate(); });
}

/// Takes the characters below U+0100 after the mark of the compressed form; false where there are others.
bool takeLatin(std::span<const uint8_t> stored, QString& text) {
    if (stored.size() < 2 || stored[0] != 0xFF || stored[1] != 0xFE) return false;
    constexpr size_t together = 8;
    const size_t length = stored.size() - 2;
    const uint8_t* from = stored.data() + 2;
    text = QString(static_cast<qsizetype>(length), Qt::Uninitialized);
    auto* to = reinterpret_cast<char16_t*>(text.data());
    // Eight characters at a time; the last eight may begin among those before. A zero continues in UTF-16.
    uint64_t zeros = 0;
    const auto widen = [&](size_t at) {
        std::array<uint8_t, together> bytes;
        std::array<char16_t, together> wide;
        std::memcpy(bytes.data(), from + at, sizeof bytes);
        for (size_t i = 0; i < together; ++i)
            wide[i] = bytes[i];
        std::memcpy(to + at, wide.data(), sizeof wide);
        const auto word = std::bit_cast<uint64_t>(bytes);
        zeros |= (word - 0x0101010101010101u) & ~word & 0x8080808080808080u;
    };
    if (length >= together) {
        for (size_t at = 0; at + together < length; at += together)
            widen(at);
        widen(length - together);
    } else {
        for (size_t i = 0; i < length; ++i) {
            zeros |= from[i] == 0;
            to[i] = from[i];
        }
    }
    return zeros == 0;
}

}  // namespace

Value fieldValue(const jet::RowView& row, size_t column) {
    const jet::Column& definition = row.definition().columns[column];
    if (definition.type == Type::Memo || definition.type == Type::Ole) return Value(row.value(column));
    Value value;
    takeFieldValue(definition, row.field(column), value);
    return value;
}

void takeFieldValue(const jet::Column& column, const jet::StoredField& field, Value& value) {
    switch (column.type) {
        case Type::YesNo:
            return value.take(!field.null);
        case Type::Byte:
        case Type::Integer:
        case Type::Long:
            if (field.bytes.size() < jet::fixedLength(column)) return;
            return value.take(int64_t{jet::wholeNumber(column, field)});
        case Type::Text:
            if (field.null) return;
            if (!column.ansi && value.takeText([&](QString& text) {
                    return takeLatin(field.bytes, text) || takeUtf16(field.bytes, text);
                }))
                return;
            break;
        default:
            if (field.null) return;
    }
    value = Value(readable(column, jet::decodeValue(column, field.bytes)));
}

Result<jet::Value> fitToColumn(jet::Value raw, const jet::Column& column) {
    if (std::holds_alternative<std::monostate>(raw))
        return column.type == Type::YesNo ? jet::Value(false) : std::move(raw);
    switch (column.type) {
        case Type::YesNo: {
            const Result<bool> yes = Value(std::move(raw)).toBool();
            return yes.ok() ? Result<jet::Value>(jet::Value(yes.value())) : mismatchOf(column);
        }
        case Type::Byte:
        case Type::Integer:
        case Type::Long:
            return fitInteger(Value(std::move(raw)), column);
        case Type::Currency:
            return fitCurrency(raw, column);
        case Type::Single:
        case Type::Double: {
            const std::optional<double> number = realOf(raw);
            return number ? Result<jet::Value>(jet::Value(*number)) : mismatchOf(column);
        }
        case Type::Date: {
            const std::optional<double> days = daysOf(raw);
            return days ? Result<jet::Value>(jet::Value(jet::Date{*days})) : mismatchOf(column);
        }
        case Type::Text:
        case Type::Memo: {
            if (std::holds_alternative<std::string>(raw)) return raw;
            const Value value(std::move(raw));
            const Result<QString> text = value.toText(QLocale::c());
            return text.ok() ? Result<jet::Value>(jet::Value(text.value().toStdString()))
                             : mismatchOf(column);
        }
        case Type::Guid:
            if (const auto* text = std::get_if<std::string>(&raw)) {
                auto bytes = guidBytes(*text);
                return bytes ? Result<jet::Value>(jet::Value(std::move(*bytes))) : mismatchOf(column);
            }
            break;
        case Type::Numeric:
            if (!std::holds_alternative<jet::Bytes>(raw)) return fitNumeric(raw, column);
            break;
        default:
            break;
    }
    return std::holds_alternative<jet::Bytes>(raw) ? Result<jet::Value>(std::move(raw)) : mismatchOf(column);
}

}  // namespace ado
