// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cassert>
#include <optional>

#include "platform/jet/AutoNumber.h"
#include "platform/jet/Engine.h"
#include "platform/jet/IndexTree.h"
#include "platform/jet/LongColumns.h"
#include "platform/jet/Row.h"
#include "platform/jet/StatementRules.h"
#include "platform/jet/ValueCodec.h"
#include "platform/jet/WriteRules.h"

namespace jet {

namespace {

// A column that can be written again without changing the row does not matter.
bool changes(const TableState& state, const Row& old, Row& row, const Column& column, const Value& value) {
    if (isLong(column)) return !sameLongValue(state, old, column, value);
    Phrase why;
    return !isWritable(column, why) || row.set(column, value);
}

void insertEntry(TableState& state, size_t position, const Row& row, const Bytes& key, RowId id) {
    const TableDefinition& table = state.definition;
    const Index& index = table.indexes[position];
    if (!isIndexed(table, index, fieldsOf(row))) return;
    assert(key.size() <= longestKey);                                              // K5
    assert(state.provedIndexes.contains(position));                                // K2, K3
    assert(possibleKeys(table, index, fieldsOf(row)) == std::vector<Bytes>{key});  // K1
    IndexTree tree(state.file, table, index);
    const auto lastLeaf = state.lastLeaves.find(position);
    if (lastLeaf == state.lastLeaves.end() || !tree.append(lastLeaf->second, key, id)) {
        state.lastLeaves.erase(position);
        if (const auto leaf = tree.insert(key, id)) state.lastLeaves[position] = *leaf;
    }
    if (countNulls(table, index, fieldsOf(row)) == 0) state.addToKeyCount(position, 1);
}

// The entry has one of the keys that are possible for the row, or else another one that only a walk finds.
void eraseEntry(TableState& state, size_t position, const Row& row, RowId id) {
    const TableDefinition& table = state.definition;
    const Index& index = table.indexes[position];
    if (!isIndexed(table, index, fieldsOf(row))) return;
    assert(state.provedIndexes.contains(position));  // K2
    state.lastLeaves.erase(position);
    IndexTree tree(state.file, table, index);
    const std::vector<Bytes> keys = possibleKeys(table, index, fieldsOf(row));
    bool erased =
        std::any_of(keys.begin(), keys.end(), [&](const Bytes& key) { return tree.erase(key, id); });
    if (!erased) {
        const std::optional<Bytes> key = tree.keyOf(id);
        erased = key && tree.erase(*key, id);
    }
    // K4: nothing of it can be left, since entries rise strictly (T1).
    if (!erased) failDamaged("nell'indice \"%1\" manca una riga"_tr, index.name);
    if (countNulls(table, index, fieldsOf(row)) == 0) state.addToKeyCount(position, -1);
}

// Runs the part of a change that writes. When it fails it may be half done, so the transaction is lost.
template <class Work>
void apply(TableState& state, Work&& work) {
    assert(state.generation == state.file.generation());  // L10: this is the table's definition
    try {
        work();
        assert(keepsRules(state.file, state.definition));
        state.file.endStatement();
    } catch (const Failure& failure) {
        state.engine.doom = failure.status;
        throw;
    }
}

void requireTransaction(const TableState& state) {
    if (!state.file.writing()) fail(ErrorCode::NotSupported, "Nessuna transazione è in corso."_tr);
    if (!state.engine.doom.ok()) throw Failure{state.engine.doom};
}

}  // namespace

Status Table::writable() {
    return guarded([&]() -> Status {
        const Reading reading(m_state->file);
        m_state->ensureCurrent();
        requireWritable(*m_state);
        return {};
    });
}

Status Table::updatable(std::span<const size_t> columns) {
    return guarded([&]() -> Status {
        const Reading reading(m_state->file);
        m_state->ensureCurrent();
        requireWritableTable(*m_state);
        for (size_t column : columns)
            requireUpdatable(*m_state, column);
        return {};
    });
}

Result<int32_t> Table::takeAutoNumber() {
    return guarded([&]() -> Result<int32_t> {
        const bool own = !m_state->file.writing();
        if (own) {
            m_state->file.beginWrite();
            m_state->engine.doom = {};
        }
        try {
            m_state->ensureCurrent();
            requireWritableTable(*m_state);
            requireTransaction(*m_state);
            const int32_t number = nextAutoNumber(*m_state);
            apply(*m_state, [&] { m_state->setAutoNumber(number); });
            if (own) m_state->file.commit();
            return number;
        } catch (const Failure&) {
            if (own && m_state->file.writing()) m_state->file.rollback();
            throw;
        }
    });
}

Result<RowId> Table::insert(std::span<const Value> values) {
    return guarded([&]() -> Result<RowId> {
        requireTransaction(*m_state);
        m_state->ensureCurrent();
        requireWritable(*m_state);
        const TableDefinition& table = m_state->definition;
        if (values.size() != table.columns.size())
            fail(ErrorCode::TypeMismatch,
                 "Il numero dei valori non è quello dei campi della tabella \"%1\"."_tr, table.name);
        Row row(table);
        LongChanges longs;
        for (size_t i = 0; i < values.size(); ++i) {
            if (isLong(table.columns[i]))
                longs.push_back(setLong(row, table.columns[i], values[i]));
            else
                row.set(table.columns[i], values[i]);
        }
        const Column* counter = autoNumberColumn(table);
        const bool numbered = counter && row.isNull(*counter);
        if (numbered) row.set(*counter, int64_t{nextAutoNumber(*m_state)});
        const std::optional<int32_t> number = counter ? row.longValue(*counter) : std::nullopt;
        if (counter && !number)  // another field has its place
            failDamaged("un campo della tabella a pagina %1 non ha posto nelle righe"_tr, table.page);
        for (const Column& column : table.columns)
            requireAllowed(column, row);
        std::vector<Bytes> keys;
        for (const Index& index : table.indexes) {
            keys.push_back(keyToWrite(table, index, fieldsOf(row)));
            // The next number is greater than all in use, so it need not be looked for.
            const bool fresh =
                numbered && index.parts.size() == 1 && index.parts.front().column == counter->number;
            if (!fresh) requireFits(*m_state, index, row, keys.back());
        }
        const Bytes bytes = row.bytes();  // too long a record is refused before anything is written

        RowId id;
        apply(*m_state, [&] {
            storeLong(*m_state, row, longs);
            if (number && *number > m_state->lastAutoNumber()) m_state->setAutoNumber(*number);
            assert(!number || *number <= m_state->lastAutoNumber());  // D2
            id = m_state->rows.insert(longs.empty() ? bytes : row.bytes());
            for (size_t i = 0; i < keys.size(); ++i)
                insertEntry(*m_state, i, row, keys[i], id);
            m_state->addToRowCount(1);
        });
        return id;
    });
}

Status Table::update(RowId id, std::span<const std::pair<size_t, Value>> changed) {
    return guarded([&]() -> Status {
        requireTransaction(*m_state);
        m_state->ensureCurrent();
        requireWritableTable(*m_state);
        const TableDefinition& table = m_state->definition;
        const std::optional<RowStore::Stored> stored = m_state->rows.find(id);
        if (!stored) fail(ErrorCode::NoCurrentRecord, "Il record è stato eliminato."_tr);
        const Row old(table, stored->bytes);
        Row row = old;
        LongChanges longs;
        std::vector<uint16_t> numbers;
        for (const auto& [position, value] : changed) {
            const Column& column = table.columns[position];
            if (!changes(*m_state, old, row, column, value)) continue;
            if (column.autoNumber) refuse(table, Phrase("il campo \"%1\" è un contatore"_tr, column.name));
            const bool emptied = column.type == Type::Ole && std::holds_alternative<std::monostate>(value);
            if (!emptied) requireUpdatable(*m_state, position);
            if (isLong(column)) {
                LongChange change = setLong(row, column, value);
                const StoredField before = old.field(column);
                if (!before.null) change.before = longValueRows(m_state->file, before.bytes);
                longs.push_back(std::move(change));
            }
            requireAllowed(column, row);
            numbers.push_back(column.number);
        }
        if (numbers.empty()) return {};
        std::vector<std::pair<size_t, Bytes>> moved;  // indexes in which the row has another key now
        for (size_t i = 0; i < table.indexes.size(); ++i) {
            const Index& index = table.indexes[i];
            const bool uses = std::any_of(index.parts.begin(), index.parts.end(), [&](const auto& part) {
                return std::find(numbers.begin(), numbers.end(), part.column) != numbers.end();
            });
            if (!uses) continue;
            Bytes key = keyToWrite(table, index, fieldsOf(row));
            const std::vector<Bytes> before = possibleKeys(table, index, fieldsOf(old));
            if (before.size() == 1 && before.front() == key) continue;
            requireFits(*m_state, index, row, key);
            moved.emplace_back(i, std::move(key));
        }
        (void)row.bytes();

        apply(*m_state, [&] {
            storeLong(*m_state, row, longs);
            m_state->rows.update(id, row.bytes());
            for (const auto& [i, key] : moved) {
                eraseEntry(*m_state, i, old, id);
                insertEntry(*m_state, i, row, key, id);
            }
        });
        return {};
    });
}

Result<std::optional<int64_t>> Table::setYesNo(size_t position, bool value,
                                               const std::function<bool()>& goOn) {
    return guarded([&]() -> Result<std::optional<int64_t>> {
        requireTransaction(*m_state);
        m_state->ensureCurrent();
        requireWritableTable(*m_state);
        const TableDefinition& table = m_state->definition;
        const Column& column = table.columns[position];
        const bool indexed = std::any_of(table.indexes.begin(), table.indexes.end(), [&](const Index& index) {
            return std::any_of(index.parts.begin(), index.parts.end(),
                               [&](const Index::Part& part) { return part.column == column.number; });
        });
        if (column.type != Type::YesNo || indexed) return std::optional<int64_t>();
        requireUpdatable(*m_state, position);
        const auto bit = static_cast<uint8_t>(1u << (column.number % 8));
        int64_t rows = 0;
        std::vector<RowId> older;  // than the column: they have no place for it
        apply(*m_state, [&] {
            m_state->rows.patchAll(
                [&](RowId id, std::span<const uint8_t> row) -> std::optional<RowStore::Patch> {
                    if (!goOn()) fail(ErrorCode::Timeout, "Tempo scaduto."_tr);
                    ++rows;
                    const std::optional<size_t> at = maskByte(table, column, row);
                    if (!at && value) older.push_back(id);
                    if (!at || ((row[*at] & bit) != 0) == value) return std::nullopt;
                    return RowStore::Patch{*at, static_cast<uint8_t>(row[*at] ^ bit)};
                });
        });
        const std::pair<size_t, Value> change{position, value};
        for (const RowId id : older)
            if (Status status = update(id, {&change, 1}); !status.ok()) return status;
        return std::optional(rows);
    });
}

Status Table::erase(RowId id) {
    return guarded([&]() -> Status {
        requireTransaction(*m_state);
        m_state->ensureCurrent();
        requireWritable(*m_state);
        const TableDefinition& table = m_state->definition;
        const std::optional<RowStore::Stored> stored = m_state->rows.find(id);
        if (!stored) fail(ErrorCode::NoCurrentRecord, "Il record è stato eliminato."_tr);
        const Row row(table, stored->bytes);
        const LongRows values = longRowsOf(*m_state, row);
        apply(*m_state, [&] {
            for (size_t i = 0; i < table.indexes.size(); ++i)
                eraseEntry(*m_state, i, row, id);
            for (const auto& [column, rows] : values)
                m_state->pagesOf(*column).free(rows);
            m_state->rows.erase(id);
            m_state->addToRowCount(-1);
        });
        return {};
    });
}

}  // namespace jet
