// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QList>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include "platform/mail/DeliveryControl.h"
#include "support/ScriptedServer.h"

/// One signal of a delivery control.
struct Heard {
    bool done = false;
    int code = 0;
    QString text;
};

/// A delivery control with a message in it, and everything that it has reported.
class Client {
  public:
    explicit Client(quint16 port = 0) {
        smtp.ServerName = QStringLiteral("127.0.0.1");
        smtp.ServerPort = port;
        smtp.FromName = QStringLiteral("Mittente");
        smtp.FromAddress = QStringLiteral("mittente@example.it");
        smtp.ToName = QStringLiteral("Rossi");
        smtp.ToAddress = QStringLiteral("rossi@example.it");
        smtp.Subject = QStringLiteral("Prova");
        smtp.BodyText = QStringLiteral("Buongiorno");
        smtp.BodyHtml = QStringLiteral("<html><body>Buongiorno</body></html>");
        smtp.TimeoutSecs = 10;
        smtp.StageTimes = {.greeting = 0, .hello = 0, .login = 0, .finalReply = 0, .farewell = 0};
        QObject::connect(&smtp, &mail::DeliveryControl::SendDone, [this] { hear({true, 0, {}}); });
        QObject::connect(&smtp, &mail::DeliveryControl::SendError, [this](int code, const QString& text) {
            hear({false, code, text});
        });
    }

    /// Sends and waits for the outcome, which must come from the event loop and be the only one.
    Heard send() {
        heard.clear();
        smtp.Send();
        EXPECT_TRUE(heard.isEmpty()) << "an outcome came from within Send";
        waitForOutcome();
        turn();
        EXPECT_EQ(heard.size(), 1);
        return heard.isEmpty() ? Heard{} : heard.first();
    }

    void waitForOutcome() {
        QTimer limit;
        QObject::connect(&limit, &QTimer::timeout, &m_loop, &QEventLoop::quit);
        limit.start(patienceMs);
        if (heard.isEmpty()) m_loop.exec();
    }

    /// Lets the event loop run for a while.
    static void turn(int ms = 1) {
        QEventLoop loop;
        QTimer::singleShot(ms, &loop, &QEventLoop::quit);
        loop.exec();
    }

    /// Lets the event loop run until the condition is true, with a limit.
    template <class Condition>
    static bool turnUntil(Condition condition) {
        const QDeadlineTimer patience(patienceMs);
        while (!condition()) {
            if (patience.hasExpired()) return false;
            turn();
        }
        return true;
    }

    mail::DeliveryControl smtp;
    QList<Heard> heard;

  private:
    void hear(const Heard& outcome) {
        heard.append(outcome);
        m_loop.quit();
    }

    static constexpr int patienceMs = 120000;  // a busy machine is slow
    QEventLoop m_loop;
};

/// A server that must not be connected to.
class Unasked {
  public:
    Unasked() { EXPECT_TRUE(m_server.listen(QHostAddress::Any)); }
    quint16 port() const { return m_server.serverPort(); }
    /// Whether a client connected before this call: the server accepts in order, so the call's own connection
    /// is the first otherwise.
    bool wasAsked() {
        QTcpSocket visitor;
        visitor.connectToHost(QHostAddress::LocalHost, port());
        EXPECT_TRUE(visitor.waitForConnected());
        EXPECT_TRUE(m_server.hasPendingConnections() || m_server.waitForNewConnection(20000));
        const std::unique_ptr<QTcpSocket> first(m_server.nextPendingConnection());
        return !first || first->peerPort() != visitor.localPort();
    }

  private:
    QTcpServer m_server;
};

// Parts of dialogues.
inline const QByteArrayList hello{"S: 220 ready", "C: EHLO *", "S: 250 ready"};
inline const QByteArrayList helloPipelining{"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 PIPELINING"};
inline const QByteArrayList message{"C: MAIL FROM:<mittente@example.it>",
                                    "S: 250 sender ok",
                                    "C: RCPT TO:<rossi@example.it>",
                                    "S: 250 recipient ok",
                                    "C: DATA",
                                    "S: 354 go ahead",
                                    "BODY",
                                    "S: 250 taken"};
/// The same with pipelining: nothing is answered before the whole group has arrived.
inline const QByteArrayList groupedMessage{"C: MAIL FROM:<mittente@example.it>",
                                           "C: RCPT TO:<rossi@example.it>",
                                           "C: DATA",
                                           "S: 250 sender ok",
                                           "S: 250 recipient ok",
                                           "S: 354 go ahead",
                                           "BODY",
                                           "S: 250 taken"};
inline const QByteArrayList reset{"C: RSET", "S: 250 flushed"};

/// Sends a message by a control and a server of its own. Events of another control that were due before
/// are handled when it returns.
inline void letAMessagePass() {
    testing_support::ScriptedServer server({hello + message});
    Client client(server.port());
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}
