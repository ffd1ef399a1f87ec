// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/DelayProxy.h"

#include <memory>
#include <QDeadlineTimer>
#include <QQueue>
#include <QTcpSocket>
#include <QTimer>
#include <utility>

namespace testing_support {

namespace {

/// Passes on what `from` receives to `to`, `delayMs` later.
class Pipe : public QObject {
  public:
    Pipe(QTcpSocket* from, QTcpSocket* to, int delayMs, QObject* parent)
        : QObject(parent), m_from(from), m_to(to), m_delayMs(delayMs) {
        m_timer.setSingleShot(true);
        m_timer.setTimerType(Qt::PreciseTimer);
        connect(&m_timer, &QTimer::timeout, this, &Pipe::deliver);
        connect(from, &QTcpSocket::readyRead, this, [this] { hold(m_from->readAll()); });
        // An empty piece means the end of the stream.
        connect(from, &QTcpSocket::disconnected, this, [this] { hold({}); });
    }

  private:
    struct Piece {
        QDeadlineTimer due;
        QByteArray bytes;
    };

    void hold(const QByteArray& bytes) {
        m_pieces.enqueue({QDeadlineTimer(m_delayMs, Qt::PreciseTimer), bytes});
        if (!m_timer.isActive()) m_timer.start(m_delayMs);
    }

    void deliver() {
        while (!m_pieces.isEmpty() && m_pieces.head().due.hasExpired()) {
            const QByteArray bytes = m_pieces.dequeue().bytes;
            if (bytes.isEmpty()) {
                m_to->disconnectFromHost();
                return;
            }
            m_to->write(bytes);
            m_to->flush();
        }
        if (!m_pieces.isEmpty()) m_timer.start(int(m_pieces.head().due.remainingTime()));
    }

    QTcpSocket* const m_from;
    QTcpSocket* const m_to;
    const int m_delayMs;
    QQueue<Piece> m_pieces;
    QTimer m_timer;
};

}  // namespace

DelayProxy::DelayProxy(const QHostAddress& target, quint16 targetPort, int delayMs, quint16 port,
                       QObject* parent)
    : QObject(parent), m_target(target), m_targetPort(targetPort), m_delayMs(delayMs) {
    connect(&m_server, &QTcpServer::newConnection, this, &DelayProxy::accept);
    if (!m_server.listen(QHostAddress::LocalHost, port)) qFatal("the proxy cannot listen at port %d", port);
}

void DelayProxy::accept() {
    while (QTcpSocket* client = m_server.nextPendingConnection()) {
        auto* server = new QTcpSocket(client);
        client->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        connect(server, &QTcpSocket::connected, server,
                [server] { server->setSocketOption(QAbstractSocket::LowDelayOption, 1); });
        connect(server, &QTcpSocket::disconnected, client, [client, delay = m_delayMs] {
            QTimer::singleShot(2 * delay + 100, client, &QObject::deleteLater);
        });
        new Pipe(client, server, m_delayMs, client);
        new Pipe(server, client, m_delayMs, client);

        const auto answered = std::make_shared<bool>(true);
        connect(client, &QTcpSocket::readyRead, this, [this, answered] {
            if (std::exchange(*answered, false)) ++m_flights;
        });
        connect(server, &QTcpSocket::readyRead, this, [answered] { *answered = true; });
        server->connectToHost(m_target, m_targetPort);
    }
}

}  // namespace testing_support
