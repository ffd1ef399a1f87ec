// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include "platform/mail/AddrSpec.h"

namespace mail {

/// Value of List-Id (RFC 2919) for all mail of one sender, in its angle brackets: the local part and the
/// domain of the address, joined by a dot, so that recipients can sort by it. What a label may not contain
/// is percent-encoded. Empty for a domain literal and where it would be longer than 255 octets.
QByteArray listId(const Mailbox& sender);

}  // namespace mail
