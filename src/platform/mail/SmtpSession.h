// SPDX-License-Identifier: GPL-3.0-or-later
// One SMTP connection that is kept between messages.
#pragma once

#include <memory>
#include <optional>
#include <QElapsedTimer>
#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QSet>
#include <QSslSocket>
#include <QTimer>

#include "platform/mail/AwaitedReply.h"
#include "platform/mail/DeliveryOutcome.h"
#include "platform/mail/Login.h"
#include "platform/mail/Message.h"
#include "platform/mail/RefusedLogin.h"
#include "platform/mail/Route.h"
#include "platform/mail/SessionFindings.h"
#include "platform/mail/SmtpExtensions.h"
#include "platform/mail/SmtpReply.h"
#include "platform/mail/TlsMemory.h"
#include "platform/mail/Transcript.h"
#include "platform/text/Words.h"

class QHostInfo;

namespace mail {

/// The outcome of a delivery to a domain without a server of the public internet.
inline QString noMailServer() {
    return Words::tr("Il dominio del destinatario non ha un server di posta.");
}

/// How long the server may take, in milliseconds. `stall` is what the user chose. Some waits are longer than
/// that, since a server may check the client or the message before it answers (RFC 5321 4.5.3.2).
struct SmtpTimes {
    int stall = 60000;
    int greeting =
        30000;  ///< at the first connection to a host in a run, and while it greets later than `stall`
    int hello = 30000;          ///< the reply to EHLO or HELO
    int login = 30000;          ///< each reply of a login: servers delay the refusal of a wrong password
    int finalReply = 600000;    ///< the reply to the final point: giving up there delivers the message twice
    int farewell = 5000;        ///< replies that are still awaited when the program ends
    int refusedLogin = 300000;  ///< a login that was refused for its password is not tried again so long
    int flight =
        5000;  ///< a connection that accepted a message less than this ago gets the next in one flight
};

/// One SMTP connection that is kept between messages.
///
/// Steps of a connection: greeting, EHLO (HELO where that is refused), STARTTLS and EHLO again, AUTH; then
/// for each message MAIL, RCPT and DATA (in one write where pipelining is offered) and the body. Where
/// chunking is offered as well, a message that follows another closely goes out with its envelope, by BDAT
/// (RFC 3030), in one flight; see docs/decisions/62-one-flight.md. A refused message does not end the
/// connection: RSET precedes the next one. A kept connection that turns out to be dead, or answers 421, is
/// reopened and the message tried there once, as long as neither the final point nor a write that contains
/// it was given to the socket. For a reply out of order that is done only before MAIL was accepted. After one
/// flight a new connection is tried only where the server answered 421.
class SmtpSession : public QObject {
    Q_OBJECT
  public:
    explicit SmtpSession(Transcript& transcript, QObject* parent = nullptr);
    ~SmtpSession() override;

    /// Starts a delivery; none may be running. finished() follows, possibly during this call.
    /// `times` bound the time without progress: the server takes bytes or completes a reply.
    void deliver(const Route& route, const ComposedMessage& message, const SmtpTimes& times);

    /// Sets up a connection as for a delivery, the login included, and delivers nothing: finished() says
    /// whether a message could be sent now, and findings() what was learnt of the server.
    void inspect(const Route& route, const SmtpTimes& times);
    /// Of the newest connection.
    const SessionFindings& findings() const { return m_findings; }

    /// Drops the running delivery without any signal. Where the server has received the whole message the
    /// connection is handed over, since the message may still be accepted; otherwise it is closed.
    std::unique_ptr<AwaitedReply> abandon();

    /// Forgets which hosts greet in time, and the refused login.
    void beginRun();

    bool busy() const { return m_busy; }
    /// How far the running delivery has got.
    DeliveryStage stage() const;

  Q_SIGNALS:
    /// The delivery has ended; a new one may be started at once.
    void finished(const mail::DeliveryOutcome& outcome);

  private:
    /// The command, or the stage, that a reply belongs to.
    enum class Step { Greeting, Ehlo, Helo, StartTls, Auth, Reset, Mail, Recipient, Data, EmptyBody, Body };

    enum class LocalPort { AsTold, Any };

    /// Why a connection is not usable any more: it is dead, the server has answered 421, or a reply was out
    /// of order.
    enum class Loss { Dead, Farewell, Disorder };

    static DeliveryStage stageOf(Step step);

    // SmtpSession.cpp: life of a connection and of a delivery
    void begin(const SmtpTimes& times);
    void openAnew(const Route& route);
    void open(LocalPort localPort = LocalPort::AsTold);
    void connectToServer();
    void onLookedUp(const QHostInfo& found);
    void connectToNext();
    void dropConnection();
    void quit();
    void lost(int code, const QString& why, Loss loss = Loss::Dead,
              DeliveryCause cause = DeliveryCause::Server);
    bool nothingTaken(Loss loss) const;
    void conclude(const DeliveryOutcome& outcome);
    void progress();
    int limitMs() const;
    bool isIdle() const;
    bool hasGivenAll() const;
    bool wasAccepted() const;
    void onConnected();
    void onTaken();
    void noteTaken();
    void onSocketError(QAbstractSocket::SocketError error);
    void onTimeout();
    bool isTaking(int descriptor);
    void noteGreeting();
    void noteLocalPortTaken();
    bool implicitTls() const;

