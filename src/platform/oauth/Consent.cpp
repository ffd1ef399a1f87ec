// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/oauth/Consent.h"

#include <QCoreApplication>

#include "platform/oauth/Pkce.h"
#include "platform/oauth/TokenFile.h"
#include "platform/text/Words.h"

namespace oauth {

Consent::Consent(const QString& folder, const QString& certificateFolder, QObject* parent)
    : QObject(parent), m_folder(folder), m_certificateFolder(certificateFolder) {
    m_limit.setSingleShot(true);
    connect(&m_limit, &QTimer::timeout, this, [this] {
        end({ErrorCode::Timeout, Words::tr("Il browser non ha dato alcuna risposta in tempo.")});
    });
}

Result<QUrl> Consent::start(const Provider& provider, const QString& user) {
    cancel();
    if (provider.clientId.isEmpty())
        return Status(ErrorCode::NotSupported,
                      Words::tr("Per %1 manca il client_id: va scritto nel file %2, dopo aver registrato "
                                "il programma presso il fornitore.")
                          .arg(provider.name, providersPath(m_folder)));
    m_provider = provider;
    m_user = user;
    m_verifier = newSecret();
    const QByteArray state = newSecret();
    m_listener = std::make_unique<RedirectListener>(this);
    connect(m_listener.get(), &RedirectListener::answered, this, &Consent::onAnswer, Qt::QueuedConnection);
    if (const Status status = m_listener->listen(provider.redirectHost, state); !status.ok()) {
        cancel();
        return status;
    }
    m_redirectUri = QStringLiteral("http://%1:%2").arg(provider.redirectHost).arg(m_listener->port());
    m_limit.start(limits.answer);
    return address(state);
}

QUrl Consent::address(const QByteArray& state) const {
    QList<QPair<QString, QString>> parameters{
        {QStringLiteral("response_type"), QStringLiteral("code")},
        {QStringLiteral("client_id"), m_provider.clientId},
        {QStringLiteral("redirect_uri"), m_redirectUri},
        {QStringLiteral("scope"), m_provider.scopes.join(u' ')},
        {QStringLiteral("state"), QString::fromLatin1(state)},
        {QStringLiteral("code_challenge"), QString::fromLatin1(codeChallenge(m_verifier))},
        {QStringLiteral("code_challenge_method"), QStringLiteral("S256")},
        {QStringLiteral("login_hint"), m_user}};
    parameters += m_provider.authorizationParameters;
    QUrl url = m_provider.authorizationEndpoint;
    QByteArray query = url.query(QUrl::FullyEncoded).toLatin1();
    for (const auto& [name, value] : parameters) {
        if (!query.isEmpty()) query += '&';
        query += QUrl::toPercentEncoding(name) + '=' + QUrl::toPercentEncoding(value);
    }
    url.setQuery(QString::fromLatin1(query), QUrl::StrictMode);
    return url;
}

void Consent::cancel() {
    m_limit.stop();
    m_listener.reset();
    m_request.reset();
    QCoreApplication::removePostedEvents(this, QEvent::MetaCall);  // an answer that was received already
}

void Consent::onAnswer(const QByteArray& code, const QByteArray& error) {
    m_listener.reset();
    m_limit.stop();
    if (error == "access_denied") {
        end({ErrorCode::CancelSelected, Words::tr("Il consenso non è stato dato.")});
        return;
    }
    if (!error.isEmpty()) {
        end({ErrorCode::NotSupported,
             Words::tr("Il fornitore ha rifiutato la richiesta: %1").arg(shown(QString::fromLatin1(error)))});
        return;
    }
    m_request = std::make_unique<TokenRequest>(m_certificateFolder);
    m_request->exchange(m_provider, code, m_verifier, m_redirectUri, limits.request,
                        [this](const Result<Token>& token) { onToken(token); });
}

void Consent::onToken(const Result<Token>& token) {
    if (!token.ok()) {
        const bool stale = token.status().code() == ErrorCode::InvalidPassword;
        end(stale ? Status(ErrorCode::NotSupported,
                           Words::tr("Il fornitore non accetta la risposta del browser: riprovare."))
                  : token.status());
        return;
    }
    end(writeToken(m_folder, tokenPath(m_folder, m_provider.id, m_user), token.value()));
}

void Consent::end(const Status& outcome) {
    cancel();
    Q_EMIT finished(outcome);
}

}  // namespace oauth
