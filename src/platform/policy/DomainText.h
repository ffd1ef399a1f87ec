// SPDX-License-Identifier: GPL-3.0-or-later
// Domain names as octets: check and comparison.
#pragma once

#include <QByteArray>

namespace policy {

/// Whether a name can be looked up: labels of 1 to 63 octets separated by dots, 253 octets in all
/// (RFC 1035 2.3.4). Any printable ASCII character may be in a label. No final dot.
bool isName(const QByteArray& name);

/// Lower case without a final dot, the form in which names are compared.
QByteArray plainName(const QByteArray& name);

/// Whether `name` is `domain` or a subdomain of it. Both in lower case and without final dots.
bool isWithin(const QByteArray& name, const QByteArray& domain);

}  // namespace policy
