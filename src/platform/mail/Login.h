// SPDX-License-Identifier: GPL-3.0-or-later
// One login over SMTP, without its connection.
#pragma once

#include <optional>
#include <QByteArray>
#include <QByteArrayList>
#include <QString>

#include "platform/mail/LoginMechanisms.h"
#include "platform/mail/Sasl.h"
#include "platform/mail/SmtpReply.h"

namespace mail {

/// The account of a login and its server.
struct LoginIdentity {
    QString host;  ///< as the account names it
    QString user;
    QString password;
    quint16 port = 25;
    bool bearer = false;  ///< `password` is an access token
};

/// The next step of a login.
struct LoginStep {
    enum class Kind {
        Send,       ///< send `line`, and pass the reply to Login::onReply()
        Done,       ///< logged in
        Failed,     ///< the connection may be closed with QUIT
        Untrusted,  ///< failed, and nothing more may be sent to the server
    };
    Kind kind = Kind::Failed;
    QByteArray line;         ///< without its end
    QByteArray shown;        ///< what a log may contain of it
    QByteArrayList secrets;  ///< what no log may ever contain, of this line and of the replies to come

    int code = 0;                     ///< of the reply that ended a failed login; 0: without one
    QString text;                     ///< why it failed: the server's words, or Italian
    bool credentialsRefused = false;  ///< trying them again is useless
};

/// One login over SMTP (RFC 4954): tries mechanisms until one succeeds or none is left, and carries out the
/// exchange of each. It has no connection: the caller sends its lines and passes it the replies.
class Login {
  public:
    /// `clearListFile` is named where only a password in the clear would help; see passwordMayGoInTheClear().
    Login(LoginIdentity identity, const LoginTerms& terms, QString clearListFile);

    LoginStep begin();
    LoginStep onReply(const SmtpReply& reply);

  private:
    LoginStep tryMechanism();
    LoginStep onChallenge(const QByteArray& text);
    LoginStep onRefusal(const SmtpReply& reply);
    LoginStep noneLeft() const;
    Result<SaslExchange> exchangeBy(const QByteArray& mechanism) const;
    LoginStep refusedCredentials(const SmtpReply& refusal) const;

    const LoginIdentity m_identity;
    const QString m_clearListFile;
    LoginMechanisms m_mechanisms;
    std::optional<SaslExchange> m_exchange;
    std::optional<SmtpReply> m_lastRefusal;
    QString m_whyNotUsable;         ///< of the last mechanism that these credentials cannot be used with
    QByteArray m_firstResponse;     ///< client-first token of the mechanism, in base64
    bool m_initialResponse = true;  ///< it is sent with the AUTH command
    int m_challenges = 0;           ///< of the present exchange
};

}  // namespace mail
