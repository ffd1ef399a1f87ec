#include "platform/jet/WriteRules.h"

#include <algorithm>
#include <QStringList>

#include "platform/jet/IndexTree.h"
#include "platform/jet/ValueCodec.h"

namespace jet {

namespace {

// So many entries at each end of an index are held against their rows before the first change.
constexpr size_t entriesProved = 8;

QString columnNames(const TableDefinition& table, const Index& index) {
    QStringList names;
    for (const Index::Part& part : index.parts)
        for (const Column& column : table.columns)
            if (column.number == part.column) names << column.name;
    return names.join(QStringLiteral(", "));
}

[[noreturn]] void refuseIndex(const TableDefinition& table, const Index& index, const QString& why) {
    refuse(table, QStringLiteral("l'indice \"%1\" (%2) non può essere aggiornato, perché %3")
                      .arg(index.name, columnNames(table, index), why));
}

enum class Proof { Agrees, Differs, TellsNothing };

// Holds an entry's key against those that its row may have.
Proof prove(const TableState& state, const Index& index, const IndexTree::Entry& entry) {
    const std::optional<RowStore::Stored> stored = state.rows.find(entry.row);
    if (!stored) return Proof::Differs;
    const FieldOf field = [&](const Column& column) {
        return storedField(state.definition, column, stored->bytes);
    };
    const std::vector<Bytes> keys = possibleKeys(state.definition, index, field);
    if (keys.empty()) return Proof::TellsNothing;
    if (std::find(keys.begin(), keys.end(), entry.key) == keys.end()) return Proof::Differs;
    return countNulls(state.definition, index, field) == 0 ? Proof::Agrees : Proof::TellsNothing;
}

// An index of another making would be spoilt by the first new entry, so its own entries have to agree with
// the keys that this engine would give their rows.
void requireKept(TableState& state, size_t position) {
    const Index& index = state.definition.indexes[position];
    if (const QString why = whyNotKept(state.definition, index); !why.isEmpty())
        refuseIndex(state.definition, index, why);
    if (state.provedIndexes.contains(position)) return;
    bool shown = false;
    for (const IndexTree::Entry& entry :
         IndexTree(state.file, state.definition, index).someEntries(entriesProved)) {
        const Proof proof = prove(state, index, entry);
        if (proof == Proof::Differs)
            refuseIndex(state.definition, index,
                        QStringLiteral("le sue voci non corrispondono alle righe della tabella"));
        shown = shown || proof == Proof::Agrees;
    }
    if (!shown && needsProof(state.definition, index))
        refuseIndex(state.definition, index,
                    QStringLiteral("la forma delle sue chiavi decrescenti non è certa"));
    state.provedIndexes.insert(position);
}

}  // namespace

void refuse(const TableDefinition& table, const QString& why) {
    fail(ErrorCode::NotSupported,
         QStringLiteral("La tabella \"%1\" non può essere modificata: %2.").arg(table.name, why));
}

void requireWritableTable(const TableState& state) {
    state.file.requireWritable();
    if (state.definition.system) refuse(state.definition, QStringLiteral("è una tabella di sistema"));
}

void requireWritable(TableState& state) {
    requireWritableTable(state);
    const TableDefinition& table = state.definition;
    if (table.enforcedRelation) refuse(table, QStringLiteral("ha una relazione con un'altra tabella"));
    for (size_t i = 0; i < table.indexes.size(); ++i)
        requireKept(state, i);
    for (const Column& column : table.columns) {
        QString why;
        const bool longValue = column.type == Type::Memo || column.type == Type::Ole;  // Null can be written
        if (!longValue && !isWritable(column, why))
            refuse(table, QStringLiteral("il campo \"%1\" %2").arg(column.name, why));
        if (column.autoGuid)
            refuse(table, QStringLiteral("il campo \"%1\" è un contatore di tipo GUID").arg(column.name));
    }
}

void requireUpdatable(TableState& state, size_t position) {
    const TableDefinition& table = state.definition;
    const Column& column = table.columns[position];
    QString why;
    if (!isWritable(column, why)) refuse(table, QStringLiteral("il campo \"%1\" %2").arg(column.name, why));
    for (size_t i = 0; i < table.indexes.size(); ++i) {
        const auto& parts = table.indexes[i].parts;
        const bool uses = std::any_of(parts.begin(), parts.end(),
                                      [&](const Index::Part& part) { return part.column == column.number; });
        if (!uses) continue;
        if (table.enforcedRelation) refuse(table, QStringLiteral("ha una relazione con un'altra tabella"));
        requireKept(state, i);
    }
}

void requireAllowed(const Column& column, const Row& row) {
    if (column.type == Type::YesNo) return;
    const StoredField field = row.field(column);
    if (column.required && field.null)
        fail(ErrorCode::ValueRequired,
             QStringLiteral("Il campo \"%1\" deve contenere un valore.").arg(column.name));
    if (!column.allowZeroLength && column.type == Type::Text && !field.null && field.bytes.empty())
        fail(ErrorCode::ValueRequired,
             QStringLiteral("Il campo \"%1\" non può contenere un testo vuoto.").arg(column.name));
}

void requireFits(TableState& state, const Index& index, const Row& row, const Bytes& key) {
    if (countNulls(state.definition, index, fieldsOf(row)) > 0) {
        if (index.required)
            fail(ErrorCode::ValueRequired,
                 QStringLiteral("I campi dell'indice \"%1\" (%2) devono contenere un valore.")
                     .arg(index.name, columnNames(state.definition, index)));
        return;
    }
    if (index.unique && IndexTree(state.file, state.definition, index).find(key))
        fail(ErrorCode::DuplicateKey,
             QStringLiteral("Il valore di \"%1\" esiste già e l'indice \"%2\" non ammette duplicati.")
                 .arg(columnNames(state.definition, index), index.name));
}

}  // namespace jet
