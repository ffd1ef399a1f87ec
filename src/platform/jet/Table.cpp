// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "platform/jet/Catalog.h"
#include "platform/jet/ColumnProperties.h"
#include "platform/jet/DefinitionReader.h"
#include "platform/jet/Engine.h"
#include "platform/jet/IndexTree.h"
#include "platform/jet/Key.h"
#include "platform/jet/LongValue.h"
#include "platform/jet/Row.h"
#include "platform/jet/ValueCodec.h"

namespace jet {

Table::Table(std::unique_ptr<TableState> state) : m_state(std::move(state)) {}

Table::~Table() = default;

TableState::TableState(Engine& sharedEngine, const CatalogEntry& entry)
    : engine(sharedEngine),
      file(sharedEngine.file),
      structure(readDefinition(file, entry.definitionPage)),
      definition(parseDefinition(structure, entry.name, entry.definitionPage, file.header().jet3)),
      generation(file.generation()),
      rows(file, definition) {
    clearCounters(structure);
    applyProperties(readProperties(file, entry), definition);
}

void TableState::ensureCurrent() {
    if (generation == file.generation()) return;
    Bytes now = readDefinition(file, definition.page);
    clearCounters(now);
    if (now != structure)
        fail(ErrorCode::FileInUse,
             "La struttura della tabella \"%1\" è stata cambiata da un altro programma."_tr, definition.name);
    generation = file.generation();
    rows.forget();
    longValues.clear();
    greatestNumber.reset();
    provedIndexes.clear();
    lastLeaves.clear();
}

const TableDefinition& Table::definition() const {
    return m_state->definition;
}

Status Table::scan(RowId from, const std::function<bool(RowId, const RowView&)>& visit) {
    return guarded([&]() -> Status {
        const Reading reading(m_state->file);
        m_state->ensureCurrent();
        m_state->rows.scan(from, [&](RowId id, std::span<const uint8_t> bytes) {
            return visit(id, RowView(&m_state->definition, bytes));
        });
        return {};
    });
}

Result<std::optional<RowView>> Table::row(RowId id) {
    using Answer = Result<std::optional<RowView>>;
    return guarded([&]() -> Answer {
        const Reading reading(m_state->file);
        m_state->ensureCurrent();
        std::optional<RowStore::Stored> stored = m_state->rows.find(id);
        if (!stored) return std::optional<RowView>();
        m_state->borrowed = std::move(stored->page);
        return std::optional(RowView(&m_state->definition, stored->bytes));
    });
}

Status Table::rows(std::span<const RowId> ids,
                   const std::function<void(const std::optional<RowView>&)>& visit) {
    return guarded([&]() -> Status {
        const Reading reading(m_state->file);
        m_state->ensureCurrent();
        m_state->rows.forEach(ids, [&](const std::optional<std::span<const uint8_t>>& bytes) {
            visit(bytes ? std::optional(RowView(&m_state->definition, *bytes)) : std::nullopt);
        });
        return {};
    });
}

Result<Value> Table::value(RowId id, size_t column) {
    return guarded([&]() -> Result<Value> {
        const Reading reading(m_state->file);
        m_state->ensureCurrent();
        const std::optional<RowStore::Stored> stored = m_state->rows.find(id);
        if (!stored) fail(ErrorCode::NoCurrentRecord, "Il record è stato eliminato."_tr);
        const Column& c = m_state->definition.columns[column];
        if (c.type != Type::Memo && c.type != Type::Ole)
            return RowView(&m_state->definition, stored->bytes).value(column);
        const StoredField field = storedField(m_state->definition, c, stored->bytes);
        if (field.null) return Value();
        return decodeValue(c, readLongValue(m_state->file, field.bytes));
    });
}

Result<std::optional<RowId>> Table::findByPrimaryKey(int32_t key) {
    return guarded([&]() -> Result<std::optional<RowId>> {
        const Reading reading(m_state->file);
        m_state->ensureCurrent();
        for (const Index& index : m_state->definition.indexes)
            if (index.primaryKey && m_state->definition.longPrimaryKey())
                return IndexTree(m_state->file, m_state->definition, index).find(longKey(key));
        fail(ErrorCode::NotSupported, "La tabella \"%1\" non ha una chiave primaria numerica."_tr,
             m_state->definition.name);
    });
}

}  // namespace jet
