// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <functional>
#include <QByteArrayList>
#include <QHash>
#include <QList>
#include <QSemaphore>
#include <QThread>
#include <string>

#include "support/TestCertificates.h"

class QSslSocket;

namespace testing_support {

/// An SMTP server on loopback that plays written dialogues, one for each connection, in a thread of its own.
///
/// The lines of a dialogue:
///   S: text      sends the line
///   S- text      sends the text without a line end; \r \n \0 stand for the control characters
///   S. text      sends the line octet by octet
///   C: pattern   expects a line; "*" stands for any text
///   A: name      expects a line and sends what the answer of that name returns for it
///   BODY         reads a message up to the final point and keeps it
///   CHUNK        reads as many octets as the last line said, which was a BDAT, and keeps them like a body
///   READ n       reads n octets
///   EMPTY        expects that nothing more has come
///   TLS          becomes the server's side of a TLS handshake
///   TLSFAIL      as TLS, but expects the handshake to fail
///   WAIT         waits until the client closes
///   HOLD         does nothing until the client closes, not even read
///   PAUSE n      waits n milliseconds
///   GATE         waits until the test calls goOn()
///   DROP         closes
///   RESET        closes with a reset
/// A dialogue that has ended is closed.
class ScriptedServer : public QThread {
  public:
    /// Makes the line to send (without its end) from a line of the client's; it runs in the server's thread.
    using Answer = std::function<QByteArray(const QByteArray& line)>;

    explicit ScriptedServer(QList<QByteArrayList> dialogues, TlsIdentity identity = TlsIdentity(),
                            quint16 port = 0, QHash<QByteArray, Answer> answers = {});
    ~ScriptedServer() override;

    quint16 port() const { return m_port; }

    /// Waits until every dialogue was played and returns the deviations from the script; empty: none.
    std::string remainder();

    /// How often a dialogue has come to a WAIT, a HOLD or a GATE.
    int waits() const { return m_waits; }

    /// How many dialogues have ended, their connections closed by the server or by both.
    int ended() const { return m_ended; }

    /// Lets a dialogue pass one GATE.
    void goOn() { m_gate.release(); }

    // After remainder():
    const QByteArrayList& bodies() const { return m_bodies; }  ///< as received, dots still stuffed
    const QByteArrayList& lines() const { return m_lines; }    ///< that matched a C: line
    const QList<quint16>& peerPorts() const { return m_peerPorts; }

  protected:
    void run() override;

  private:
    struct Unexpected {
        QByteArray text;
    };
    void play(const QByteArrayList& dialogue);
    void step(const QByteArray& line);
    void send(const QByteArray& bytes);
    void receive();
    QByteArray takeLine();
    void expect(const QByteArray& pattern);
    void takeBody();
    QByteArray take(qsizetype octets);
    void waitForEnd();
    void close(bool reset);

    const QList<QByteArrayList> m_dialogues;
    const TlsIdentity m_identity;
    quint16 m_port;
    const QHash<QByteArray, Answer> m_answers;
    QSemaphore m_listening;
    std::atomic<int> m_waits = 0;
    std::atomic<int> m_ended = 0;
    QSemaphore m_gate;
    QSslSocket* m_socket = nullptr;
    QByteArray m_input;
    QByteArray m_problem;
    QByteArrayList m_bodies;
    QByteArrayList m_lines;
    QList<quint16> m_peerPorts;
};

}  // namespace testing_support
