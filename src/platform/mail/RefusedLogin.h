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
    /// From now on answerFor() gives this outcome for as long.
    void note(const Route& route, const DeliveryOutcome& outcome, int ms);
    /// The refusal, where it was one of the same host, user and password and is not too long ago. Any other
    /// account makes it forgotten.
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
