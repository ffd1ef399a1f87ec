// TLS and login of a session.
#include <QDir>
#include <QSslCipher>
#include <QSslConfiguration>

#include "platform/mail/SmtpSession.h"

namespace mail {

namespace {

constexpr int maxAuthSteps = 16;
constexpr qsizetype maxCommandLine = 510;  // RFC 5321 4.5.3.1.4, without the line end

/// The system's certificates and those of the folder.
QList<QSslCertificate> trustedCertificates(const QString& folder) {
    static const QList<QSslCertificate> system = QSslConfiguration::systemCaCertificates();
    QList<QSslCertificate> all = system;
    for (const QFileInfo& file : QDir(folder).entryInfoList({QStringLiteral("*.pem")}, QDir::Files))
        all += QSslCertificate::fromPath(file.filePath(), QSsl::Pem);
    return all;
}

QString describe(const QSslError& error) {
    switch (error.error()) {
        case QSslError::SelfSignedCertificate:
        case QSslError::SelfSignedCertificateInChain:
            return QStringLiteral("il certificato è autofirmato");
        case QSslError::CertificateExpired:
            return QStringLiteral("il certificato è scaduto");
        case QSslError::CertificateNotYetValid:
            return QStringLiteral("il certificato non è ancora valido");
        case QSslError::HostNameMismatch:
            return QStringLiteral("il certificato è di un altro server");
        case QSslError::UnableToGetLocalIssuerCertificate:
        case QSslError::UnableToGetIssuerCertificate:
        case QSslError::UnableToVerifyFirstCertificate:
        case QSslError::CertificateUntrusted:
            return QStringLiteral("l'autorità che ha emesso il certificato non è attendibile");
        default:
            return error.errorString();
    }
}

/// The answer says nothing about the credentials: the server does not know the mechanism, or not in this
/// form.
bool isMechanismRefusal(int code) {
    return code == 500 || code == 501 || code == 502 || code == 504;
}

}  // namespace

bool SmtpSession::wantsTls() const {
    if (m_plainOnly || m_startTlsRefused || m_socket->isEncrypted()) return false;
    return m_heloOnly ? m_route.login : m_extensions.startTls;
}

bool SmtpSession::missesTls() const {
    return m_tlsSeen && !m_route.opportunisticTls && !m_route.greetWithHelo && !m_socket->isEncrypted();
}

void SmtpSession::prepareTls() {
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setProtocol(QSsl::TlsV1_2OrLater);
    if (m_route.opportunisticTls) {
        configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
    } else {
        configuration.setPeerVerifyMode(QSslSocket::VerifyPeer);
        if (!m_route.certificateFolder.isEmpty())
            configuration.setCaCertificates(trustedCertificates(m_route.certificateFolder));
    }
    m_socket->setSslConfiguration(configuration);
}

void SmtpSession::onStartTlsReply(const SmtpReply& reply) {
    if (reply.positive()) {
        if (inputLeft()) {
            // Whoever put this in front of the handshake wants it to be taken for what comes behind it.
            lost(0, QStringLiteral("Il server ha aggiunto testo in chiaro alla risposta a STARTTLS."));
            return;
        }
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
    m_tlsSeen = true;
    m_input.clear();
    m_inputRead = 0;
    m_transcript.remark(security());
    progress();
    if (m_expected.isEmpty()) hello();
}

QString SmtpSession::security() const {
    if (!m_socket->isEncrypted()) return QStringLiteral("in chiaro");
    const QSslCipher cipher = m_socket->sessionCipher();
    return QStringLiteral("%1, %2, certificato %3")
        .arg(cipher.protocolString(), cipher.name(),
             m_route.opportunisticTls ? QStringLiteral("non verificato") : QStringLiteral("valido"));
}

QString SmtpSession::handshakeFailure() const {
    const QList<QSslError> errors = m_socket->sslHandshakeErrors();
    const QString why = errors.isEmpty() ? m_socket->errorString() : describe(errors.first());
    return QStringLiteral("Connessione TLS non riuscita: %1.").arg(why);
}

void SmtpSession::startLogin() {
    m_mechanisms = saslMechanisms();
    if (!m_heloOnly)
        m_mechanisms.removeIf([this](const QByteArray& name) { return !m_extensions.auth.contains(name); });
    if (m_mechanisms.isEmpty()) {
        conclude({false, 0, QStringLiteral("Il server non offre un metodo di autenticazione conosciuto.")});
        return;
    }
    m_initialResponse = true;
    startMechanism();
}

void SmtpSession::startMechanism() {
    const QByteArray& mechanism = m_mechanisms.first();
    m_authSteps = 0;
    m_firstResponse.clear();
    Result<SaslExchange> exchange =
        SaslExchange::start(mechanism, m_route.user, m_route.password, m_route.host);
    if (!exchange.ok()) {
        passOverMechanism(exchange.status());
        return;
    }
    m_exchange = std::move(exchange).value();

    QByteArray line = "AUTH " + mechanism;
    if (m_exchange->clientFirst()) {
        const Result<QByteArray> token = m_exchange->step({});
        if (!token.ok()) {
            passOverMechanism(token.status());
            return;
        }
        m_firstResponse = withheld(token.value());
        m_initialResponse = m_initialResponse && line.size() + 1 + m_firstResponse.size() <= maxCommandLine;
        if (m_initialResponse) line += ' ' + m_firstResponse;
    }
    command(Step::Auth, line, "AUTH " + mechanism);
    writeCommands();
}

/// The mechanism cannot be used with these credentials or this server; `why` counts where it was the last.
void SmtpSession::passOverMechanism(const Status& why) {
    if (m_mechanisms.size() == 1) {
        conclude({false, 0, why.text()});
        return;
    }
    m_mechanisms.removeFirst();
    m_initialResponse = true;
    startMechanism();
}

/// The base64 form of a token, which from now on the transcript leaves out, bare or encoded.
QByteArray SmtpSession::withheld(const QByteArray& token) {
    QByteArray line = token.toBase64();
    m_transcript.addSecret(token);
    m_transcript.addSecret(line);
    return line;
}

void SmtpSession::onAuthReply(const SmtpReply& reply) {
    if (reply.intermediate()) {
        onChallenge(reply.text);
    } else if (reply.positive()) {
        const bool proved = m_exchange->complete();
        m_exchange.reset();
        if (!proved) {
            dropConnection();
            conclude({false, 0, QStringLiteral("Il server non ha completato l'autenticazione.")});
            return;
        }
        m_authenticated = true;
        afterHello();
    } else if (m_authSteps == 0 && reply.code == 501 && m_exchange->clientFirst() && m_initialResponse) {
        m_initialResponse = false;
        startMechanism();
    } else if (m_authSteps == 0 && isMechanismRefusal(reply.code) && m_mechanisms.size() > 1) {
        passOverMechanism({});
    } else {
        reject(reply);
    }
}

void SmtpSession::onChallenge(const QByteArray& text) {
    ++m_authSteps;
    // The first token again: not sent so far, or passed over by a server that knows no initial responses.
    const bool wantsFirst = m_authSteps == 1 && m_exchange->clientFirst() &&
                            (!m_initialResponse || text.isEmpty() || m_exchange->complete());
    const auto challenge =
        QByteArray::fromBase64Encoding(text.trimmed(), QByteArray::AbortOnBase64DecodingErrors);
    // What LOGIN asks with is a prompt for people; there are servers that write it as it is.
    const bool readable = wantsFirst || challenge || m_mechanisms.first() == "LOGIN";
    Result<QByteArray> answer = QByteArray();
    if (!wantsFirst && readable) answer = m_exchange->step(*challenge);
    if (!readable || !answer.ok() || m_authSteps > maxAuthSteps) {
        dropConnection();
        conclude({false, 0, QStringLiteral("Il server non ha completato l'autenticazione.")});
        return;
    }
    command(Step::Auth, wantsFirst ? m_firstResponse : withheld(answer.value()), "(omesso)");
    writeCommands();
}

}  // namespace mail
