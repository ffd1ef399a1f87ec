// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/SmtpSink.h"

#include <QTcpSocket>
#include <QTimer>

namespace testing_support {

namespace {

QByteArray addressIn(const QByteArray& line) {
    const qsizetype from = line.indexOf('<');
    const qsizetype to = line.indexOf('>', from);
    return line.mid(from + 1, to - from - 1);
}

}  // namespace

SmtpSink::SmtpSink(const QHostAddress& address, quint16 port) {
    if (!m_server.listen(address, port)) qFatal("no loopback port");
    connect(&m_server, &QTcpServer::newConnection, this, [this] { accept(); });
}

SmtpSink::~SmtpSink() {
    for (auto it = m_sessions.keyBegin(); it != m_sessions.keyEnd(); ++it)
        (*it)->disconnect(this);
}

void SmtpSink::answer(QTcpSocket* socket, const QByteArray& text) {
    if (m_delayMs == 0)
        socket->write(text);
    else
        QTimer::singleShot(m_delayMs, Qt::PreciseTimer, socket, [socket, text] {
            if (socket->state() == QAbstractSocket::ConnectedState) socket->write(text);
        });
}

QList<QByteArray> SmtpSink::held() const {
    QList<QByteArray> recipients;
    for (const Held& held : m_held)
        recipients.append(held.recipient);
    return recipients;
}

void SmtpSink::answerHeld(const QByteArray& text) {
    QTcpSocket* const socket = m_held.takeFirst().socket;
    if (text.isEmpty())
        socket->disconnectFromHost();
    else
        answer(socket, text + "\r\n");
}

void SmtpSink::accept() {
    QTcpSocket* socket = m_server.nextPendingConnection();
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    m_sessions.insert(socket, {});
    connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
    connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
        m_sessions.remove(socket);
        m_held.removeIf([socket](const Held& held) { return held.socket == socket; });
        socket->deleteLater();
    });
    answer(socket, "220 sink ready\r\n");
}

void SmtpSink::read(QTcpSocket* socket) {
    m_sessions[socket].input += socket->readAll();
    while (m_sessions.contains(socket)) {
        Session& session = m_sessions[socket];
        const qsizetype end = session.input.indexOf("\r\n");
        if (end < 0) return;
        const QByteArray line = session.input.left(end);
        session.input.remove(0, end + 2);
        if (session.inData) {
            takeData(socket, session, line);
        } else {
            takeLine(socket, session, line);
        }
    }
}

void SmtpSink::takeLine(QTcpSocket* socket, Session& session, const QByteArray& line) {
    const QByteArray verb = line.left(4).toUpper();
    if (verb == "EHLO" || verb == "HELO") {
        m_greetings.append(verb);
        answer(socket, verb == "EHLO" ? "250-sink\r\n250-PIPELINING\r\n250 8BITMIME\r\n" : "250 sink\r\n");
    } else if (verb == "MAIL") {
        session.message = {};
        session.message.sender = addressIn(line);
        answer(socket, "250 ok\r\n");
    } else if (verb == "RCPT") {
        takeRecipient(socket, session, addressIn(line));
    } else if (verb == "DATA") {
        session.inData = !session.message.recipient.isEmpty();
        answer(socket, session.inData ? "354 go on\r\n" : "503 no recipient\r\n");
    } else if (verb == "RSET" || verb == "NOOP") {
        session.message = {};
        answer(socket, "250 ok\r\n");
    } else if (verb == "QUIT") {
        answer(socket, "221 bye\r\n");
        socket->disconnectFromHost();
    } else {
        answer(socket, "502 what\r\n");
    }
}

void SmtpSink::takeRecipient(QTcpSocket* socket, Session& session, const QByteArray& recipient) {
    m_attempts.append(QString::fromUtf8(recipient));
    const Treatment treatment = m_treatments.value(recipient, Treatment::Accept);
    if (treatment == Treatment::Drop) {
        m_sessions.remove(socket);
        socket->abort();
    } else if (treatment == Treatment::Hang) {
        session.input.clear();
        socket->disconnect(this);
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        m_sessions.remove(socket);
    } else if (treatment == Treatment::Refuse) {
        answer(socket, m_refusals.value(recipient, "550 not here") + "\r\n");
    } else {
        session.message.recipient = recipient;
        answer(socket, "250 ok\r\n");
    }
    Q_EMIT attempted(QString::fromUtf8(recipient));
}

void SmtpSink::takeData(QTcpSocket* socket, Session& session, const QByteArray& line) {
    if (line != ".") {
        session.message.data += (line.startsWith("..") ? line.mid(1) : line) + "\r\n";
        return;
    }
    session.inData = false;
    if (m_treatments.value(session.message.recipient) == Treatment::RefuseData) {
        answer(socket, "452 no room\r\n");
        return;
    }
    m_messages.append(session.message);
    const QByteArray recipient = session.message.recipient;
    if (m_onMessage) m_onMessage(session.message);
    Q_EMIT taken(recipient);
    if (m_treatments.value(recipient) == Treatment::Hold) {
        m_held.append({socket, recipient});
        return;
    }
    answer(socket, "250 taken\r\n");
}

}  // namespace testing_support
