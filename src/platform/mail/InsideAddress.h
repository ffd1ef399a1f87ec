#pragma once

#include <QHostAddress>

namespace mail {

/// Whether an address belongs to the public internet: no loopback, private (RFC 1918, 4193), shared
/// (RFC 6598), link-local, multicast, reserved or unspecified one. Of IPv6 only what is given out as global
/// unicast (2000::/3) does, without the ranges that carry an IPv4 address inside (6to4, Teredo); an address
/// of the NAT64 prefix 64:ff9b::/96 (RFC 6052) is what the IPv4 address in it is, since a network without
/// IPv4 reaches every server of the old world by it.
bool isPublicAddress(const QHostAddress& address);

}  // namespace mail
