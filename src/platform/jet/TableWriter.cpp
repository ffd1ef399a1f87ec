#include <limits>
#include <QStringList>

#include "platform/jet/Engine.h"
#include "platform/jet/IndexTree.h"
#include "platform/jet/Key.h"
#include "platform/jet/Row.h"
#include "platform/jet/ValueCodec.h"

namespace jet {

namespace {

[[noreturn]] void refuse(const TableDefinition& table, const QString& why) {
    fail(ErrorCode::NotSupported,
         QStringLiteral("La tabella \"%1\" non può essere modificata: %2.").arg(table.name, why));
}

[[noreturn]] void refuseIndex(const TableDefinition& table, const Index& index) {
    QStringList names;
    for (const Index::Part& part : index.parts)
        for (const Column& column : table.columns)
            if (column.number == part.column) names << column.name;
    refuse(table,
           QStringLiteral("l'indice \"%1\" (%2) non può essere aggiornato, perché non è su un solo campo "
                          "intero lungo")
               .arg(index.name, names.join(QStringLiteral(", "))));
}

void requireWritableFile(const TableState& state) {
    if (state.file.readOnly())
        fail(ErrorCode::ReadOnlyDatabase,
             QStringLiteral("Il database \"%1\" è di sola lettura.").arg(state.engine.path));
    if (state.file.header().pageKey != 0)
        fail(ErrorCode::NotSupported,
             QStringLiteral("Il database \"%1\" è codificato: può essere letto ma non modificato.")
                 .arg(state.engine.path));
    if (state.definition.system) refuse(state.definition, QStringLiteral("è una tabella di sistema"));
}

void requireWritable(const TableState& state) {
    requireWritableFile(state);
    const TableDefinition& table = state.definition;
    if (table.enforcedRelation) refuse(table, QStringLiteral("ha una relazione con un'altra tabella"));
    for (const Index& index : table.indexes)
        if (!keptColumn(table, index)) refuseIndex(table, index);
    for (const Column& column : table.columns) {
        QString why;
        const bool longValue = column.type == Type::Memo || column.type == Type::Ole;  // Null can be written
        if (!longValue && !isWritable(column, why))
            refuse(table, QStringLiteral("il campo \"%1\" %2").arg(column.name, why));
        if (column.autoGuid)
            refuse(table, QStringLiteral("il campo \"%1\" è un contatore di tipo GUID").arg(column.name));
    }
}

void requireUpdatable(const TableState& state, size_t position) {
    const TableDefinition& table = state.definition;
    const Column& column = table.columns[position];
    QString why;
    if (!isWritable(column, why)) refuse(table, QStringLiteral("il campo \"%1\" %2").arg(column.name, why));
    for (const Index& index : table.indexes)
        for (const Index::Part& part : index.parts) {
            if (part.column != column.number) continue;
            if (table.enforcedRelation)
                refuse(table, QStringLiteral("ha una relazione con un'altra tabella"));
            if (!keptColumn(table, index)) refuseIndex(table, index);
        }
}

// A column that can be written again without changing the row is no obstacle.
bool changes(Row& row, const Column& column, const Value& value) {
    QString why;
    return !isWritable(column, why) || row.set(column, value);
}

Bytes keyOf(const Row& row, const Column& column, const Index& index) {
    return longKey(row.longValue(column), index.parts[0].ascending);
}

bool isIndexed(const Row& row, const Column& column, const Index& index) {
    return !index.ignoreNulls || !row.isNull(column);
}

// Rules of an index for a row that gets this key.
void requireFits(const TableState& state, const Index& index, const Column& column, const Row& row) {
    if (row.isNull(column)) {
        if (index.required)
            fail(ErrorCode::ValueRequired,
                 QStringLiteral("Il campo \"%1\" deve contenere un valore.").arg(column.name));
        return;
    }
    if (index.unique && IndexTree(state.file, state.definition, index).find(keyOf(row, column, index)))
        fail(ErrorCode::DuplicateKey,
             QStringLiteral("Il valore del campo \"%1\" esiste già e l'indice \"%2\" non ammette duplicati.")
                 .arg(column.name, index.name));
}

const Column* autoNumberColumn(const TableDefinition& table) {
    for (const Column& column : table.columns)
        if (column.autoNumber && column.type == Type::Long) return &column;
    return nullptr;
}

// The counter in the definition was seen below the greatest number in use: then that one counts.
int32_t lastAutoNumber(TableState& state) {
    const int32_t stored = state.lastAutoNumber();
    if (state.autoNumberChecked) return stored;
    state.autoNumberChecked = true;
    const std::optional<size_t> primary = state.definition.longPrimaryKey();
    if (!primary || !state.definition.columns[*primary].autoNumber) return stored;
    for (const Index& index : state.definition.indexes) {
        if (!index.primaryKey) continue;
        const std::optional<Bytes> last = IndexTree(state.file, state.definition, index).lastKey();
        const std::optional<int32_t> greatest = last ? longOfKey(*last) : std::nullopt;
        if (greatest && *greatest > stored) return *greatest;
    }
    return stored;
}

int32_t nextAutoNumber(TableState& state) {
    const int32_t last = lastAutoNumber(state);
    if (last == std::numeric_limits<int32_t>::max())
        fail(ErrorCode::Overflow,
             QStringLiteral("Il contatore della tabella \"%1\" è esaurito.").arg(state.definition.name));
    state.setAutoNumber(last + 1);
    return last + 1;
}

// Runs the part of a change that writes. When it fails half the change may stand, so the transaction is lost.
template <class Work>
void apply(TableState& state, Work&& work) {
    try {
        work();
    } catch (const Failure& failure) {
        state.engine.doom = failure.status;
        throw;
    }
    state.file.endStatement();
}

void requireTransaction(const TableState& state) {
    if (!state.file.writing())
        fail(ErrorCode::NotSupported, QStringLiteral("Nessuna transazione è in corso."));
    if (!state.engine.doom.ok()) throw Failure{state.engine.doom};
}

}  // namespace

int32_t TableState::lastAutoNumber() {
    return static_cast<int32_t>(load32(&(*file.page(definition.page))[definition::autoNumber]));
}

void TableState::setAutoNumber(int32_t last) {
    store32(&file.change(definition.page)[definition::autoNumber], static_cast<uint32_t>(last));
}

void TableState::addToRowCount(int change) {
    uint8_t* count = &file.change(definition.page)[definition::rowCount];
    if (change > 0 || load32(count) > 0) store32(count, load32(count) + static_cast<uint32_t>(change));
}

// The number of different keys is exact in a unique index only; elsewhere nobody keeps it so, and it stays.
void TableState::addToKeyCount(size_t index, int change) {
    const size_t at = definition::indexCounts + index * definition::indexCountLength + 4;
    if (!definition.indexes[index].unique || at + 4 > pageSize) return;
    uint8_t* count = &file.change(definition.page)[at];
    if (change > 0 || load32(count) > 0) store32(count, load32(count) + static_cast<uint32_t>(change));
}

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
        requireWritableFile(*m_state);
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
            requireWritableFile(*m_state);
            requireTransaction(*m_state);
            if (!autoNumberColumn(m_state->definition))
                fail(ErrorCode::NotSupported,
                     QStringLiteral("La tabella \"%1\" non ha un contatore.").arg(m_state->definition.name));
            int32_t number = 0;
            apply(*m_state, [&] { number = nextAutoNumber(*m_state); });
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
                 QStringLiteral("Il numero dei valori non è quello dei campi della tabella \"%1\".")
                     .arg(table.name));
        Row row(table);
        for (size_t i = 0; i < values.size(); ++i)
            row.set(table.columns[i], values[i]);
        const Column* counter = autoNumberColumn(table);
        const bool counted = counter && row.isNull(*counter);
        if (counted) row.set(*counter, int64_t{lastAutoNumber(*m_state)} + 1);
        for (const Index& index : table.indexes)
            requireFits(*m_state, index, *keptColumn(table, index), row);
        const Bytes bytes = row.bytes();

        RowId id;
        apply(*m_state, [&] {
            if (counted)
                nextAutoNumber(*m_state);
            else if (counter && *row.longValue(*counter) > m_state->lastAutoNumber())
                m_state->setAutoNumber(*row.longValue(*counter));
            id = m_state->rows.insert(bytes);
            for (size_t i = 0; i < table.indexes.size(); ++i) {
                const Index& index = table.indexes[i];
                const Column& column = *keptColumn(table, index);
                if (!isIndexed(row, column, index)) continue;
                IndexTree(m_state->file, table, index).insert(keyOf(row, column, index), id);
                if (!row.isNull(column)) m_state->addToKeyCount(i, 1);
            }
            m_state->addToRowCount(1);
        });
        return id;
    });
}

