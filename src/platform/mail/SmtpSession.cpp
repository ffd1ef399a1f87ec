// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/SmtpSession.h"

#include <algorithm>
#include <cassert>
#include <QHostAddress>
#include <QHostInfo>
#include <QNetworkProxy>
#include <utility>

#include "platform/mail/InsideAddress.h"
#include "platform/mail/TcpState.h"
#include "platform/text/Words.h"

namespace mail {

namespace {

constexpr int idleMs = 30000;
constexpr int goodbyeMs = 5000;
constexpr quint16 implicitTlsPort = 465;
constexpr qint64 readBufferSize = 65536;
constexpr qsizetype longestReplyShown = 200;  // of a reply that does not end

QString describe(QAbstractSocket::SocketError error, const QSslSocket& socket, const Route& route) {
    switch (error) {
        case QAbstractSocket::HostNotFoundError:
            return Words::tr("Server %1 non trovato.").arg(route.host);
        case QAbstractSocket::ConnectionRefusedError:
            return Words::tr("Connessione rifiutata da %1, porta %2.")
                .arg(route.host, QString::number(route.port));
        case QAbstractSocket::RemoteHostClosedError:
            return Words::tr("Il server ha chiuso la connessione.");
        default:
            return Words::tr("Errore di rete: %1").arg(printable(socket.errorString().toUtf8()));
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

void SmtpSession::begin(const SmtpTimes& times) {
    assert(!m_busy && (!m_socket || isIdle()));
    m_busy = true;
    m_inspecting = m_reused = false;
    m_refused = m_mailAccepted = false;
    m_pointGiven = m_inFlight = m_answeredEarly = false;
    m_idle.stop();
    m_times = times;
    m_outstanding = 0;
    progress();
}

void SmtpSession::deliver(const Route& route, const ComposedMessage& message, const SmtpTimes& times) {
    begin(times);
    m_message = message;
    m_reused =
        m_ready && route == m_route && !inputLeft() && m_socket->state() == QAbstractSocket::ConnectedState;
    if (m_reused) {
        if (m_transcript.active())
            m_transcript.remark(QStringLiteral("Connessione ancora aperta, ") + security());
        startTransaction();
        return;
    }
    openAnew(route);
}

void SmtpSession::inspect(const Route& route, const SmtpTimes& times) {
    begin(times);
    m_inspecting = true;
    openAnew(route);
}

void SmtpSession::openAnew(const Route& route) {
    quit();
    if (const auto refusal = m_refusedLogin.answerFor(route)) {
        m_transcript.remark(QStringLiteral("Accesso già rifiutato dal server, non ritentato"));
        conclude(*refusal);
        return;
    }
    m_route = route;
    m_plainOnly = false;
    m_addresses.clear();
    open();
}

void SmtpSession::beginRun() {
    m_greeters.clear();
    m_grounded.clear();
    m_refusedLogin.forget();
}

DeliveryStage SmtpSession::stage() const {
    if (!m_socket || !m_connected.isValid()) return DeliveryStage::Connecting;
    if (m_handshaking) return DeliveryStage::Tls;
    return stageOf(m_expected.isEmpty() ? m_answered : m_expected.first());
}

DeliveryStage SmtpSession::stageOf(Step step) {
    switch (step) {
        case Step::Greeting:
            return DeliveryStage::Greeting;
        case Step::Ehlo:
        case Step::Helo:
            return DeliveryStage::Hello;
        case Step::StartTls:
            return DeliveryStage::Tls;
        case Step::Auth:
            return DeliveryStage::Login;
        case Step::Reset:
        case Step::Mail:
            return DeliveryStage::Sender;
        case Step::Recipient:
            return DeliveryStage::Recipient;
        case Step::Data:
        case Step::EmptyBody:
            return DeliveryStage::Data;
        case Step::Body:
            return DeliveryStage::Body;
    }
    return DeliveryStage::Connecting;
}

std::unique_ptr<AwaitedReply> SmtpSession::abandon() {
    m_stall.stop();
    std::unique_ptr<AwaitedReply> awaited;
    if (hasGivenAll() && !m_refused) {
        assert(m_busy && !m_inspecting);
        QSslSocket* const socket = std::exchange(m_socket, nullptr);
        socket->disconnect(this);
        awaited = std::make_unique<AwaitedReply>(socket, m_input.mid(m_inputRead), int(m_expected.size()) - 1,
                                                 std::max(m_times.stall, m_times.finalReply));
    }
    m_busy = false;
    dropConnection();
    m_message = {};
    return awaited;
}

/// For asserts: a kept connection between two messages owes nothing, and nothing is owed to it.
bool SmtpSession::isIdle() const {
    return m_ready && !m_handshaking && !m_feeding && !m_login && m_expected.isEmpty() && m_plan.isEmpty() &&
           m_output.isEmpty();
}

/// The system has taken the whole message, the final point included, and the server has not replied.
bool SmtpSession::hasGivenAll() const {
    return m_socket && m_pointGiven && !m_expected.isEmpty() && allTaken();
}

/// The server has accepted the message, whatever it sends after that.
bool SmtpSession::wasAccepted() const {
    return hasGivenAll() && m_expected.first() == Step::Body && !m_refused && !m_answeredEarly &&
           isAcceptance(QByteArrayView(m_input).sliced(m_inputRead));
}

void SmtpSession::open(LocalPort localPort) {
    m_socket = new QSslSocket(this);
    m_findings = SessionFindings();
    m_socket->setProxy(QNetworkProxy::NoProxy);
    m_socket->setReadBufferSize(readBufferSize);
    m_authenticated = m_needsReset = m_startTlsRefused = false;
    m_connected.invalidate();
    m_taken.invalidate();
    m_heloOnly = m_route.greetWithHelo;
    m_mustEncrypt =
        !m_route.opportunisticTls && m_tlsMemory.knows(m_route.tlsListFile, m_route.host, m_route.port);
    m_transcript.setSecrets({});
    if (m_route.login) m_transcript.addSecret(m_route.password.toUtf8());

    const bool bind = localPort == LocalPort::AsTold && m_route.localPort != 0;
    m_bound = bind && m_socket->bind(QHostAddress::Any, m_route.localPort, QAbstractSocket::ReuseAddressHint);
    if (bind && !m_bound) noteLocalPortTaken();

    connect(m_socket, &QSslSocket::readyRead, this, &SmtpSession::onReadyRead);
    connect(m_socket, &QSslSocket::errorOccurred, this, &SmtpSession::onSocketError);
    connect(m_socket, &QSslSocket::connected, this, &SmtpSession::onConnected);
    connect(m_socket, &QSslSocket::encrypted, this, &SmtpSession::onEncrypted);
    // Encrypted data is still local; it has been sent once the encrypted bytes were written.
    connect(m_socket, &QSslSocket::bytesWritten, this, [this] {
        if (!m_socket->isEncrypted()) onTaken();
    });
    connect(m_socket, &QSslSocket::encryptedBytesWritten, this, &SmtpSession::onTaken);

    m_transcript.remark(QStringLiteral("Connessione a %1, porta %2%3")
                            .arg(m_route.host, QString::number(m_route.port),
                                 implicitTls() ? QStringLiteral(" (TLS)") : QString()));
    m_expected = {Step::Greeting};
    m_outstanding = 0;
    progress();
    connectToServer();
}

void SmtpSession::connectToServer() {
    if (!m_route.publicOnly || m_route.insideHosts.contains(m_route.host.toLower())) {
        m_socket->connectToHost(m_route.host, m_route.port);
    } else if (!m_addresses.isEmpty()) {
        connectToNext();
    } else {
        m_lookup = QHostInfo::lookupHost(m_route.host, this, &SmtpSession::onLookedUp);
    }
}

/// The name is not looked up again after its addresses were checked: the result could differ.
void SmtpSession::onLookedUp(const QHostInfo& found) {
    if (found.lookupId() != m_lookup) return;
    m_lookup = -1;
    for (const QHostAddress& address : found.addresses())
        if (isPublicAddress(address)) m_addresses.append(address);
    if (!m_addresses.isEmpty()) {
        connectToNext();
    } else if (found.addresses().isEmpty()) {
        lost(0, Words::tr("Server %1 non trovato.").arg(m_route.host));
    } else {
        m_transcript.remark(QStringLiteral("%1 ha solo indirizzi di reti interne: se è un server della "
                                           "propria rete, scriverne il nome in mx-interni.txt")
                                .arg(m_route.host));
        lost(0, noMailServer(), Loss::Dead, DeliveryCause::NoServer);
    }
}

void SmtpSession::connectToNext() {
    m_socket->setPeerVerifyName(m_route.host);
    m_socket->connectToHost(m_addresses.takeFirst(), m_route.port);
}

void SmtpSession::noteLocalPortTaken() {
    m_transcript.remark(QStringLiteral("Porta locale %1 non disponibile").arg(m_route.localPort));
}

bool SmtpSession::implicitTls() const {
    return m_route.port == implicitTlsPort;
}

void SmtpSession::onConnected() {
    m_addresses.clear();
    m_socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    m_bound = false;
    m_connected.start();
    progress();
    if (!implicitTls()) return;
    m_handshaking = true;
    prepareTls();
    m_socket->startClientEncryption();
}

void SmtpSession::dropConnection() {
    // Unsent data must not reach the server when the message counts as failed.
    const bool midMessage =
        m_feeding || (m_pointGiven && (!m_expected.isEmpty() || (m_socket && !allTaken())));
    m_ready = m_handshaking = m_feeding = false;
    m_idle.stop();
    m_expected.clear();
    m_plan.clear();
    m_output.clear();
    m_input.clear();
    m_inputRead = 0;
    m_login.reset();
    if (m_lookup >= 0) QHostInfo::abortHostLookup(std::exchange(m_lookup, -1));
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
        // The socket stays open to wait for the server's close.
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
    m_lookedAgain = false;
    if (m_busy) m_stall.start(limitMs());
}

/// The time limit of the current wait.
int SmtpSession::limitMs() const {
    const bool answering = m_socket && m_socket->state() == QAbstractSocket::ConnectedState &&
                           !m_handshaking && !m_expected.isEmpty();
    if (!answering) return m_times.stall;
    if (hasGivenAll())
        return m_refused || wasAccepted() ? m_times.stall : std::max(m_times.stall, m_times.finalReply);
    switch (m_expected.first()) {
        case Step::Greeting:
            return m_greeters.contains(m_route.host) ? m_times.stall
                                                     : std::max(m_times.stall, m_times.greeting);
        case Step::Ehlo:
        case Step::Helo:
            return std::max(m_times.stall, m_times.hello);
        case Step::Auth:
            return std::max(m_times.stall, m_times.login);
        default:
            return m_times.stall;
    }
}

/// A host that has greeted in time, or not at all, gets no extended wait again.
void SmtpSession::noteGreeting() {
    if (m_connected.elapsed() <= m_times.stall || m_lookedAgain) m_greeters.insert(m_route.host);
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
    if (!m_lookedAgain) {
        // Events may not have been processed for a long time: what has arrived is read first.
        m_lookedAgain = true;
        m_stall.start(0);
        return;
    }
    if (m_socket && m_socket->state() == QAbstractSocket::ConnectedState && !m_handshaking &&
        waitForInput(int(m_socket->socketDescriptor()), 0)) {
        m_socket->waitForReadyRead(0);
        if (!m_lookedAgain || !m_busy) return;
    }
    if (limitMs() > m_times.stall && m_expected.first() == Step::Greeting) noteGreeting();
    lost(0, Words::tr("Tempo scaduto: il server non risponde."), Loss::Dead, DeliveryCause::TimedOut);
}

bool SmtpSession::isTaking(int descriptor) {
    // Large system buffers show progress late: the time counts from the last acknowledgement.
    const int outstanding = unacknowledgedOctets(descriptor);
    const int quietMs = msSinceAcknowledgement(descriptor);
    const int limit = limitMs();
    if (outstanding >= m_outstanding || quietMs >= limit) return false;
    m_outstanding = outstanding;
    m_stall.start(limit - quietMs);
    return true;
}

void SmtpSession::onSocketError(QAbstractSocket::SocketError error) {
    // What the server sent before it closed still counts.
    if (error == QAbstractSocket::SocketTimeoutError) return;  // of the read before a time-out
    if (m_socket->bytesAvailable() > 0) {
        const QSslSocket* const socket = m_socket;
        onReadyRead();
        if (m_socket != socket) return;
    }
    if (m_bound && isLocalPortError(error)) {
        noteLocalPortTaken();
        m_addresses.clear();
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
    if (!m_addresses.isEmpty()) {
        dropConnection();
        open();
        return;
    }
    if (m_handshaking) m_findings.certificate = m_socket->peerCertificate();
    lost(0, m_handshaking ? handshakeFailure() : describe(error, *m_socket, m_route));
}

void SmtpSession::lost(int code, const QString& why, Loss loss, DeliveryCause cause) {
    const bool accepted = wasAccepted();
    const bool unanswered = code == 0 && hasGivenAll();
    const DeliveryStage reached = code != 0 ? stageOf(m_answered) : stage();
    const QByteArray reply = accepted ? m_input.mid(m_inputRead, longestReplyShown) : QByteArray();
    dropConnection();
    if (!m_busy) return;
    if (accepted) {
        m_transcript.received(acceptanceCode(reply), reply.mid(4));
        conclude(
            {true, acceptanceCode(reply), printable(reply.mid(4)), false, reached, DeliveryCause::Server});
        return;
    }
    if (m_inFlight && loss != Loss::Farewell) endFlights();
    if (m_reused && !m_refused && nothingTaken(loss)) {
        assert(m_inFlight || !m_pointGiven);  // none of it may have been delivered
        m_reused = m_pointGiven = m_inFlight = false;
        m_transcript.remark(QStringLiteral("Connessione caduta, nuova connessione"));
        open();
        return;
    }
    conclude(m_refused ? m_refusal : DeliveryOutcome{false, code, why, false, reached, cause, unanswered});
}

/// Whether it is certain that the server accepted nothing of the message on a lost connection.
bool SmtpSession::nothingTaken(Loss loss) const {
    if (m_inFlight) return loss == Loss::Farewell;
    return loss == Loss::Disorder ? !m_mailAccepted : !m_pointGiven;
}

void SmtpSession::conclude(const DeliveryOutcome& outcome) {
    assert(m_busy);
    m_busy = m_inFlight = false;
    m_lookedAgain = false;
    m_stall.stop();
    m_message = {};
    if (m_socket && inputLeft()) dropConnection();
    if (m_socket && !m_ready) quit();
    if (m_socket) m_idle.start();
    assert(!m_socket || isIdle());
    Q_EMIT finished(outcome);
}

}  // namespace mail
