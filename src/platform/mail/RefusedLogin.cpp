// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/RefusedLogin.h"

namespace mail {

void RefusedLogin::note(const Route& route, const DeliveryOutcome& outcome, int ms) {
    m_refusal = Refusal{route, outcome, QDeadlineTimer(ms)};
}

std::optional<DeliveryOutcome> RefusedLogin::answerFor(const Route& route) {
    if (!m_refusal) return {};
    const Route& refused = m_refusal->route;
    const bool sameAccount = route.login && route.host == refused.host && route.user == refused.user &&
                             route.password == refused.password;
    if (!sameAccount || m_refusal->until.hasExpired()) {
        forget();
        return {};
    }
    return m_refusal->outcome;
}

}  // namespace mail
