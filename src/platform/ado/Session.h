// SPDX-License-Identifier: GPL-3.0-or-later
// An open database file with the SQLite connection that runs statements on it.
#pragma once

#include <sqlite3.h>
#include <functional>
#include <map>
#include <memory>
#include <QString>
#include <vector>

#include "platform/ado/GroupedInserts.h"
#include "platform/ado/InsertShape.h"
#include "platform/ado/JetTable.h"
#include "platform/ado/StatementText.h"
#include "platform/jet/Database.h"
#include "platform/Status.h"

namespace ado {

class Rows;
class Session;

/// Returns a compiled statement to its session, which keeps it for the next text of the same shape.
struct KeepStatement {
    Session* session = nullptr;
    QByteArray sql;
    void operator()(sqlite3_stmt* statement) const;
};
using Prepared = std::unique_ptr<sqlite3_stmt, KeepStatement>;

/// An open database file together with the SQLite connection that runs statements on it. Sessions are kept in
/// a small pool, so that a recordset or command that names its database by text finds it open, with its pages
/// and orders.
class Session {
  public:
    /// Whether `connectionText` names a file that can be a database. Takes no lock.
    static Status attach(const QString& connectionText);
    /// The session of the file that `connectionText` names, in agreement with the file as it is now.
    static Result<std::shared_ptr<Session>> open(const QString& connectionText);
    /// The same with the file locked for reading, so that what follows sees the state it agrees with and
    /// takes no lock of its own.
    struct Reading {
        std::shared_ptr<Session> session;
        std::unique_ptr<jet::ReadScope> scope;  ///< ends before the session
    };
    static Result<Reading> read(const QString& connectionText);
    /// Runs `work` on that session as one transaction: durable when it succeeds, undone when it fails. The
    /// writer's lock is taken before anything is read.
    static Status write(const QString& connectionText, const std::function<Status(Session&)>& work);
    /// Empties the pool. A session that is in use lives on until its last user releases it.
    static void closeAll();
    static void commitAll();
    ~Session();

    jet::Database& database() { return *m_database; }

    /// Brings what is remembered in line with the file. Fails when the file cannot be reached or a table that
    /// is in use has got other columns: then the session is of no use any more and the pool replaces it.
    Status refresh();

    /// A local table of the user's by name, without regard to case, known to SQLite from here on.
    Result<JetTable*> table(const QString& name);
    /// One statement compiled, with a value for each question mark; these have to stay while it runs.
    /// What is not reading, inserting, changing or deleting rows of known tables is refused.
    Result<Prepared> prepare(const QByteArray& sql, const std::vector<jet::Value>& values);

    /// The same for a caller that has a session.
    Status write(const std::function<Status()>& work);

    /// Begins the transaction of a group on the session of `connectionText`.
    static Result<std::shared_ptr<Session>> beginGroup(const QString& connectionText, GroupProgress& group);
    /// Runs an INSERT of one row inside the open group. A row that is refused ends the group with a commit of
    /// those before.
    Status insertInGroup(const StatementText& statement);
    /// The same for a row of that shape, which a statement of this group has had before.
    Status insertInGroup(const InsertShape& shape, std::vector<jet::Value> row);
    /// The shape of a statement that was run; nothing where it has none.
    std::optional<InsertShape> shapeOf(const StatementText& statement);
    /// Ends the open group and reports to its progress how that went.
    void commitGroup();

    /// Another number whenever a transaction begins here, or the file was found changed by somebody else:
    /// what was read before may be no longer true.
    uint64_t epoch() const { return m_epoch; }

    /// Open recordsets, so that they can read all their rows before a write moves them.
    void enlist(Rows* rows) { m_readers.push_back(rows); }
    void delist(Rows* rows) { std::erase(m_readers, rows); }

    /// What went wrong inside a callback of SQLite, which can only return a number.
    int fail(Status failure);
    /// The failure of the call to SQLite that has just returned an error.
    Status takeFailure();

    /// For the callbacks of the virtual tables.
    JetTable* declared(const char* name) const;
    void countChange() { ++m_changes; }
    qint64 takeChanges() { return std::exchange(m_changes, 0); }
    sqlite3* sqlite() const { return m_sqlite; }

  private:
    explicit Session(std::unique_ptr<jet::Database> database) : m_database(std::move(database)) {}
    struct Target;
    static Result<std::shared_ptr<Session>> pooled(const Target& target);
    static Result<std::shared_ptr<Session>> known(const QString& connectionText);
    static Result<std::shared_ptr<Session>> make(const QString& connectionText);
    static Result<std::shared_ptr<Session>> make(const Target& target);
    static Result<std::shared_ptr<Session>> openForWriting(const QString& connectionText);
    Status start();
    Status finishReaders();
    Status insertInGroup(const QString& table, const std::function<Status(JetTable&, bool& refused)>& insert);
    Status begin();
    Status end(Status status);
    Status declare(JetTable& table);
    void forget();
    Result<Prepared> compile(const QByteArray& sql);
    void keep(sqlite3_stmt* statement, const QByteArray& sql);
    friend KeepStatement;
    static int authorize(void* session, int action, const char* first, const char* second,
                         const char* database, const char* trigger);

    std::unique_ptr<jet::Database> m_database;
    sqlite3* m_sqlite = nullptr;
    std::map<std::string, std::unique_ptr<JetTable>> m_tables;  ///< by lower-case name in the catalogue
    std::vector<std::pair<QByteArray, sqlite3_stmt*>> m_idle;   ///< compiled; the one used last is the last
    std::vector<Rows*> m_readers;
    Status m_failure;
    qint64 m_changes = 0;
    GroupProgress* m_group = nullptr;  ///< of the open group
    uint64_t m_epoch = 0;
    bool m_outdated = false;
};

}  // namespace ado
