// SPDX-License-Identifier: GPL-3.0-or-later
// TLS and login of a session.
#include <cassert>
#include <QSslCipher>
#include <QSslConfiguration>

#include "platform/mail/ClearPassword.h"
#include "platform/mail/SmtpSession.h"
#include "platform/oauth/Certificates.h"
#include "platform/text/Words.h"

namespace mail {

namespace {

QString describe(const QSslError& error) {
    switch (error.error()) {
        case QSslError::SelfSignedCertificate:
        case QSslError::SelfSignedCertificateInChain:
            return Words::tr("il certificato è autofirmato");
        case QSslError::CertificateExpired:
            return Words::tr("il certificato è scaduto");
        case QSslError::CertificateNotYetValid:
            return Words::tr("il certificato non è ancora valido");
        case QSslError::HostNameMismatch:
            return Words::tr("il certificato è di un altro server");
        case QSslError::UnableToGetLocalIssuerCertificate:
        case QSslError::UnableToGetIssuerCertificate:
        case QSslError::UnableToVerifyFirstCertificate:
        case QSslError::CertificateUntrusted:
            return Words::tr("l'autorità che ha emesso il certificato non è attendibile");
        default:
            return error.errorString();
    }
}

}  // namespace

bool SmtpSession::wantsTls() const {
    if (m_plainOnly || m_startTlsRefused || m_socket->isEncrypted()) return false;
    return m_heloOnly ? m_route.login || m_mustEncrypt : m_extensions.startTls;
}

bool SmtpSession::missesTls() const {
    return m_mustEncrypt && !m_socket->isEncrypted();
}

/// TLS is required from now on. On port 465 it always is.
void SmtpSession::noteTlsOffer() {
    if (m_route.opportunisticTls || implicitTls()) return;
    m_mustEncrypt = true;
    const Status remembered = m_tlsMemory.remember(m_route.tlsListFile, m_route.host, m_route.port);
    if (!remembered.ok() && !m_route.tlsListFile.isEmpty())
        m_transcript.remark(
            QStringLiteral("Il server offre TLS, ma non è stato possibile scriverlo nel file %1")
                .arg(m_route.tlsListFile));
}

void SmtpSession::prepareTls() {
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setProtocol(QSsl::TlsV1_2OrLater);
    if (m_route.opportunisticTls) {
        configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
    } else {
        configuration.setPeerVerifyMode(QSslSocket::VerifyPeer);
        if (!m_route.certificateFolder.isEmpty())
            configuration.setCaCertificates(oauth::trustedCertificates(m_route.certificateFolder));
    }
    m_socket->setSslConfiguration(configuration);
}

void SmtpSession::onStartTlsReply(const SmtpReply& reply) {
    if (reply.positive()) {
        if (inputLeft()) {
            // Data injected before the handshake is meant to be taken for what comes after it.
            lost(0, Words::tr("Il server ha aggiunto testo in chiaro alla risposta a STARTTLS."));
            return;
        }
        assert(m_expected.isEmpty() && m_output.isEmpty());
        noteTlsOffer();
        m_handshaking = true;
        prepareTls();
        m_socket->startClientEncryption();
    } else if (m_route.opportunisticTls || (!m_extensions.startTls && reply.code >= 500)) {
        m_startTlsRefused = true;
        afterHello();
    } else {
        reject(reply);
    }
}

void SmtpSession::onEncrypted() {
    m_handshaking = false;
    m_input.clear();
    m_inputRead = 0;
    m_findings.encrypted = true;
    m_findings.security = security();
    m_findings.certificate = m_socket->peerCertificate();
    m_transcript.remark(security());
    progress();
    if (m_expected.isEmpty()) hello();
}

QString SmtpSession::security() const {
    if (!m_socket->isEncrypted()) return Words::tr("in chiaro");
    const QSslCipher cipher = m_socket->sessionCipher();
    return Words::tr("%1, %2, certificato %3")
        .arg(cipher.protocolString(), cipher.name(),
             m_route.opportunisticTls ? Words::tr("non verificato") : Words::tr("valido"));
}

QString SmtpSession::handshakeFailure() const {
    const QList<QSslError> errors = m_socket->sslHandshakeErrors();
    const QString why = errors.isEmpty() ? m_socket->errorString() : describe(errors.first());
    return Words::tr("Connessione TLS non riuscita: %1.").arg(printable(why.toUtf8()));
}

void SmtpSession::startLogin() {
    LoginTerms terms;
    if (!m_heloOnly) terms.offered = m_extensions.auth;
    terms.verifiedTls = m_socket->isEncrypted() && !m_route.opportunisticTls;
    terms.clearAllowed = passwordMayGoInTheClear(m_route.host, m_route.clearListFile);
    terms.bearer = m_route.bearer;
    if (terms.bearer && !terms.verifiedTls) {
        conclude({false, 0,
                  Words::tr("Il token di OAuth 2.0 non viene inviato a %1: la connessione non è protetta "
                            "da TLS con un certificato valido.")
                      .arg(m_route.host),
                  true, DeliveryStage::Login});
        return;
    }
    m_login.emplace(LoginIdentity{m_route.host, m_route.user, m_route.password, m_route.port, m_route.bearer},
                    terms, m_route.clearListFile);
    takeLoginStep(m_login->begin());
}

void SmtpSession::takeLoginStep(const LoginStep& step) {
    for (const QByteArray& secret : step.secrets)
        m_transcript.addSecret(secret);
    switch (step.kind) {
        case LoginStep::Kind::Send:
            assert(!m_route.bearer || (m_socket->isEncrypted() && !m_route.opportunisticTls));
            command(Step::Auth, step.line, step.shown);
            writeCommands();
            break;
        case LoginStep::Kind::Done:
            m_login.reset();
            m_authenticated = true;
            m_findings.loggedIn = true;
            afterHello();
            break;
        case LoginStep::Kind::Untrusted:
            dropConnection();
            failLogin(step);
            break;
        case LoginStep::Kind::Failed:
            failLogin(step);
            break;
    }
}

void SmtpSession::failLogin(const LoginStep& step) {
    const DeliveryOutcome outcome{false,
                                  step.code,
                                  step.text,
                                  true,
                                  DeliveryStage::Login,
                                  step.code != 0 ? DeliveryCause::Server : DeliveryCause::Program};
    if (step.credentialsRefused) m_refusedLogin.note(m_route, outcome, m_times.refusedLogin);
    conclude(outcome);
}

}  // namespace mail
