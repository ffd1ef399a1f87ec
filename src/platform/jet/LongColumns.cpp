// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/LongColumns.h"

#include <cassert>

#include "platform/jet/LongValue.h"
#include "platform/jet/ValueCodec.h"

namespace jet {

bool isLong(const Column& column) {
    return column.type == Type::Memo || column.type == Type::Ole;
}

LongChange setLong(Row& row, const Column& column, const Value& value) {
    LongChange change{&column, encodeValue(column, value), {}};
    if (!change.content) {
        row.set(column, {});
    } else if (std::optional<Bytes> inRow = longValueInRow(*change.content)) {
        row.setStored(column, std::move(inRow));
        change.content.reset();
    } else {
        Bytes head(longValueHead);
        store32(head.data(), static_cast<uint32_t>(change.content->size()));
        row.setStored(column, std::move(head));
    }
    return change;
}

void storeLong(TableState& state, Row& row, const LongChanges& changes) {
    for (const LongChange& change : changes) {
        LongValuePages& pages = state.pagesOf(*change.column);
        pages.free(change.before);
        if (!change.content) continue;
        row.setStored(*change.column, pages.store(*change.content));
        assert(readLongValue(state.file, row.field(*change.column).bytes) == *change.content);  // V1, V3
    }
}

bool sameLongValue(const TableState& state, const Row& stored, const Column& column, const Value& value) {
    const StoredField old = stored.field(column);
    if (old.null) return std::holds_alternative<std::monostate>(value);
    return decodeValue(column, readLongValue(state.file, old.bytes)) == value;
}

LongValuePages& TableState::pagesOf(const Column& column) {
    return longValues.try_emplace(column.number, file, column).first->second;
}

LongRows longRowsOf(const TableState& state, const Row& row) {
    LongRows all;
    for (const Column& column : state.definition.columns) {
        if (!isLong(column)) continue;
        const StoredField field = row.field(column);
        if (!field.null) all.emplace_back(&column, longValueRows(state.file, field.bytes));
    }
    return all;
}

}  // namespace jet
