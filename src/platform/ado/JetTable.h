#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "platform/ado/RowOrder.h"
#include "platform/jet/Database.h"
#include "platform/Status.h"

namespace ado {

/// A row as it stood in the file at some moment.
struct StoredRow {
    jet::Bytes bytes;
    bool present = false;  ///< false: there was none of that identity
};

/// One table of an open database as statements and recordsets use it: its rows, and the orders of them that
/// were asked for. An order is made by one walk over the table and afterwards follows each row that is
/// written through here; it is forgotten when the file was changed by somebody else or a transaction was
/// undone.
class JetTable {
  public:
    /// `table` belongs to `database`, which outlives this.
    JetTable(jet::Database& database, const jet::Table& table)
        : m_database(database), m_definition(table.definition()) {}

    const jet::TableDefinition& definition() const { return m_definition; }

    /// Takes the bytes of a row, to be seen through definition(), or that there is no such row (any more).
    Status read(jet::RowId id, StoredRow& row);
    /// One value of a row that does not lie in its bytes (memo, OLE).
    Result<jet::Value> longValue(jet::RowId id, size_t column);
    Result<std::optional<jet::RowId>> findByPrimaryKey(int32_t key);
    /// The rows of that order. What is handed out stays as it is written on, and valid, until the next write.
    Result<std::shared_ptr<const RowOrder>> order(const OrderSpec& spec);

    Status writable();
    Status updatable(std::span<const size_t> columns);
    Result<int32_t> takeAutoNumber();
    Result<jet::RowId> insert(std::span<const jet::Value> values);
    Status update(jet::RowId id, std::span<const std::pair<size_t, jet::Value>> changes);
    /// As jet::Table::setYesNo().
    Result<std::optional<int64_t>> setYesNo(size_t column, bool value, const std::function<bool()>& goOn);
    Status erase(jet::RowId id);

    /// A statement begins. One that moves very many rows drops the orders it would have to mend.
    void beginStatement() { m_moves = 0; }
    /// Drops everything that was learnt from the file.
    void forget();
    /// Whether the file still holds the table with the same columns.
    bool stillTheSame();

  private:
    Result<jet::Table*> table();
    template <class Affected>
    void countMove(Affected affected);
    template <class Mend>
    void mend(Mend mend);

    static constexpr size_t keptOrders = 8;
    static constexpr int mostMoves = 4000;  ///< about where mending costs as much as making anew

    jet::Database& m_database;
    jet::TableDefinition m_definition;
    jet::Table* m_table = nullptr;                    ///< null until it is needed
    std::vector<std::shared_ptr<RowOrder>> m_orders;  ///< the most recently used one last
    int m_moves = 0;                                  ///< of rows in orders, in this statement
};

}  // namespace ado
