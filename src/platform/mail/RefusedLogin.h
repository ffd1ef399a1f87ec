// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QDeadlineTimer>

#include "platform/mail/DeliveryOutcome.h"
#include "platform/mail/Route.h"

namespace mail {

/// The last login that a server refused for its password. It is not tried again for a while, since servers
/// lock accounts with many refused logins.
class RefusedLogin {
  public:
    /// Makes answerFor() return this outcome for the next `ms` milliseconds.
    void note(const Route& route, const DeliveryOutcome& outcome, int ms);
    /// The refusal, if it was of the same host, user and password and has not expired. A call for any other
    /// account discards it.
    std::optional<DeliveryOutcome> answerFor(const Route& route);
    void forget() { m_refusal.reset(); }

  private:
    struct Refusal {
        Route route;
        DeliveryOutcome outcome;
        QDeadlineTimer until;
    };
    std::optional<Refusal> m_refusal;
};

}  // namespace mail
