// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace mail {

/// The next piece of `data`, from `offset` on, as it is sent after DATA: a line that begins with a dot gets a
/// second one (RFC 5321 4.5.2). At most `limit` octets of `data` are taken (limit > 0) and `offset` moves
/// past them. The concatenated pieces do not depend on the limits. A piece without such a line is a view into
/// `data`.
QByteArray stuffedPiece(const QByteArray& data, qsizetype& offset, qsizetype limit);

/// True where a line begins with a dot.
bool hasPointLines(const QByteArray& data);

}  // namespace mail
