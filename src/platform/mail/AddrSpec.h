// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include "platform/Status.h"

namespace mail {

/// An address as it is in an SMTP command or between the angle brackets of a header.
struct Mailbox {
    QByteArray localPart;  ///< UTF-8; a quoted local part keeps its quotes
    QByteArray domain;     ///< ASCII: an international domain as A-labels, a literal with its square brackets
    bool needsSmtputf8 = false;  ///< the local part is not ASCII (RFC 6531)

    QByteArray address() const { return localPart + '@' + domain; }
};

/// Reads one plain addr-spec (RFC 5322 3.4.1): dot-atom or quoted string, "@", domain name or domain literal.
/// Blanks at the ends are dropped. Display names, angle brackets, groups, lists, comments and control
/// characters are refused (TypeMismatch), as are addresses of more than 254 octets (RFC 5321 4.5.3.1.3) and
/// malformed domain names.
Result<Mailbox> parseAddrSpec(const QString& text);

}  // namespace mail
