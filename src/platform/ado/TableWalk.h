// SPDX-License-Identifier: GPL-3.0-or-later
// A walk over all rows of a table in parts.
#pragma once

#include <chrono>
#include <functional>
#include <QString>
#include <string>

#include "platform/ado/Waiting.h"
#include "platform/jet/Database.h"
#include "platform/Status.h"

namespace ado {

/// The current row of a TableWalk; valid during the visit.
class WalkedRow {
  public:
    WalkedRow(jet::Table& table, jet::RowId id, const jet::RowView& view)
        : m_table(table), m_id(id), m_view(view) {}

    const jet::TableDefinition& definition() const { return m_view.definition(); }
    /// Fast for whole numbers (Null reads as 0) and yes/no.
    int64_t integer(size_t column) const { return m_view.integer(column); }
    bool isNull(size_t column) const { return m_view.isNull(column); }
    bool yesNo(size_t column) const { return m_view.yesNo(column); }
    /// Appends the text of a value, in UTF-8, to `out`; nothing for Null and for what has no text. Memo texts
    /// are read from their pages; one that is damaged counts as none.
    void appendText(size_t column, std::string& out) const;

  private:
    jet::Table& m_table;
    jet::RowId m_id;
    const jet::RowView& m_view;
};

/// A walk over all rows of a table, in the order in which they are in the file, in parts: between two of
/// them no lock is held and nothing is kept but the place, so that the table may change. A row that stays is
/// met exactly once; one that comes or goes meanwhile may be met or not.
class TableWalk {
  public:
    /// `waitSeconds`: how long a part waits for another program, by the hook of Waiting.h.
    TableWalk(QString connectionText, QString table, int waitSeconds = noWait)
        : m_connection(std::move(connectionText)), m_table(std::move(table)), m_waitSeconds(waitSeconds) {}

    /// Visits rows until about that much time has passed; true when there are no more. FileInUse where the
    /// wait for another program came to nothing: the same part can be asked for again. Other failures as for
    /// Recordset::open().
    Result<bool> step(std::chrono::microseconds most, const std::function<void(const WalkedRow& row)>& visit);

  private:
    QString m_connection;
    QString m_table;
    int m_waitSeconds;
    jet::RowId m_next;
};

}  // namespace ado
