#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include "platform/mail/Composer.h"
#include "platform/mail/Route.h"
#include "platform/mail/SmtpSession.h"
#include "platform/mail/Transcript.h"

namespace mail {

/// The files that go with each message.
class AttachmentList {
  public:
    void Clear() { m_items.clear(); }
    /// `name` is what the recipient sees. The file is read at the next Send.
    void Add(const QString& path, const QString& name) { m_items.append({path, name}); }
    const QVector<Attachment>& items() const { return m_items; }

  private:
    QVector<Attachment> m_items;
};

/// Composes and delivers one message at a time over SMTP. The caller sets the fields, calls Send and waits
/// for one of the two signals; fields keep their values between messages.
///
/// Everything runs on the caller's event loop. The connection is kept between messages with the same route
/// and closed when nothing was sent for 30 seconds.
class DeliveryControl : public QObject {
    Q_OBJECT
  public:
    explicit DeliveryControl(QObject* parent = nullptr);

    QString LogFile;          ///< path of the support log; see Transcript
    bool LogEnabled = false;  ///< keep that log
    qint32 HeloMode = 0;      ///< 0 greets with EHLO, 1 with HELO
    /// Longest time without progress: the server takes bytes or completes a reply. Below 1: 60 seconds.
    qint16 TimeoutSecs = 60;
    QString BodyText;
    QString BodyHtml;
    QString TemplateHtml;  ///< the body before personalisation: only local images that it names are embedded
    QString UnsubscribeLink;  ///< see MessageData
    qint32 BodyFormat = 1;    ///< kept, without effect: there are always both a text and an HTML part
    qint32 Priority = 3;      ///< 1 high, 3 normal, 5 low
    QString Subject;
    QString ToAddress;  ///< one plain addr-spec
    QString ToName;
    QString FromName;
    QString FromAddress;
    bool UseAuth = false;
    quint16 OutPort = 0;  ///< local port; any other one is taken when it cannot be had. 0: any
    quint16 ServerPort = 25;
    QString UserPassword;
    QString UserName;
    QString ServerName;
    AttachmentList Attachments;
    bool OpportunisticTls = false;  ///< see Route; set on the direct route to the recipient's own server
    QString CertificateFolder;      ///< see Route
    QString DkimFolder;             ///< see DkimSigner

    /// Starts the delivery of a message made from the fields as they stand and returns. Exactly one of
    /// SendDone and SendError follows, from the event loop, never from within this call. A message that is
    /// still under way is dropped without any signal.
    void Send();

    /// Ends a running delivery with SendError before it returns; does nothing when none runs.
    void Abort();

  Q_SIGNALS:
    /// The server has taken the message.
    void SendDone();
    /// The message was not delivered, or whether it was cannot be known. `code` is the server's reply code
    /// and `text` what it said; without an answer `code` is 0 and `text` (Italian) tells what happened.
    void SendError(int code, const QString& text);

  private:
    MessageData data() const;
    QString whyNoHost() const;
    void finish(const DeliveryOutcome& outcome);
    void report();
    void logStart(const QString& host);
    void log(const QString& outcome);
    Route route(const QString& host) const;

    Transcript m_transcript;
    Composer m_composer;
    SmtpSession m_session;
    bool m_running = false;
    bool m_insideSend = false;
    DeliveryOutcome m_outcome;
    QByteArray m_messageId;
    QString m_recipient;
    QElapsedTimer m_clock;
    QTimer m_deferred;
};

}  // namespace mail
