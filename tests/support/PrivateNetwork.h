#pragma once

namespace testing_support {

/// Moves the process into a network of its own that has only a loopback, in which any port may be bound. Must
/// be called before the process has a second thread: from the initialisation of a static variable. False
/// where the system does not allow it.
bool enterPrivateNetwork();

}  // namespace testing_support
