// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/oauth/TokenFile.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include "platform/system/OwnFile.h"
#include "platform/text/Words.h"

namespace oauth {

namespace {

constexpr qint64 largestTokenFile = 64 * 1024;
constexpr auto accessField = "access_token";
constexpr auto refreshField = "refresh_token";
constexpr auto expiresField = "expires_at";

QByteArray textOf(const QJsonObject& content, const char* field) {
    return content.value(QLatin1String(field)).toString().toUtf8();
}

Status unreadable(const QString& path, const Status& why) {
    const QString text = Words::tr("Impossibile leggere il file %1").arg(path);
    return {why.code(), why.text().isEmpty() ? text + u'.' : text + QStringLiteral(": ") + why.text() + u'.'};
}

}  // namespace

QString tokenPath(const QString& folder, const QString& provider, const QString& user) {
    return QStringLiteral("%1/%2/%3.json")
        .arg(folder, provider, QString::fromLatin1(QUrl::toPercentEncoding(user)));
}

Result<Token> readToken(const QString& path) {
    const QFileInfo there(path);
    if (!there.exists() && !there.isSymLink())
        return Status(ErrorCode::FileNotFound,
                      Words::tr("Manca il consenso del fornitore: nella finestra degli account "
                                "accedere con il browser."));
    if (there.isSymLink())
        return Status(ErrorCode::PathAccess, Words::tr("Il file %1 è un collegamento.").arg(path));
    const Result<QByteArray> bytes = sys::readGuardedFile(path, largestTokenFile);
    if (!bytes.ok() && bytes.status().code() != ErrorCode::Overflow) return unreadable(path, bytes.status());
    QJsonObject content;
    if (bytes.ok()) content = QJsonDocument::fromJson(bytes.value()).object();
    Token token{textOf(content, accessField), textOf(content, refreshField),
                QDateTime::fromString(content.value(QLatin1String(expiresField)).toString(), Qt::ISODate)};
    const bool sound = isTokenText(token.access) && (token.refresh.isEmpty() || isTokenText(token.refresh)) &&
                       token.expires.isValid();
    if (sound) return token;
    return Status(ErrorCode::SyntaxError,
                  Words::tr("Il file %1 è danneggiato: nella finestra degli account accedere di nuovo "
                            "con il browser.")
                      .arg(path));
}

Status writeToken(const QString& folder, const QString& path, const Token& token) {
    const QJsonObject content{{accessField, QString::fromLatin1(token.access)},
                              {refreshField, QString::fromLatin1(token.refresh)},
                              {expiresField, token.expires.toUTC().toString(Qt::ISODate)}};
    Status status = sys::makeOwnFolder(folder);
    if (status.ok()) status = sys::makeOwnFolder(path.left(path.lastIndexOf(u'/')));
    if (status.ok()) status = sys::replaceOwnFile(path, QJsonDocument(content).toJson());
    if (status.ok()) return status;
    return {status.code(), Words::tr("Impossibile scrivere il file %1.").arg(path)};
}

}  // namespace oauth
