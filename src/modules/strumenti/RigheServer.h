#pragma once

#include <QDateTime>
#include <vector>

#include "modules/strumenti/RigaControllo.h"
#include "platform/mail/DeliveryOutcome.h"
#include "platform/mail/SessionFindings.h"

/// What a try with the account's server came to.
struct ServerProvato {
    mail::DeliveryOutcome esito;  ///< `delivered`: a message could be sent now
    mail::SessionFindings trovato;
    bool accesso = false;  ///< the account logs in
};

/// The lines of the server: reached, TLS, certificate, login, size. They are five, also while nothing is
/// known.
std::vector<RigaControllo> RigheServerInAttesa();
std::vector<RigaControllo> RigheServer(const ServerProvato& provato, const QDateTime& adesso);
