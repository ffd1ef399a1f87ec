// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dns/UdpQuery.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <cerrno>
#include <cstring>
#include <optional>
#include <QDeadlineTimer>

namespace dns {

namespace {

Status failure(int reason) {
    return {ErrorCode::DeviceIo, QString::fromLocal8Bit(std::strerror(reason))};
}

// Size of the datagram, -1 for a failure given by errno, none when nothing came in time. A datagram that
// poll() announces may still be dropped for its checksum: so the receiving itself does not wait.
std::optional<ssize_t> receiveUntil(const QDeadlineTimer& deadline, int socket, QByteArray& buffer) {
    for (;;) {
        const ssize_t size = ::recv(socket, buffer.data(), static_cast<size_t>(buffer.size()), MSG_DONTWAIT);
        if (size >= 0 || (errno != EAGAIN && errno != EINTR)) return size;
        pollfd waiting{socket, POLLIN, 0};
        const int ready = ::poll(&waiting, 1, static_cast<int>(deadline.remainingTime()));
        if (ready == 0) return std::nullopt;
        if (ready < 0 && errno != EINTR) return -1;
    }
}

}  // namespace

UdpQuery::UdpQuery(std::chrono::milliseconds wait, int questions)
    : m_socket(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)), m_wait(wait), m_questions(questions) {}

UdpQuery::~UdpQuery() {
    if (isOpen()) ::close(m_socket);
}

Status UdpQuery::send(std::uint32_t address, std::uint16_t port, const QByteArray& question) {
    sockaddr_in server{};
    server.sin_family = AF_INET;
    server.sin_port = htons(port);
    server.sin_addr.s_addr = htonl(address);
    if (::connect(m_socket, reinterpret_cast<const sockaddr*>(&server), sizeof server) != 0)
        return failure(errno);
    m_question = question;
    const ssize_t sent = ::send(m_socket, question.constData(), static_cast<size_t>(question.size()), 0);
    return sent < 0 ? failure(errno) : Status();
}

Result<QByteArray> UdpQuery::receive(qsizetype longest) {
    QByteArray datagram(longest, '\0');
    std::optional<ssize_t> size = receiveUntil(QDeadlineTimer(m_wait), m_socket, datagram);
    for (int asked = 1; !size && asked < m_questions; ++asked) {
        if (::send(m_socket, m_question.constData(), static_cast<size_t>(m_question.size()), 0) < 0) {
            return failure(errno);
        }
        size = receiveUntil(QDeadlineTimer(m_wait), m_socket, datagram);
    }
    if (!size) return Status(ErrorCode::Timeout, QString::fromLocal8Bit(std::strerror(ETIMEDOUT)));
    if (*size < 0) return failure(errno);
    datagram.truncate(*size);
    return datagram;
}

}  // namespace dns
