// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <QtGlobal>

namespace testing_support {

/// A port of loopback that neither accepts nor refuses a connection: it listens, nothing accepts, and its
/// backlog is full.
class FullPort {
  public:
    FullPort() : m_listening(::socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        auto* any = reinterpret_cast<sockaddr*>(&address);
        socklen_t size = sizeof address;
        if (::bind(m_listening, any, size) != 0 || ::listen(m_listening, 0) != 0 ||
            ::getsockname(m_listening, any, &size) != 0)
            qFatal("no port to listen at");
        m_port = ntohs(address.sin_port);
        for (int& waiting : m_waiting) {
            waiting = ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0);
            static_cast<void>(::connect(waiting, any, size));
        }
    }
    ~FullPort() {
        for (const int waiting : m_waiting)
            ::close(waiting);
        ::close(m_listening);
    }
    FullPort(const FullPort&) = delete;
    FullPort& operator=(const FullPort&) = delete;

    std::uint16_t port() const { return m_port; }

  private:
    int m_listening;
    std::uint16_t m_port = 0;
    std::array<int, 4> m_waiting{};
};

}  // namespace testing_support
