// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QString>
#include <vector>

#include "platform/ado/StatementText.h"
#include "platform/jet/TableDefinition.h"

namespace ado {

/// What an INSERT … VALUES that SQLite has run shares with those that differ in their literals alone. Their
/// values are read in one pass, and go to the table without SQLite.
class InsertShape {
  public:
    /// Nothing for another statement, and where the columns are not certain.
    static std::optional<InsertShape> of(const StatementText& statement, const jet::TableDefinition& table);

    const QString& table() const { return m_table; }
    /// The row of a statement of this shape: a value for each column of the table, Null where the statement
    /// names none. Nothing for any other text, which may still mean the same: read it with StatementText.
    std::optional<std::vector<jet::Value>> row(const QString& text) const;

  private:
    QString m_table;
    QByteArray m_start;               ///< of the text, up to the parenthesis of the values
    std::vector<size_t> m_positions;  ///< in the table, of the columns in the order of the statement
    size_t m_columns = 0;             ///< of the table
};

}  // namespace ado
