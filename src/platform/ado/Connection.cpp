// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/Connection.h"

#include "platform/ado/Session.h"
#include "platform/ado/Waiting.h"

namespace ado {

Status Connection::open(const QString& connectionText) {
    const Waiting waiting(m_timeout);
    const auto session = Session::open(connectionText);
    if (!session.ok()) return session.status();
    m_text = connectionText;
    return {};
}

bool Connection::roomReserved() const {
    const auto session = Session::open(m_text);
    return session.ok() && session.value()->database().roomReserved();
}

void closeAll() {
    Session::closeAll();
}

void commitAll() {
    if (!Waiting::refused()) Session::commitAll();
}

}  // namespace ado
