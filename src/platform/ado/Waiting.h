// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <thread>

#include "platform/jet/LockWait.h"

namespace ado {

/// The hook called while a statement waits for another process. Neither function may throw, nor use the
/// database.
struct WaitHook {
    /// Called every few milliseconds in the thread that waits, with the time since this statement first had
    /// to wait; false ends the statement, which then fails with FileInUse.
    std::function<bool(std::chrono::milliseconds waited)> goOn;
    /// Called once before a statement that had to wait returns, whatever became of it.
    std::function<void()> over;
};
/// Installs the hook for all statements of the program and returns the one before; an empty one removes it.
WaitHook setWaitHook(WaitHook hook);

/// As long as it exists, that thread alone runs statements. Those that another one begins are refused, as
/// during a wait.
class StatementsOf {
  public:
    explicit StatementsOf(std::thread::id thread);
    ~StatementsOf();
    StatementsOf(const StatementsOf&) = delete;
};

/// Longest wait, in seconds, of what has no time-out of its own: opening and moving a recordset, posting its
/// changes.
constexpr int recordsetSeconds = 30;
/// For a statement that fails where it would have to wait.
constexpr int noWait = -1;

/// One statement under way. All its waits together, and its own run, are bounded by its time-out.
/// A statement within another one (a move that posts a change first) counts as part of that.
class Waiting {
  public:
    using Clock = std::chrono::steady_clock;

    /// `seconds` from now, or noWait; 0 is without end.
    explicit Waiting(int seconds);
    ~Waiting();
    Waiting(const Waiting&) = delete;

    std::optional<Clock::time_point> end() const { return m_end; }
    /// Whether no statement may begin here: the hook is running, or statements are another thread's.
    static bool refused();
    /// How the databases of this layer wait.
    static jet::LockWait lockWait();

  private:
    bool goOn(std::chrono::milliseconds waited);

    std::optional<Clock::time_point> m_end;
    std::optional<Clock::time_point> m_blocked;  ///< when it first had to wait
    bool m_givenUp = false;
};

}  // namespace ado
