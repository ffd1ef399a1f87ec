// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHostAddress>

namespace mail {

/// Whether an address belongs to the public internet: no loopback, private (RFC 1918, 4193), shared (RFC
/// 6598), link-local, multicast, reserved or unspecified one. Of IPv6 only global unicast (2000::/3) does,
/// without the ranges that carry an IPv4 address inside (6to4, Teredo); an address of the NAT64 prefix
/// 64:ff9b::/96 (RFC 6052) is judged by the IPv4 address in it, since IPv6-only networks reach all IPv4
/// servers through that prefix.
bool isPublicAddress(const QHostAddress& address);

}  // namespace mail
