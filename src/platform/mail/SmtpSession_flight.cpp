// SPDX-License-Identifier: GPL-3.0-or-later
// A message and its envelope in one flight (RFC 3030): MAIL, RCPT and BDAT with all octets of the message.
#include <cassert>
#include <utility>

#include "platform/mail/SmtpSession.h"
#include "platform/mail/TcpState.h"

namespace mail {

namespace {

/// Octets that a server reads for nothing if it refuses the recipient. For larger messages a round trip is a
/// small cost.
constexpr qsizetype largestFlight = 128 * 1024;

}  // namespace

/// A flight cannot be undone: its outcome on a connection that is already dead stays unknown.
bool SmtpSession::mayFly() const {
    return m_extensions.chunking && m_extensions.pipelining && !m_needsReset && m_taken.isValid() &&
           m_taken.elapsed() < m_times.flight && m_message.text.size() <= largestFlight &&
           !m_grounded.contains(m_route.host) && !waitForInput(int(m_socket->socketDescriptor()), 0);
}

void SmtpSession::fly() {
    const char* const end = m_message.text.endsLine() ? "" : "\r\n";
    const qsizetype size = m_message.text.size() + qsizetype(qstrlen(end));
    command(Step::Mail, envelopeCommand(Step::Mail));
    command(Step::Recipient, envelopeCommand(Step::Recipient));
    command(Step::Body, "BDAT " + QByteArray::number(size) + " LAST");
    noteMessage();
    QByteArray flight = std::exchange(m_output, {});
    const qsizetype whole = flight.size() + size;
    flight.reserve(whole);
    for (const QByteArrayView piece : m_message.text.pieces())
        flight.append(piece);
    flight.append(end);
    assert(flight.size() == whole);  // what BDAT announces
    m_inFlight = m_pointGiven = true;
    writePiece(flight);
}

/// Whether replies and commands are out of step after this reply to the whole message. It asks for more; or
/// it shows that BDAT is unknown, and the octets of the message will be read as commands.
bool SmtpSession::isOutOfStep(const SmtpReply& reply) const {
    const bool notKnown = m_inFlight && !m_refused && reply.code >= 500 && reply.code <= 504;
    return notKnown || reply.intermediate();
}

void SmtpSession::endFlights() {
    m_grounded.insert(m_route.host);
}

}  // namespace mail
