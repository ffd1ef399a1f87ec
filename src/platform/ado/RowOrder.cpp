#include "platform/ado/RowOrder.h"
#include "platform/ado/RawValue.h"

#include <algorithm>
#include <bit>
#include <charconv>

#include "platform/jet/GeneralOrder.h"

namespace ado {

namespace {

using jet::Type;

// Blocks are filled with room for some more, and cut in two when that is used.
constexpr size_t rowsOfFullBlock = 64;
constexpr size_t mostRowsOfBlock = 96;

OrderBlock::Id packed(jet::RowId id) {
    return static_cast<OrderBlock::Id>(id.toInteger());
}

constexpr char nullMark = 0x00;
constexpr char valueMark = 0x7f;

void appendBigEndian(std::string& key, uint64_t bits) {
    for (int shift = 56; shift >= 0; shift -= 8)
        key.push_back(static_cast<char>(bits >> shift & 0xff));
}

void appendInteger(std::string& key, int64_t number) {
    appendBigEndian(key, static_cast<uint64_t>(number) ^ 1ull << 63);
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
        case Type::Long:
            return appendInteger(key, row.integer(column));
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

Status RowOrder::fill(jet::Table& table) {
    // All keys in one text, so that the memory they take for a moment goes back to the system.
    struct Row {
        size_t key;
        uint32_t length;
        OrderBlock::Id id;
    };
    std::string keys;
    std::vector<Row> rows;
    Status status = table.scan([&](jet::RowId id, const jet::RowView& row) {
        const size_t start = keys.size();
        appendKey(keys, row);
        rows.push_back({start, static_cast<uint32_t>(keys.size() - start), packed(id)});
        return true;
    });
    if (!status.ok()) return status;
    const auto keyOfRow = [&](const Row& row) { return std::string_view(keys).substr(row.key, row.length); };
    std::sort(rows.begin(), rows.end(), [&](const Row& a, const Row& b) {
        const int order = keyOfRow(a).compare(keyOfRow(b));
        return order != 0 ? order < 0 : a.id < b.id;
    });
    m_blocks.clear();
    for (size_t i = 0; i < rows.size(); ++i) {
        if (i % rowsOfFullBlock == 0) {
            if (i != 0) m_blocks.back().shrinkToFit();
            m_blocks.emplace_back();
        }
        m_blocks.back().append(keyOfRow(rows[i]), rows[i].id,
                               i == 0 ? std::string_view() : keyOfRow(rows[i - 1]));
    }
    return {};
}

void RowOrder::appendKey(std::string& key, const jet::RowView& row) const {
    if (m_spec.group) appendField(key, row, *m_spec.group);
    for (const OrderSpec::Part& part : m_spec.parts) {
        const size_t start = key.size();
        appendField(key, row, part.column);
        if (part.ascending) continue;
        for (size_t i = start; i < key.size(); ++i)
            key[i] = static_cast<char>(~key[i]);
    }
}

std::string RowOrder::keyOf(const jet::RowView& row) const {
    std::string key;
    appendKey(key, row);
    return key;
}

/// The block where a row with that key stands or would stand.
size_t RowOrder::blockOf(std::string_view key, OrderBlock::Id id) const {
    const auto behind = std::partition_point(m_blocks.begin(), m_blocks.end(), [&](const OrderBlock& block) {
        const int order = block.firstKey().compare(key);
        return order < 0 || (order == 0 && block.id(0) <= id);
    });
    return behind == m_blocks.begin() ? 0 : static_cast<size_t>(behind - m_blocks.begin()) - 1;
}

void RowOrder::add(std::string_view key, jet::RowId id) {
    if (m_blocks.empty()) {
        m_blocks.emplace_back().append(key, packed(id), {});
        return;
    }
    const size_t number = blockOf(key, packed(id));
    m_blocks[number].insert(key, packed(id));
    if (m_blocks[number].count() > mostRowsOfBlock) {
        OrderBlock second = m_blocks[number].split();
        m_blocks.insert(m_blocks.begin() + static_cast<std::ptrdiff_t>(number) + 1, std::move(second));
    }
}

void RowOrder::remove(std::string_view key, jet::RowId id) {
    if (m_blocks.empty()) return;
    const size_t number = blockOf(key, packed(id));
    m_blocks[number].erase(key, packed(id));
    if (m_blocks[number].count() == 0) m_blocks.erase(m_blocks.begin() + static_cast<std::ptrdiff_t>(number));
}

jet::RowId RowOrder::at(Place place) const {
    return jet::RowId::fromInteger(m_blocks[place.block].id(place.row));
}

RowOrder::Place RowOrder::next(Place place) const {
    return place.row + 1 < m_blocks[place.block].count() ? Place{place.block, place.row + 1}
                                                         : Place{place.block + 1, 0};
}

RowOrder::Place RowOrder::lowerBound(std::string_view key) const {
    if (m_blocks.empty()) return end();
    const size_t number = blockOf(key, 0);
    const size_t row = m_blocks[number].lowerBound(key, 0);
    return row < m_blocks[number].count() ? Place{number, row} : Place{number + 1, 0};
}

std::pair<RowOrder::Place, RowOrder::Place> RowOrder::group(Type type, int64_t number) const {
    std::string key(1, valueMark);
    if (type == Type::YesNo) {
        appendYesNo(key, number != 0);
    } else {
        appendInteger(key, number);
    }
    const Place first = lowerBound(key);
    // The least text behind all that begin with the key; the mark before the value takes the last carry.
    for (size_t i = key.size(); ++key[--i] == 0;) {
    }
    return {first, lowerBound(key)};
}

}  // namespace ado
