#pragma once

#include <optional>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QUrl>

#include "platform/Status.h"

namespace oauth {

/// A provider of mail accounts that takes logins by OAuth 2.0 (RFC 6749). docs/formats/oauth.md shows the
/// file.
struct Provider {
    QString id;                  ///< its key in the file: a to z, 0 to 9 and "-"
    QString name;                ///< for people
    QUrl authorizationEndpoint;  ///< https
    QUrl tokenEndpoint;          ///< https
    QStringList scopes;          ///< what is asked for
    QStringList smtpHosts;       ///< lower case; a token goes to these alone
    QString clientId;            ///< empty until somebody has registered the program with the provider
    QString clientSecret;        ///< empty: none
    QString redirectHost;        ///< "127.0.0.1", "localhost" or "[::1]"
    QList<QPair<QString, QString>> authorizationParameters;  ///< further ones of the authorization request

    /// The scopes without those that are no matter of mail (OpenID Connect), which the provider need not
    /// confirm.
    QStringList mailScopes() const;
};

/// The file of the providers in `folder`.
QString providersPath(const QString& folder);

/// The providers of that file. FileNotFound without it; SyntaxError with a text that names the place where it
/// is not as it has to be, and for the whole file, since a token must not go astray.
Result<QList<Provider>> readProviders(const QString& folder);

/// The same from bytes. `path` is named in the text of a failure.
Result<QList<Provider>> parseProviders(const QByteArray& bytes, const QString& path);

/// The provider that an SMTP host belongs to. Only the whole name counts, in upper or lower case, with or
/// without the point of the root.
std::optional<Provider> providerOf(const QList<Provider>& providers, const QString& host);

}  // namespace oauth
