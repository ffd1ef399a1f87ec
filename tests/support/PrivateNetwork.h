// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace testing_support {

/// Moves the process into a private network and private mounts. The network has only a loopback, in which
/// any port may be bound. Must be called before the process has a second thread: from the initialisation of a
/// static variable. False where the system does not allow it.
///
/// The tests of a folder are one program, and every process of it initialises the variables of all: `source`
/// is the caller's __FILE__. Where the command line names another source nothing is done, and it is false.
///
/// The superuser stays the superuser; any other user becomes the superuser of a user namespace of its own.
bool enterPrivateNetwork(const char* source);

/// Inside a private network: adds an IPv4 address to its loopback, so that a test has a server with a public
/// address.
bool addLoopbackAddress(const char* address);

/// Inside a private network: what the process and its children read in /etc/resolv.conf from now on.
bool replaceResolverConfiguration(const QByteArray& text);

}  // namespace testing_support
