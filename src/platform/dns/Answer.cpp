// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dns/Answer.h"

namespace dns {

QByteArray reverseName(const QHostAddress& address) {
    bool isIpv4 = false;
    const quint32 number = address.toIPv4Address(&isIpv4);
    QByteArray name;
    if (isIpv4) {
        for (int shift = 0; shift < 32; shift += 8)
            name += QByteArray::number(number >> shift & 0xff) + '.';
        return name + "in-addr.arpa";
    }
    const Q_IPV6ADDR octets = address.toIPv6Address();
    for (int i = 15; i >= 0; --i)
        name += QByteArray::number(octets[i] & 15, 16) + '.' + QByteArray::number(octets[i] >> 4, 16) + '.';
    return name + "ip6.arpa";
}

}  // namespace dns
