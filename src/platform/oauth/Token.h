// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QStringList>

#include "platform/Status.h"

namespace oauth {

/// The tokens that a provider issued (RFC 6749 5.1). Both tokens are printable ASCII without blanks.
struct Token {
    QByteArray access;
    QByteArray refresh;  ///< empty: the provider gave none
    QDateTime expires;   ///< UTC

    /// Whether the access token will still be valid when it reaches a server.
    bool usableAt(const QDateTime& now) const;
};

/// Reads the answer of a token endpoint that came at `now`. `wanted` are the scopes that the token must have.
/// InvalidPassword where the consent is no longer valid (invalid_grant), NotSupported for any other error
/// that the provider names and for an answer that is no token.
Result<Token> parseTokenAnswer(const QByteArray& body, const QStringList& wanted, const QDateTime& now);

/// Whether a text has the form of a token: printable ASCII without blanks, short enough for a login.
bool isTokenText(const QByteArray& text);

/// An untrusted text, made safe to show: one line, 200 characters at most.
QString shown(const QString& foreign);

}  // namespace oauth
