// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace mail {

/// The domain as it is written in commands and headers: an international one as A-labels (RFC 5890). Empty
/// where there is no such form. ASCII text is returned unchanged and unchecked.
QByteArray asciiDomain(const QString& domain);

/// True for labels of 1 to 63 letters, digits, "-" (not at an end) and "_", separated by dots, 253 octets in
/// all (RFC 1035 2.3.4). No final dot.
bool isDomainName(const QByteArray& text);

/// A server's name as it can be connected to: a domain name, international or not, with or without a final
/// dot, or an IP address. Blanks at the ends are dropped. Empty for anything else, whether from a user's
/// account or the DNS: control characters, blanks, names that are too long, numbers that some resolvers read
/// as an address.
QString connectableHost(const QString& name);

}  // namespace mail
