// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/Login.h"

#include <cassert>
#include <utility>

#include "platform/text/Words.h"

namespace mail {

namespace {

constexpr int maxChallenges = 16;
constexpr qsizetype maxCommandLine = 510;  // RFC 5321 4.5.3.1.4, without the line end

LoginStep failed(int code, const QString& text) {
    LoginStep step;
    step.code = code;
    step.text = text;
    return step;
}

LoginStep failed(const SmtpReply& reply) {
    return failed(reply.code, printable(reply.text));
}

/// The server is not authenticated, or violates the protocol: no further mechanism is tried with it.
LoginStep untrusted() {
    LoginStep step = failed(0, Words::tr("Il server non ha completato l'autenticazione."));
    step.kind = LoginStep::Kind::Untrusted;
    return step;
}

LoginStep send(const QByteArray& line, const QByteArray& shown, const QByteArrayList& secrets) {
    LoginStep step;
    step.kind = LoginStep::Kind::Send;
    step.line = line;
    step.shown = shown;
    step.secrets = secrets;
    return step;
}

}  // namespace

Login::Login(LoginIdentity identity, const LoginTerms& terms, QString clearListFile)
    : m_identity(std::move(identity)), m_clearListFile(std::move(clearListFile)), m_mechanisms(terms) {}

LoginStep Login::begin() {
    assert(!m_exchange);
    return tryMechanism();
}

LoginStep Login::tryMechanism() {
    for (; !m_mechanisms.isEmpty(); m_mechanisms.skip()) {
        const QByteArray& mechanism = m_mechanisms.current();
        m_challenges = 0;
        m_firstResponse.clear();
        Result<SaslExchange> exchange = exchangeBy(mechanism);
        if (!exchange.ok()) {
            m_whyNotUsable = exchange.status().text();
            continue;
        }
        m_exchange = std::move(exchange).value();
        if (!m_exchange->clientFirst()) return send("AUTH " + mechanism, "AUTH " + mechanism, {});

        const Result<QByteArray> token = m_exchange->step({});
        if (!token.ok()) {
            m_whyNotUsable = token.status().text();
            continue;
        }
        m_firstResponse = token.value().toBase64();
        QByteArray line = "AUTH " + mechanism;
        m_initialResponse = m_initialResponse && line.size() + 1 + m_firstResponse.size() <= maxCommandLine;
        if (m_initialResponse) line += ' ' + m_firstResponse;
        return send(line, "AUTH " + mechanism, {token.value(), m_firstResponse});
    }
    return noneLeft();
}

Result<SaslExchange> Login::exchangeBy(const QByteArray& mechanism) const {
    const auto& [host, user, password, port, bearer] = m_identity;
    return bearer ? SaslExchange::startBearer(mechanism, user, password, host, port)
                  : SaslExchange::start(mechanism, user, password, host);
}

LoginStep Login::refusedCredentials(const SmtpReply& refusal) const {
    LoginStep step = failed(refusal);
    step.credentialsRefused = true;
    // The server's text is about user names and passwords, which do not apply here.
    if (m_identity.bearer)
        step.text = Words::tr("Il server non accetta il consenso di OAuth 2.0 per l'utente %1: %2")
                        .arg(m_identity.user, step.text);
    return step;
}

/// The error where no mechanism is left: the server's reply on the credentials has precedence.
LoginStep Login::noneLeft() const {
    if (const auto& refusal = m_mechanisms.credentialsRefusal()) return refusedCredentials(*refusal);
    if (m_mechanisms.leftOutInTheClear())
        return failed(0, Words::tr("La password non viene inviata in chiaro a %1, che non offre una "
                                   "connessione TLS. Per inviarla ugualmente scrivere il nome del "
                                   "server nel file %2.")
                             .arg(m_identity.host, m_clearListFile));
    if (m_lastRefusal) return failed(*m_lastRefusal);
    if (!m_whyNotUsable.isEmpty()) return failed(0, m_whyNotUsable);
    if (m_identity.bearer) return failed(0, Words::tr("Il server non offre l'accesso con OAuth 2.0."));
    return failed(0, Words::tr("Il server non offre un metodo di autenticazione conosciuto."));
}

LoginStep Login::onReply(const SmtpReply& reply) {
    assert(m_exchange);
    if (reply.intermediate()) return onChallenge(reply.text);
    if (!reply.positive()) return onRefusal(reply);
    if (!m_exchange->complete()) return untrusted();
    LoginStep done;
    done.kind = LoginStep::Kind::Done;
    return done;
}

LoginStep Login::onRefusal(const SmtpReply& reply) {
    if (reply.code < 500) return failed(reply);
    if (m_challenges == 0 && reply.code == 501 && m_exchange->clientFirst() && m_initialResponse) {
        m_initialResponse = false;  // some servers do not support it
        return tryMechanism();
    }
    m_lastRefusal = reply;
    m_initialResponse = true;
    return m_mechanisms.refused(reply) ? tryMechanism() : noneLeft();
}

LoginStep Login::onChallenge(const QByteArray& text) {
    if (++m_challenges > maxChallenges) return untrusted();
    // The first token again: not sent so far, or skipped by a server without initial responses.
    if (m_challenges == 1 && m_exchange->clientFirst() &&
        (!m_initialResponse || text.isEmpty() || (m_exchange->complete() && !m_identity.bearer)))
        return send(m_firstResponse, "(omesso)", {});
    const auto challenge =
        QByteArray::fromBase64Encoding(text.trimmed(), QByteArray::AbortOnBase64DecodingErrors);
    // The challenge of LOGIN is a prompt for people; some servers send it without base64.
    if (!challenge && m_mechanisms.current() != "LOGIN") return untrusted();
    const Result<QByteArray> answer = m_exchange->step(*challenge);
    if (!answer.ok()) return untrusted();
    return send(answer.value().toBase64(), "(omesso)", {answer.value(), answer.value().toBase64()});
}

}  // namespace mail
