// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QUrl>

#include "platform/Status.h"

namespace oauth {

/// A provider of mail accounts with logins by OAuth 2.0 (RFC 6749). docs/formats/oauth.md describes the
/// file.
struct Provider {
    QString id;                  ///< its key in the file: a to z, 0 to 9 and "-"
    QString name;                ///< to be shown
    QUrl authorizationEndpoint;  ///< https
    QUrl tokenEndpoint;          ///< https
    QStringList scopes;          ///< requested
    QStringList smtpHosts;       ///< lower case; a token is sent only to these
    QString clientId;            ///< empty until somebody has registered the program with the provider
    QString clientSecret;        ///< empty: none
    QString redirectHost;        ///< "127.0.0.1", "localhost" or "[::1]"
    QList<QPair<QString, QString>> authorizationParameters;  ///< further ones of the authorization request

    /// The scopes without those of OpenID Connect, which are not for mail and need no confirmation by the
    /// provider.
    QStringList mailScopes() const;
};

/// The file of the providers in `folder`.
QString providersPath(const QString& folder);

/// The providers of that file. FileNotFound without it; SyntaxError, for the whole file, with a text that
/// names the invalid place, since a token must not be sent to a wrong host.
Result<QList<Provider>> readProviders(const QString& folder);

/// The same from bytes. `path` is named in the text of a failure.
Result<QList<Provider>> parseProviders(const QByteArray& bytes, const QString& path);

/// The provider that an SMTP host belongs to. The whole name is compared, in upper or lower case, with or
/// without the final dot.
std::optional<Provider> providerOf(const QList<Provider>& providers, const QString& host);

}  // namespace oauth
