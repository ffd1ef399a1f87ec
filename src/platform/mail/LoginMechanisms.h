// SPDX-License-Identifier: GPL-3.0-or-later
// The choice of the mechanisms that a login tries.
#pragma once

#include <optional>
#include <QByteArray>
#include <QByteArrayList>

#include "platform/mail/SmtpReply.h"

namespace mail {

/// What the choice of a mechanism depends on.
struct LoginTerms {
    /// What the server offers, in upper case; none after HELO, which has no offers.
    std::optional<QByteArrayList> offered = std::nullopt;
    bool verifiedTls = false;   ///< encrypted, and the server is the one that the account names
    bool clearAllowed = false;  ///< the password itself may be sent without that as well
    bool bearer = false;        ///< an access token replaces the password
};

/// The mechanisms that a login tries, in order (RFC 4954), and what follows a refusal.
class LoginMechanisms {
  public:
    explicit LoginMechanisms(const LoginTerms& terms);

    /// No mechanism is left.
    bool isEmpty() const { return m_left.isEmpty(); }
    /// The mechanism to try; precondition: there is one.
    const QByteArray& current() const { return m_left.first(); }

    /// A mechanism was left out because it would send the password in the clear.
    bool leftOutInTheClear() const { return m_leftOutInTheClear; }

    /// The current mechanism cannot be used with these credentials: the next one becomes current.
    void skip() { m_left.removeFirst(); }
    /// The server has refused the current mechanism by a reply of 4xx or 5xx. True: the next one is current.
    /// False: the login has failed.
    bool refused(const SmtpReply& reply);
    /// The reply that refused the credentials themselves, if one did.
    const std::optional<SmtpReply>& credentialsRefusal() const { return m_credentialsRefusal; }

  private:
    QByteArrayList m_left;
    bool m_guessed;
    bool m_leftOutInTheClear = false;
    std::optional<SmtpReply> m_credentialsRefusal;
};

}  // namespace mail
