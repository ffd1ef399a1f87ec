// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <QByteArray>
#include <QString>

#include "platform/Status.h"

namespace mail {

/// One login by one mechanism (RFC 4422). All tokens are bare bytes; the dialogue does the
/// base64.
class SaslExchange {
  public:
    /// `mechanism` is SCRAM-SHA-256, SCRAM-SHA-1, CRAM-MD5, PLAIN or LOGIN. Fails when user or password
    /// contain a NUL (TypeMismatch), or characters that the mechanism cannot encode (NotSupported).
    static Result<SaslExchange> start(const QByteArray& mechanism, const QString& user,
                                      const QString& password, const QString& host);
    /// `mechanism` is OAUTHBEARER or XOAUTH2; see bearerResponse(). A challenge after the first token reports
    /// an error.
    static Result<SaslExchange> startBearer(const QByteArray& mechanism, const QString& user,
                                            const QString& token, const QString& host, quint16 port);
    SaslExchange(SaslExchange&&) noexcept;
    SaslExchange& operator=(SaslExchange&&) noexcept;
    ~SaslExchange();

    /// True for a mechanism in which the client speaks first: step() of an empty challenge returns its token.
    bool clientFirst() const;

    /// The answer to a challenge. Fails (NotSupported) when the challenge is not acceptable: malformed, a
    /// server that could not prove that it knows the password, or one that asks for excessive work.
    Result<QByteArray> step(const QByteArray& challenge);

    /// All steps are done and, where the mechanism has it, the server is authenticated.
    bool complete() const;

  private:
    struct State;
    explicit SaslExchange(std::unique_ptr<State> state);
    std::unique_ptr<State> m_state;
};

}  // namespace mail
