// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QList>
#include <QPointer>
#include <QSslSocket>
#include <QTcpServer>
#include <QUrl>
#include <QUrlQuery>

#include "support/TestCertificates.h"

namespace testing_support {

/// An OAuth 2.0 authorization server on loopback that runs on the test's own event loop: its page is a
/// function call, its token endpoint is served over TLS and checks what RFC 6749 and RFC 7636 ask for.
class AuthorizationServer : public QTcpServer {
    Q_OBJECT

  public:
    explicit AuthorizationServer(TlsIdentity identity = TestCertificates::get().good());

    /// The content of a providers.json with this server as "prova", for the SMTP host "localhost" unless
    /// other ones are given.
    QByteArray providers(const QByteArrayList& smtpHosts = {"localhost"}) const;

    /// What the browser is sent to when the user consents on the page of `address`. Fails the test's process
    /// where the address lacks what it needs.
    QUrl consent(const QUrl& address);

    /// Each later request gets these bytes as its answer, HTTP head included.
    void answerWith(const QByteArray& bytes) { m_fixed = bytes; }
    /// The same with a JSON body.
    void answerJson(const QByteArray& json, const QByteArray& status = "200 OK");
    /// Answers only what answerWith() was given and then `trickle`, again and again until the client
    /// disconnects.
    void hold(const QByteArray& trickle = {});
    /// Ends hold(): answers the requests that waited, and all later ones, as usual.
    void goOn();
    /// Refresh tokens are refused as RFC 6749 5.2 has it.
    void withdraw() { m_withdrawn = true; }
    /// Lifetime and scope that tokens state from now on.
    void setLifetime(int secs) { m_lifetime = secs; }
    void setScope(const QByteArray& scope) { m_scope = scope; }

    /// The forms that came to the token endpoint.
    const QList<QUrlQuery>& requests() const { return m_requests; }
    /// Whether a client has connected.
    bool hasBeenAsked() const { return m_asked; }
    /// The newest access token.
    QByteArray newestToken() const { return "accesso-" + QByteArray::number(m_tokens); }
    /// Octets that clients have taken of what was to be sent.
    qint64 taken() const { return m_taken; }

  Q_SIGNALS:
    void requested();

  protected:
    void incomingConnection(qintptr descriptor) override;

  private:
    struct Code {
        QByteArray challenge;
        QString redirectUri;
    };
    void read(QSslSocket* client);
    QByteArray answerTo(const QUrlQuery& form);
    QByteArray newTokens();
    void keepSending(QSslSocket* client);

    const TlsIdentity m_identity;
    QHash<QSslSocket*, QByteArray> m_input;
    QHash<QString, Code> m_codes;
    QList<QUrlQuery> m_requests;
    QList<QPointer<QSslSocket>> m_held;
    QByteArray m_fixed;
    QByteArray m_trickle;
    QByteArray m_scope = "posta.invio";
    int m_lifetime = 3600;
    int m_tokens = 0;
    qint64 m_taken = 0;
    bool m_withdrawn = false;
    bool m_holding = false;
    bool m_asked = false;
};

}  // namespace testing_support
