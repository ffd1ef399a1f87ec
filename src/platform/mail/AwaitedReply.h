#pragma once

#include <QByteArray>
#include <QObject>
#include <QSslSocket>
#include <QTimer>

namespace mail {

/// The reply to the final point of a message that was given up meanwhile. The server may have taken the
/// message all the same: the connection stays open, for nothing else, until it says so.
class AwaitedReply : public QObject {
    Q_OBJECT
  public:
    /// Takes `socket`, which is connected, from its owner. `input` is what was read so far and not used,
    /// `before` how many replies to the envelope come first, and `limitMs` how long all of them are waited
    /// for. A refusal of the envelope decides.
    AwaitedReply(QSslSocket* socket, const QByteArray& input, int before, int limitMs);
    ~AwaitedReply() override;

    /// Looks at what has come. To be called once ended() is connected.
    void look();

    /// Waits for the reply while no event loop runs; ended() may follow from within.
    void waitForEnd(int ms);

  Q_SIGNALS:
    /// The only signal, once. `code` is the server's reply code, 0 where none came or the time is up: whether
    /// the message was taken is not known then.
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
