// SPDX-License-Identifier: GPL-3.0-or-later
#include "torture/OddServer.h"

#include "torture/OddConnection.h"

OddServer::OddServer(const Misbehaviour& bad, Offer offer) : m_bad(bad), m_offer(std::move(offer)) {
    if (!listen(QHostAddress::LocalHost)) qFatal("cannot listen");
}

OddServer::~OddServer() {
    for (OddConnection* connection : std::set(m_connections))
        delete connection;
}

void OddServer::incomingConnection(qintptr descriptor) {
    ++m_activity;
    new OddConnection(*this, descriptor);
}

void OddServer::idle() {
    for (OddConnection* connection : std::set(m_connections))
        if (isWrong(Misbehaviour::Stage::Idle)) connection->sayUnasked();
}

/// Whether the next step is the one to do wrong.
bool OddServer::isWrong(Misbehaviour::Stage stage) {
    if (stage != m_bad.stage || m_current < m_bad.message) return false;
    if (m_current > m_bad.message && !m_bad.goesOn) return false;
    if (m_misbehaved && !m_bad.everywhere && !m_bad.goesOn) return false;
    m_misbehaved = true;
    return true;
}

void OddServer::note(int message, bool whole, bool accepted) {
    Account& account = m_accounts[message];
    account.whole += whole;
    account.accepted = account.accepted || accepted;
}

OddServer::Account OddServer::account(int message) const {
    const auto found = m_accounts.find(message);
    Account account = found == m_accounts.end() ? Account() : found->second;
    for (const OddConnection* connection : m_connections)
        account.accepted = account.accepted || connection->hasAccepted(message);
    return account;
}
