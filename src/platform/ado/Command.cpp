#include "platform/ado/Command.h"

#include <chrono>

#include "platform/ado/Session.h"

namespace ado {

namespace {

using Clock = std::chrono::steady_clock;

/// Makes SQLite give up a statement that runs beyond its time.
class Deadline {
  public:
    Deadline(sqlite3* sqlite, int seconds)
        : m_sqlite(sqlite), m_end(Clock::now() + std::chrono::seconds(seconds)) {
        constexpr int operationsBetweenLooks = 10000;
        if (seconds > 0) sqlite3_progress_handler(m_sqlite, operationsBetweenLooks, look, this);
    }
    ~Deadline() { sqlite3_progress_handler(m_sqlite, 0, nullptr, nullptr); }
    Deadline(const Deadline&) = delete;

    bool passed() const { return m_passed; }

  private:
    static int look(void* deadline) {
        auto& self = *static_cast<Deadline*>(deadline);
        self.m_passed = Clock::now() >= self.m_end;
        return self.m_passed;
    }

    sqlite3* m_sqlite;
    Clock::time_point m_end;
    bool m_passed = false;
};

}  // namespace

Status Command::setActiveConnection(const QString& connectionText) {
    m_connection = connectionText;
    return Session::open(connectionText).status();
}

Result<qint64> Command::execute() {
    const auto opened = Session::open(m_connection);
    if (!opened.ok()) return opened.status();
    Session& session = *opened.value();
    const Result<StatementText> statement = StatementText::read(m_statement);
    if (!statement.ok()) return statement.status();
    if (statement.value().verb == StatementText::Verb::Select)
        return Status(ErrorCode::NotSupported, QStringLiteral("Un comando non può eseguire una SELECT."));
    const Result<JetTable*> target = session.table(statement.value().table);
    if (!target.ok()) return target.status();
    if (const QString& source = statement.value().readFrom; !source.isEmpty())
        if (const auto found = session.table(source); !found.ok()) return found.status();
    const Result<Prepared> prepared = session.prepare(statement.value().sql, statement.value().values);
    if (!prepared.ok()) return prepared.status();
    const bool changing = statement.value().verb == StatementText::Verb::Update;
    if (Status status = changing ? target.value()->updatable({}) : target.value()->writable(); !status.ok())
        return status;
    session.takeChanges();
    const Status status = session.write([&]() -> Status {
        const Deadline deadline(session.sqlite(), m_timeout);
        const int code = sqlite3_step(prepared.value().get());
        if (code == SQLITE_DONE) return {};
        if (deadline.passed()) return {ErrorCode::Timeout, QStringLiteral("Tempo scaduto.")};
        return session.takeFailure();
    });
    if (!status.ok()) return status;
    return session.takeChanges();
}

}  // namespace ado
