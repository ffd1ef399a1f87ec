// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/oauth/TokenRequest.h"

#include <algorithm>
#include <QNetworkReply>
#include <QSslConfiguration>
#include <utility>

#include "platform/oauth/Certificates.h"
#include "platform/system/Clock.h"
#include "platform/text/Words.h"

namespace oauth {

namespace {

constexpr qint64 largestAnswer = 64 * 1024;

Status unreachable(const QString& why) {
    return {ErrorCode::DeviceIo, Words::tr("Il fornitore non è raggiungibile: %1").arg(why)};
}

QNetworkRequest requestFor(const QUrl& endpoint, const QString& certificateFolder) {
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setProtocol(QSsl::TlsV1_2OrLater);
    tls.setPeerVerifyMode(QSslSocket::VerifyPeer);
    tls.setCaCertificates(trustedCertificates(certificateFolder));
    QNetworkRequest request(endpoint);
    request.setSslConfiguration(tls);
    request.setHeader(QNetworkRequest::ContentTypeHeader,
                      QStringLiteral("application/x-www-form-urlencoded"));
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Vestrola"));
    request.setRawHeader("Accept", "application/json");
    request.setRawHeader("Accept-Encoding", "identity");
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    return request;
}

}  // namespace

TokenRequest::TokenRequest(const QString& certificateFolder, QObject* parent)
    : QObject(parent), m_certificateFolder(certificateFolder) {
    m_limit.setSingleShot(true);
    m_limit.setTimerType(Qt::PreciseTimer);
    connect(&m_limit, &QTimer::timeout, this, [this] { end(unreachable(Words::tr("tempo scaduto."))); });
}

TokenRequest::~TokenRequest() {
    if (!m_reply) return;
    m_reply->disconnect(this);
    m_reply->abort();
}

void TokenRequest::exchange(const Provider& provider, const QByteArray& code, const QByteArray& verifier,
                            const QString& redirectUri, int limitMs, Done done) {
    post(provider,
         {{QStringLiteral("grant_type"), "authorization_code"},
          {QStringLiteral("code"), code},
          {QStringLiteral("redirect_uri"), redirectUri.toUtf8()},
          {QStringLiteral("code_verifier"), verifier}},
         limitMs, std::move(done));
    m_secrets += {code, verifier};
}

void TokenRequest::refresh(const Provider& provider, const QByteArray& refreshToken, int limitMs, Done done) {
    post(provider,
         {{QStringLiteral("grant_type"), "refresh_token"}, {QStringLiteral("refresh_token"), refreshToken}},
         limitMs, std::move(done));
    m_secrets += refreshToken;
}

void TokenRequest::post(const Provider& provider, Form form, int limitMs, Done done) {
    Q_ASSERT(!m_reply && !m_done);
    Q_ASSERT(provider.tokenEndpoint.scheme() == QLatin1String("https"));
    m_done = std::move(done);
    m_wanted = provider.mailScopes();
    form.append({QStringLiteral("client_id"), provider.clientId.toUtf8()});
    if (!provider.clientSecret.isEmpty()) {
        form.append({QStringLiteral("client_secret"), provider.clientSecret.toUtf8()});
        m_secrets += provider.clientSecret.toUtf8();
    }
    QByteArrayList fields;
    for (const auto& [name, value] : form)
        fields.append(name.toLatin1() + '=' + value.toPercentEncoding());
    m_reply = m_network.post(requestFor(provider.tokenEndpoint, m_certificateFolder), fields.join('&'));
    m_reply->setReadBufferSize(largestAnswer + 1);
    connect(m_reply, &QNetworkReply::readyRead, this, &TokenRequest::onProgress);
    connect(m_reply, &QNetworkReply::finished, this, &TokenRequest::onFinished);
    m_limit.start(limitMs);
}

void TokenRequest::onProgress() {
    if (m_reply->bytesAvailable() <= largestAnswer) return;
    end(Status(ErrorCode::NotSupported, Words::tr("La risposta del fornitore è troppo grande.")));
}

void TokenRequest::onFinished() {
    end(outcome());
}

Result<Token> TokenRequest::outcome() {
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status == 0) return unreachable(shown(m_reply->errorString()));
    if (status >= 300 && status < 400)
        return Status(ErrorCode::NotSupported,
                      Words::tr("Il fornitore rimanda a un altro indirizzo, che non viene seguito."));
    if (status >= 500) return unreachable(Words::tr("errore %1 del suo server.").arg(status));
    const bool good = status >= 200 && status < 300;
    if (good && m_reply->error() != QNetworkReply::NoError) return unreachable(shown(m_reply->errorString()));
    Result<Token> token = parseTokenAnswer(m_reply->read(largestAnswer), m_wanted, sys::clock().now());
    if (token.ok() && !good)
        return Status(ErrorCode::NotSupported, Words::tr("La risposta del fornitore non è valida."));
    return token;
}

/// Called within the reply's signals: the caller is notified from the event loop, and may destroy all of it.
void TokenRequest::end(const Result<Token>& answer) {
    m_limit.stop();
    QNetworkReply* const reply = std::exchange(m_reply, nullptr);
    reply->disconnect(this);
    reply->abort();
    reply->deleteLater();
    const auto holdsSecret = [&](const QString& text) {
        return std::any_of(m_secrets.begin(), m_secrets.end(), [&](const QByteArray& secret) {
            return !secret.isEmpty() && text.contains(QString::fromUtf8(secret));
        });
    };
    Result<Token> told = answer;
    if (!answer.ok() && holdsSecret(answer.status().text()))
        told = Status(answer.status().code(), Words::tr("Il fornitore ha rifiutato la richiesta."));
    QMetaObject::invokeMethod(
        this,
        [this, told] {
            const Done done = std::move(m_done);
            done(told);
        },
        Qt::QueuedConnection);
}

}  // namespace oauth
