// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <arpa/inet.h>
#include <netinet/tcp.h>
#include <openssl/ssl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

/// One blocking connection of a measuring program, plain or with TLS. Any failure ends the program, or the
/// thread: there is nothing to save.
class Line {
  public:
    explicit Line(int descriptor) : m_descriptor(descriptor) {
        const int on = 1;
        ::setsockopt(descriptor, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    }
    ~Line() {
        SSL_free(m_tls);
        ::close(m_descriptor);
    }
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    /// False: the handshake has failed.
    bool accept(SSL_CTX* context) { return begin(context) && SSL_accept(m_tls) == 1; }
    bool connect(SSL_CTX* context) { return begin(context) && SSL_connect(m_tls) == 1; }

    /// Waits for octets and appends them; false when the peer has closed.
    bool read(std::string& to) {
        char room[65536];
        const ssize_t came =
            m_tls ? SSL_read(m_tls, room, sizeof room) : ::read(m_descriptor, room, sizeof room);
        if (came > 0) to.append(room, static_cast<std::size_t>(came));
        return came > 0;
    }
    bool write(std::string_view octets) {
        while (!octets.empty()) {
            const ssize_t taken = m_tls ? SSL_write(m_tls, octets.data(), static_cast<int>(octets.size()))
                                        : ::send(m_descriptor, octets.data(), octets.size(), MSG_NOSIGNAL);
            if (taken <= 0) return false;
            octets.remove_prefix(static_cast<std::size_t>(taken));
        }
        return true;
    }

  private:
    bool begin(SSL_CTX* context) {
        m_tls = SSL_new(context);
        return m_tls && SSL_set_fd(m_tls, m_descriptor) == 1;
    }

    int m_descriptor;
    SSL* m_tls = nullptr;
};

[[noreturn]] inline void fail(const char* what) {
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}
