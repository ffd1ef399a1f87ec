#pragma once

#include <QByteArray>
#include <QString>

namespace mail {

/// The domain as it stands in commands and headers: an international one as A-labels (RFC 5890). Empty where
/// there is no such form. What is ASCII already comes back as it is, checked or not.
QByteArray asciiDomain(const QString& domain);

/// True for labels of 1 to 63 letters, digits, "-" (not at an end) and "_", parted by points, 253 octets
/// together (RFC 1035 2.3.4). No final point.
bool isDomainName(const QByteArray& text);

/// A server's name as it can be connected to: a domain name, international or not, with or without a final
/// point, or an IP address. Blanks at the ends are dropped. Empty for anything else, be it from a user's
/// account or from the DNS: control characters, blanks, names that are too long, numbers that some resolvers
/// take for an address.
QString connectableHost(const QString& name);

}  // namespace mail
