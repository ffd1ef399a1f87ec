// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace sys {

/// Runs `handler` from the event loop when the system asks the program to end: at SIGTERM, SIGINT or SIGHUP.
/// A signal that was ignored when the program began stays ignored. Each signal is handled once; a second one
/// of its kind ends the program at once, so that a program that never reaches its event loop can be ended
/// too. To be called once, with a QCoreApplication.
void onTerminationSignal(std::function<void()> handler);

}  // namespace sys
