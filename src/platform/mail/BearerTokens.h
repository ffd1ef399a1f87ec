// SPDX-License-Identifier: GPL-3.0-or-later
// Logins with an access token of OAuth 2.0 (RFC 6750) instead of a password: OAUTHBEARER and XOAUTH2.
#pragma once

#include <QByteArray>
#include <QString>

#include "platform/Status.h"

namespace mail {

/// The client's first response: for OAUTHBEARER as in RFC 7628 3.1, for XOAUTH2 in its own older form. `host`
/// and `port` are the server's. Fails (TypeMismatch) where the user's name contains a control character.
Result<QByteArray> bearerResponse(const QByteArray& mechanism, const QString& user, const QByteArray& token,
                                  const QString& host, quint16 port);

/// The answer to the challenge that reports an error: the server's refusal comes after it (RFC 7628 3.2.3).
QByteArray bearerFarewell(const QByteArray& mechanism);

}  // namespace mail
