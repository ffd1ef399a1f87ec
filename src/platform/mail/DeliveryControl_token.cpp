// SPDX-License-Identifier: GPL-3.0-or-later
// The token that replaces a password.
#include "platform/mail/DeliveryControl.h"

#include <cassert>

namespace mail {

/// Passes the message to the session, once there is a token where one is needed.
void DeliveryControl::deliver(const Waiting& waiting) {
    assert(mayStart());
    m_token.clear();
    if (!waiting.route.bearer) {
        m_session.deliver(waiting.route, waiting.message, waiting.times);
        return;
    }
    m_tokens.setFolders(OAuthFolder, waiting.route.certificateFolder);
    m_tokens.get(waiting.route.host, waiting.route.user, waiting.times.stall,
                 [this, waiting](const Result<oauth::Access>& access) { onToken(waiting, access); });
}

void DeliveryControl::onToken(const Waiting& waiting, const Result<oauth::Access>& access) {
    if (!access.ok()) {
        finishLater({false, 0, access.status().text(), true, DeliveryStage::Login});
        return;
    }
    assert(mayStart());
    if (!access.value().remark.isEmpty()) m_transcript.remark(access.value().remark);
    m_token = access.value().token;
    Route route = waiting.route;
    route.password = QString::fromLatin1(m_token);
    m_session.deliver(route, waiting.message, waiting.times);
}

/// A token may have been revoked before it expired.
void DeliveryControl::noteLogin(const DeliveryOutcome& outcome) {
    if (outcome.ofLogin && outcome.code >= 500 && !m_token.isEmpty()) m_tokens.refuse(m_token);
}

}  // namespace mail
