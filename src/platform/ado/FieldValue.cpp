#include "platform/ado/FieldValue.h"

#include <cmath>
#include <limits>
#include <optional>

#include "platform/ado/Value.h"

namespace ado {

namespace {

using jet::Type;

Status mismatch(const jet::Column& column) {
    return {ErrorCode::TypeMismatch,
            QStringLiteral("Tipo di dati non corrispondente nel campo \"%1\".").arg(column.name)};
}

Status overflow(const jet::Column& column) {
    return {ErrorCode::Overflow,
            QStringLiteral("Valore troppo grande per il campo \"%1\".").arg(column.name)};
}

Result<jet::Value> fitInteger(const Value& value, const jet::Column& column, int64_t least,
                              int64_t greatest) {
    const Result<qint64> number = value.toInteger();
    if (!number.ok())
        return number.status().code() == ErrorCode::Overflow ? overflow(column) : mismatch(column);
    if (number.value() < least || number.value() > greatest) return overflow(column);
    return jet::Value(static_cast<int64_t>(number.value()));
}

std::optional<double> realOf(const jet::Value& value) {
    if (const auto* yes = std::get_if<bool>(&value)) return *yes ? -1 : 0;
    if (const auto* number = std::get_if<int64_t>(&value)) return static_cast<double>(*number);
    if (const auto* number = std::get_if<double>(&value)) return *number;
    if (const auto* date = std::get_if<jet::Date>(&value)) return date->days;
    if (const auto* amount = std::get_if<jet::Currency>(&value))
        return static_cast<double>(amount->tenThousandths) / 10000;
    if (const auto* text = std::get_if<std::string>(&value)) {
        bool ok = false;
        const double number = QString::fromStdString(*text).trimmed().toDouble(&ok);
        if (ok) return number;
    }
    return std::nullopt;
}

Result<jet::Value> fitCurrency(const jet::Value& value, const jet::Column& column) {
    if (std::holds_alternative<jet::Currency>(value)) return value;
    const std::optional<double> number = realOf(value);
    if (!number) return mismatch(column);
    const double scaled = std::nearbyint(*number * 10000);
    if (!(std::fabs(scaled) < 9.2e18)) return overflow(column);
    return jet::Value(jet::Currency{static_cast<int64_t>(scaled)});
}

}  // namespace

Result<jet::Value> fitToColumn(const jet::Value& raw, const jet::Column& column) {
    const Value value(raw);
    if (value.isNull()) return column.type == Type::YesNo ? jet::Value(false) : raw;
    switch (column.type) {
        case Type::YesNo: {
            const Result<bool> yes = value.toBool();
            return yes.ok() ? Result<jet::Value>(jet::Value(yes.value())) : mismatch(column);
        }
        case Type::Byte:
            return fitInteger(value, column, 0, std::numeric_limits<uint8_t>::max());
        case Type::Integer:
            return fitInteger(value, column, std::numeric_limits<int16_t>::min(),
                              std::numeric_limits<int16_t>::max());
        case Type::Long:
            return fitInteger(value, column, std::numeric_limits<int32_t>::min(),
                              std::numeric_limits<int32_t>::max());
        case Type::Currency:
            return fitCurrency(raw, column);
        case Type::Single:
        case Type::Double:
        case Type::Date: {
            const std::optional<double> number = realOf(raw);
            if (!number) return mismatch(column);
            return column.type == Type::Date ? jet::Value(jet::Date{*number}) : jet::Value(*number);
        }
        case Type::Text:
        case Type::Memo: {
            if (std::holds_alternative<std::string>(raw)) return raw;
            const Result<QString> text = value.toText(QLocale::c());
            return text.ok() ? Result<jet::Value>(jet::Value(text.value().toStdString())) : mismatch(column);
        }
        default:
            return std::holds_alternative<jet::Bytes>(raw) ? Result<jet::Value>(raw) : mismatch(column);
    }
}

}  // namespace ado
