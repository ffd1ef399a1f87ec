// SPDX-License-Identifier: GPL-3.0-or-later
// INSERT statements of an import, written to disk in groups.
#pragma once

#include <chrono>
#include <memory>
#include <QString>

#include "platform/ado/Connection.h"
#include "platform/Status.h"

namespace ado {

class InsertShape;
class Session;

/// How far the rows of a group got.
struct GroupProgress {
    qint64 taken = 0;  ///< since the last commit
    qint64 committed = 0;
    Status failure;  ///< of the last commit, until it is reported
};

/// Many `INSERT INTO … VALUES …` statements, one after the other, written to disk in groups: for imports,
/// where a commit for each row would cost more than everything else.
///
///     ado::GroupedInserts inserts;
///     inserts.setActiveConnection(connDB);
///     for (…) inserts.execute(statement);   // a failure concerns that one statement
///     inserts.commit();                     // or the destructor
///
/// What execute() has taken is in the file for good only after the group's commit: committed() counts
/// those rows, and only that number may be shown as "inserted". They survive a crash of the program and of
/// the machine. Of the rows after them a crash leaves none. Memory does not grow with the number of
/// statements.
///
/// A group is committed when it has 5000 statements, when it is 250 ms old at the next execute(), when a row
/// is refused, by commit(), by the destructor, and before anything else in this program writes to the
/// database; recordsets in between see all rows. From the first statement of a group to its commit other
/// programs can neither read nor write the file: call commit() before waiting for anything (a box, a slow
/// source).
class GroupedInserts {
  public:
    GroupedInserts();
    ~GroupedInserts();  ///< commits; a failure of that is lost, so call commit() where it matters
    GroupedInserts(const GroupedInserts&) = delete;
    GroupedInserts& operator=(const GroupedInserts&) = delete;

    /// Names the database; fails for a missing or foreign file.
    Status setActiveConnection(const QString& connectionText);
    Status setActiveConnection(const Connection& connection) {
        return setActiveConnection(connection.text());
    }

    /// Other bounds of a group, so that a test knows where it ends.
    void setGroupSize(int statements) { m_groupSize = statements; }
    void setGroupAge(std::chrono::milliseconds age) { m_groupAge = age; }

    /// Takes one INSERT INTO … VALUES. It waits for other programs without end; after a wait
    /// that was given up (FileInUse) it takes rows again as soon as it need not wait. Its failures are those
    /// of Command::execute(), besides NotSupported for a statement of another kind; the statement then has
    /// done nothing, and the rows taken before it stay. When the commit of a group fails, that failure is
    /// returned once, here or by commit(), and none of the group's rows is in the file.
    Status execute(const QString& statement);
    /// Commits the rows taken since the last commit; nothing to do is success.
    Status commit();
    /// Rows that are in the file for good.
    qint64 committed() const { return m_progress.committed; }

  private:
    Status insert(const QString& statement);

    QString m_connection;
    std::shared_ptr<Session> m_session;
    int m_groupSize = 5000;
    std::chrono::milliseconds m_groupAge{250};
    std::chrono::steady_clock::time_point m_began;  ///< of the open group
    GroupProgress m_progress;
    std::unique_ptr<InsertShape> m_shape;  ///< of the last statement of the open group that SQLite has run
    bool m_givenUp = false;                ///< the last wait
};

}  // namespace ado
