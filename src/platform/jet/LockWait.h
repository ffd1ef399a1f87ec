// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <optional>

namespace jet {

/// The length of a wait for another process, and who may end it. A call whose wait is ended fails with
/// FileInUse and has changed nothing.
struct LockWait {
    /// Of one wait; a call may wait more than once. None: without end.
    std::optional<std::chrono::milliseconds> limit = std::chrono::seconds(5);
    /// Called between two tries of the lock, every few milliseconds, with the time waited so far; false gives
    /// the wait up. It may paint, but must neither throw nor call the Database that waits. Empty: never.
    std::function<bool(std::chrono::milliseconds waited)> goOn = {};
};

/// Waits for `attempt` to return true, with growing pauses in between. Returns false when the wait was given
/// up.
bool waitFor(const LockWait& wait, const std::function<bool()>& attempt);

}  // namespace jet
