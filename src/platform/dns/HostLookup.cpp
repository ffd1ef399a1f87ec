// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dns/HostLookup.h"

#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <array>

namespace dns {

std::optional<std::uint32_t> addressFromText(const QString& text) {
    const in_addr_t address = ::inet_addr(text.toLatin1().constData());
    if (address == INADDR_NONE) return std::nullopt;
    return ntohl(address);
}

std::optional<std::uint32_t> addressOfHost(const QString& host) {
    addrinfo wanted{};
    wanted.ai_family = AF_INET;
    wanted.ai_socktype = SOCK_DGRAM;
    addrinfo* found = nullptr;
    if (::getaddrinfo(host.toLatin1().constData(), nullptr, &wanted, &found) != 0) return std::nullopt;
    const std::uint32_t address =
        ntohl(reinterpret_cast<const sockaddr_in*>(found->ai_addr)->sin_addr.s_addr);
    ::freeaddrinfo(found);
    return address;
}

QByteArray nameOfAddress(std::uint32_t address) {
    sockaddr_in host{};
    host.sin_family = AF_INET;
    host.sin_addr.s_addr = htonl(address);
    std::array<char, NI_MAXHOST> name{};
    const int failure = ::getnameinfo(reinterpret_cast<const sockaddr*>(&host), sizeof host, name.data(),
                                      name.size(), nullptr, 0, NI_NAMEREQD);
    return failure != 0 ? QByteArray() : QByteArray(name.data());
}

}  // namespace dns
