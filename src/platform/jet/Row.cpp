// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Row.h"

#include <algorithm>

#include "platform/jet/Failure.h"
#include "platform/jet/Format.h"
#include "platform/jet/ValueCodec.h"

namespace jet {

namespace {

size_t maskLength(size_t columns) {
    return (columns + 7) / 8;
}

// The parts of a stored row. In Jet 3 the numbers are bytes: the column count, the offsets, and their number
// with a jump table before it that says at which offsets 256 more are to be added.
struct Parts {
    std::span<const uint8_t> row;
    size_t columns = 0;
    size_t maskAt = 0;
    size_t variables = 0;
    size_t width = 2;  // of its numbers
    size_t jumps = 0;
    bool valid = false;

    Parts(const TableDefinition& definition, std::span<const uint8_t> bytes)
        : row(bytes), width(definition.jet3 ? 1 : 2) {
        if (row.size() < 1 + width) return;
        columns = number(0);
        const size_t mask = maskLength(columns);
        if (row.size() < width + mask) return;
        maskAt = row.size() - mask;
        if (definition.variableColumns > 0) {
            if (maskAt < 2 * width) return;
            variables = number(maskAt - width);
            jumps = definition.jet3 ? (row.size() - 1) / 256 : 0;
            // count, offsets and their number must fit
            if (width * (variables + 3) + jumps > maskAt) return;
        }
        valid = true;
    }

    // Entry k of the offsets; k up to `variables`.
    size_t offset(size_t k) const {
        size_t value = number(maskAt - jumps - width * (k + 2));
        for (size_t jump = 0; jump < jumps && row[maskAt - 2 - jump] <= k; ++jump)
            value += 256;
        return value;
    }
    size_t fixedAt() const { return width; }
    size_t offsetsAt() const { return maskAt - jumps - width * (variables + 2); }
    bool mask(size_t column) const {
        return column < columns && row[maskAt + column / 8] >> (column % 8) & 1;
    }

