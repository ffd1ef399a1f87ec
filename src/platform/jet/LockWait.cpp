// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/LockWait.h"

#include <algorithm>
#include <thread>

namespace jet {

// Busy writers leave a lock free for moments only, so a process that tries seldom may not get it at all.
constexpr std::chrono::milliseconds longestPause{4};

bool waitFor(const LockWait& wait, const std::function<bool()>& attempt) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    for (auto pause = std::chrono::milliseconds(1); !attempt(); pause = std::min(pause * 2, longestPause)) {
        const auto waited = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start);
        if (wait.limit && waited >= *wait.limit) return false;
        if (wait.goOn && !wait.goOn(waited)) return false;
        std::this_thread::sleep_for(pause);
    }
    return true;
}

}  // namespace jet
