// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/ValueCodec.h"

#include <bit>
#include <cmath>
#include <limits>

#include "platform/jet/Failure.h"
#include "platform/jet/Format.h"
#include "platform/jet/JetText.h"

namespace jet {

namespace {

// In UTF-16 units; 30 bits store the length in bytes.
constexpr size_t longestMemo = (size_t{1} << 29) - 1;

template <class Wanted>
const Wanted& expect(const Column& column, const Value& value) {
    if (const Wanted* wanted = std::get_if<Wanted>(&value)) return *wanted;
    fail(ErrorCode::TypeMismatch, "Tipo di dati non corrispondente nel campo \"%1\"."_tr, column.name);
}

[[noreturn]] void failOverflow(const Column& column) {
    fail(ErrorCode::Overflow, "Il numero è troppo grande per il campo \"%1\"."_tr, column.name);
}

int64_t wholeOf(const Column& column, const Value& value) {
    const bool* truth = std::get_if<bool>(&value);
    const int64_t number = truth ? -int64_t{*truth} : expect<int64_t>(column, value);
    if (!wholeRange(column.type).contains(number)) failOverflow(column);
    return number;
}

// There is no key for what is no number, and 0 has one key only.
double finite(const Column& column, double number) {
    if (!std::isfinite(number)) failOverflow(column);
    return number + 0.0;
}

double realOf(const Column& column, const Value& value) {
    if (const int64_t* number = std::get_if<int64_t>(&value)) return static_cast<double>(*number);
    return finite(column, expect<double>(column, value));
}

Bytes littleEndian(uint64_t bits, size_t length) {
    Bytes bytes(length);
    for (size_t i = 0; i < length; ++i)
        bytes[i] = static_cast<uint8_t>(bits >> (8 * i));
    return bytes;
}

Bytes singleBytes(const Column& column, double number) {
    if (std::abs(number) > static_cast<double>(std::numeric_limits<float>::max())) failOverflow(column);
    return littleEndian(std::bit_cast<uint32_t>(static_cast<float>(number)), 4);
}

Bytes textBytes(const Column& column, const std::string& utf8) {
    const size_t most = column.type == Type::Memo ? longestMemo : column.length / 2u;
    if (column.compressed && utf8.size() <= most)
        if (std::optional<Bytes> bytes = compressAscii(utf8)) return std::move(*bytes);
    const std::u16string text = toUtf16(utf8);
    if (text.size() > most)
        fail(ErrorCode::FieldTooSmall,
             "Il campo \"%1\" è troppo piccolo per il testo (al massimo %2 caratteri)."_tr, column.name,
             most);
    if (std::optional<Bytes> bytes = encodeText(text, column.compressed)) return std::move(*bytes);
    fail(ErrorCode::NotSupported,
         "Il testo del campo \"%1\" contiene caratteri che il database non può conservare."_tr, column.name);
}

Bytes rawBytes(const Column& column, const Value& value) {
    const Bytes& bytes = expect<Bytes>(column, value);
    const bool exact = column.fixed || column.type == Type::Guid || column.type == Type::Numeric;
    const size_t wanted = exact && column.type != Type::Binary ? fixedLength(column) : column.length;
    if (bytes.size() > wanted || (exact && bytes.size() != wanted))
        fail(ErrorCode::FieldTooSmall, "Il campo \"%1\" non può contenere %2 byte."_tr, column.name,
             bytes.size());
    return bytes;
}

}  // namespace

size_t fixedLength(const Column& column) {
    switch (column.type) {
        case Type::YesNo:
            return 0;
        case Type::Byte:
            return 1;
        case Type::Integer:
            return 2;
        case Type::Long:
        case Type::Single:
            return 4;
        case Type::Currency:
        case Type::Double:
        case Type::Date:
            return 8;
        case Type::Guid:
            return 16;
        case Type::Numeric:
            return 17;
        default:
            return column.length;
    }
}

bool isWritable(const Column& column, Phrase& why) {
    switch (column.type) {
        case Type::Ole:
            why = "contiene un oggetto OLE"_tr;
            return false;
        case Type::Text:
        case Type::Memo:
            if (!column.fixed) return true;
            why = "è un testo di lunghezza fissa"_tr;
            return false;
        case Type::YesNo:
        case Type::Byte:
        case Type::Integer:
        case Type::Long:
        case Type::Currency:
        case Type::Single:
        case Type::Double:
        case Type::Date:
        case Type::Binary:
        case Type::Guid:
        case Type::Numeric:
            return true;
    }
    why = Phrase("è di un tipo sconosciuto (%1)"_tr, static_cast<int>(column.type));
    return false;
}

bool yesNoValue(const Column& column, const Value& value) {
    if (std::holds_alternative<std::monostate>(value)) return false;
    if (const int64_t* number = std::get_if<int64_t>(&value)) return *number != 0;
    return expect<bool>(column, value);
}

std::optional<Bytes> encodeValue(const Column& column, const Value& value) {
    if (std::holds_alternative<std::monostate>(value)) return std::nullopt;
    switch (column.type) {
        case Type::Byte:
        case Type::Integer:
        case Type::Long:
            return littleEndian(static_cast<uint64_t>(wholeOf(column, value)), fixedLength(column));
        case Type::Currency:
            return littleEndian(static_cast<uint64_t>(expect<Currency>(column, value).tenThousandths), 8);
        case Type::Single:
            return singleBytes(column, realOf(column, value));
        case Type::Double:
            return littleEndian(std::bit_cast<uint64_t>(realOf(column, value)), 8);
        case Type::Date:
            return littleEndian(std::bit_cast<uint64_t>(finite(column, expect<Date>(column, value).days)), 8);
        case Type::Text:
        case Type::Memo:
            return textBytes(column, expect<std::string>(column, value));
        case Type::Binary:
        case Type::Guid:
        case Type::Numeric:
            return rawBytes(column, value);
        default:
            break;
    }
    Phrase why;
    (void)isWritable(column, why);
    fail(ErrorCode::NotSupported, "Il campo \"%1\" %2: non può essere modificato."_tr, column.name, why);
}

void appendStoredText(const Column& column, std::span<const uint8_t> bytes, std::string& out) {
    if (column.ansi)
        appendAnsiAsUtf8(bytes, out);
    else
        appendUtf8(bytes, out);
}

int64_t wholeNumber(const Column& column, const StoredField& field) {
    if (field.null || field.bytes.size() < fixedLength(column)) return 0;
    switch (column.type) {
        case Type::Byte:
            return field.bytes[0];
        case Type::Integer:
            return static_cast<int16_t>(load16(field.bytes.data()));
        case Type::Long:
            return static_cast<int32_t>(load32(field.bytes.data()));
        default:
            return 0;
    }
}

Value decodeValue(const Column& column, std::span<const uint8_t> bytes) {
    const uint8_t* p = bytes.data();
    switch (column.type) {
        case Type::Text:
        case Type::Memo: {
            std::string text;
            appendStoredText(column, bytes, text);
            return text;
        }
        case Type::Byte:
        case Type::Integer:
        case Type::Long:
        case Type::Currency:
        case Type::Single:
        case Type::Double:
        case Type::Date:
            if (bytes.size() < fixedLength(column)) return {};
            break;
        default:
            return Bytes(bytes.begin(), bytes.end());
    }
    switch (column.type) {
        case Type::Byte:
        case Type::Integer:
        case Type::Long:
            return wholeNumber(column, {false, bytes});
        case Type::Currency:
            return Currency{static_cast<int64_t>(load64(p))};
        case Type::Single:
            return static_cast<double>(std::bit_cast<float>(load32(p)));
        case Type::Date:
            return Date{std::bit_cast<double>(load64(p))};
        default:
            return std::bit_cast<double>(load64(p));
    }
}

}  // namespace jet
