#pragma once

#include <QByteArray>

namespace policy {

/// Whether a name can be asked for: labels of 1 to 63 octets parted by points, 253 octets together
/// (RFC 1035 2.3.4). Any printable ASCII character may stand in a label. No final point.
bool isName(const QByteArray& name);

/// Lower case and without a final point, as names are compared.
QByteArray plainName(const QByteArray& name);

/// Whether `name` is `domain` or lies below it. Both in lower case and without final points.
bool isWithin(const QByteArray& name, const QByteArray& domain);

}  // namespace policy
