// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <QByteArray>
#include <thread>
#include <vector>

namespace testing_support {

inline sockaddr_in loopback(std::uint16_t port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

/// A datagram socket on a free port of loopback.
class LoopbackSocket {
  public:
    LoopbackSocket() : m_socket(::socket(AF_INET, SOCK_DGRAM, 0)) {
        sockaddr_in address = loopback(0);
        socklen_t size = sizeof address;
        EXPECT_EQ(::bind(m_socket, reinterpret_cast<sockaddr*>(&address), size), 0);
        EXPECT_EQ(::getsockname(m_socket, reinterpret_cast<sockaddr*>(&address), &size), 0);
        m_port = ntohs(address.sin_port);
    }
    ~LoopbackSocket() { ::close(m_socket); }
    LoopbackSocket(const LoopbackSocket&) = delete;
    LoopbackSocket& operator=(const LoopbackSocket&) = delete;

    int descriptor() const { return m_socket; }
    std::uint16_t port() const { return m_port; }

    void send(const sockaddr_in& to, const QByteArray& datagram) const {
        EXPECT_EQ(::sendto(m_socket, datagram.constData(), static_cast<size_t>(datagram.size()), 0,
                           reinterpret_cast<const sockaddr*>(&to), sizeof to),
                  datagram.size());
    }

  private:
    int m_socket;
    std::uint16_t m_port = 0;
};

/// A port of loopback that refuses every datagram as long as the object lives: its socket is connected to
/// one other socket only.
class RefusingPort {
  public:
    RefusingPort() {
        const sockaddr_in only = loopback(m_other.port());
        EXPECT_EQ(::connect(m_socket.descriptor(), reinterpret_cast<const sockaddr*>(&only), sizeof only), 0);
    }
    std::uint16_t port() const { return m_socket.port(); }

  private:
    LoopbackSocket m_other;
    LoopbackSocket m_socket;
};

struct Datagram {
    QByteArray bytes;
    sockaddr_in from{};
};

/// A UDP server that hands every datagram to a script, in a thread of its own. The script gets all datagrams
/// so far, the newest last, and answers through the socket, to whom and as often as it likes.
class UdpResponder {
  public:
    using Script = std::function<void(const LoopbackSocket& socket, const std::vector<Datagram>& received)>;

    explicit UdpResponder(Script script) : m_script(std::move(script)) {
        const timeval tick{0, 20000};
        EXPECT_EQ(::setsockopt(m_socket.descriptor(), SOL_SOCKET, SO_RCVTIMEO, &tick, sizeof tick), 0);
        m_thread = std::thread([this] { serve(); });
    }
    ~UdpResponder() {
        m_stop = true;
        m_thread.join();
    }
    UdpResponder(const UdpResponder&) = delete;
    UdpResponder& operator=(const UdpResponder&) = delete;

    std::uint16_t port() const { return m_socket.port(); }

    /// The datagrams so far; waits until there are `atLeast`.
    std::vector<Datagram> received(size_t atLeast = 0) {
        std::unique_lock lock(m_mutex);
        EXPECT_TRUE(
            m_arrived.wait_for(lock, std::chrono::seconds(60), [&] { return m_received.size() >= atLeast; }));
        return m_received;
    }

  private:
    void serve() {
        QByteArray buffer(65536, '\0');
        while (!m_stop) {
            Datagram datagram;
            socklen_t size = sizeof datagram.from;
            const ssize_t length =
                ::recvfrom(m_socket.descriptor(), buffer.data(), static_cast<size_t>(buffer.size()), 0,
                           reinterpret_cast<sockaddr*>(&datagram.from), &size);
            if (length < 0) continue;
            datagram.bytes = buffer.left(length);
            std::vector<Datagram> all;
            {
                const std::lock_guard lock(m_mutex);
                m_received.push_back(datagram);
                all = m_received;
            }
            m_script(m_socket, all);
            m_arrived.notify_all();
        }
    }

    LoopbackSocket m_socket;
    Script m_script;
    std::mutex m_mutex;
    std::condition_variable m_arrived;
    std::vector<Datagram> m_received;
    std::atomic<bool> m_stop = false;
    std::thread m_thread;
};

/// Answers every datagram with the same one.
inline UdpResponder::Script always(const QByteArray& reply) {
    return [reply](const LoopbackSocket& socket, const std::vector<Datagram>& received) {
        socket.send(received.back().from, reply);
    };
}

/// Never answers.
inline void silence(const LoopbackSocket&, const std::vector<Datagram>&) {}

}  // namespace testing_support
