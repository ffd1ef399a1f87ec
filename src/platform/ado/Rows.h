// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "platform/ado/Session.h"
#include "platform/ado/Value.h"

namespace ado {

/// The rows of one SELECT, found step by step. Where the statement asks for columns of a table and nothing
/// else
/// (`SELECT * FROM table …`, `SELECT a, b FROM table …`) only the identities of the rows are kept, otherwise
/// their values.
class Rows {
  public:
    static Result<std::unique_ptr<Rows>> run(const std::shared_ptr<Session>& session,
                                             StatementText statement);
    ~Rows();
    Rows(const Rows&) = delete;
    Rows& operator=(const Rows&) = delete;

    /// The table whose rows these are; null when only values are kept.
    JetTable* table() const { return m_table; }
    const std::vector<QString>& names() const { return m_names; }
    /// The table's column at that place of names(), where there is a table.
    size_t column(size_t place) const { return m_columns[place]; }
    /// Whether these are all columns of the table in their order there.
    bool whole() const { return m_whole; }

    /// Steps on until `count` rows are known or there are no more. What makes a statement fail does so for
    /// good.
    Status reach(size_t count);
    /// Reads all rows that are left. From then on nothing that is written makes a difference.
    Status finish() { return reach(static_cast<size_t>(-1)); }

    /// Whether no further step will read the table.
    bool ended() const { return m_statement == nullptr && !m_wanted; }

    size_t known() const { return m_table ? m_ids.size() : m_values.size(); }
    jet::RowId id(size_t row) const { return m_ids[row]; }
    /// As many of those from `first` on, or all that are known.
    std::span<const jet::RowId> ids(size_t first, size_t count) const {
        const size_t from = std::min(first, m_ids.size());
        return std::span(m_ids).subspan(from, std::min(count, m_ids.size() - from));
    }
    const std::vector<Value>& values(size_t row) const { return m_values[row]; }
    /// A row that was added through the recordset, after all others.
    void append(jet::RowId id) { m_ids.push_back(id); }

  private:
    explicit Rows(std::shared_ptr<Session> session) : m_session(std::move(session)) {}
    Value valueOf(int column) const;
    bool takeColumns(const JetTable& table, const StatementText::List& list);
    Status step(size_t count);
    Status follow(size_t count);

    std::shared_ptr<Session> m_session;
    std::vector<jet::Value> m_literals;  ///< of the statement
    JetTable* m_table = nullptr;
    Prepared m_statement;  ///< null when all rows are known, or a step has failed
    /// In place of the statement, where it says no more than an order does; nothing when all rows are known,
    /// or the order could not be made.
    std::optional<OrderSpec> m_wanted;
    std::shared_ptr<const RowOrder> m_order;  ///< once a row was asked for
    RowOrder::Place m_next;
    Status m_failure;
    std::vector<QString> m_names;
    std::vector<size_t> m_columns;
    bool m_whole = false;
    std::vector<jet::RowId> m_ids;
    std::vector<std::vector<Value>> m_values;
};

}  // namespace ado
