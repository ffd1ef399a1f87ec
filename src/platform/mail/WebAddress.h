// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <string_view>

namespace mail {

/// A web address with everything percent-encoded, as UTF-8, that a URI may not contain (RFC 3986): blanks,
/// controls, what is not ASCII, and < > \ ^ ` { | }. Tabs and line ends inside it are dropped, as every
/// reader of an address does. All else stays, percent signs too, so that an address that is a URI is
/// unchanged.
QByteArray asUri(std::string_view address);

/// The same for an address as it is in an HTML attribute: a character reference is encoded where its
/// character has to be, and stays otherwise.
QByteArray attributeAsUri(std::string_view source);

}  // namespace mail
