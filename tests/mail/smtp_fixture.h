#pragma once

#include <gtest/gtest.h>

#include <QEventLoop>
#include <QList>
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
        smtp.StageTimes = {.greeting = 0, .hello = 0, .finalReply = 0, .farewell = 0};
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
        QTimer::singleShot(20000, &m_loop, &QEventLoop::quit);
        if (heard.isEmpty()) m_loop.exec();
    }

    /// Lets the event loop run for a while.
    static void turn(int ms = 1) {
        QEventLoop loop;
        QTimer::singleShot(ms, &loop, &QEventLoop::quit);
        loop.exec();
    }

    mail::DeliveryControl smtp;
    QList<Heard> heard;

  private:
    void hear(const Heard& outcome) {
        heard.append(outcome);
        m_loop.quit();
    }

    QEventLoop m_loop;
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
/// The same with pipelining: nothing is answered before the whole group has come.
inline const QByteArrayList groupedMessage{"C: MAIL FROM:<mittente@example.it>",
                                           "C: RCPT TO:<rossi@example.it>",
                                           "C: DATA",
                                           "S: 250 sender ok",
                                           "S: 250 recipient ok",
                                           "S: 354 go ahead",
                                           "BODY",
                                           "S: 250 taken"};
inline const QByteArrayList reset{"C: RSET", "S: 250 flushed"};
