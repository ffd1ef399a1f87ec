// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/TableWalk.h"

#include <limits>

#include "platform/ado/RawValue.h"
#include "platform/ado/Session.h"
#include "platform/ado/Value.h"

namespace ado {

namespace {

jet::RowId behind(jet::RowId id) {
    if (id.slot < std::numeric_limits<uint8_t>::max()) return {id.page, static_cast<uint8_t>(id.slot + 1)};
    return {id.page + 1, 0};
}

}  // namespace

void WalkedRow::appendText(size_t column, std::string& out) const {
    const jet::Column& described = definition().columns[column];
    if (described.type == jet::Type::Text) {
        static_cast<void>(m_view.text(column, out));
    } else if (described.type == jet::Type::Memo) {
        if (const Result<jet::Value> memo = m_table.value(m_id, column); memo.ok())
            out += Value(memo.value()).toTextOrEmpty().toStdString();
    } else if (described.type != jet::Type::Ole) {
        out += Value(readable(described, m_view.value(column))).toTextOrEmpty().toStdString();
    }
}

Result<bool> TableWalk::step(std::chrono::microseconds most,
                             const std::function<void(const WalkedRow& row)>& visit) {
    using Clock = std::chrono::steady_clock;
    constexpr int rowsBetweenLooks = 32;
    const Waiting waiting(m_waitSeconds);
    const auto session = Session::open(m_connection);
    if (!session.ok()) return session.status();
    const jet::ReadScope reading(session.value()->database());
    if (!reading.status().ok()) return reading.status();
    if (Status status = session.value()->refresh(); !status.ok()) return status;
    const Result<jet::Table*> table = session.value()->database().table(m_table.toStdString());
    if (!table.ok()) return table.status();
    const auto end = Clock::now() + most;
    bool ended = true;
    int rows = 0;
    const Status status = table.value()->scan(m_next, [&](jet::RowId id, const jet::RowView& row) {
        if (++rows % rowsBetweenLooks == 0 && Clock::now() >= end) return ended = false;
        visit(WalkedRow(*table.value(), id, row));
        m_next = behind(id);
        return true;
    });
    if (!status.ok()) return status;
    return ended;
}

}  // namespace ado
