// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHostAddress>
#include <QTcpServer>

namespace testing_support {

/// A TCP proxy on loopback that passes on every octet a fixed time after it came, in both directions: a line
/// with latency and unlimited bandwidth. It counts the flights from client to server: pieces that follow a
/// piece of the other direction.
class DelayProxy : public QObject {
  public:
    /// Listens at `port` (0: any) and connects each client to `target`:`targetPort`.
    DelayProxy(const QHostAddress& target, quint16 targetPort, int delayMs, quint16 port = 0,
               QObject* parent = nullptr);

    quint16 port() const { return m_server.serverPort(); }
    qint64 flights() const { return m_flights; }

  private:
    void accept();

    QTcpServer m_server;
    const QHostAddress m_target;
    const quint16 m_targetPort;
    const int m_delayMs;
    qint64 m_flights = 0;
};

}  // namespace testing_support
