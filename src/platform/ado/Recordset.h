// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <QString>
#include <QStringView>

#include "platform/ado/Connection.h"
#include "platform/ado/Value.h"
#include "platform/Status.h"

namespace ado {

enum class CursorType { ForwardOnly = 0, Keyset = 1, Static = 3 };
enum class CursorLocation { Server = 2, Client = 3 };
enum class LockType { ReadOnly = 1, Pessimistic = 2, Optimistic = 3 };

/// The rows of one SELECT statement, with a current row.
///
/// Rows are found step by step as they are asked for, and a field is decoded when it is read; a SELECT of
/// columns of a table (all of them by an asterisk, or named) with any WHERE and ORDER BY keeps only the
/// identities of the rows it has passed. Such a recordset shows a row as it was at the moment when it became
/// the current one: fields that were changed since the recordset was opened show their new value, a row that
/// was deleted since fails with NoCurrentRecord when it is read, rows inserted since are not seen. Where one
/// row is taken after the other, what another program has changed in the last 5 ms may not be seen yet
/// (RowsAhead.h); what this one has changed is. Rows that are equal in the sort columns come in the same
/// order each time. No lock is held between two calls; a call waits for other programs for 30 seconds at
/// most.
///
/// A move that fails leaves no current row: fields cannot be read, and both marks are reported, until
/// moveFirst() succeeds. Only where the change that is posted before a move is refused, the row stays with
/// its change, so that it can be posted again.
class Recordset {
  public:
    Recordset();
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;

    /// Names the database; fails for a missing or foreign file and a wrong password. It takes no lock, so it
    /// never waits for other programs.
    Status setActiveConnection(const QString& connectionText);
    Status setActiveConnection(const Connection& connection) {
        return setActiveConnection(connection.text());
    }
    /// Default: forward only, server, read only. Location makes no difference to what is seen.
    void setCursorType(CursorType type);
    void setCursorLocation(CursorLocation location);
    void setLockType(LockType type);
    /// One SELECT statement in the dialect of the database.
    void setSource(const QString& statement);

    /// Runs the source; the first row is the current one, or both isBof() and isEof() are true. Fails with
    /// SyntaxError, TableNotFound, ItemNotFound (unknown column), NotSupported (refused statement) or an
    /// error of the file.
    Status open();
    /// Releases the rows; changes that were not posted are dropped.
    void close();
    bool isOpen() const;

    bool isBof() const;
    bool isEof() const;
    /// NoCurrentRecord when there is no row at all.
    Status moveFirst();
    /// Past the last row is isEof(); one step more is NoCurrentRecord. A change that was not posted is posted
    /// first.
    Status moveNext() { return move(1); }
    Status move(qint64 rows);
    /// The number of rows; -1 for a forward-only cursor and where it is not known.
    qint64 recordCount();

    int fieldCount() const;
    /// Empty for an index that does not exist.
    QString fieldName(int index) const;
    /// A field of the current row, or of the row being added. Fails with ItemNotFound for an unknown column
    /// (names are compared without case), NoCurrentRecord at the beginning and end marks.
    Result<Value> value(QStringView name) const;
    Result<Value> value(int index) const;

    /// The following need an optimistic or pessimistic lock and `SELECT * FROM table …` on a table whose
    /// primary key is a number; otherwise they fail with NotSupported.
    ///
    /// Changes a field of the current row, or of the row being added; nothing is written before update().
    Status setValue(QStringView name, const Value& value);
    /// Begins a new row. Its auto-number is fixed and can be read at once; it is lost if the row is never
    /// posted.
    Status addNew();
    /// Posts what was changed, durably. A row that was added is the current one afterwards. On failure
    /// nothing is written and the change stays pending.
    Status update();

  private:
    struct Data;
    std::unique_ptr<Data> m_data;
};

}  // namespace ado
