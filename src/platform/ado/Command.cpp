// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/Command.h"

#include <optional>
#include <utility>

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

/// The column, where the statement marks one row by its number in the primary key, which needs no SQLite.
std::optional<size_t> columnOfOneRow(const jet::TableDefinition& table,
                                     const StatementText::Marking& marking) {
    const auto column = table.find(marking.column);
    const auto key = marking.key ? table.find(marking.key->column) : std::nullopt;
    // The words may be names as well.
    const bool one = column && key && table.columns[*column].type == jet::Type::YesNo &&
                     key == table.longPrimaryKey() && std::in_range<int32_t>(marking.key->number) &&
                     !table.find("True") && !table.find("False");
    return one ? column : std::nullopt;
}

/// Returns the number of rows.
Result<qint64> markOneRow(JetTable& table, size_t column, const StatementText::Marking& marking) {
    const auto id = table.findByPrimaryKey(static_cast<int32_t>(marking.key->number));
    if (!id.ok()) return id.status();
    if (!id.value()) return qint64{0};
    const std::pair<size_t, jet::Value> change(column, marking.value);
    Status status = table.update(*id.value(), {&change, 1});
    return status.ok() ? Result<qint64>(1) : status;
}

/// Marks all rows at once, where the table allows it; the number of rows then.
Result<std::optional<int64_t>> markAllRows(JetTable& table, const StatementText::Marking& marking,
                                           Deadline& deadline) {
    const jet::TableDefinition& definition = table.definition();
    const auto column = definition.find(marking.column);
    if (!column || definition.find("True") || definition.find("False")) return std::optional<int64_t>();
    return table.setYesNo(*column, marking.value, [&] { return deadline.goOn(); });
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
        const auto one =
            text.marking ? columnOfOneRow(target.value()->definition(), *text.marking) : std::nullopt;
        Prepared prepared;
        if (!one) {
            Result<Prepared> made = session.prepare(text.sql, text.values);
            if (!made.ok()) return made.status();
            prepared = std::move(made).value();
        }
        const bool changing = text.verb == StatementText::Verb::Update;
        if (Status refused = changing ? target.value()->updatable({}) : target.value()->writable();
            !refused.ok())
            return refused;
        if (one) {
            const Result<qint64> rows = markOneRow(*target.value(), *one, *text.marking);
            if (rows.ok()) changes = rows.value();
            return rows.status();
        }
        session.takeChanges();
        Deadline deadline(session.sqlite(), waiting);
        if (text.marking && !text.marking->key) {
            const auto rows = markAllRows(*target.value(), *text.marking, deadline);
            if (!rows.ok()) return rows.status();
            changes = rows.value().value_or(0);
            if (rows.value()) return {};
        }
        const int code = sqlite3_step(prepared.get());
        changes = session.takeChanges();
        if (code == SQLITE_DONE) return {};
        if (deadline.passed()) return {ErrorCode::Timeout, Words::tr("Tempo scaduto.")};
        return session.takeFailure();
    });
    if (!status.ok()) return status;
    return changes;
}

}  // namespace ado
