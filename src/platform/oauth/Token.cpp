// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/oauth/Token.h"

#include <algorithm>
#include <QJsonDocument>
#include <QJsonObject>

#include "platform/text/Words.h"

namespace oauth {

namespace {

constexpr qsizetype longestToken = 8192;
constexpr qint64 marginSecs = 120;
constexpr double usualSecs = 3600;
constexpr double mostSecs = 86400;  // longer lifetimes are not trusted
constexpr qsizetype longestShownText = 200;

Status notAnAnswer() {
    return {ErrorCode::NotSupported, Words::tr("La risposta del fornitore non è valida.")};
}

Status refusal(const QJsonObject& answer) {
    const QString error = answer.value(QStringLiteral("error")).toString();
    if (error == QLatin1String("invalid_grant"))
        return {ErrorCode::InvalidPassword,
                Words::tr("Il consenso è scaduto o è stato ritirato: nella finestra degli account "
                          "accedere di nuovo con il browser.")};
    QString text = Words::tr("Il fornitore ha rifiutato la richiesta: %1").arg(shown(error));
    if (error == QLatin1String("invalid_client") || error == QLatin1String("unauthorized_client"))
        text = Words::tr("Il fornitore non riconosce client_id o client_secret: %1").arg(shown(error));
    const QString words = shown(answer.value(QStringLiteral("error_description")).toString());
    return {ErrorCode::NotSupported, words.isEmpty() ? text : text + u' ' + words};
}

/// Seconds that a token lives; some providers write the number as a text.
qint64 lifetime(const QJsonValue& value) {
    const double secs = value.isString() ? value.toString().toDouble() : value.toDouble(usualSecs);
    return qint64(secs > 0 ? std::min(secs, mostSecs) : 0);
}

/// Whether everything that is wanted was granted. Without the field it is what was asked for (RFC 6749 5.1).
bool grants(const QJsonValue& scope, const QStringList& wanted) {
    if (scope.isUndefined()) return true;
    const QStringList granted = scope.toString().split(u' ', Qt::SkipEmptyParts);
    return std::all_of(wanted.begin(), wanted.end(),
                       [&](const QString& one) { return granted.contains(one); });
}

}  // namespace

bool Token::usableAt(const QDateTime& now) const {
    return !access.isEmpty() && now.addSecs(marginSecs) < expires;
}

bool isTokenText(const QByteArray& text) {
    return !text.isEmpty() && text.size() <= longestToken &&
           std::all_of(text.begin(), text.end(), [](char c) { return c > 0x20 && c < 0x7F; });
}

QString shown(const QString& foreign) {
    QString line = foreign.left(longestShownText);
    for (QChar& c : line)
        if (!c.isPrint()) c = u' ';
    return line.simplified();
}

Result<Token> parseTokenAnswer(const QByteArray& body, const QStringList& wanted, const QDateTime& now) {
    const QJsonDocument document = QJsonDocument::fromJson(body);
    if (!document.isObject()) return notAnAnswer();
    const QJsonObject answer = document.object();
    if (answer.value(QStringLiteral("error")).isString()) return refusal(answer);
    Token token;
    token.access = answer.value(QStringLiteral("access_token")).toString().toUtf8();
    token.refresh = answer.value(QStringLiteral("refresh_token")).toString().toUtf8();
    const QString type = answer.value(QStringLiteral("token_type")).toString();
    if (type.compare(QLatin1String("bearer"), Qt::CaseInsensitive) != 0 || !isTokenText(token.access) ||
        (!token.refresh.isEmpty() && !isTokenText(token.refresh)))
        return notAnAnswer();
    if (!grants(answer.value(QStringLiteral("scope")), wanted))
        return Status(ErrorCode::NotSupported,
                      Words::tr("Il consenso dato non comprende l'invio della posta."));
    token.expires = now.toUTC().addSecs(lifetime(answer.value(QStringLiteral("expires_in"))));
    return token;
}

}  // namespace oauth
