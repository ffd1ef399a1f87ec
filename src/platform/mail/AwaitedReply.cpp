// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/AwaitedReply.h"

#include <cassert>
#include <QDeadlineTimer>

#include "platform/mail/SmtpReply.h"
#include "platform/mail/TcpState.h"

namespace mail {

AwaitedReply::AwaitedReply(QSslSocket* socket, const QByteArray& input, int before, int limitMs)
    : m_socket(socket), m_input(input), m_before(before) {
    assert(before >= 0);
    m_socket->setParent(this);
    connect(m_socket, &QSslSocket::readyRead, this, &AwaitedReply::look);
    connect(m_socket, &QSslSocket::errorOccurred, this, [this](QAbstractSocket::SocketError error) {
        if (error == QAbstractSocket::SocketTimeoutError) return;  // of waitForEnd
        m_lost = true;
        look();
    });
    m_limit.setSingleShot(true);
    connect(&m_limit, &QTimer::timeout, this, &AwaitedReply::onLimit);
    m_limit.start(limitMs);
}

AwaitedReply::~AwaitedReply() {
    m_socket->disconnect(this);
}

void AwaitedReply::look() {
    if (m_ended) return;
    m_input += m_socket->readAll();
    if (m_before == 0 && isAcceptance(m_input)) {
        end(true, acceptanceCode(m_input));
        return;
    }
    const ReplyParse parse = parseSmtpReply(m_input, 0);
    if (parse.state == ReplyParse::State::Complete && m_before > 0 && parse.reply.positive()) {
        --m_before;
        m_input.remove(0, parse.next);
        look();
    } else if (parse.state == ReplyParse::State::Complete)
        end(false, parse.reply.code);
    else if (parse.state == ReplyParse::State::Malformed || m_lost ||
             m_socket->state() != QAbstractSocket::ConnectedState)
        end(false, 0);
}

void AwaitedReply::onLimit() {
    // Events may not have been processed until now.
    waitForEnd(0);
    end(false, 0);
}

void AwaitedReply::waitForEnd(int ms) {
    const QDeadlineTimer deadline(ms);
    while (!m_ended && waitForInput(int(m_socket->socketDescriptor()), int(deadline.remainingTime())))
        if (!m_socket->waitForReadyRead(0)) break;
    look();
}

void AwaitedReply::end(bool accepted, int code) {
    if (m_ended) return;
    m_ended = true;
    m_limit.stop();
    m_socket->disconnect(this);
    if (code != 0 && m_socket->state() == QAbstractSocket::ConnectedState) {
        m_socket->write("QUIT\r\n");
        m_socket->flush();
    } else {
        resetOnClose(int(m_socket->socketDescriptor()));
    }
    m_socket->abort();
    Q_EMIT ended(accepted, code);
}

}  // namespace mail
