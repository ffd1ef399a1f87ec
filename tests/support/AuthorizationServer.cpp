// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/AuthorizationServer.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSslConfiguration>
#include <utility>

namespace testing_support {

namespace {

const QString clientId = QStringLiteral("programma-di-prova");

QByteArray answer(const QByteArray& status, const QByteArray& json) {
    return "HTTP/1.1 " + status +
           "\r\nContent-Type: application/json\r\nConnection: close\r\nContent-Length: " +
           QByteArray::number(json.size()) + "\r\n\r\n" + json;
}

QByteArray refusal(const QByteArray& error) {
    return answer("400 Bad Request", R"({"error":")" + error + R"("})");
}

}  // namespace

AuthorizationServer::AuthorizationServer(TlsIdentity identity) : m_identity(std::move(identity)) {
    if (!listen(QHostAddress::LocalHost)) qFatal("no loopback port");
}

QByteArray AuthorizationServer::providers(const QByteArrayList& smtpHosts) const {
    QJsonArray hosts;
    for (const QByteArray& host : smtpHosts)
        hosts.append(QString::fromLatin1(host));
    const QString base = QStringLiteral("https://localhost:%1/").arg(serverPort());
    const QJsonObject provider{{"name", "Prova"},
                               {"authorization_endpoint", base + "authorize"},
                               {"token_endpoint", base + "token"},
                               {"scopes", QJsonArray{"posta.invio", "offline_access"}},
                               {"smtp_hosts", hosts},
                               {"client_id", clientId}};
    return QJsonDocument(QJsonObject{{"prova", provider}}).toJson();
}

QUrl AuthorizationServer::consent(const QUrl& address) {
    const QUrlQuery query(address);
    const auto value = [&](const char* name) {
        const QString text = query.queryItemValue(QString::fromLatin1(name), QUrl::FullyDecoded);
        if (text.isEmpty()) qFatal("the authorization request lacks %s", name);
        return text;
    };
    if (value("response_type") != "code" || value("client_id") != clientId ||
        value("code_challenge_method") != "S256" || value("scope") != "posta.invio offline_access")
        qFatal("odd authorization request %s", qPrintable(address.toString()));
    const QString code = QStringLiteral("codice-%1/+").arg(m_codes.size() + 1);
    m_codes.insert(code, {value("code_challenge").toLatin1(), value("redirect_uri")});
    QUrl redirect(value("redirect_uri"));
    redirect.setPath(QStringLiteral("/"));
    redirect.setQuery(QString::fromLatin1("code=" + QUrl::toPercentEncoding(code) +
                                          "&state=" + QUrl::toPercentEncoding(value("state"))));
    return redirect;
}

void AuthorizationServer::answerJson(const QByteArray& json, const QByteArray& status) {
    answerWith(answer(status, json));
}

void AuthorizationServer::hold(const QByteArray& trickle) {
    m_holding = true;
    m_trickle = trickle;
}

void AuthorizationServer::goOn() {
    m_holding = false;
    for (const QPointer<QSslSocket>& client : std::exchange(m_held, {})) {
        if (!client) continue;
        client->write(answerTo(m_requests.last()));
        client->disconnectFromHost();
    }
}

void AuthorizationServer::incomingConnection(qintptr descriptor) {
    m_asked = true;
    auto* client = new QSslSocket(this);
    client->setSocketDescriptor(descriptor);
    connect(client, &QTcpSocket::readyRead, this, [this, client] { read(client); });
    connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
    if (m_identity.certificate.isNull()) return;
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setLocalCertificate(m_identity.certificate);
    tls.setPrivateKey(m_identity.key);
    tls.setPeerVerifyMode(QSslSocket::VerifyNone);
    client->setSslConfiguration(tls);
    client->startServerEncryption();
}

void AuthorizationServer::read(QSslSocket* client) {
    QByteArray& input = m_input[client];
    input += client->readAll();
    if (input.size() >= 4 && !input.startsWith("POST")) {
        client->abort();  // it speaks TLS to a server that does not
        return;
    }
    const qsizetype head = input.indexOf("\r\n\r\n");
    const qsizetype at = input.toLower().indexOf("content-length: ");
    if (head < 0 || at < 0) return;
    const qsizetype length = input.mid(at + 16, input.indexOf('\r', at) - at - 16).toLongLong();
    if (input.size() < head + 4 + length) return;
    QByteArray body = input.mid(head + 4, length);
    if (!input.startsWith("POST /token HTTP/1.1\r\n")) qFatal("odd request %s", input.constData());
    m_input.remove(client);
    m_requests.append(QUrlQuery(QString::fromUtf8(body.replace('+', "%20"))));
    if (m_holding) {
        m_held.append(client);
        keepSending(client);
    } else {
        client->write(m_fixed.isEmpty() ? answerTo(m_requests.last()) : m_fixed);
        client->disconnectFromHost();
    }
    Q_EMIT requested();
}

void AuthorizationServer::keepSending(QSslSocket* client) {
    if (m_trickle.isEmpty()) return;
    connect(client, &QSslSocket::encryptedBytesWritten, this, [this, client](qint64 count) {
        m_taken += count;
        if (client->encryptedBytesToWrite() == 0) client->write(m_trickle);
    });
    client->write(m_fixed + m_trickle);
}

QByteArray AuthorizationServer::answerTo(const QUrlQuery& form) {
    const auto value = [&](const char* name) {
        return form.queryItemValue(QString::fromLatin1(name), QUrl::FullyDecoded);
    };
    if (value("client_id") != clientId) return refusal("invalid_client");
    if (value("grant_type") == "refresh_token") {
        const bool known = value("refresh_token") == QStringLiteral("rinnovo-%1").arg(m_tokens);
        return known && !m_withdrawn ? newTokens() : refusal("invalid_grant");
    }
    const Code code = m_codes.take(value("code"));
    const QByteArray challenge =
        QCryptographicHash::hash(value("code_verifier").toLatin1(), QCryptographicHash::Sha256)
            .toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
    if (value("grant_type") != "authorization_code" || code.challenge != challenge ||
        code.redirectUri != value("redirect_uri"))
        return refusal("invalid_grant");
    return newTokens();
}

/// Refresh tokens change with each use.
QByteArray AuthorizationServer::newTokens() {
    ++m_tokens;
    return answer("200 OK", R"({"token_type":"Bearer","access_token":")" + newestToken() +
                                R"(","refresh_token":"rinnovo-)" + QByteArray::number(m_tokens) +
                                R"(","expires_in":)" + QByteArray::number(m_lifetime) + R"(,"scope":")" +
                                m_scope + "\"}");
}

}  // namespace testing_support
