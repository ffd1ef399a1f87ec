// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QObject>
#include <QSslSocket>
#include <QTimer>

namespace mail {

/// The reply to the final point of a message that was given up. The server may have accepted the message all
/// the same: the connection stays open, only for this, until it replies.
class AwaitedReply : public QObject {
    Q_OBJECT
  public:
    /// Takes ownership of `socket`, which is connected. `input` is what was read and not yet used, `before`
    /// how many replies to the envelope come first, and `limitMs` the time limit for all of them. A refusal
    /// of the envelope is the outcome.
    AwaitedReply(QSslSocket* socket, const QByteArray& input, int before, int limitMs);
    ~AwaitedReply() override;

    /// Reads what has arrived. To be called once ended() is connected.
    void look();

    /// Waits for the reply without an event loop; ended() may be emitted during the call.
    void waitForEnd(int ms);

  Q_SIGNALS:
    /// The only signal, once. `code` is the server's reply code, 0 where none came in time: whether the
    /// message was accepted is then unknown.
    void ended(bool accepted, int code);

  private:
    void onLimit();
    void end(bool accepted, int code);

    QSslSocket* m_socket;
    QByteArray m_input;
    int m_before;
    QTimer m_limit;
    bool m_lost = false;
    bool m_ended = false;
};

}  // namespace mail
