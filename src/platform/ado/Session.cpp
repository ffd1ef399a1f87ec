// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/Session.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "platform/ado/JetModule.h"
#include "platform/ado/Rows.h"
#include "platform/jet/GeneralOrder.h"
#include "platform/text/Words.h"

namespace ado {

namespace {

int compareTexts(void*, int leftSize, const void* left, int rightSize, const void* right) {
    return jet::compareGeneral({static_cast<const char*>(left), static_cast<size_t>(leftSize)},
                               {static_cast<const char*>(right), static_cast<size_t>(rightSize)});
}

}  // namespace

Session::~Session() {
    for (const auto& [sql, statement] : m_idle)
        sqlite3_finalize(statement);
    sqlite3_close(m_sqlite);
}

Status Session::start() {
    constexpr int oneThread = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    const auto works = [](int code) { return code == SQLITE_OK; };
    const bool ready = works(sqlite3_open_v2(":memory:", &m_sqlite, oneThread, nullptr)) &&
                       works(sqlite3_create_module(m_sqlite, "jet", &jetModule, this)) &&
                       works(sqlite3_create_collation(m_sqlite, "JET", SQLITE_UTF8, nullptr, compareTexts));
    if (!ready) return {ErrorCode::DeviceIo, Words::tr("Impossibile avviare il motore SQL.")};
    sqlite3_db_config(m_sqlite, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(m_sqlite, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_limit(m_sqlite, SQLITE_LIMIT_ATTACHED, 0);
    sqlite3_limit(m_sqlite, SQLITE_LIMIT_EXPR_DEPTH, 200);
    return {};
}

Status Session::refresh() {
    const Result<bool> changed = m_database->refresh();
    if (!changed.ok()) return changed.status();
    if (changed.value()) {
        ++m_epoch;
        for (auto& [name, table] : m_tables)
            table->changedOutside();
        m_outdated = m_outdated || !std::all_of(m_tables.begin(), m_tables.end(), [](const auto& table) {
                         return table.second->stillTheSame();
                     });
    }
    if (m_outdated)
        return {ErrorCode::TableNotFound, Words::tr("La struttura del database è stata modificata.")};
    return {};
}

void Session::forget() {
    ++m_epoch;
    for (auto& [name, table] : m_tables)
        table->forget();
}

/// Lets open recordsets read all their rows before a write moves them.
Status Session::finishReaders() {
    for (Rows* reader : m_readers)
        if (Status status = reader->finish(); !reader->ended()) return status;
    return {};
}

Status Session::begin() {
    if (Status status = m_database->begin(); !status.ok()) return status;
    ++m_epoch;
    for (auto& [name, table] : m_tables)
        table->beginStatement();
    Status status = finishReaders();
    if (status.ok()) status = refresh();
    return status.ok() ? status : end(std::move(status));
}

/// Ends the transaction: with a commit after success, undone otherwise.
Status Session::end(Status status) {
    if (status.ok()) status = m_database->commit();
    if (status.ok()) return status;
    if (m_database->inTransaction()) m_database->rollback();
    forget();
    return status;
}

Status Session::write(const std::function<Status()>& work) {
    commitGroup();
    if (Status status = begin(); !status.ok()) return status;
    return end(work());
}

Status Session::write(const QString& connectionText, const std::function<Status(Session&)>& work) {
    const auto session = openForWriting(connectionText);
    return session.ok() ? session.value()->end(work(*session.value())) : session.status();
}

Result<std::shared_ptr<Session>> Session::beginGroup(const QString& connectionText, GroupProgress& group) {
    auto session = openForWriting(connectionText);
    if (session.ok()) session.value()->m_group = &group;
    return session;
}

Status Session::insertInGroup(const StatementText& statement) {
    return insertInGroup(statement.table, [&](JetTable&, bool& refused) {
        const Result<Prepared> prepared = prepare(statement.sql, statement.values);
        if (!prepared.ok()) return prepared.status();
        refused = sqlite3_step(prepared.value().get()) != SQLITE_DONE;
        return refused ? takeFailure() : Status();
    });
}

Status Session::insertInGroup(const InsertShape& shape, std::vector<jet::Value> row) {
    return insertInGroup(shape.table(), [&](JetTable& target, bool& refused) {
        Status status = target.insertFitted(std::move(row));
        refused = !status.ok();
        if (!refused) countChange();
        return status;
    });
}

std::optional<InsertShape> Session::shapeOf(const StatementText& statement) {
    const Result<JetTable*> target = table(statement.table);
    return target.ok() ? InsertShape::of(statement, target.value()->definition()) : std::nullopt;
}

Status Session::insertInGroup(const QString& name, const std::function<Status(JetTable&, bool&)>& insert) {
    bool refused = false;
    Status status = finishReaders();
    if (status.ok()) {
        const Result<JetTable*> target = table(name);
        status = target.ok() ? insert(*target.value(), refused) : target.status();
    }
    if (status.ok()) ++m_group->taken;
    // An empty group would keep the lock for nothing.
    if (refused || m_group->taken == 0) commitGroup();
    return status;
}

void Session::commitGroup() {
    if (!m_group) return;
    GroupProgress& group = *std::exchange(m_group, nullptr);
    group.failure = end({});
    if (group.failure.ok()) group.committed += group.taken;
    group.taken = 0;
}

int Session::fail(Status failure) {
    m_failure = std::move(failure);
    return SQLITE_ERROR;
}

}  // namespace ado
