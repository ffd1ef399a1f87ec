// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "platform/mail/DeliveryOutcome.h"

namespace mail {

/// Whether a server has refused a message as spam, for its policy or for the rate of sending, in one Italian
/// sentence with the status code and the server's words. It is recognised by the enhanced status codes 4.7.x
/// and 5.7.x (RFC 3463 3.8), and which of the three it is by the words. Empty for any other outcome, and
/// where the server wants a login or TLS (RFC 4954 6).
QString verdictOf(const DeliveryOutcome& outcome);

}  // namespace mail
