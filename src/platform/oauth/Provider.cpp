// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/oauth/Provider.h"

#include <QFileInfo>

#include "platform/system/OwnFile.h"
#include "platform/text/Words.h"

namespace oauth {

namespace {

constexpr qint64 largestProvidersFile = 256 * 1024;

}  // namespace

QStringList Provider::mailScopes() const {
    static const QStringList others{QStringLiteral("offline_access"), QStringLiteral("openid"),
                                    QStringLiteral("email"), QStringLiteral("profile")};
    QStringList mail;
    for (const QString& scope : scopes)
        if (!others.contains(scope)) mail.append(scope);
    return mail;
}

QString providersPath(const QString& folder) {
    return folder + QStringLiteral("/providers.json");
}

Result<QList<Provider>> readProviders(const QString& folder) {
    const QString path = providersPath(folder);
    const Result<QByteArray> bytes = sys::readGuardedFile(path, largestProvidersFile, sys::Others::Read);
    if (bytes.ok()) return parseProviders(bytes.value(), path);
    if (!QFileInfo::exists(path))
        return Status(ErrorCode::FileNotFound, Words::tr("Manca il file %1.").arg(path));
    return Status(bytes.status().code(),
                  Words::tr("Impossibile leggere il file %1: %2.").arg(path, bytes.status().text()));
}

std::optional<Provider> providerOf(const QList<Provider>& providers, const QString& host) {
    QString name = host.trimmed().toLower();
    if (name.endsWith(u'.')) name.chop(1);
    for (const Provider& provider : providers)
        if (provider.smtpHosts.contains(name)) return provider;
    return std::nullopt;
}

}  // namespace oauth
