// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <QObject>
#include <QTimer>
#include <QUrl>

#include "platform/oauth/Provider.h"
#include "platform/oauth/RedirectListener.h"
#include "platform/oauth/TokenRequest.h"

namespace oauth {

/// A user's consent, given in the browser: authorization code with PKCE (RFC 6749 4.1, RFC 7636,
/// RFC 8252). The token is written to its file.
class Consent : public QObject {
    Q_OBJECT
  public:
    /// Milliseconds.
    struct Limits {
        int answer = 300000;  ///< for the user in the browser
        int request = 30000;  ///< for the token endpoint
    };

    /// `folder` contains providers and tokens; for `certificateFolder` see TokenRequest.
    Consent(const QString& folder, const QString& certificateFolder, QObject* parent = nullptr);

    Limits limits;

    /// Begins, and drops a consent that is under way. Returns the address to open in the browser; finished()
    /// follows from the event loop, unless cancel() comes first. Fails where the provider has no client_id,
    /// with a text that says where to set it, and where no port can be listened on.
    Result<QUrl> start(const Provider& provider, const QString& user);
    /// Without any signal.
    void cancel();
    bool waiting() const { return m_listener || m_request; }

  Q_SIGNALS:
    /// Success: the token is in its file; else why not (Italian).
    void finished(const Status& outcome);

  private:
    QUrl address(const QByteArray& state) const;
    void onAnswer(const QByteArray& code, const QByteArray& error);
    void onToken(const Result<Token>& token);
    void end(const Status& outcome);

    const QString m_folder;
    const QString m_certificateFolder;
    Provider m_provider;
    QString m_user;
    QByteArray m_verifier;
    QString m_redirectUri;
    QTimer m_limit;
    std::unique_ptr<RedirectListener> m_listener;
    std::unique_ptr<TokenRequest> m_request;
};

}  // namespace oauth
