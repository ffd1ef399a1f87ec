#include "platform/mail/SmtpSession.h"

#include <QHostAddress>
#include <QNetworkProxy>
#include <utility>

#include "platform/mail/TcpState.h"

namespace mail {

namespace {

constexpr int idleMs = 30000;
constexpr int goodbyeMs = 5000;
constexpr quint16 implicitTlsPort = 465;
constexpr qint64 readBufferSize = 65536;

QString describe(QAbstractSocket::SocketError error, const QSslSocket& socket, const Route& route) {
    switch (error) {
        case QAbstractSocket::HostNotFoundError:
            return QStringLiteral("Server %1 non trovato.").arg(route.host);
        case QAbstractSocket::ConnectionRefusedError:
            return QStringLiteral("Connessione rifiutata da %1, porta %2.")
                .arg(route.host, QString::number(route.port));
        case QAbstractSocket::RemoteHostClosedError:
            return QStringLiteral("Il server ha chiuso la connessione.");
        default:
            return QStringLiteral("Errore di rete: %1").arg(printable(socket.errorString().toUtf8()));
    }
}

/// The local port is taken, or cannot be used towards this server.
bool isLocalPortError(QAbstractSocket::SocketError error) {
    return error == QAbstractSocket::AddressInUseError ||
           error == QAbstractSocket::SocketAddressNotAvailableError ||
           error == QAbstractSocket::SocketAccessError || error == QAbstractSocket::UnknownSocketError;
}

}  // namespace

SmtpSession::SmtpSession(Transcript& transcript, QObject* parent)
    : QObject(parent), m_transcript(transcript) {
    m_stall.setSingleShot(true);
    m_stall.setTimerType(Qt::PreciseTimer);
    connect(&m_stall, &QTimer::timeout, this, &SmtpSession::onTimeout);
    m_idle.setSingleShot(true);
    m_idle.setInterval(idleMs);
    connect(&m_idle, &QTimer::timeout, this, &SmtpSession::quit);
}

SmtpSession::~SmtpSession() {
    if (m_socket && m_ready && !m_busy) {
        m_socket->disconnect(this);
        m_socket->write("QUIT\r\n");
        m_socket->flush();
    }
    dropConnection();
}

void SmtpSession::deliver(const Route& route, const ComposedMessage& message, int timeoutMs) {
    m_busy = true;
    m_mailAccepted = false;
    m_refused = false;
    m_message = message;
    m_idle.stop();
    m_timeoutMs = timeoutMs;
    m_outstanding = 0;
    progress();

    m_reused =
        m_ready && route == m_route && !inputLeft() && m_socket->state() == QAbstractSocket::ConnectedState;
    if (m_reused) {
        m_transcript.remark(QStringLiteral("Connessione ancora aperta, ") + security());
        startTransaction();
        return;
    }
    quit();
    if (route.host != m_route.host || route.port != m_route.port) m_tlsSeen = false;
    m_route = route;
    m_plainOnly = false;
    open();
}

void SmtpSession::abandon() {
    m_busy = false;
    m_stall.stop();
    dropConnection();
}

void SmtpSession::open(LocalPort localPort) {
    m_socket = new QSslSocket(this);
    m_socket->setProxy(QNetworkProxy::NoProxy);
    m_socket->setReadBufferSize(readBufferSize);
    m_authenticated = m_needsReset = m_startTlsRefused = false;
    m_heloOnly = m_route.greetWithHelo;
    m_transcript.setSecrets({});
    if (m_route.login) m_transcript.addSecret(m_route.password.toUtf8());

    const bool bind = localPort == LocalPort::AsTold && m_route.localPort != 0;
    m_bound = bind && m_socket->bind(QHostAddress::Any, m_route.localPort, QAbstractSocket::ReuseAddressHint);
    if (bind && !m_bound) noteLocalPortTaken();

    connect(m_socket, &QSslSocket::readyRead, this, &SmtpSession::onReadyRead);
    connect(m_socket, &QSslSocket::errorOccurred, this, &SmtpSession::onSocketError);
    connect(m_socket, &QSslSocket::connected, this, &SmtpSession::onConnected);
    connect(m_socket, &QSslSocket::encrypted, this, &SmtpSession::onEncrypted);
    // What is encrypted is still with us; it is with the other side once the encrypted bytes were taken.
    connect(m_socket, &QSslSocket::bytesWritten, this, [this] {
        if (!m_socket->isEncrypted()) onTaken();
    });
    connect(m_socket, &QSslSocket::encryptedBytesWritten, this, &SmtpSession::onTaken);

    m_transcript.remark(QStringLiteral("Connessione a %1, porta %2%3")
                            .arg(m_route.host, QString::number(m_route.port),
                                 implicitTls() ? QStringLiteral(" (TLS)") : QString()));
    m_expected = {Step::Greeting};
    m_socket->connectToHost(m_route.host, m_route.port);
}

void SmtpSession::noteLocalPortTaken() {
    m_transcript.remark(QStringLiteral("Porta locale %1 non disponibile").arg(m_route.localPort));
}

bool SmtpSession::implicitTls() const {
    return m_route.port == implicitTlsPort;
}

void SmtpSession::onConnected() {
    m_socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    m_bound = false;
    progress();
    if (!implicitTls()) return;
    m_handshaking = true;
    prepareTls();
    m_socket->startClientEncryption();
}

void SmtpSession::dropConnection() {
    const bool midMessage = m_feeding;
    m_ready = m_handshaking = m_feeding = false;
    m_idle.stop();
    m_expected.clear();
    m_plan.clear();
    m_output.clear();
    m_input.clear();
    m_inputRead = 0;
    m_exchange.reset();
    if (!m_socket) return;
    if (midMessage) resetOnClose(int(m_socket->socketDescriptor()));
    QSslSocket* const socket = std::exchange(m_socket, nullptr);
    socket->disconnect(this);
    socket->abort();
    socket->deleteLater();
}

void SmtpSession::quit() {
    if (m_socket && m_expected.isEmpty() && !m_handshaking &&
        m_socket->state() == QAbstractSocket::ConnectedState) {
        // The socket stays behind to wait for the server's end of the line.
        QSslSocket* const socket = std::exchange(m_socket, nullptr);
        socket->disconnect(this);
        connect(socket, &QSslSocket::disconnected, socket, &QObject::deleteLater);
        QTimer::singleShot(goodbyeMs, socket, &QObject::deleteLater);
        m_transcript.sent("QUIT");
        m_transcript.flush();
        socket->write("QUIT\r\n");
        socket->flush();
    }
    dropConnection();
}

void SmtpSession::progress() {
    if (m_busy) m_stall.start(m_timeoutMs);
}

void SmtpSession::onTaken() {
    noteTaken();
    if (m_feeding) feedBody();
}

void SmtpSession::noteTaken() {
    progress();
    m_outstanding = unacknowledgedOctets(int(m_socket->socketDescriptor()));
}

void SmtpSession::onTimeout() {
    if (m_socket && isTaking(int(m_socket->socketDescriptor()))) return;
    dropConnection();
    fail(0, QStringLiteral("Tempo scaduto: il server non risponde."));
}

bool SmtpSession::isTaking(int descriptor) {
    // Large buffers of the system tell of progress late: the time counts from the last acknowledgement.
    const int outstanding = unacknowledgedOctets(descriptor);
    const int quietMs = msSinceAcknowledgement(descriptor);
    if (outstanding >= m_outstanding || quietMs >= m_timeoutMs) return false;
    m_outstanding = outstanding;
    m_stall.start(m_timeoutMs - quietMs);
    return true;
}

void SmtpSession::onSocketError(QAbstractSocket::SocketError error) {
    // What the server said before it hung up still counts.
    if (error == QAbstractSocket::RemoteHostClosedError && m_socket->bytesAvailable() > 0) {
        const QSslSocket* const socket = m_socket;
        onReadyRead();
        if (m_socket != socket) return;
    }
    if (m_bound && isLocalPortError(error)) {
        noteLocalPortTaken();
        dropConnection();
        open(LocalPort::Any);
        return;
    }
    if (m_handshaking && m_route.opportunisticTls && !implicitTls()) {
        m_transcript.remark(QStringLiteral("TLS non riuscito, nuova connessione in chiaro"));
        m_plainOnly = true;
        dropConnection();
        open();
        return;
    }
    lost(0, m_handshaking ? handshakeFailure() : describe(error, *m_socket, m_route));
}

void SmtpSession::lost(int code, const QString& why) {
    dropConnection();
    if (!m_busy) return;
    if (m_reused && !m_mailAccepted && !m_refused) {
        m_reused = false;
        m_transcript.remark(QStringLiteral("Connessione caduta, nuova connessione"));
        open();
        return;
    }
    fail(code, why);
}

void SmtpSession::fail(int code, const QString& why) {
    conclude(m_refused ? m_refusal : DeliveryOutcome{false, code, why});
}

void SmtpSession::conclude(const DeliveryOutcome& outcome) {
    m_busy = false;
    m_stall.stop();
    m_message = {};
    if (m_socket && inputLeft()) dropConnection();
    if (m_socket && !m_ready) quit();
    if (m_socket) m_idle.start();
    Q_EMIT finished(outcome);
}

}  // namespace mail