    // SmtpSession_dialogue.cpp: commands, replies and what follows from them
    void onReadyRead();
    void onUnexpectedInput();
    void onReply(Step step, const SmtpReply& reply);
    void onHello(Step step, const SmtpReply& reply);
    void onEnvelopeReply(Step step, const SmtpReply& reply);
    void onDataReply(const SmtpReply& reply);
    void onBodyReply(const SmtpReply& reply);
    void reject(const SmtpReply& reply);
    void refuse(const SmtpReply& reply);
    DeliveryOutcome refusal(const SmtpReply& reply) const;
    void settleRefusal();
    void command(Step step, const QByteArray& line);
    void command(Step step, const QByteArray& line, const QByteArray& shown);
    void writeCommands();
    void hello();
    void afterHello();
    void startTransaction();
    void sendEnvelope();
    void noteMessage();
    void feedBody();
    void writePiece(QByteArrayView piece, QByteArrayView end = {});
    QByteArray envelopeCommand(Step step) const;
    QByteArray greetingName() const;
    bool inputLeft() const;
    bool allTaken() const;

    // SmtpSession_flight.cpp: a message and its envelope in one flight
    bool mayFly() const;
    void fly();
    bool isOutOfStep(const SmtpReply& reply) const;
    void endFlights();

    // SmtpSession_security.cpp: TLS and login
    bool wantsTls() const;
    bool missesTls() const;
    void noteTlsOffer();
    void prepareTls();
    void onStartTlsReply(const SmtpReply& reply);
    void onEncrypted();
    QString security() const;
    QString handshakeFailure() const;
    void startLogin();
    void takeLoginStep(const LoginStep& step);
    void failLogin(const LoginStep& step);

    Transcript& m_transcript;
    Route m_route;
    QSslSocket* m_socket = nullptr;
    QTimer m_stall;  ///< ends a delivery without progress
    QTimer m_idle;   ///< closes a connection that is not used

    // state of the connection
    bool m_ready = false;      ///< set up, messages can be sent
    bool m_heloOnly = false;   ///< EHLO is not used: by the route, or since it was refused
    bool m_plainOnly = false;  ///< the handshake has failed before
    bool m_startTlsRefused = false;
    bool m_handshaking = false;
    bool m_authenticated = false;
    bool m_needsReset = false;        ///< the last message was refused
    bool m_bound = false;             ///< connecting from the local port that was asked for
    bool m_mustEncrypt = false;       ///< the account's server offers TLS, or has offered it before
    int m_lookup = -1;                ///< number of the look-up of the host that is under way
    QList<QHostAddress> m_addresses;  ///< of the host, checked, that were not tried yet
    QElapsedTimer m_connected;        ///< not valid while it connects
    QElapsedTimer m_taken;            ///< since the connection accepted a message; invalid before
    QSet<QString> m_greeters;         ///< hosts whose greeting gets only the user's time
    QSet<QString> m_grounded;         ///< hosts to which nothing more goes in one flight in this run
    SmtpExtensions m_extensions;
    QByteArray m_input;
    qsizetype m_inputRead = 0;
    QByteArray m_output;
    QList<Step> m_expected;            ///< steps whose replies are outstanding
    Step m_answered = Step::Greeting;  ///< the step of the last reply
    QList<Step> m_plan;                ///< steps of the envelope that are still to be sent

    SessionFindings m_findings;

    std::optional<Login> m_login;  ///< under way
    RefusedLogin m_refusedLogin;
    TlsMemory m_tlsMemory;

    // delivery under way
    bool m_busy = false;
    bool m_inspecting = false;  ///< there is no message: only the connection is checked
    bool m_reused = false;      ///< on a connection that was kept
    bool m_mailAccepted = false;
    bool m_refused = false;
    bool m_lookedAgain = false;  ///< the time is up, and what has arrived was read
    SmtpTimes m_times;
    int m_outstanding = 0;  ///< octets unacknowledged when the system last accepted some
    DeliveryOutcome m_refusal;
    ComposedMessage m_message;
    MessageText::Place m_fed;      ///< what is before it was written
    bool m_feeding = false;        ///< the body is being sent, the final point is not yet written
    bool m_pointGiven = false;     ///< the write that contains the final point was given to the socket
    bool m_inFlight = false;       ///< that write contained the envelope as well
    bool m_answeredEarly = false;  ///< part of a reply came before the end of the message
};

}  // namespace mail
