// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace mail {

/// Appends a text in quoted-printable (RFC 2045 6.7), lines of at most 76 octets. CR LF, CR and LF each end a
/// line and become CR LF; NUL becomes a blank. No line of the result starts with a dot or with "From
/// ", which some transports change (RFC 2049 3), so that the result needs no dot-stuffing.
void appendQuotedPrintable(QByteArray& out, const QByteArray& text);

}  // namespace mail
