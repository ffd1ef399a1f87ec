// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPair>
#include <QSet>
#include <QString>
#include <QTimer>
#include <vector>

#include "platform/mail/AcceptedList.h"
#include "platform/mail/AwaitedReply.h"
#include "platform/mail/Composer.h"
#include "platform/mail/OutcomeFile.h"
#include "platform/mail/RecipientNumber.h"
#include "platform/mail/Route.h"
#include "platform/mail/SmtpSession.h"
#include "platform/mail/Transcript.h"
#include "platform/oauth/TokenSource.h"

namespace mail {

/// The SMTP delivery of one message at a time. The caller sets the fields, those of the message included,
/// calls Send and waits for one of the two signals; fields keep their values between messages.
///
/// A message may have the number of its recipient's row. Such a message is sent at most once in a run, never
/// for `nobody` and never after a stop. An accepted one is added to the list of accepted messages before
/// SendDone is emitted. The caller says when a run and each of its ticks begins, sets Database, ToAddress and
/// RecipientNumber before each Send, and calls Marked() once the row is marked.
///
/// Everything runs on the caller's event loop. The connection is kept between messages with the same route
/// and closed when nothing was sent for 30 seconds.
class DeliveryControl : public QObject, public MessageData {
    Q_OBJECT
  public:
    explicit DeliveryControl(QObject* parent = nullptr);
    /// Calls Settle().
    ~DeliveryControl() override;

    QString LogFile;          ///< path of the support log; see Transcript
    bool LogEnabled = false;  ///< keep that log
    qint32 HeloMode = 0;      ///< 0 greets with EHLO, 1 with HELO
    /// Longest time without progress: the server takes bytes or completes a reply. Below 1: 60 seconds.
    qint16 TimeoutSecs = 60;
    SmtpTimes StageTimes;   ///< minimum times of some stages; `stall` is taken from TimeoutSecs
    qint32 BodyFormat = 1;  ///< has no effect: there are always both a text and an HTML part
    /// A row's number of Database, or one of the values of `recipient`. A message with a row's number fails
    /// without a server where the number is `nobody`, where ToAddress was not assigned since the last Send,
    /// after Abort until BeginRun, where one was accepted for it in this run, where number and address are in
    /// the list of accepted messages, and where that list has no room left.
    qint64 RecipientNumber = recipient::outsideRun;
    QString Database;                  ///< path of the file that RecipientNumber is a row of
    AcceptedList* Accepted = nullptr;  ///< not owned, outlives the control; null: nothing is remembered
    bool UseAuth = false;
    quint16 OutPort = 0;  ///< local port; another one is used when it is in use. 0: any
    quint16 ServerPort = 25;
    /// A marker of the keyring (sys/Keyring.h) is never sent: the message fails without a connection.
    QString UserPassword;  ///< oauth::passwordWord: an access token of OAuthFolder replaces it
    QString UserName;
    QString ServerName;
    /// Error text for a message without a usable ServerName where OpportunisticTls is set; empty: the
    /// control's own text.
    QString NoServerReason;
    bool OpportunisticTls = false;   ///< see Route; set on the direct route to the recipient's own server
    bool PublicServersOnly = false;  ///< see Route; an IP address as ServerName is refused then
    QStringList InsideHosts;         ///< see Route
    QString CertificateFolder;       ///< see Route
    QString OAuthFolder;             ///< see oauth::TokenSource
    QString TlsListFile;             ///< see Route
    QString ClearListFile;           ///< see Route
    /// The book of outcomes: BeginRun() starts a file in this folder (its name ends in "/") for the messages
    /// with a number; see OutcomeFile. Empty: none is kept.
    QString BookFolder;
    QString BookTitle;  ///< title of the run there

    /// A new run: messages with a number may be sent again after an Abort. Until a tick begins, an acceptance
    /// counts for the previous run: a tick that is under way has read its row already.
    void BeginRun();
    /// A tick begins: its row is read after this call.
    void BeginTick();
    /// The row of Database is marked as served: it is removed from the list of accepted messages.
    void Marked(qint64 number);
    /// The user chose these rows again: the list of accepted messages and awaited replies no longer apply to
    /// them.
    void Forget(const QString& database, const QList<qint64>& numbers);

    /// The rows of the database whose messages were given up after the final point and whose reply is
    /// awaited.
    QList<qint64> Awaited(const QString& database) const;
    /// Whether any reply is awaited.
    bool Awaiting() const;
    /// Opens the support log now, if LogEnabled; returns why it cannot be written, if so.
    Status OpenLog();
    /// The book's entry of the last message of the run that was not delivered; none where there is none.
    std::optional<OutcomeLine> LastFailure() const { return m_book ? m_book->lastFailure() : std::nullopt; }
    /// Why the book cannot be written, if it cannot.
    Status BookStatus() const { return m_book ? m_book->status() : Status(); }
    /// Writes a line from the caller to the support log, if there is one.
    void Remark(const QString& text);

