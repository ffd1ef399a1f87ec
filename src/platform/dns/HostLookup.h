// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <QByteArray>
#include <QString>

/// Look-ups of IPv4 addresses and names by the machine's resolver. Addresses are numbers in host byte order.
/// The look-ups block the thread for as long as that resolver takes.
namespace dns {

/// Reads an address as inet_addr(3) does, short forms included. None for anything else, and for
/// 255.255.255.255.
std::optional<std::uint32_t> addressFromText(const QString& text);

/// The first IPv4 address of a host, from the hosts file or the name servers.
std::optional<std::uint32_t> addressOfHost(const QString& host);

/// The name of the host with this address; empty where it has none.
QByteArray nameOfAddress(std::uint32_t address);

}  // namespace dns