Status Table::update(RowId id, std::span<const std::pair<size_t, Value>> changed) {
    return guarded([&]() -> Status {
        requireTransaction(*m_state);
        m_state->ensureCurrent();
        requireWritableFile(*m_state);
        const TableDefinition& table = m_state->definition;
        const std::optional<RowStore::Stored> stored = m_state->rows.find(id);
        if (!stored) fail(ErrorCode::NoCurrentRecord, QStringLiteral("Il record è stato eliminato."));
        const Row old(table, stored->bytes);
        Row row = old;
        std::vector<uint16_t> numbers;
        for (const auto& [position, value] : changed) {
            const Column& column = table.columns[position];
            if (!changes(row, column, value)) continue;
            if (column.autoNumber)
                refuse(table, QStringLiteral("il campo \"%1\" è un contatore").arg(column.name));
            requireUpdatable(*m_state, position);
            numbers.push_back(column.number);
        }
        if (numbers.empty()) return {};
        std::vector<size_t> indexes;
        for (size_t i = 0; i < table.indexes.size(); ++i) {
            const Column* column = keptColumn(table, table.indexes[i]);
            if (!column || keyOf(row, *column, table.indexes[i]) == keyOf(old, *column, table.indexes[i]))
                continue;
            requireFits(*m_state, table.indexes[i], *column, row);
            indexes.push_back(i);
        }
        const Bytes bytes = row.bytes();

        apply(*m_state, [&] {
            m_state->rows.update(id, bytes);
            for (size_t i : indexes) {
                const Index& index = table.indexes[i];
                const Column& column = *keptColumn(table, index);
                IndexTree tree(m_state->file, table, index);
                if (isIndexed(old, column, index)) tree.erase(keyOf(old, column, index), id);
                if (isIndexed(row, column, index)) tree.insert(keyOf(row, column, index), id);
                m_state->addToKeyCount(i, int(!row.isNull(column)) - int(!old.isNull(column)));
            }
        });
        return {};
    });
}

Status Table::erase(RowId id) {
    return guarded([&]() -> Status {
        requireTransaction(*m_state);
        m_state->ensureCurrent();
        requireWritable(*m_state);
        const TableDefinition& table = m_state->definition;
        const std::optional<RowStore::Stored> stored = m_state->rows.find(id);
        if (!stored) fail(ErrorCode::NoCurrentRecord, QStringLiteral("Il record è stato eliminato."));
        const Row row(table, stored->bytes);
        apply(*m_state, [&] {
            for (size_t i = 0; i < table.indexes.size(); ++i) {
                const Index& index = table.indexes[i];
                const Column& column = *keptColumn(table, index);
                if (!isIndexed(row, column, index)) continue;
                IndexTree(m_state->file, table, index).erase(keyOf(row, column, index), id);
                if (!row.isNull(column)) m_state->addToKeyCount(i, -1);
            }
            m_state->rows.erase(id);
            m_state->addToRowCount(-1);
        });
        return {};
    });
}

}  // namespace jet
