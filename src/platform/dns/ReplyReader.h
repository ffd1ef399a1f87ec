// SPDX-License-Identifier: GPL-3.0-or-later
// The parser of replies of name servers.
#pragma once

#include <QByteArrayView>

#include "platform/dns/Answer.h"

namespace dns {

/// More records than this in one reply make it unusable.
inline constexpr qsizetype mostRecords = 100;

/// Reads a whole reply (RFC 1035 4.1) as the answer to a question of this type. Aliases are followed. A reply
/// that is damaged, has an error code or contains more than mostRecords is a failure.
Answer readReply(Type type, QByteArrayView reply);

}  // namespace dns
