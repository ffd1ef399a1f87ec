// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/InsideAddress.h"

#include <algorithm>
#include <array>

namespace mail {
namespace {

struct Ipv4Range {
    quint32 first;
    int prefix;
};

// RFC 6890 and its registry, as far as a host may answer there; multicast and above.
constexpr std::array closedRanges{
    Ipv4Range{0x00000000, 8},   // this network
    Ipv4Range{0x0A000000, 8},   // private
    Ipv4Range{0x64400000, 10},  // shared, 100.64.0.0
    Ipv4Range{0x7F000000, 8},   // loopback
    Ipv4Range{0xA9FE0000, 16},  // link-local
    Ipv4Range{0xAC100000, 12},  // private
    Ipv4Range{0xC0000000, 24},  // protocol assignments
    Ipv4Range{0xC0586300, 24},  // 6to4 relays
    Ipv4Range{0xC0A80000, 16},  // private
    Ipv4Range{0xC6120000, 15},  // benchmarks
    Ipv4Range{0xE0000000, 3},   // multicast, reserved, broadcast
};

bool isPublicIpv4(quint32 address) {
    return std::none_of(closedRanges.begin(), closedRanges.end(), [address](const Ipv4Range& range) {
        return (address ^ range.first) >> (32 - range.prefix) == 0;
    });
}

bool isIn(const QHostAddress& address, const char* range, int prefix) {
    return address.isInSubnet(QHostAddress(QLatin1String(range)), prefix);
}

}  // namespace

bool isPublicAddress(const QHostAddress& address) {
    if (address.protocol() == QAbstractSocket::IPv4Protocol) return isPublicIpv4(address.toIPv4Address());
    if (address.protocol() != QAbstractSocket::IPv6Protocol) return false;
    if (isIn(address, "64:ff9b::", 96)) {
        const Q_IPV6ADDR octets = address.toIPv6Address();
        quint32 inside = 0;
        for (int i = 12; i < 16; ++i)
            inside = inside << 8 | octets[i];
        return isPublicIpv4(inside);
    }
    return isIn(address, "2000::", 3) && !isIn(address, "2002::", 16) && !isIn(address, "2001::", 32);
}

}  // namespace mail
