// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/Command.h"

#include <optional>

#include "platform/ado/Session.h"
#include "platform/ado/Waiting.h"
#include "platform/text/Words.h"

namespace ado {

namespace {

/// Interrupts a statement that runs beyond its time.
class Deadline {
  public:
    Deadline(sqlite3* sqlite, const Waiting& waiting) : m_sqlite(sqlite), m_end(waiting.end()) {
        constexpr int operationsBetweenLooks = 10000;
        if (m_end) sqlite3_progress_handler(m_sqlite, operationsBetweenLooks, look, this);
    }
    ~Deadline() { sqlite3_progress_handler(m_sqlite, 0, nullptr, nullptr); }
    Deadline(const Deadline&) = delete;

    bool passed() const { return m_passed; }
    /// For what SQLite does not run: called often, the clock is read rarely.
    bool goOn() {
        constexpr int callsBetweenLooks = 1000;
        if (m_end && ++m_calls % callsBetweenLooks == 0) m_passed = Waiting::Clock::now() >= *m_end;
        return !m_passed;
    }

  private:
    static int look(void* deadline) {
        auto& self = *static_cast<Deadline*>(deadline);
        self.m_passed = Waiting::Clock::now() >= *self.m_end;
        return self.m_passed;
    }

    sqlite3* m_sqlite;
    std::optional<Waiting::Clock::time_point> m_end;
    bool m_passed = false;
    int m_calls = 0;
};

/// Marks all rows at once, where the statement asks for that and the table allows it; the number of rows
/// then.
Result<std::optional<int64_t>> setEverywhere(JetTable& table, const StatementText& statement,
                                             Deadline& deadline) {
    const jet::TableDefinition& definition = table.definition();
    const auto column = definition.find(statement.everywhere->column);
    // The words may be names as well.
    if (!column || definition.find("True") || definition.find("False")) return std::optional<int64_t>();
    return table.setYesNo(*column, statement.everywhere->value, [&] { return deadline.goOn(); });
}

}  // namespace

Status Command::setActiveConnection(const QString& connectionText) {
    m_connection = connectionText;
    return Session::attach(connectionText);
}

Result<qint64> Command::execute() {
    const Waiting waiting(m_timeout);
    const Result<StatementText> statement = StatementText::read(m_statement);
    if (!statement.ok()) return statement.status();
    const StatementText& text = statement.value();
    if (text.verb == StatementText::Verb::Select)
        return Status(ErrorCode::NotSupported, Words::tr("Un comando non può eseguire una SELECT."));
    qint64 changes = 0;
    const Status status = Session::write(m_connection, [&](Session& session) -> Status {
        const Result<JetTable*> target = session.table(text.table);
        if (!target.ok()) return target.status();
        if (!text.readFrom.isEmpty())
            if (const auto found = session.table(text.readFrom); !found.ok()) return found.status();
        const Result<Prepared> prepared = session.prepare(text.sql, text.values);
        if (!prepared.ok()) return prepared.status();
        const bool changing = text.verb == StatementText::Verb::Update;
        if (Status refused = changing ? target.value()->updatable({}) : target.value()->writable();
            !refused.ok())
            return refused;
        session.takeChanges();
        Deadline deadline(session.sqlite(), waiting);
        if (text.everywhere) {
            const auto rows = setEverywhere(*target.value(), text, deadline);
            if (!rows.ok()) return rows.status();
            changes = rows.value().value_or(0);
            if (rows.value()) return {};
        }
        const int code = sqlite3_step(prepared.value().get());
        changes = session.takeChanges();
        if (code == SQLITE_DONE) return {};
        if (deadline.passed()) return {ErrorCode::Timeout, Words::tr("Tempo scaduto.")};
        return session.takeFailure();
    });
    if (!status.ok()) return status;
    return changes;
}

}  // namespace ado
