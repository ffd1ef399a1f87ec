// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QByteArray>
#include <QHash>
#include <QHostAddress>
#include <QList>
#include <QStringList>
#include <QTcpServer>

class QTcpSocket;

namespace testing_support {

/// A catch-all SMTP server on loopback that runs on the test's own event loop: it accepts every message,
/// except for recipients with another treatment. No TLS, no login.
class SmtpSink : public QObject {
    Q_OBJECT

  public:
    enum class Treatment {
        Accept,
        Refuse,      ///< 550 at RCPT
        RefuseData,  ///< 452 after the message
        Hang,        ///< never answers RCPT
        Drop,        ///< closes the connection at RCPT
        Hold,        ///< reads the message and replies only at answerHeld()
    };

    struct Message {
        QByteArray recipient;
        QByteArray sender;
        QByteArray data;  ///< dots unstuffed, without the final point
    };

    explicit SmtpSink(const QHostAddress& address = QHostAddress::LocalHost, quint16 port = 0);
    ~SmtpSink() override;

    quint16 port() const { return m_server.serverPort(); }
    void treat(const QByteArray& recipient, Treatment treatment) { m_treatments[recipient] = treatment; }
    /// Answers RCPT with this line, and continues.
    void refuse(const QByteArray& recipient, const QByteArray& reply) {
        treat(recipient, Treatment::Refuse);
        m_refusals[recipient] = reply;
    }
    /// Answers come this many milliseconds late.
    void setDelay(int ms) { m_delayMs = ms; }
    /// Returns the recipients whose message is held, the oldest first.
    QList<QByteArray> held() const;
    /// Sends `text` in answer to the oldest message that is held; an empty text closes its connection.
    void answerHeld(const QByteArray& text);
    /// Runs before a message is answered.
    void onMessage(std::function<void(const Message&)> action) { m_onMessage = std::move(action); }

    const QList<Message>& messages() const { return m_messages; }
    /// Recipients in the order in which they were tried, refused ones included.
    const QStringList& attempts() const { return m_attempts; }
    /// First greeting of each connection: "EHLO" or "HELO".
    const QList<QByteArray>& greetings() const { return m_greetings; }
    /// How many connections are open.
    qsizetype connected() const { return m_sessions.size(); }

  Q_SIGNALS:
    void attempted(const QString& recipient);
    /// A message is complete and not answered yet.
    void taken(const QByteArray& recipient);

  private:
    struct Session {
        QByteArray input;
        Message message;
        bool inData = false;
    };

    struct Held {
        QTcpSocket* socket;
        QByteArray recipient;
    };

    void answer(QTcpSocket* socket, const QByteArray& text);
    void accept();
    void read(QTcpSocket* socket);
    void takeLine(QTcpSocket* socket, Session& session, const QByteArray& line);
    void takeRecipient(QTcpSocket* socket, Session& session, const QByteArray& recipient);
    void takeData(QTcpSocket* socket, Session& session, const QByteArray& line);

    QTcpServer m_server;
    int m_delayMs = 0;
    QList<Held> m_held;
    QHash<QTcpSocket*, Session> m_sessions;
    QHash<QByteArray, Treatment> m_treatments;
    QHash<QByteArray, QByteArray> m_refusals;
    std::function<void(const Message&)> m_onMessage;
    QList<Message> m_messages;
    QStringList m_attempts;
    QList<QByteArray> m_greetings;
};

}  // namespace testing_support
