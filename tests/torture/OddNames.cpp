// SPDX-License-Identifier: GPL-3.0-or-later
#include "torture/OddNames.h"

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <QByteArrayList>

#include "torture/OddReplies.h"

namespace {

using Kind = OddNames::Kind;
using namespace std::chrono_literals;

const char* const kindNames[] = {"good",         "silence",
                                 "late try",     "delayed",
                                 "wrong id",     "wrong question",
                                 "other port",   "no reply",
                                 "cut",          "truncated",
                                 "TCP closes",   "TCP silent",
                                 "TCP lies",     "truncated over TCP",
                                 "name loop",    "name beyond",
                                 "name forward", "lying count",
                                 "lying length", "huge",
                                 "many records", "alias loop",
                                 "alias chain",  "error code",
                                 "empty",        "garbage",
                                 "changed",      "thrice",
                                 "echo"};
static_assert(std::size(kindNames) == size_t(Kind::End));

sockaddr_in loopback(std::uint16_t port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

int bound(int type, std::uint16_t port) {
    const int made = ::socket(AF_INET, type | SOCK_CLOEXEC | (type == SOCK_STREAM ? SOCK_NONBLOCK : 0), 0);
    const sockaddr_in address = loopback(port);
    if (::bind(made, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) return made;
    ::close(made);
    return -1;
}

std::uint16_t portOf(int socket) {
    sockaddr_in address{};
    socklen_t size = sizeof address;
    ::getsockname(socket, reinterpret_cast<sockaddr*>(&address), &size);
    return ntohs(address.sin_port);
}

int numberIn(const QByteArray& question) {
    const QByteArray name = replies::nameIn(question);
    return name.startsWith('c') ? name.mid(1).split('.').first().toInt() : 0;
}

std::mt19937 randomOf(unsigned seed, int number) {
    std::seed_seq both{seed, static_cast<unsigned>(number)};
    return std::mt19937(both);
}

}  // namespace

Kind OddNames::kindOf(unsigned seed, int number) {
    return Kind(randomOf(seed, number)() % unsigned(Kind::End));
}

const char* OddNames::nameOf(Kind kind) {
    return kindNames[int(kind)];
}

OddNames::OddNames(unsigned seed) : m_seed(seed) {
    // a port that is free for both
    for (int left = 100; left > 0 && m_tcp < 0; --left) {
        if (m_udp >= 0) ::close(m_udp);
        m_udp = bound(SOCK_DGRAM, 0);
        m_port = portOf(m_udp);
        m_tcp = bound(SOCK_STREAM, m_port);
    }
    m_otherPort = bound(SOCK_DGRAM, 0);
    if (m_tcp < 0 || ::listen(m_tcp, 100) != 0) {
        std::perror("no name server");
        std::exit(2);
    }
    m_thread = std::thread([this] { serve(); });
}

OddNames::~OddNames() {
    m_stop = true;
    m_thread.join();
    m_held.insert(m_held.end(), {m_udp, m_tcp, m_otherPort});
    for (const int socket : m_held)
        ::close(socket);
}

void OddNames::serve() {
    while (!m_stop) {
        pollfd watched[] = {{m_udp, POLLIN, 0}, {m_tcp, POLLIN, 0}};
        ::poll(watched, 2, m_later.empty() ? 20 : 5);
        if (watched[0].revents) onDatagram();
        if (watched[1].revents) onConnection();
        sendLater();
    }
}

void OddNames::send(const QByteArray& reply, const sockaddr_in& to) const {
    ::sendto(m_udp, reply.constData(), size_t(reply.size()), 0, reinterpret_cast<const sockaddr*>(&to),
             sizeof to);
}

void OddNames::sendLater() {
    const auto now = std::chrono::steady_clock::now();
    std::erase_if(m_later, [&](const Later& one) {
        if (one.when > now) return false;
        send(one.reply, one.to);
        return true;
    });
}

void OddNames::onDatagram() {
    QByteArray question(2000, '\0');
    sockaddr_in from{};
    socklen_t size = sizeof from;
    const ssize_t length = ::recvfrom(m_udp, question.data(), size_t(question.size()), 0,
                                      reinterpret_cast<sockaddr*>(&from), &size);
    if (length < 16) return;
    question.truncate(length);
    const int number = numberIn(question);
    std::mt19937 random = randomOf(m_seed, number);
    const Kind kind = Kind(random() % unsigned(Kind::End));
    const QByteArray reply = replies::of(kind, question, random, false);
    switch (kind) {
        case Kind::Silence:
            break;
        case Kind::LateTry:
            if (++m_asked[question.mid(12)] > 1) send(reply, from);
            break;
        case Kind::Delayed:
            m_later.push_back({std::chrono::steady_clock::now() + 1ms * (random() % 200), reply, from});
            break;
        case Kind::OtherPort: {
            const QByteArray lying = replies::sound(question, 1, lie);
            ::sendto(m_otherPort, lying.constData(), size_t(lying.size()), 0,
                     reinterpret_cast<sockaddr*>(&from), size);
            m_later.push_back({std::chrono::steady_clock::now() + 20ms, reply, from});
            break;
        }
        case Kind::Thrice:
            for (int i = 0; i < 3; ++i)
                send(reply, from);
            break;
        default:
            send(reply, from);
    }
}

/// One question and its answer; the connections are few, and the client writes its question at once.
void OddNames::onConnection() {
    const int connection = ::accept4(m_tcp, nullptr, nullptr, SOCK_CLOEXEC);
    if (connection < 0) return;
    const timeval patience{0, 300000};
    ::setsockopt(connection, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    QByteArray question(2000, '\0');
    const ssize_t length = ::recv(connection, question.data(), size_t(question.size()), 0);
    question = length > 2 ? question.mid(2, length - 2) : QByteArray();
    std::mt19937 random = randomOf(m_seed, question.isEmpty() ? 0 : numberIn(question));
    const Kind kind = Kind(random() % unsigned(Kind::End));
    if (kind == Kind::TooLongTcpSilent) {
        m_held.push_back(connection);
        return;
    }
    if (question.size() >= 16 && kind != Kind::TooLongTcpCloses) {
        QByteArray reply = replies::of(kind, question, random, true);
        if (kind == Kind::TooLongTcpLies && random() % 2) reply.truncate(reply.size() / 2);
        const qsizetype told = kind == Kind::TooLongTcpLies ? qsizetype(random() % 65536) : reply.size();
        reply.prepend(char(told));
        reply.prepend(char(told >> 8));
        ::send(connection, reply.constData(), size_t(reply.size()), MSG_NOSIGNAL);
    }
    ::close(connection);
}
