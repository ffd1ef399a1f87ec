// SPDX-License-Identifier: GPL-3.0-or-later
// The statements of a session: its tables as SQLite knows them, what may be compiled, and what went wrong.
#include <algorithm>
#include <iterator>

#include "platform/ado/JetModule.h"
#include "platform/ado/Session.h"
#include "platform/ado/SqlTokens.h"
#include "platform/text/Words.h"

namespace ado {

namespace {

constexpr size_t idleStatements = 16;

std::string tableKey(const QString& name) {
    return name.toLower().toStdString();
}

void bind(sqlite3_stmt* statement, int number, const jet::Value& value) {
    if (const auto* whole = std::get_if<int64_t>(&value)) {
        sqlite3_bind_int64(statement, number, *whole);
    } else if (const auto* real = std::get_if<double>(&value)) {
        sqlite3_bind_double(statement, number, *real);
    } else if (const auto* text = std::get_if<std::string>(&value)) {
        sqlite3_bind_text64(statement, number, text->data(), text->size(), SQLITE_STATIC, SQLITE_UTF8);
    }
}

/// The Italian words for what SQLite says about a statement.
Status statementFailure(const QString& message) {
    constexpr QLatin1String unknownColumn("no such column: ");
    constexpr QLatin1String notInTable(" has no column named ");
    QString column;
    if (message.startsWith(unknownColumn)) column = message.mid(unknownColumn.size());
    if (const auto at = message.indexOf(notInTable); at >= 0) column = message.mid(at + notInTable.size());
    if (!column.isEmpty())
        return {ErrorCode::ItemNotFound, Words::tr("Impossibile trovare il campo \"%1\".").arg(column)};
    if (message.startsWith(QLatin1String("near \"")) ||
        message.startsWith(QLatin1String("unrecognized token")))
        return {ErrorCode::SyntaxError, Words::tr("Errore di sintassi nell'istruzione SQL vicino a \"%1\".")
                                            .arg(message.section(u'"', 1, 1))};
    if (message.contains(QLatin1String(" values for ")))
        return {ErrorCode::SyntaxError,
                Words::tr("Il numero dei valori non corrisponde al numero dei campi di destinazione.")};
    if (message == QLatin1String("not authorized") || message.startsWith(QLatin1String("access to ")) ||
        message.startsWith(QLatin1String("not authorized to use function")))
        return {ErrorCode::NotSupported, Words::tr("Istruzione SQL non ammessa.")};
    return {ErrorCode::SyntaxError, Words::tr("Istruzione SQL non valida.")};
}

}  // namespace

Result<JetTable*> Session::table(const QString& name) {
    const auto known = [this](const std::string& key) {
        const auto entry = m_tables.find(key);
        return entry != m_tables.end() ? entry->second.get() : nullptr;
    };
    if (JetTable* table = known(tableKey(name))) return table;
    const Result<jet::Table*> found = m_database->table(name.toStdString());
    if (!found.ok()) return found.status();
    const std::string key = tableKey(QString::fromStdString(found.value()->definition().name));
    if (JetTable* table = known(key)) return table;
    // Some of the system's own are marked only by their name.
    if (found.value()->definition().system || name.startsWith(QLatin1String("MSys"), Qt::CaseInsensitive))
        return Status(ErrorCode::NotSupported,
                      Words::tr("La tabella \"%1\" è riservata al sistema.").arg(name));
    const auto entry = m_tables.emplace(key, std::make_unique<JetTable>(*m_database, *found.value())).first;
    if (Status status = declare(*entry->second); !status.ok()) {
        m_tables.erase(entry);
        return status;
    }
    return entry->second.get();
}

Status Session::declare(JetTable& table) {
    const std::string declaration =
        "CREATE VIRTUAL TABLE " + quotedName(table.definition().name) + " USING jet";
    const int code = sqlite3_exec(m_sqlite, declaration.c_str(), nullptr, nullptr, nullptr);
    if (code == SQLITE_OK) return {};
    return {ErrorCode::NotSupported, Words::tr("La tabella \"%1\" non può essere usata nelle istruzioni SQL.")
                                         .arg(QString::fromStdString(table.definition().name))};
}

JetTable* Session::declared(const char* name) const {
    const auto entry = m_tables.find(tableKey(QString::fromUtf8(name)));
    return entry != m_tables.end() ? entry->second.get() : nullptr;
}

int Session::authorize(void* client, int action, const char* first, const char* second, const char* database,
                       const char*) {
    const auto& session = *static_cast<const Session*>(client);
    switch (action) {
        case SQLITE_SELECT:
            return SQLITE_OK;
        case SQLITE_READ:
        case SQLITE_INSERT:
        case SQLITE_UPDATE:
        case SQLITE_DELETE: {
            return (!database || std::string_view(database) == "main") && session.declared(first)
                       ? SQLITE_OK
                       : SQLITE_DENY;
        }
        case SQLITE_FUNCTION:
            return std::string_view(second) == "count" ? SQLITE_OK : SQLITE_DENY;
        default:
            return SQLITE_DENY;
    }
}

Result<Prepared> Session::compile(const QByteArray& sql) {
    const auto idle =
        std::find_if(m_idle.rbegin(), m_idle.rend(), [&](const auto& known) { return known.first == sql; });
    if (idle != m_idle.rend()) {
        Prepared prepared(idle->second, {this, sql});
        m_idle.erase(std::next(idle).base());
        return prepared;
    }
    sqlite3_stmt* statement = nullptr;
    sqlite3_set_authorizer(m_sqlite, authorize, this);
    const int code = sqlite3_prepare_v3(m_sqlite, sql.constData(), static_cast<int>(sql.size()),
                                        SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    sqlite3_set_authorizer(m_sqlite, nullptr, nullptr);
    if (code != SQLITE_OK) return takeFailure();
    if (!statement) return Status(ErrorCode::SyntaxError, Words::tr("Istruzione SQL non valida."));
    return Prepared(statement, {this, sql});
}

Result<Prepared> Session::prepare(const QByteArray& sql, const std::vector<jet::Value>& values) {
    Result<Prepared> prepared = compile(sql);
    if (!prepared.ok()) return prepared;
    int number = 0;
    for (const jet::Value& value : values)
        bind(prepared.value().get(), ++number, value);
    return prepared;
}

void Session::keep(sqlite3_stmt* statement, const QByteArray& sql) {
    sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
    if (m_idle.size() == idleStatements) {
        sqlite3_finalize(m_idle.front().second);
        m_idle.erase(m_idle.begin());
    }
    m_idle.emplace_back(sql, statement);
}

void KeepStatement::operator()(sqlite3_stmt* statement) const {
    session->keep(statement, sql);
}

Status Session::takeFailure() {
    if (!m_failure.ok()) return std::exchange(m_failure, Status());
    return statementFailure(QString::fromUtf8(sqlite3_errmsg(m_sqlite)));
}

}  // namespace ado
