// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/AutoNumber.h"

#include <algorithm>
#include <limits>

#include "platform/jet/IndexTree.h"
#include "platform/jet/Key.h"

namespace jet {

namespace {

constexpr int32_t noNumber = std::numeric_limits<int32_t>::min();

// The greatest number of an index that begins with them; nothing when none does.
std::optional<int32_t> greatestIndexed(TableState& state, const Column& column) {
    for (const Index& index : state.definition.indexes) {
        if (index.parts.empty() || index.parts.front().column != column.number) continue;
        const IndexTree tree(state.file, state.definition, index);
        const bool ascending = index.parts.front().ascending;
        const std::optional<Bytes> key = ascending ? tree.lastKey() : tree.firstKey();
        return key ? longAtStart(*key, ascending).value_or(noNumber) : noNumber;
    }
    return std::nullopt;
}

int32_t greatestOfRows(TableState& state, const Column& column) {
    int32_t greatest = noNumber;
    state.rows.scan([&](RowId, std::span<const uint8_t> bytes) {
        const StoredField field = storedField(state.definition, column, bytes);
        if (!field.null && field.bytes.size() >= 4)
            greatest = std::max(greatest, static_cast<int32_t>(load32(field.bytes.data())));
        return true;
    });
    return greatest;
}

}  // namespace

const Column* autoNumberColumn(const TableDefinition& table) {
    for (const Column& column : table.columns)
        if (column.autoNumber && column.type == Type::Long) return &column;
    return nullptr;
}

int32_t nextAutoNumber(TableState& state) {
    const Column* column = autoNumberColumn(state.definition);
    if (!column)
        fail(ErrorCode::NotSupported, "La tabella \"%1\" non ha un contatore."_tr, state.definition.name);
    if (!state.greatestNumber) {
        const std::optional<int32_t> indexed = greatestIndexed(state, *column);
        state.greatestNumber = indexed ? *indexed : greatestOfRows(state, *column);
    }
    const int32_t last = std::max(state.lastAutoNumber(), *state.greatestNumber);
    if (last == std::numeric_limits<int32_t>::max())
        fail(ErrorCode::Overflow, "Il contatore della tabella \"%1\" è esaurito."_tr, state.definition.name);
    return last + 1;
}

}  // namespace jet
