#pragma once

#include <optional>
#include <QList>
#include <QObject>
#include <QSslSocket>
#include <QTimer>

#include "platform/mail/Message.h"
#include "platform/mail/Route.h"
#include "platform/mail/Sasl.h"
#include "platform/mail/SmtpExtensions.h"
#include "platform/mail/SmtpReply.h"
#include "platform/mail/Transcript.h"

namespace mail {

/// What became of a message.
struct DeliveryOutcome {
    bool delivered = false;
    int code = 0;  ///< the server's reply code, 0 without an answer
    QString text;  ///< what the server said, or (Italian) what went wrong
};

/// One SMTP connection that is kept between messages.
///
/// Steps of a connection: greeting, EHLO (HELO where that is refused), STARTTLS and EHLO again, AUTH; then
/// for each message MAIL, RCPT and DATA (in one write where pipelining is offered) and the body. A refused
/// message leaves the connection in place: the next one is preceded by RSET. A kept connection that turns out
/// to be dead or answers 421 before MAIL was accepted is opened anew, once.
class SmtpSession : public QObject {
    Q_OBJECT
  public:
    explicit SmtpSession(Transcript& transcript, QObject* parent = nullptr);
    ~SmtpSession() override;

    /// Starts a delivery; none may be running. finished() follows, possibly from within this call.
    /// `timeoutMs` bounds the time without progress.
    void deliver(const Route& route, const ComposedMessage& message, int timeoutMs);

    /// Drops the running delivery and its connection without any signal.
    void abandon();

  Q_SIGNALS:
    /// The delivery has ended; a new one may be started at once.
    void finished(const mail::DeliveryOutcome& outcome);

  private:
    /// The command, or the stage, that a reply belongs to.
    enum class Step { Greeting, Ehlo, Helo, StartTls, Auth, Reset, Mail, Recipient, Data, EmptyBody, Body };

    enum class LocalPort { AsTold, Any };

    // SmtpSession.cpp: life of a connection and of a delivery
    void open(LocalPort localPort = LocalPort::AsTold);
    void dropConnection();
    void quit();
    void lost(int code, const QString& why);
    void fail(int code, const QString& why);
    void conclude(const DeliveryOutcome& outcome);
    void progress();
    void onConnected();
    void onTaken();
    void noteTaken();
    void onSocketError(QAbstractSocket::SocketError error);
    void onTimeout();
    bool isTaking(int descriptor);
    void noteLocalPortTaken();
    bool implicitTls() const;

    // SmtpSession_dialogue.cpp: commands, replies and what they lead to
    void onReadyRead();
    void onUnexpectedInput();
    void onReply(Step step, const SmtpReply& reply);
    void onHello(Step step, const SmtpReply& reply);
    void onEnvelopeReply(Step step, const SmtpReply& reply);
    void onDataReply(const SmtpReply& reply);
    void onBodyReply(const SmtpReply& reply);
    void reject(const SmtpReply& reply);
    void refuse(const SmtpReply& reply);
    void settleRefusal();
    void command(Step step, const QByteArray& line);
    void command(Step step, const QByteArray& line, const QByteArray& shown);
    void writeCommands();
    void hello();
    void afterHello();
    void startTransaction();
    void sendEnvelope();
    void feedBody();
    void writePiece(const QByteArray& piece);
    QByteArray envelopeCommand(Step step) const;
    QByteArray greetingName() const;
    bool inputLeft() const;
    bool allTaken() const;

    // SmtpSession_security.cpp: TLS and login
    bool wantsTls() const;
    bool missesTls() const;
    void prepareTls();
    void onStartTlsReply(const SmtpReply& reply);
    void onEncrypted();
    QString security() const;
    QString handshakeFailure() const;
    void startLogin();
    void startMechanism();
    void passOverMechanism(const Status& why);
    QByteArray withheld(const QByteArray& token);
    void onAuthReply(const SmtpReply& reply);
    void onChallenge(const QByteArray& text);

    Transcript& m_transcript;
    Route m_route;
    QSslSocket* m_socket = nullptr;
    QTimer m_stall;  ///< ends a delivery without progress
    QTimer m_idle;   ///< closes a connection that is not used

    // state of the connection
    bool m_ready = false;      ///< set up, messages can be sent
    bool m_heloOnly = false;   ///< EHLO is not used: as told, or since it was refused
    bool m_plainOnly = false;  ///< the handshake has failed before
    bool m_startTlsRefused = false;
    bool m_handshaking = false;
    bool m_authenticated = false;
    bool m_needsReset = false;  ///< the last message was refused
    bool m_bound = false;       ///< connecting from the local port that was asked for
    bool m_tlsSeen = false;     ///< the route's server has offered TLS before
    SmtpExtensions m_extensions;
    QByteArray m_input;
    qsizetype m_inputRead = 0;
    QByteArray m_output;
    QList<Step> m_expected;  ///< steps whose replies are outstanding
    QList<Step> m_plan;      ///< steps of the envelope that are still to be sent

    // login under way
    QByteArrayList m_mechanisms;
    std::optional<SaslExchange> m_exchange;
    QByteArray m_firstResponse;     ///< first token of a mechanism in which the client begins
    bool m_initialResponse = true;  ///< it goes out with the AUTH command
    int m_authSteps = 0;

    // delivery under way
    bool m_busy = false;
    bool m_reused = false;  ///< on a connection that was kept
    bool m_mailAccepted = false;
    bool m_refused = false;
    int m_timeoutMs = 0;
    int m_outstanding = 0;  ///< octets that were not acknowledged when the system last took some
    DeliveryOutcome m_refusal;
    ComposedMessage m_message;
    MessageText::Place m_fed;  ///< what stands before it was written
    bool m_feeding = false;    ///< the body is going out, the final point was not written yet
};

}  // namespace mail
