// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of one table, as statements and recordsets use them, and the orders that were asked for.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <QString>
#include <span>
#include <vector>

#include "platform/ado/RowOrder.h"
#include "platform/jet/Database.h"
#include "platform/jet/PagePrints.h"
#include "platform/Status.h"

namespace ado {

/// A row as it was in the file at some moment.
struct StoredRow {
    jet::Bytes bytes;
    bool present = false;  ///< false: there was none of that identity
};

/// One table of an open database as statements and recordsets use it: its rows, and the orders of them that
/// were asked for. An order is made by one walk over the table and afterwards follows each row that is
/// written through here; it is forgotten when a transaction was undone. After the file was changed by
/// somebody else only the rows on pages that differ are sorted again, where the table is long enough to make
/// that worth while.
class JetTable {
  public:
    /// `table` belongs to `database`, which outlives this.
    JetTable(jet::Database& database, const jet::Table& table);

    const jet::TableDefinition& definition() const { return m_definition; }
    /// The names of its columns.
    const std::vector<QString>& names() const { return m_names; }

    /// Takes the bytes of a row, to be seen through definition(), or that there is no such row (any more).
    Status read(jet::RowId id, StoredRow& row);
    /// The same for several rows, each into the place that `next` returns; they are as they were at one
    /// moment.
    Status read(std::span<const jet::RowId> ids, const std::function<StoredRow&()>& next);
    /// One value of a row that does not lie in its bytes (memo, OLE).
    Result<jet::Value> longValue(jet::RowId id, size_t column);
    Result<std::optional<jet::RowId>> findByPrimaryKey(int32_t key);
    /// The rows of that order. The result stays unchanged and valid until the next write.
    Result<std::shared_ptr<const RowOrder>> order(const OrderSpec& spec);

    Status writable();
    Status updatable(std::span<const size_t> columns);
    Result<int32_t> takeAutoNumber();
    /// A value for each column, of any type: each is put into the form in which its column stores it.
    Status insertFitted(std::vector<jet::Value> values);
    Result<jet::RowId> insert(std::span<const jet::Value> values);
    Status update(jet::RowId id, std::span<const std::pair<size_t, jet::Value>> changes);
    /// As jet::Table::setYesNo().
    Result<std::optional<int64_t>> setYesNo(size_t column, bool value, const std::function<bool()>& goOn);
    Status erase(jet::RowId id);

    /// A statement begins. One that moves very many rows drops the orders it would have to update.
    void beginStatement() { m_moves = 0; }
    /// Drops everything that was read from the file.
    void forget();
    /// Somebody else has changed the file.
    void changedOutside();
    /// Whether the file still has the table with the same columns.
    bool stillTheSame();

  private:
    Result<jet::Table*> table();
    template <class Affected>
    void countMove(Affected affected);
    template <class Mend>
    void mend(Mend mend);
    void renew(jet::Table& table);

    static constexpr size_t keptOrders = 8;
    static constexpr size_t mostMoves = 4000;  ///< about where updating costs as much as making a new order
    static constexpr size_t longOrder = 10000;

    jet::Database& m_database;
    jet::TableDefinition m_definition;
    std::vector<QString> m_names;
    jet::Table* m_table = nullptr;                    ///< null until it is needed
    std::vector<std::shared_ptr<RowOrder>> m_orders;  ///< the most recently used one last
    std::vector<std::shared_ptr<RowOrder>> m_before;  ///< as they were before a change from outside
    jet::PagePrints m_prints;  ///< all orders are right for pages that are still as these say; none: no pages
    size_t m_moves = 0;        ///< of rows in orders, in this statement
};

}  // namespace ado