  private:
    size_t number(size_t at) const { return width == 1 ? row[at] : load16(&row[at]); }
};

std::span<const uint8_t> variable(const Parts& parts, size_t k) {
    if (k >= parts.variables) return {};
    const size_t start = parts.offset(k);
    const size_t end = parts.offset(k + 1);
    if (start < parts.fixedAt() || start > end || end > parts.offsetsAt()) return {};
    return parts.row.subspan(start, end - start);
}

// Sets `field`, which is Null before, where the row has the column.
void takeField(const Parts& parts, const Column& column, StoredField& field) {
    if (!parts.valid || !parts.mask(column.number)) return;
    if (column.type == Type::YesNo) {
        field.null = false;
    } else if (!column.fixed) {
        if (column.variableIndex >= parts.variables) return;
        field.null = false;
        field.bytes = variable(parts, column.variableIndex);
    } else {
        const size_t length = fixedLength(column);
        const size_t start = parts.fixedAt() + column.fixedOffset;
        if (start + length > parts.maskAt) return;
        field.null = false;
        field.bytes = parts.row.subspan(start, length);
    }
}

}  // namespace

bool maskBit(const TableDefinition& definition, const Column& column, std::span<const uint8_t> row) {
    const Parts parts(definition, row);
    return parts.valid && parts.mask(column.number);
}

std::optional<size_t> maskByte(const TableDefinition& definition, const Column& column,
                               std::span<const uint8_t> row) {
    const Parts parts(definition, row);
    if (!parts.valid || parts.columns > definition.maxColumns)
        failDamaged("una riga di \"%1\" non è leggibile"_tr, definition.name);
    if (column.number >= parts.columns) return std::nullopt;
    return parts.maskAt + column.number / 8;
}

StoredField storedField(const TableDefinition& definition, const Column& column,
                        std::span<const uint8_t> row) {
    StoredField field;
    takeField(Parts(definition, row), column, field);
    return field;
}

void storedFields(const TableDefinition& definition, std::span<const uint8_t> row,
                  std::vector<StoredField>& fields) {
    const Parts parts(definition, row);
    fields.resize(definition.columns.size());
    const bool plain = parts.valid && !definition.jet3;
    for (size_t i = 0; i < fields.size(); ++i) {
        const Column& column = definition.columns[i];
        StoredField& field = fields[i];
        field = {};
        if (!plain || column.fixed || column.type == Type::YesNo) {
            takeField(parts, column, field);
        } else if (parts.mask(column.number) && column.variableIndex < parts.variables) {
            // As takeField() does, for what most columns are.
            field.null = false;
            const uint8_t* ends = row.data() + parts.maskAt - 2 * (size_t{column.variableIndex} + 3);
            const size_t start = load16(ends + 2);
            const size_t end = load16(ends);
            if (start >= parts.fixedAt() && start <= end && end <= parts.offsetsAt())
                field.bytes = {row.data() + start, end - start};
        }
    }
}

Row::Row(const TableDefinition& definition) : m_definition(&definition) {
    size_t fixed = 0;
    for (const Column& column : definition.columns)
        if (column.fixed) fixed = std::max(fixed, column.fixedOffset + fixedLength(column));
    m_fixed.resize(fixed);
    m_variable.resize(definition.variableColumns);
    m_mask.resize(maskLength(definition.maxColumns));
}

Row::Row(const TableDefinition& definition, std::span<const uint8_t> bytes) : Row(definition) {
    const Parts parts(definition, bytes);
    const auto damaged = [&] { failDamaged("una riga di \"%1\" non è leggibile"_tr, definition.name); };
    if (!parts.valid || parts.columns > definition.maxColumns) damaged();
    const size_t fixedEnd = definition.variableColumns > 0 ? parts.offset(0) : parts.maskAt;
    if (fixedEnd < 2 || fixedEnd > parts.maskAt) damaged();
    const size_t stored = fixedEnd - 2;
    if (m_fixed.size() < stored) m_fixed.resize(stored);
    std::copy_n(bytes.begin() + 2, stored, m_fixed.begin());
    if (m_variable.size() < parts.variables) m_variable.resize(parts.variables);
    for (size_t k = 0; k < parts.variables; ++k) {
        if (parts.offset(k) > parts.offset(k + 1) || parts.offset(k + 1) > parts.offsetsAt()) damaged();
        const auto value = variable(parts, k);
        m_variable[k].assign(value.begin(), value.end());
    }
    std::copy(bytes.begin() + static_cast<ptrdiff_t>(parts.maskAt), bytes.end(), m_mask.begin());
}

bool Row::isNull(const Column& column) const {
    return (m_mask[column.number / 8] >> (column.number % 8) & 1) == 0;
}

StoredField Row::field(const Column& column) const {
    if (isNull(column)) return {};
    if (column.type == Type::YesNo) return {false};
    if (!column.fixed) return {false, m_variable[column.variableIndex]};
    return {false, std::span(m_fixed).subspan(column.fixedOffset, fixedLength(column))};
}

std::optional<int32_t> Row::longValue(const Column& column) const {
    if (isNull(column)) return std::nullopt;
    if (column.fixed) return static_cast<int32_t>(load32(&m_fixed[column.fixedOffset]));
    const Bytes& stored = m_variable[column.variableIndex];
    if (stored.size() < 4) return std::nullopt;
    return static_cast<int32_t>(load32(stored.data()));
}

void Row::setMask(const Column& column, bool present) {
    const uint8_t bit = static_cast<uint8_t>(1u << (column.number % 8));
    if (present)
        m_mask[column.number / 8] |= bit;
    else
        m_mask[column.number / 8] &= static_cast<uint8_t>(~bit);
}

bool Row::set(const Column& column, const Value& value) {
    const bool wasNull = isNull(column);
    if (column.type == Type::YesNo) {
        const bool yes = yesNoValue(column, value);
        setMask(column, yes);
        return yes == wasNull;
    }
    std::optional<Bytes> encoded = encodeValue(column, value);
    setMask(column, encoded.has_value());
    if (column.fixed) {
        if (!encoded) return !wasNull;  // the bytes in the fixed area have no meaning now
        const auto place = m_fixed.begin() + column.fixedOffset;
        const bool same = !wasNull && std::equal(encoded->begin(), encoded->end(), place);
        std::copy(encoded->begin(), encoded->end(), place);
        return !same;
    }
    Bytes& place = m_variable[column.variableIndex];
    const bool hasValue = encoded.has_value();
    Bytes now = std::move(encoded).value_or(Bytes());
    const bool same = wasNull != hasValue && place == now;
    place = std::move(now);
    return !same;
}

void Row::setStored(const Column& column, std::optional<Bytes> bytes) {
    setMask(column, bytes.has_value());
    m_variable[column.variableIndex] = std::move(bytes).value_or(Bytes());
}

std::vector<uint8_t> Row::bytes() const {
    size_t variableEnd = 2 + m_fixed.size();
    for (const Bytes& value : m_variable)
        variableEnd += value.size();
    const bool hasVariable = m_definition->variableColumns > 0;
    const size_t maskAt = hasVariable ? variableEnd + 2 * (m_variable.size() + 2) : 2 + m_fixed.size();
    std::vector<uint8_t> out(maskAt + m_mask.size());
    store16(out.data(), m_definition->maxColumns);
    const auto put = [&out](size_t at, const Bytes& bytes) {
        std::copy(bytes.begin(), bytes.end(), out.begin() + static_cast<ptrdiff_t>(at));
    };
    put(2, m_fixed);
    if (hasVariable) {
        size_t at = variableEnd;
        size_t offset = variableEnd;
        store16(&out[at], static_cast<uint32_t>(offset));
        for (size_t k = m_variable.size(); k-- > 0;) {
            offset -= m_variable[k].size();
            put(offset, m_variable[k]);
            store16(&out[at += 2], static_cast<uint32_t>(offset));
        }
        store16(&out[at + 2], static_cast<uint32_t>(m_variable.size()));
    }
    put(maskAt, m_mask);
    if (out.size() > data::maxRow)
        fail(ErrorCode::RecordTooLarge,
             "Il record è troppo grande per la tabella \"%1\" (%2 byte; al massimo %3)."_tr,
             m_definition->name, out.size(), data::maxRow);
    return out;
}

}  // namespace jet
