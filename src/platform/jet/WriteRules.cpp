// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/WriteRules.h"

#include <algorithm>

#include "platform/jet/IndexTree.h"
#include "platform/jet/LongValue.h"
#include "platform/jet/ValueCodec.h"

namespace jet {

namespace {

// So many entries at each end of an index are compared with their rows before the first change.
constexpr size_t entriesProved = 8;

std::string columnNames(const TableDefinition& table, const Index& index) {
    std::string names;
    for (const Index::Part& part : index.parts)
        for (const Column& column : table.columns)
            if (column.number == part.column) names += (names.empty() ? "" : ", ") + column.name;
    return names;
}

[[noreturn]] void refuseIndex(const TableDefinition& table, const Index& index, const Phrase& why) {
    refuse(table, Phrase("l'indice \"%1\" (%2) non può essere aggiornato, perché %3"_tr, index.name,
                         columnNames(table, index), why));
}

enum class Proof { Agrees, Differs, TellsNothing };

// Compares an entry's key with those that its row may have.
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

// An index of another making would be damaged by the first new entry, so its own entries have to agree with
// the keys that this engine would make for their rows.
Phrase whyNotKept(TableState& state, size_t position) {
    const Index& index = state.definition.indexes[position];
    if (state.provedIndexes.contains(position)) return {};
    if (Phrase why = whyNotKept(state.definition, index); !why.empty()) return why;
    bool shown = false;
    for (const IndexTree::Entry& entry :
         IndexTree(state.file, state.definition, index).someEntries(entriesProved)) {
        const Proof proof = prove(state, index, entry);
        if (proof == Proof::Differs) return "le sue voci non corrispondono alle righe della tabella"_tr;
        shown = shown || proof == Proof::Agrees;
    }
    if (!shown && needsProof(state.definition, index))
        return "la forma delle sue chiavi decrescenti non è certa"_tr;
    state.provedIndexes.insert(position);
    return {};
}

void requireKept(TableState& state, size_t position) {
    if (const Phrase why = whyNotKept(state, position); !why.empty())
        refuseIndex(state.definition, state.definition.indexes[position], why);
}

}  // namespace

bool isKept(TableState& state, size_t position) {
    return whyNotKept(state, position).empty();
}

void refuse(const TableDefinition& table, const Phrase& why) {
    fail(ErrorCode::NotSupported, "La tabella \"%1\" non può essere modificata: %2."_tr, table.name, why);
}

void requireWritableTable(const TableState& state) {
    state.file.requireWritable();
    if (state.definition.system) refuse(state.definition, "è una tabella di sistema"_tr);
}

void requireWritable(TableState& state) {
    requireWritableTable(state);
    const TableDefinition& table = state.definition;
    if (table.enforcedRelation) refuse(table, "ha una relazione con un'altra tabella"_tr);
    for (size_t i = 0; i < table.indexes.size(); ++i)
        requireKept(state, i);
    for (const Column& column : table.columns) {
        Phrase why;
        if (column.type != Type::Ole && !isWritable(column, why))  // Null can be written
            refuse(table, Phrase("il campo \"%1\" %2"_tr, column.name, why));
        if (column.autoGuid)
            refuse(table, Phrase("il campo \"%1\" è un contatore di tipo GUID"_tr, column.name));
    }
}

void requireUpdatable(TableState& state, size_t position) {
    const TableDefinition& table = state.definition;
    const Column& column = table.columns[position];
    Phrase why;
    if (!isWritable(column, why)) refuse(table, Phrase("il campo \"%1\" %2"_tr, column.name, why));
    for (size_t i = 0; i < table.indexes.size(); ++i) {
        const auto& parts = table.indexes[i].parts;
        const bool uses = std::any_of(parts.begin(), parts.end(),
                                      [&](const Index::Part& part) { return part.column == column.number; });
        if (!uses) continue;
        if (table.enforcedRelation) refuse(table, "ha una relazione con un'altra tabella"_tr);
        requireKept(state, i);
    }
}

void requireAllowed(const Column& column, const Row& row) {
    if (column.type == Type::YesNo) return;
    const StoredField field = row.field(column);
    if (column.required && field.null)
        fail(ErrorCode::ValueRequired, "Il campo \"%1\" deve contenere un valore."_tr, column.name);
    const bool empty = (column.type == Type::Text && field.bytes.empty()) ||
                       (column.type == Type::Memo && longValueLength(field.bytes) == 0);
    if (!column.allowZeroLength && !field.null && empty)
        fail(ErrorCode::ValueRequired, "Il campo \"%1\" non può contenere un testo vuoto."_tr, column.name);
}

void requireFits(TableState& state, const Index& index, const Row& row, const Bytes& key) {
    if (countNulls(state.definition, index, fieldsOf(row)) > 0) {
        if (index.required)
            fail(ErrorCode::ValueRequired, "I campi dell'indice \"%1\" (%2) devono contenere un valore."_tr,
                 index.name, columnNames(state.definition, index));
        return;
    }
    if (index.unique && IndexTree(state.file, state.definition, index).find(key))
        fail(ErrorCode::DuplicateKey,
             "Il valore di \"%1\" esiste già e l'indice \"%2\" non ammette duplicati."_tr,
             columnNames(state.definition, index), index.name);
}

}  // namespace jet
