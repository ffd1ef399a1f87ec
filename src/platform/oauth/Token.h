#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QStringList>

#include "platform/Status.h"

namespace oauth {

/// What a provider gave (RFC 6749 5.1). Both tokens are printable ASCII without blanks.
struct Token {
    QByteArray access;
    QByteArray refresh;  ///< empty: the provider gave none
    QDateTime expires;   ///< UTC

    /// Whether the access token will still be good when it reaches a server.
    bool usableAt(const QDateTime& now) const;
};

/// Reads the answer of a token endpoint that came at `now`. `wanted` are the scopes without which the token
/// is of no use. InvalidPassword where the consent is gone (invalid_grant), NotSupported for any other error
/// that the provider names and for an answer that is no token.
Result<Token> parseTokenAnswer(const QByteArray& body, const QStringList& wanted, const QDateTime& now);

/// Whether a token could be one: printable ASCII without blanks, of a length that a login can bear.
bool isTokenText(const QByteArray& text);

/// A text of a stranger, made fit to be shown: one line, 200 characters at most.
QString shown(const QString& foreign);

}  // namespace oauth
