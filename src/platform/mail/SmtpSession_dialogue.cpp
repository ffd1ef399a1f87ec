// SPDX-License-Identifier: GPL-3.0-or-later
// The dialogue of a session: commands, replies and what follows from them.
#include <algorithm>
#include <cassert>
#include <QHostAddress>
#include <QHostInfo>
#include <utility>

#include "platform/mail/DomainName.h"
#include "platform/mail/SmtpSession.h"
#include "platform/mail/TcpState.h"
#include "platform/text/Words.h"

namespace mail {

namespace {

/// Octets of a body that are given to the socket at a time. Messages below this size are sent in one write,
/// with their final point.
constexpr qsizetype bodyPiece = 128 * 1024;
constexpr int piecesInARow = 32;

/// A name that others can find this machine by (RFC 5321 4.1.1.1).
bool isFullHostName(const QString& name) {
    return name.contains(u'.') && connectableHost(name) == name && QHostAddress(name).isNull();
}

}  // namespace

void SmtpSession::onReadyRead() {
    QSslSocket* const socket = m_socket;
    m_input += socket->readAll();
    // A reply can end the connection and, through finished(), start the next delivery.
    while (m_socket == socket && !m_expected.isEmpty() && !m_handshaking) {
        ReplyParse parse = parseSmtpReply(m_input, m_inputRead);
        if (parse.state == ReplyParse::State::Incomplete) {
            if (m_expected.first() == Step::Body && inputLeft() && !hasGivenAll()) m_answeredEarly = true;
            if (wasAccepted() && m_stall.interval() > m_times.stall) progress();
            break;
        }
        if (parse.state == ReplyParse::State::Malformed) {
            const qsizetype shown = std::min<qsizetype>(m_input.size() - m_inputRead, 200);
            m_transcript.remark(QStringLiteral("Risposta non valida"));
            lost(0,
                 Words::tr("Risposta del server non valida: %1")
                     .arg(printable(QByteArrayView(m_input).sliced(m_inputRead, shown))),
                 Loss::Disorder);
            return;
        }
        if (wasAccepted()) parse.reply.code = acceptanceCode(QByteArrayView(m_input).sliced(m_inputRead));
        m_inputRead = parse.next;
        progress();
        onReply(m_expected.takeFirst(), parse.reply);
    }
    if (m_socket != socket) return;
    if (m_expected.isEmpty() && !m_handshaking && inputLeft()) {
        onUnexpectedInput();
        return;
    }
    m_input.remove(0, m_inputRead);
    m_inputRead = 0;
}

void SmtpSession::onUnexpectedInput() {
    // An unsolicited reply: at best a goodbye, and no later reply could be matched
    // reliably.
    SmtpReply reply = parseSmtpReply(m_input, m_inputRead).reply;
    if (reply.intermediate()) reply.text = "(omesso)";  // it may be a token of the login
    m_transcript.received(reply.code, reply.text);
    if (reply.code == 421)
        lost(421, printable(reply.text));
    else
        lost(0, Words::tr("Risposta del server inattesa: %1 %2").arg(reply.code).arg(printable(reply.text)),
             Loss::Disorder);
}

bool SmtpSession::inputLeft() const {
    return m_inputRead < m_input.size() || m_socket->bytesAvailable() > 0;
}

void SmtpSession::onReply(Step step, const SmtpReply& reply) {
    m_answered = step;
    const bool challenge = step == Step::Auth && reply.intermediate();
    m_transcript.received(reply.code, challenge ? QByteArrayView("(omesso)") : QByteArrayView(reply.text));
    if (reply.code == 421) {
        lost(reply.code, printable(reply.text), Loss::Farewell);
        return;
    }
    switch (step) {
        case Step::Greeting:
            noteGreeting();
            m_findings.greeted = reply.positive();
            if (reply.positive())
                hello();
            else
                reject(reply);
            break;
        case Step::Ehlo:
        case Step::Helo:
            onHello(step, reply);
            break;
        case Step::StartTls:
            onStartTlsReply(reply);
            break;
        case Step::Auth:
            takeLoginStep(m_login->onReply(reply));
            break;
        case Step::Reset:
        case Step::Mail:
        case Step::Recipient:
            onEnvelopeReply(step, reply);
            break;
        case Step::Data:
            onDataReply(reply);
            break;
        case Step::EmptyBody:
            settleRefusal();
            break;
        case Step::Body:
            onBodyReply(reply);
            break;
    }
}

void SmtpSession::command(Step step, const QByteArray& line) {
    command(step, line, line);
}

void SmtpSession::command(Step step, const QByteArray& line, const QByteArray& shown) {
    m_transcript.sent(shown);
    m_output += line;
    m_output += "\r\n";
    m_expected.append(step);
}

void SmtpSession::writeCommands() {
    if (inputLeft()) {
        onUnexpectedInput();
        return;
    }
    writePiece(std::exchange(m_output, {}));
}

QByteArray SmtpSession::greetingName() const {
    const QString name = QHostInfo::localHostName();
    if (isFullHostName(name)) return name.toLatin1();
    QHostAddress address = m_socket->localAddress();
    address.setScopeId({});
    bool isIpv4 = false;
    const quint32 ipv4 = address.toIPv4Address(&isIpv4);
    if (isIpv4) return '[' + QHostAddress(ipv4).toString().toLatin1() + ']';
    return "[IPv6:" + address.toString().toLatin1() + ']';
}

void SmtpSession::hello() {
    m_extensions = {};
    command(m_heloOnly ? Step::Helo : Step::Ehlo, (m_heloOnly ? "HELO " : "EHLO ") + greetingName());
    writeCommands();
}

void SmtpSession::onHello(Step step, const SmtpReply& reply) {
    if (reply.positive()) {
        if (step == Step::Ehlo) m_extensions = SmtpExtensions::read(reply.text);
        m_findings.sizeLimit = m_extensions.sizeLimit;
        afterHello();
    } else if (step == Step::Ehlo && reply.code >= 500) {
        m_heloOnly = true;
        hello();
    } else {
        reject(reply);
    }
}

void SmtpSession::afterHello() {
    if (wantsTls()) {
        if (m_extensions.startTls) noteTlsOffer();
        command(Step::StartTls, "STARTTLS");
        writeCommands();
    } else if (missesTls()) {
        conclude({false, 0,
                  Words::tr("Il server non offre più la connessione TLS, che ha offerto in passato. Per "
                            "dimenticarlo cancellare la sua riga dal file %1.")
                      .arg(m_route.tlsListFile),
                  false, DeliveryStage::Tls});
    } else if (m_route.login && !m_authenticated) {
        startLogin();
    } else {
        if (!m_socket->isEncrypted()) m_transcript.remark(QStringLiteral("Connessione ") + security());
        m_ready = true;
        if (m_inspecting)
            conclude({true, 0, {}});
        else
            startTransaction();
    }
}

void SmtpSession::startTransaction() {
    assert(m_busy && !m_inspecting && isIdle() && !missesTls());
    if (m_message.needsSmtputf8 && !m_extensions.smtputf8) {
        conclude({false, 0, Words::tr("Il server non accetta indirizzi con caratteri internazionali."), false,
                  DeliveryStage::Sender});
        return;
    }
    if (mayFly()) {
        fly();
        return;
    }
    m_plan = {Step::Mail, Step::Recipient, Step::Data};
    if (m_needsReset) m_plan.prepend(Step::Reset);
    sendEnvelope();
}

void SmtpSession::sendEnvelope() {
    do {
        const Step step = m_plan.takeFirst();
        command(step, envelopeCommand(step));
    } while (m_extensions.pipelining && !m_plan.isEmpty());
    writeCommands();
}

QByteArray SmtpSession::envelopeCommand(Step step) const {
    if (step == Step::Reset) return "RSET";
    if (step == Step::Data) return "DATA";
    if (step == Step::Recipient) return "RCPT TO:<" + m_message.to.address() + '>';
    QByteArray line = "MAIL FROM:<" + m_message.from.address() + '>';
    if (m_extensions.size) line += " SIZE=" + QByteArray::number(m_message.text.size());
    if (m_extensions.eightBitMime) line += " BODY=8BITMIME";
    if (m_message.needsSmtputf8) line += " SMTPUTF8";
    return line;
}

void SmtpSession::onEnvelopeReply(Step step, const SmtpReply& reply) {
    if (reply.intermediate() || (step == Step::Reset && !reply.positive())) {
        lost(reply.code, printable(reply.text), Loss::Disorder);
        return;
    }
    if (reply.positive()) {
        if (step == Step::Reset) m_needsReset = false;
        if (step == Step::Mail) m_mailAccepted = m_needsReset = true;
    } else {
        refuse(reply);
    }
    if (m_refused)
        settleRefusal();
    else if (m_expected.isEmpty())
        sendEnvelope();
}

void SmtpSession::refuse(const SmtpReply& reply) {
    if (m_refused) return;
    m_refused = true;
    m_refusal = refusal(reply);
}

/// The outcome of a step that this reply does not accept.
DeliveryOutcome SmtpSession::refusal(const SmtpReply& reply) const {
    return {false, reply.code, printable(reply.text), false, stageOf(m_answered), DeliveryCause::Server};
}

void SmtpSession::reject(const SmtpReply& reply) {
    conclude(refusal(reply));
}

void SmtpSession::settleRefusal() {
    if (!m_expected.isEmpty()) return;
    m_plan.clear();
    conclude(m_refusal);
}

void SmtpSession::onDataReply(const SmtpReply& reply) {
    if (reply.positive()) {
        // No answer to DATA: replies and commands are out of step, and the reply to MAIL is unknown.
        m_mailAccepted = false;
        lost(0, Words::tr("Risposta del server inattesa: %1 %2").arg(reply.code).arg(printable(reply.text)),
             Loss::Disorder);
    } else if (!reply.intermediate()) {
        refuse(reply);
        settleRefusal();
    } else if (m_refused) {
        // The server waits for a message whose sender or recipient it has refused: it gets an empty one (RFC
        // 2920 3.1), which has no recipient.
        m_output = ".\r\n";
        m_expected.append(Step::EmptyBody);
        writeCommands();
    } else if (inputLeft()) {
        onUnexpectedInput();
    } else {
        noteMessage();
        m_expected.append(Step::Body);
        m_fed = {};
        m_feeding = true;
        feedBody();
    }
}

void SmtpSession::noteMessage() {
    if (m_transcript.active())
        m_transcript.sent("(messaggio: " + QByteArray::number(m_message.text.size()) + " byte)");
}

void SmtpSession::feedBody() {
    QSslSocket* const socket = m_socket;
    for (int pieces = 1; m_socket == socket && m_feeding && allTaken(); ++pieces) {
        assert(!m_pointGiven && !m_refused);
        const QByteArray piece = m_message.text.stuffed(m_fed, bodyPiece);
        m_feeding = !m_message.text.isEnd(m_fed);
        m_pointGiven = !m_feeding;
        QByteArrayView end;
        if (!m_feeding) end = m_message.text.endsLine() ? ".\r\n" : "\r\n.\r\n";
        // The event loop runs in between, however quickly the server reads.
        if (pieces == piecesInARow)
            socket->write(piece + end.toByteArray());
        else
            writePiece(piece, end);
    }
}

/// Writes what the system takes at once. Only the rest goes through the socket's own buffer, which saves a
/// copy of each large message.
void SmtpSession::writePiece(QByteArrayView piece, QByteArrayView end) {
    QSslSocket* const socket = m_socket;  // a failure clears m_socket
    const bool atOnce = !socket->isEncrypted() && socket->bytesToWrite() == 0;
    const qsizetype taken = atOnce ? sendAtOnce(int(socket->socketDescriptor()), piece, end) : 0;
    const bool anyLeft = taken < piece.size() + end.size();
    if (anyLeft) {
        // In one write: with TLS each becomes a record of its own
        if (taken == 0 && end.isEmpty()) {
            socket->write(piece.data(), piece.size());
        } else {
            QByteArray left = piece.toByteArray() + end.toByteArray();
            left.remove(0, taken);
            socket->write(left);
        }
    }
    if (taken > 0)
        noteTaken();
    else
        progress();
    if (anyLeft) socket->flush();
}

bool SmtpSession::allTaken() const {
    return m_socket->bytesToWrite() + m_socket->encryptedBytesToWrite() == 0;
}

void SmtpSession::onBodyReply(const SmtpReply& reply) {
    const bool complete = !m_feeding && allTaken() && !m_answeredEarly;
    const bool delivered = reply.positive() && complete && !m_refused;
    m_needsReset = !delivered;
    if (delivered) m_taken.start();
    DeliveryOutcome outcome = m_refused ? m_refusal : refusal(reply);
    outcome.delivered = delivered;
    if (!complete || isOutOfStep(reply)) {
        if (m_inFlight) endFlights();
        dropConnection();
    }
    conclude(outcome);
}

}  // namespace mail
