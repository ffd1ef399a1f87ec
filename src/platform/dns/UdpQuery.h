// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <QByteArray>

#include "platform/Status.h"

namespace dns {

/// One question and one answer over UDP (RFC 1035, 4.2.1). The socket is connected: only datagrams of the
/// server that was asked arrive, and a closed port is reported at once. The destructor closes it. All waiting
/// blocks the thread. No answer is Timeout, every other failure DeviceIo, with the system's reason.
class UdpQuery {
  public:
    /// How long receive() waits after each question.
    static constexpr std::chrono::milliseconds usualWait{5000};

    /// `questions` is how often the question is sent until an answer comes.
    explicit UdpQuery(std::chrono::milliseconds wait = usualWait, int questions = 2);
    ~UdpQuery();
    UdpQuery(const UdpQuery&) = delete;
    UdpQuery& operator=(const UdpQuery&) = delete;

    /// False when no socket could be opened; nothing can be sent then.
    bool isOpen() const { return m_socket >= 0; }

    /// Sends the question. `address` is an IPv4 address in host byte order.
    Status send(std::uint32_t address, std::uint16_t port, const QByteArray& question);

    /// The first datagram that arrives, cut to `longest` bytes. The question is sent again when none came
    /// within the wait.
    Result<QByteArray> receive(qsizetype longest);

  private:
    int m_socket;
    std::chrono::milliseconds m_wait;
    int m_questions;
    QByteArray m_question;
};

}  // namespace dns
