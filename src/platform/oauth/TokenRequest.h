// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QNetworkAccessManager>
#include <QObject>
#include <QTimer>
#include <QUrlQuery>

#include "platform/oauth/Provider.h"
#include "platform/oauth/Token.h"

class QNetworkReply;

namespace oauth {

/// One request to a token endpoint (RFC 6749 4.1.3, 6), over TLS with a certificate that has to be valid.
/// Redirects are not followed, and an answer is limited to 64 KiB. Destroying it drops the request.
class TokenRequest : public QObject {
    Q_OBJECT
  public:
    using Done = std::function<void(const Result<Token>& answer)>;

    /// The *.pem files of `certificateFolder` are trusted besides the system's.
    explicit TokenRequest(const QString& certificateFolder, QObject* parent = nullptr);
    ~TokenRequest() override;

    /// Asks for the token of a code. `done` is called once, from the event loop, after `limitMs` at the
    /// latest; it may destroy this object. One request for each object. DeviceIo where the provider cannot be
    /// reached, else see parseTokenAnswer().
    void exchange(const Provider& provider, const QByteArray& code, const QByteArray& verifier,
                  const QString& redirectUri, int limitMs, Done done);
    /// Asks for a new access token.
    void refresh(const Provider& provider, const QByteArray& refreshToken, int limitMs, Done done);

  private:
    using Form = QList<QPair<QString, QByteArray>>;
    void post(const Provider& provider, Form form, int limitMs, Done done);
    void onProgress();
    void onFinished();
    Result<Token> outcome();
    void end(const Result<Token>& answer);

    const QString m_certificateFolder;
    QNetworkAccessManager m_network;
    QTimer m_limit;
    QNetworkReply* m_reply = nullptr;
    QStringList m_wanted;
    QByteArrayList m_secrets;  ///< what was sent and must not appear in error texts
    Done m_done;
};

}  // namespace oauth
