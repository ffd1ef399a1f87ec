// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Key.h"

#include <algorithm>

#include "platform/jet/Failure.h"
#include "platform/jet/Format.h"
#include "platform/jet/GeneralOrder.h"
#include "platform/jet/JetText.h"
#include "platform/jet/ValueCodec.h"

namespace jet {

namespace {

constexpr size_t groupLength = 8;
constexpr uint8_t groupGoesOn = 9;

const Column& columnOf(const TableDefinition& definition, const Index::Part& part) {
    const auto found = std::find_if(definition.columns.begin(), definition.columns.end(),
                                    [&](const Column& column) { return column.number == part.column; });
    if (found == definition.columns.end())
        failDamaged("un indice di \"%1\" nomina un campo che non c'è"_tr, definition.name);
    return *found;
}

void appendBigEndian(Bytes& key, std::span<const uint8_t> littleEndian) {
    key.insert(key.end(), littleEndian.rbegin(), littleEndian.rend());
}

void invert(Bytes& key, size_t from) {
    for (size_t i = from; i < key.size(); ++i)
        key[i] = static_cast<uint8_t>(~key[i]);
}

void appendWhole(Bytes& key, std::span<const uint8_t> bytes) {
    const size_t start = key.size();
    appendBigEndian(key, bytes);
    key[start] ^= 0x80;
}

void appendReal(Bytes& key, std::span<const uint8_t> bytes) {
    const size_t start = key.size();
    appendBigEndian(key, bytes);
    if (key[start] & 0x80)
        invert(key, start);
    else
        key[start] ^= 0x80;
}

void appendGroups(Bytes& key, std::span<const uint8_t> bytes, bool ascending) {
    while (!bytes.empty()) {
        const size_t used = std::min(bytes.size(), groupLength);
        const size_t start = key.size();
        key.insert(key.end(), bytes.begin(), bytes.begin() + static_cast<ptrdiff_t>(used));
        key.resize(start + groupLength);
        bytes = bytes.subspan(used);
        key.push_back(static_cast<uint8_t>(bytes.empty() ? used : groupGoesOn));
        if (ascending) continue;
        invert(key, start);
        if (!bytes.empty()) key.back() = groupGoesOn;
    }
}

// Written out, the first three groups of a GUID are numbers.
Bytes writtenGuid(std::span<const uint8_t> stored) {
    Bytes bytes(stored.begin(), stored.end());
    std::reverse(bytes.begin(), bytes.begin() + 4);
    std::reverse(bytes.begin() + 4, bytes.begin() + 6);
    std::reverse(bytes.begin() + 6, bytes.begin() + 8);
    return bytes;
}

std::string textOf(const Column& column, const StoredField& field) {
    std::string text;
    appendStoredText(column, field.bytes, text);
    return text;
}

// The character and its number, as in "ж" (U+0436).
std::string characterName(char32_t code) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string number;
    for (int shift = code > 0xFFFF ? 20 : 12; shift >= 0; shift -= 4)
        number += digits[code >> shift & 0xF];
    std::string character;
    appendCodePoint(code, character);
    return "\"" + character + "\" (U+" + number + ")";
}

// False when the text has no known key.
bool appendText(Bytes& key, const std::string& text, bool ascending, LigaturePlaces places) {
    std::string part;
    if (!appendIndexKey(part, text, ascending, places)) return false;
    key.insert(key.end(), part.begin(), part.end());
    return true;
}

void appendNumber(Bytes& key, const Column& column, const StoredField& field, bool ascending) {
    const size_t start = key.size();
    key.push_back(0x7F);
    switch (column.type) {
        case Type::YesNo:
            key.push_back(field.null ? 0xFF : 0x00);
            break;
        case Type::Byte:
            key.push_back(field.bytes[0]);
            break;
        case Type::Integer:
        case Type::Long:
        case Type::Currency:
            appendWhole(key, field.bytes.first(fixedLength(column)));
            break;
        default:
            appendReal(key, field.bytes.first(fixedLength(column)));
    }
    if (!ascending) invert(key, start);
}

// False when the value has no known key.
bool appendPart(Bytes& key, const Column& column, bool ascending, const StoredField& field,
                LigaturePlaces places) {
    const bool yesNo = column.type == Type::YesNo;
    if (field.null && !yesNo) {
        key.push_back(ascending ? 0x00 : 0xFF);
        return true;
    }
    if (column.type == Type::Text) return appendText(key, textOf(column, field), ascending, places);
    if (!yesNo && column.type != Type::Binary && field.bytes.size() < fixedLength(column))
        failDamaged("un valore del campo \"%1\" è troppo corto"_tr, column.name);
    if (column.type == Type::Binary || column.type == Type::Guid) {
        key.push_back(ascending ? 0x7F : 0x80);
        if (column.type == Type::Guid)
            appendGroups(key, writtenGuid(field.bytes), ascending);
        else
            appendGroups(key, field.bytes, ascending);
        return true;
    }
    appendNumber(key, column, field, ascending);
    return true;
}

std::optional<Bytes> keyWith(const TableDefinition& definition, const Index& index, const FieldOf& field,
                             LigaturePlaces places) {
    Bytes key;
    for (const Index::Part& part : index.parts) {
        const Column& column = columnOf(definition, part);
        if (!appendPart(key, column, part.ascending, field(column), places)) return std::nullopt;
    }
    return key;
}

}  // namespace

