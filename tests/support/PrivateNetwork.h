#pragma once

#include <QByteArray>

namespace testing_support {

/// Moves the process into a network and a set of mounts of its own. The network has only a loopback, in which
/// any port may be bound. Must be called before the process has a second thread: from the initialisation of a
/// static variable. False where the system does not allow it.
///
/// The tests of a folder are one program, and every process of it initialises the variables of all: `source`
/// is the caller's __FILE__. Where the command line names another source nothing is done, and it is false.
///
/// The superuser stays who he is; anybody else becomes the superuser of a world without other users.
bool enterPrivateNetwork(const char* source);

/// Inside a private network: gives its loopback one more IPv4 address, by which a test has a server of the
/// public internet.
bool addLoopbackAddress(const char* address);

/// Inside a private network: what the process and its children read in /etc/resolv.conf from now on.
bool replaceResolverConfiguration(const QByteArray& text);

}  // namespace testing_support
