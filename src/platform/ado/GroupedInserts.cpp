// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/GroupedInserts.h"

#include <utility>

#include "platform/ado/InsertShape.h"
#include "platform/ado/Session.h"
#include "platform/ado/Waiting.h"
#include "platform/text/Words.h"

namespace ado {

using Clock = std::chrono::steady_clock;

GroupedInserts::GroupedInserts() = default;

GroupedInserts::~GroupedInserts() {
    (void)commit();
}

Status GroupedInserts::setActiveConnection(const QString& connectionText) {
    if (Status status = commit(); !status.ok()) return status;
    m_connection = connectionText;
    return Session::attach(connectionText);
}

Status GroupedInserts::execute(const QString& text) {
    if (!m_progress.failure.ok()) return std::exchange(m_progress.failure, Status());
    if (Status status = insert(text); !status.ok()) return status;
    if (m_progress.taken >= m_groupSize || Clock::now() - m_began >= m_groupAge) return commit();
    return {};
}

/// Rows of one import differ in their values alone: SQLite runs the first of each group.
Status GroupedInserts::insert(const QString& text) {
    if (m_progress.taken > 0 && m_shape) {
        if (auto row = m_shape->row(text)) {
            const Waiting waiting(m_givenUp ? noWait : 0);
            return m_session->insertInGroup(*m_shape, *std::move(row));
        }
    }
    const Result<StatementText> statement = StatementText::read(text);
    if (!statement.ok()) return statement.status();
    if (statement.value().verb != StatementText::Verb::Insert || !statement.value().readFrom.isEmpty())
        return {ErrorCode::NotSupported, Words::tr("L'istruzione non è una INSERT di valori.")};
    const Waiting waiting(m_givenUp ? noWait : 0);
    if (m_progress.taken == 0) {
        m_shape.reset();
        auto session = Session::beginGroup(m_connection, m_progress);
        m_givenUp = session.status().code() == ErrorCode::FileInUse;
        if (!session.ok()) return session.status();
        m_session = std::move(session).value();
        m_began = Clock::now();
    }
    Status status = m_session->insertInGroup(statement.value());
    if (!status.ok()) return status;
    if (const auto shape = m_session->shapeOf(statement.value()))
        m_shape = std::make_unique<InsertShape>(*shape);
    return {};
}

Status GroupedInserts::commit() {
    const Waiting waiting(0);
    if (m_progress.taken > 0) m_session->commitGroup();
    return std::exchange(m_progress.failure, Status());
}

}  // namespace ado
