// SPDX-License-Identifier: GPL-3.0-or-later
// The lines about the account's server in the check of a sender.
#pragma once

#include <QDateTime>
#include <vector>

#include "modules/strumenti/RigaControllo.h"
#include "platform/mail/DeliveryOutcome.h"
#include "platform/mail/SessionFindings.h"

/// The result of a test of the account's server.
struct ServerProvato {
    mail::DeliveryOutcome esito;  ///< `delivered`: a message could be sent now
    mail::SessionFindings trovato;
    bool accesso = false;  ///< the account logs in
};

/// The lines of the server: reached, TLS, certificate, login, size. They are five, also while nothing is
/// known.
std::vector<RigaControllo> RigheServerInAttesa();
std::vector<RigaControllo> RigheServer(const ServerProvato& provato, const QDateTime& adesso);