Phrase whyNotKept(const TableDefinition& definition, const Index& index) {
    for (const Index::Part& part : index.parts) {
        const Column& column = columnOf(definition, part);
        switch (column.type) {
            case Type::YesNo:
            case Type::Byte:
            case Type::Integer:
            case Type::Long:
            case Type::Currency:
            case Type::Single:
            case Type::Double:
            case Type::Date:
            case Type::Guid:
            case Type::Binary:
                break;
            case Type::Text:
                if (column.generalOrder) break;
                return Phrase("il campo \"%1\" non ha l'ordinamento generale"_tr, column.name);
            default:
                return Phrase("il tipo del campo \"%1\" non è adatto a un indice"_tr, column.name);
        }
    }
    return index.parts.empty() ? "non è su alcun campo"_tr : Phrase();
}

bool needsProof(const TableDefinition& definition, const Index& index) {
    return std::any_of(index.parts.begin(), index.parts.end(), [&](const Index::Part& part) {
        const Type type = columnOf(definition, part).type;
        return !part.ascending && (type == Type::Text || type == Type::Binary);
    });
}

Bytes keyToWrite(const TableDefinition& definition, const Index& index, const FieldOf& field) {
    for (const Index::Part& part : index.parts) {
        const Column& column = columnOf(definition, part);
        const StoredField stored = field(column);
        if (column.type != Type::Text || stored.null) continue;
        if (const auto character = characterWithoutKey(textOf(column, stored)))
            fail(ErrorCode::NotSupported,
                 "Il testo del campo \"%1\" contiene il carattere %2, "
                 "che non può stare nell'indice \"%3\"."_tr,
                 column.name, characterName(*character), index.name);
    }
    const std::optional<Bytes> key = keyWith(definition, index, field, LigaturePlaces::One);
    if (!key || key->size() > longestKey)
        fail(ErrorCode::NotSupported, "I valori sono troppo lunghi per l'indice \"%1\"."_tr, index.name);
    return *key;
}

std::vector<Bytes> possibleKeys(const TableDefinition& definition, const Index& index, const FieldOf& field) {
    std::vector<Bytes> keys;
    for (const LigaturePlaces places : {LigaturePlaces::One, LigaturePlaces::Two}) {
        std::optional<Bytes> key = keyWith(definition, index, field, places);
        if (key && (keys.empty() || keys.front() != *key)) keys.push_back(std::move(*key));
    }
    return keys;
}

size_t countNulls(const TableDefinition& definition, const Index& index, const FieldOf& field) {
    return static_cast<size_t>(
        std::count_if(index.parts.begin(), index.parts.end(), [&](const Index::Part& part) {
            const Column& column = columnOf(definition, part);
            return column.type != Type::YesNo && field(column).null;
        }));
}

bool isIndexed(const TableDefinition& definition, const Index& index, const FieldOf& field) {
    return !index.ignoreNulls || countNulls(definition, index, field) < index.parts.size();
}

Bytes keyOfNumber(const Column& column, bool ascending, int64_t number) {
    Bytes stored(sizeof number);
    store64(stored.data(), static_cast<uint64_t>(number));
    const bool isFalse = column.type == Type::YesNo && number == 0;
    Bytes key;
    appendNumber(key, column, {isFalse, std::span(stored).first(fixedLength(column))}, ascending);
    return key;
}

Bytes longKey(int32_t value) {
    Bytes key(5);
    key[0] = 0x7F;
    store32Big(&key[1], static_cast<uint32_t>(value) ^ 0x80000000u);
    return key;
}

std::optional<int32_t> longAtStart(const Bytes& key, bool ascending) {
    if (key.size() < 5 || key[0] != (ascending ? 0x7F : 0x80)) return std::nullopt;
    const uint32_t bits = load32Big(&key[1]) ^ 0x80000000u;
    return static_cast<int32_t>(ascending ? bits : ~bits);
}

}  // namespace jet
