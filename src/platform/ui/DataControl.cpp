// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/DataControl.h"

#include "platform/ui/PaintedWork.h"

namespace ui {

Status DataControl::Refresh() {
    Result<ado::Snapshot> rows =
        painted([this] { return ado::Snapshot::take(m_connectionString, m_recordSource); });
    if (!rows.ok()) return rows.status();
    Q_EMIT refreshed(rows.value());
    return {};
}

}  // namespace ui