    /// Starts the delivery of a message made from the fields and returns. Exactly one of
    /// SendDone and SendError follows, from the event loop, never from within this call. A message that is
    /// still under way is dropped without any signal.
    ///
    /// A message that was dropped or aborted after the server received all of it may still be accepted. Its
    /// reply is awaited on a separate connection, and an acceptance goes into the list of accepted
    /// messages. A message for the same row waits for that reply and takes its outcome; it is not sent. While
    /// two replies are awaited no further message is started.
    void Send();

    /// Ends a running delivery with SendError before it returns. After this, until BeginRun, no message with
    /// a number is sent.
    void Abort();

    /// The outcome of the message that SendDone or SendError was last emitted for; set before the signal.
    const DeliveryOutcome& LastOutcome() const { return m_last; }

    /// To be called before the program ends: ends the running message, and waits some seconds, without an
    /// event loop, for the replies that are still awaited; see SmtpTimes::farewell. Later replies are lost;
    /// such a message may be sent twice.
    void Settle();

  Q_SIGNALS:
    /// The server has accepted the message.
    void SendDone();
    /// The message was not delivered, or it is unknown whether it was. `code` is the server's reply code
    /// and `text` what it said; without an answer `code` is 0 and `text` (Italian) says what happened.
    void SendError(int code, const QString& text);
    /// No reply is awaited any more.
    void AwaitedEnded();

  private:
    static constexpr qsizetype longestShown = 320;  ///< of an address, which may be any text

    /// Whom a message with a number is for.
    struct Recipient {
        DatabaseFile database;
        qint64 number = recipient::outsideRun;
        QString address;
    };
    /// A message that was given up after its final point.
    struct GivenUp {
        Recipient recipient;
        std::unique_ptr<AwaitedReply> reply;
        std::shared_ptr<OutcomeFile> book;  ///< of its run
    };
    /// A message that waits until fewer replies are awaited.
    struct Waiting {
        Route route;
        ComposedMessage message;
        SmtpTimes times;
    };
    using RunKey = QPair<QString, qint64>;  ///< path of the database, number

    // DeliveryControl_run.cpp: whom a message is for, and the messages that were given up
    QString whyNotSent(bool addressIsFresh) const;
    void noteAccepted(const Recipient& accepted);
    void noteOutcome(const DeliveryOutcome& outcome);
    void enter(OutcomeFile& book, const Recipient& recipient, const DeliveryOutcome& outcome);
    AwaitedReply* awaitedFor(const Recipient& recipient) const;
    bool giveUp();
    void onLateReply(AwaitedReply* reply, bool accepted, int code);
    void startWaiting();
    bool mayStart() const;

    // DeliveryControl_token.cpp: the token that replaces a password
    void deliver(const Waiting& waiting);
    void onToken(const Waiting& waiting, const Result<oauth::Access>& access);
    void noteLogin(const DeliveryOutcome& outcome);

    // DeliveryControl.cpp
    void startNew(const QString& host);
    QString whyNoHost() const;
    void finish(const DeliveryOutcome& outcome);
    void finishLater(const DeliveryOutcome& outcome);
    void report(const DeliveryOutcome& outcome);
    void logStart(const QString& host);
    void log(const QString& outcome);
    Route route(const QString& host) const;

    Transcript m_transcript;
    Composer m_composer;
    SmtpSession m_session;
    oauth::TokenSource m_tokens;
    QByteArray m_token;  ///< with which the running message logs in; empty: none
    bool m_running = false;
    bool m_stopped = false;   ///< since an Abort
    bool m_runIsNew = false;  ///< since BeginRun no tick has begun
    QSet<RunKey> m_acceptedInRun;
    Recipient m_current;
    std::shared_ptr<OutcomeFile> m_book;  ///< of the run
    std::vector<GivenUp> m_awaited;
    AwaitedReply* m_awaitedHere = nullptr;  ///< the running message takes the outcome of this one
    std::optional<Waiting> m_waiting;
    bool m_insideSend = false;  ///< the session may report during the call
    DeliveryOutcome m_later;    ///< to be reported when m_deferred fires
    DeliveryOutcome m_last;
    QByteArray m_messageId;
    QString m_recipient;
    QElapsedTimer m_clock;
    QTimer m_deferred;
};

}  // namespace mail
