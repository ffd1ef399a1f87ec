// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <memory>
#include <QString>
#include <string>
#include <vector>

#include "platform/ado/Value.h"
#include "platform/jet/Database.h"
#include "platform/Status.h"

namespace ado {

class Rows;

/// The rows of a `SELECT * FROM table …` as they were at one moment, kept as the bytes in which they are in
/// the file and decoded when they are read. Nothing that happens to the database afterwards changes it. It
/// costs six bytes a row beyond the rows themselves.
class Snapshot {
  public:
    /// No rows and no columns.
    Snapshot();
    Snapshot(Snapshot&&) noexcept = default;
    Snapshot& operator=(Snapshot&&) noexcept = default;

    /// Runs the statement and takes all of its rows. Fails like Recordset::open(), and with NotSupported for
    /// a statement whose rows are no whole rows of one table.
    static Result<Snapshot> take(const QString& connectionText, const QString& statement);

    const std::vector<jet::Column>& columns() const { return m_definition->columns; }
    size_t size() const { return m_rows.size(); }
    /// Memo texts are read with the rows; OLE values are returned as Null.
    Value value(size_t row, size_t column) const;
    /// Appends the text of a value, in UTF-8, to `out`; nothing for what has no text.
    void appendText(size_t row, size_t column, std::string& out) const;
    /// Identifies a row among all others, whichever are removed.
    uint32_t identity(size_t row) const { return m_rows[row]; }
    void remove(size_t row);
    /// Puts the rows into another order; `identities` are those of all of them.
    void arrange(std::vector<uint32_t> identities) { m_rows = std::move(identities); }
    const std::vector<uint32_t>& identities() const { return m_rows; }
    /// Drops all rows; the columns stay.
    void clear();

  private:
    Status copy(const Rows& rows);
    /// Returns where the row begins.
    Result<uint32_t> append(std::span<const uint8_t> bytes);
    jet::RowView view(size_t row) const;

    std::shared_ptr<const jet::TableDefinition> m_definition;
    std::vector<std::unique_ptr<uint8_t[]>> m_blocks;
    size_t m_used = 0;             ///< bytes of the last block
    std::vector<uint32_t> m_rows;  ///< where each row begins: block and place in it
    std::map<std::pair<uint32_t, size_t>, jet::Value> m_memos;
};

}  // namespace ado
