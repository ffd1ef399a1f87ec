#include "platform/ado/GroupedInserts.h"

#include <utility>

#include "platform/ado/Session.h"

namespace ado {

using Clock = std::chrono::steady_clock;

GroupedInserts::GroupedInserts() = default;

GroupedInserts::~GroupedInserts() {
    (void)commit();
}

Status GroupedInserts::setActiveConnection(const QString& connectionText) {
    if (Status status = commit(); !status.ok()) return status;
    m_connection = connectionText;
    auto session = Session::open(connectionText);
    if (!session.ok()) return session.status();
    m_session = std::move(session).value();
    return {};
}

Status GroupedInserts::execute(const QString& text) {
    if (!m_progress.failure.ok()) return std::exchange(m_progress.failure, Status());
    const Result<StatementText> statement = StatementText::read(text);
    if (!statement.ok()) return statement.status();
    if (statement.value().verb != StatementText::Verb::Insert || !statement.value().readFrom.isEmpty())
        return {ErrorCode::NotSupported, QStringLiteral("L'istruzione non è una INSERT di valori.")};
    if (m_progress.taken == 0) {
        auto session = Session::open(m_connection);
        if (!session.ok()) return session.status();
        m_session = std::move(session).value();
        m_began = Clock::now();
    }
    Status status = m_session->insertInGroup(m_progress, statement.value());
    if (!status.ok()) return status;
    if (m_progress.taken >= m_groupSize || Clock::now() - m_began >= m_groupAge) return commit();
    return {};
}

Status GroupedInserts::commit() {
    if (m_progress.taken > 0) m_session->commitGroup();
    return std::exchange(m_progress.failure, Status());
}

}  // namespace ado
