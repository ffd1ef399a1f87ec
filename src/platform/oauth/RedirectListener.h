// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QString>
#include <QTcpServer>

#include "platform/Status.h"

class QTcpSocket;

namespace oauth {

/// The listener on the loopback address for the provider's answer, which the browser sends (RFC 8252 7.3). An
/// answer with a wrong state gets an error page and is ignored. The first one with the right state ends the
/// listening.
class RedirectListener : public QObject {
    Q_OBJECT
  public:
    explicit RedirectListener(QObject* parent = nullptr);

    /// Listens on a free port. `redirectHost` is one of Provider's, `state` what an answer must contain.
    Status listen(const QString& redirectHost, const QByteArray& state);
    quint16 port() const { return m_server.serverPort(); }
    /// Ends the listening and drops the connections.
    void close();

  Q_SIGNALS:
    /// The one answer: a code, or the provider's error code.
    void answered(const QByteArray& code, const QByteArray& error);

  private:
    void accept();
    void read(QTcpSocket* browser);
    void answer(QTcpSocket* browser, const char* status, const QString& text);

    QTcpServer m_server;
    QByteArray m_state;
    QHash<QTcpSocket*, QByteArray> m_browsers;  ///< with what each has sent
};

}  // namespace oauth
