#pragma once

namespace mail {

// What the system knows about a connected TCP socket, given by its descriptor.

/// Octets written that the other side has not acknowledged yet.
int unacknowledgedOctets(int descriptor);

/// Milliseconds since the other side last acknowledged something.
int msSinceAcknowledgement(int descriptor);

/// Closing will throw away what is not acknowledged yet and reset the connection, instead of going on to
/// serve a server that does not read.
void resetOnClose(int descriptor);

}  // namespace mail
