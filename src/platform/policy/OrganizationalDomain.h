#pragma once

#include <QByteArray>

namespace policy {

/// The domain that its owner has registered, by the list of public suffixes (RFC 7489 3.2): "example.it" of
/// "posta.example.it". A name that is a public suffix itself is its own. `domain` is in lower case and in
/// A-labels. Where the system has no list, the one inside the library is used.
QByteArray organizationalDomain(const QByteArray& domain);

/// Whether a domain that a message was authenticated for counts for the domain of its From line (RFC 7489
/// 3.1): the same one, or, if not `strict`, one of the same owner.
bool isAligned(const QByteArray& fromDomain, const QByteArray& authenticated, bool strict);

}  // namespace policy
