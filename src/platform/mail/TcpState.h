// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

namespace mail {

// The system's state of a connected TCP socket, given by its descriptor.

/// Octets written that the other side has not acknowledged yet.
int unacknowledgedOctets(int descriptor);

/// Milliseconds since the other side last acknowledged something.
int msSinceAcknowledgement(int descriptor);

/// Writes octets, and those of `end` after them, without blocking; returns how many the system took, 0 where
/// it takes none now or ever.
qsizetype sendAtOnce(int descriptor, QByteArrayView octets, QByteArrayView end);

/// Waits until there is something to read, an end or an error included. False: nothing came within `ms`.
bool waitForInput(int descriptor, int ms);

/// Makes closing discard what is not acknowledged yet and reset the connection, instead of lingering for a
/// server that does not read.
void resetOnClose(int descriptor);

}  // namespace mail
