// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "platform/ado/Connection.h"
#include "platform/Status.h"

namespace ado {

/// One INSERT, UPDATE or DELETE statement given as text.
class Command {
  public:
    /// Names the database; fails for a missing or foreign file and a wrong password. It takes no lock, so it
    /// never waits for other programs.
    Status setActiveConnection(const QString& connectionText);
    Status setActiveConnection(const Connection& connection) {
        return setActiveConnection(connection.text());
    }
    void setCommandText(const QString& statement) { m_statement = statement; }
    /// Seconds after which a statement is given up and undone; 0 is without limit. They bound its waits for
    /// other programs (then FileInUse) and its own run (then Timeout) together.
    void setCommandTimeout(int seconds) { m_timeout = seconds; }
    /// A hint only: statements of the same shape are compiled once in any case.
    void setPrepared(bool prepared) { m_prepared = prepared; }
    bool prepared() const { return m_prepared; }

    /// Runs the statement; returns the number of rows it inserted, changed or deleted. The statement is one:
    /// all of its changes are on disk when this returns success, and none is after a failure. Fails with
    /// SyntaxError, TableNotFound, ItemNotFound (unknown column), FieldTooSmall (a text longer than its
    /// column), TypeMismatch, NotSupported (refused statement, table that cannot be changed), FileInUse, or
    /// another error of the file.
    Result<qint64> execute();

  private:
    QString m_connection;
    QString m_statement;
    int m_timeout = 30;
    bool m_prepared = false;
};

}  // namespace ado
