// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/oauth/TokenSource.h"

#include <optional>
#include <utility>

#include "platform/oauth/TokenFile.h"
#include "platform/system/Clock.h"
#include "platform/text/Words.h"

namespace oauth {

namespace {

Status needsConsent() {
    return {ErrorCode::InvalidPassword,
            Words::tr("Il consenso è scaduto e il fornitore non permette di rinnovarlo: nella finestra "
                      "degli account accedere di nuovo con il browser.")};
}

}  // namespace

void TokenSource::setFolders(const QString& folder, const QString& certificateFolder) {
    m_folder = folder;
    m_certificateFolder = certificateFolder;
}

void TokenSource::refuse(const QByteArray& token) {
    if (!m_renewedRefused) m_refused = token;
}

void TokenSource::beginRun() {
    m_gone.clear();
    m_refused.clear();
    m_renewedRefused = false;
}

void TokenSource::get(const QString& host, const QString& user, int limitMs, Done done) {
    cancel();
    const Result<QList<Provider>> providers = readProviders(m_folder);
    if (!providers.ok()) {
        done(providers.status());
        return;
    }
    const std::optional<Provider> provider = providerOf(providers.value(), host);
    if (!provider) {
        done(Status(ErrorCode::PathAccess,
                    Words::tr("Il server %1 non appartiene a un fornitore del file %2: nessun token gli "
                              "viene inviato.")
                        .arg(host, providersPath(m_folder))));
        return;
    }
    const QString path = tokenPath(m_folder, provider->id, user);
    Result<Token> token = readToken(path);
    if (const auto newer = m_unwritten.constFind(path); newer != m_unwritten.constEnd()) {
        if (!token.ok() || token.value().expires < newer->expires) token = *newer;
    }
    if (!token.ok())
        done(token.status());
    else if (token.value().usableAt(sys::clock().now()) && token.value().access != m_refused)
        done(Access{token.value().access, {}});
    else
        renew(*provider, path, token.value(), limitMs, std::move(done));
}

void TokenSource::renew(const Provider& provider, const QString& path, const Token& old, int limitMs,
                        Done done) {
    if (old.refresh.isEmpty()) {
        done(needsConsent());
        return;
    }
    const auto gone = m_gone.constFind(path);
    if (gone != m_gone.constEnd() && gone->refreshToken == old.refresh) {
        done(gone->why);
        return;
    }
    m_request = std::make_unique<TokenRequest>(m_certificateFolder);
    m_request->refresh(provider, old.refresh, limitMs,
                       [this, provider, path, old, done = std::move(done)](const Result<Token>& answer) {
                           m_request.reset();
                           done(onRenewed(provider, path, old, answer));
                       });
}

Result<Access> TokenSource::onRenewed(const Provider& provider, const QString& path, const Token& old,
                                      const Result<Token>& answer) {
    if (!answer.ok()) {
        if (answer.status().code() == ErrorCode::InvalidPassword)
            m_gone.insert(path, {old.refresh, answer.status()});
        return answer.status();
    }
    m_renewedRefused = m_renewedRefused || old.access == m_refused;
    Token token = answer.value();
    if (token.refresh.isEmpty()) token.refresh = old.refresh;
    m_unwritten.remove(path);
    QString remark = QStringLiteral("Token di %1 rinnovato").arg(provider.name);
    if (const Status written = writeToken(m_folder, path, token); !written.ok()) {
        m_unwritten.insert(path, token);
        remark += QStringLiteral(". ") + written.text();
    }
    return Access{token.access, remark};
}

}  // namespace oauth
