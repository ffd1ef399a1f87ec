// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace policy {

/// The domain that its owner has registered, by the list of public suffixes (RFC 7489 3.2): "example.it" of
/// "posta.example.it". A public suffix is its own domain. `domain` is in lower case and in
/// A-labels. Where the system has no list, the library's built-in one is used.
QByteArray organizationalDomain(const QByteArray& domain);

/// Whether a domain that authenticated a message is aligned with the domain of its From line (RFC 7489
/// 3.1): the same one, or, if not `strict`, one with the same organizational domain.
bool isAligned(const QByteArray& fromDomain, const QByteArray& authenticated, bool strict);

}  // namespace policy
