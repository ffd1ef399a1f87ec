// SPDX-License-Identifier: GPL-3.0-or-later
// The rows with one number in a column: by an index of the file, or by a walk over all rows.
#include <algorithm>

#include "platform/jet/Engine.h"
#include "platform/jet/Failure.h"
#include "platform/jet/IndexTree.h"
#include "platform/jet/Key.h"
#include "platform/jet/Row.h"
#include "platform/jet/ValueCodec.h"
#include "platform/jet/WriteRules.h"

namespace jet {

namespace {

// Rows found by an index are on a page each, in the worst case. A walk reads pages in half that time.
constexpr size_t pagesPerFoundRow = 4;

struct Group {
    const TableDefinition& table;
    const Column& column;
    int64_t number;

    bool holds(std::span<const uint8_t> row) const {
        if (column.type == Type::YesNo) return maskBit(table, column, row) == (number != 0);
        const StoredField field = storedField(table, column, row);
        return !field.null && wholeNumber(column, field) == number;
    }
};

// The rows of the group with their bytes, in the order of their identities.
class FoundRows {
  public:
    void add(RowId id, std::span<const uint8_t> bytes) {
        m_rows.push_back({id, m_bytes.size(), bytes.size()});
        m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end());
    }
    void visit(const TableDefinition& table, const std::function<bool(RowId, const RowView&)>& visit) const {
        for (const Row& row : m_rows)
            if (!visit(row.id, RowView(&table, std::span(m_bytes).subspan(row.at, row.length)))) return;
    }

  private:
    struct Row {
        RowId id;
        size_t at;
        size_t length;
    };
    std::vector<Row> m_rows;
    std::vector<uint8_t> m_bytes;
};

// Nothing where no index helps: there is none, it is not known for sure, it names rows of another number, or
// the rows are so many that a walk is faster.
std::optional<FoundRows> findByIndex(TableState& state, const Group& group) {
    const std::vector<Index>& indexes = state.definition.indexes;
    for (size_t i = 0; i < indexes.size(); ++i) {
        const Index& index = indexes[i];
        if (index.parts.empty() || index.parts.front().column != group.column.number || !isKept(state, i))
            continue;
        if (group.column.type != Type::YesNo && !wholeRange(group.column.type).contains(group.number))
            return FoundRows();
        const Bytes start = keyOfNumber(group.column, index.parts.front().ascending, group.number);
        std::optional<std::vector<RowId>> rows =
            IndexTree(state.file, state.definition, index)
                .rowsFrom(start, state.file.pageCount() / pagesPerFoundRow);
        if (!rows) continue;
        std::sort(rows->begin(), rows->end());
        FoundRows found;
        const bool right = std::all_of(rows->begin(), rows->end(), [&](RowId id) {
            const std::optional<RowStore::Stored> stored = state.rows.find(id);
            if (!stored || !group.holds(stored->bytes)) return false;
            found.add(id, stored->bytes);
            return true;
        });
        if (right) return found;
    }
    return std::nullopt;
}

}  // namespace

Status Table::scanGroup(size_t column, int64_t number,
                        const std::function<bool(RowId, const RowView&)>& visit) {
    return guarded([&]() -> Status {
        const Reading reading(m_state->file);
        m_state->ensureCurrent();
        const TableDefinition& table = m_state->definition;
        const Group group{table, table.columns[column], number};
        if (const std::optional<FoundRows> found = findByIndex(*m_state, group)) {
            found->visit(table, visit);
            return {};
        }
        m_state->rows.scan([&](RowId id, std::span<const uint8_t> row) {
            return !group.holds(row) || visit(id, RowView(&table, row));
        });
        return {};
    });
}

}  // namespace jet
