// SPDX-License-Identifier: GPL-3.0-or-later
// Secrets of a consent and their challenge (RFC 7636).
#pragma once

#include <QByteArray>

namespace oauth {

/// 32 octets of the system's random generator in the alphabet of base64url, 43 characters: a state, or a code
/// verifier (RFC 7636 4.1).
QByteArray newSecret();

/// The S256 challenge of a code verifier (RFC 7636 4.2).
QByteArray codeChallenge(const QByteArray& verifier);

}  // namespace oauth
