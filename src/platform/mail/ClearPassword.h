// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace mail {

/// Whether a password may be sent to this server without TLS: `localhost`, a literal address of the machine
/// itself (127.0.0.0/8, ::1) or of a private network (RFC 1918, RFC 3927, RFC 4193, fe80::/10), and the
/// servers that the user lists in `listFile`, one a line (docs/formats/senza-tls.md). `host` is the account's
/// own text, see connectableHost(): what a name resolves to does not count, since the network decides that.
bool passwordMayGoInTheClear(const QString& host, const QString& listFile);

}  // namespace mail
