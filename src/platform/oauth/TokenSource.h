// SPDX-License-Identifier: GPL-3.0-or-later
// The source of access tokens for logins.
#pragma once

#include <functional>
#include <memory>
#include <QDateTime>
#include <QHash>
#include <QObject>

#include "platform/oauth/TokenRequest.h"

namespace oauth {

/// The word in place of the password of an account that logs in with a token.
inline constexpr QStringView passwordWord = u"OAuth2";

/// A token that a login can use.
struct Access {
    QByteArray token;
    QString remark;  ///< for the support log; empty: nothing to say
};

/// The source of access tokens for logins: from their files while valid, else renewed by the provider that
/// the host belongs to. A host without a provider gets no token.
///
/// An invalid consent is remembered, with its reason, until the file changes or beginRun(), so that the
/// provider is asked once and not for each recipient.
class TokenSource : public QObject {
    Q_OBJECT
  public:
    using Done = std::function<void(const Result<Access>& access)>;

    explicit TokenSource(QObject* parent = nullptr) : QObject(parent) {}

    /// The folders of providers and tokens, and of further certificates; see TokenRequest.
    void setFolders(const QString& folder, const QString& certificateFolder);

    /// The token for `user` at `host`. `done` is called once, during this call or from the event loop,
    /// after `limitMs` at the latest; it may begin the next request. A request that is under way is dropped.
    void get(const QString& host, const QString& user, int limitMs, Done done);
    /// `done` is not called any more.
    void cancel() { m_request.reset(); }

    /// A server refused this token: the next request renews it, whatever its file says. That is done once
    /// until beginRun(), since a server that refuses the new one too refuses the user.
    void refuse(const QByteArray& token);
    void beginRun();

  private:
    struct Gone {
        QByteArray refreshToken;
        Status why;
    };

    void renew(const Provider& provider, const QString& path, const Token& old, int limitMs, Done done);
    Result<Access> onRenewed(const Provider& provider, const QString& path, const Token& old,
                             const Result<Token>& answer);

    QString m_folder;
    QString m_certificateFolder;
    QHash<QString, Token> m_unwritten;  ///< by path: tokens that could not be written
    QHash<QString, Gone> m_gone;        ///< by path
    QByteArray m_refused;               ///< the token to be renewed
    bool m_renewedRefused = false;
    std::unique_ptr<TokenRequest> m_request;
};

}  // namespace oauth
