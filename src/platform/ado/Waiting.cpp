// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/Waiting.h"

#include <algorithm>
#include <atomic>
#include <cassert>
#include <QScopedValueRollback>
#include <utility>

namespace ado {

namespace {

WaitHook installed;
Waiting* underWay = nullptr;  ///< the outermost one
bool hookRuns = false;
std::atomic<std::thread::id> onlyThread{};

}  // namespace

StatementsOf::StatementsOf(std::thread::id thread) {
    assert(onlyThread.load() == std::thread::id());
    onlyThread = thread;
}

StatementsOf::~StatementsOf() {
    onlyThread = std::thread::id();
}

WaitHook setWaitHook(WaitHook hook) {
    return std::exchange(installed, std::move(hook));
}

Waiting::Waiting(int seconds) {
    if (seconds != 0) m_end = Clock::now() + std::chrono::seconds(std::max(seconds, 0));
    if (!underWay) underWay = this;
}

Waiting::~Waiting() {
    if (underWay != this) return;
    underWay = nullptr;
    if (m_blocked && installed.over) installed.over();
}

bool Waiting::goOn(std::chrono::milliseconds waited) {
    assert(!hookRuns);  // it begins no statement
    const Clock::time_point now = Clock::now();
    if (m_givenUp || (m_end && now >= *m_end)) return false;
    if (!m_blocked) m_blocked = now - waited;
    const auto soFar = std::chrono::duration_cast<std::chrono::milliseconds>(now - *m_blocked);
    const QScopedValueRollback runs(hookRuns, true);
    m_givenUp = installed.goOn && !installed.goOn(soFar);
    return !m_givenUp;
}

bool Waiting::refused() {
    const std::thread::id only = onlyThread;
    return (only != std::thread::id() && only != std::this_thread::get_id()) || hookRuns;
}

jet::LockWait Waiting::lockWait() {
    return {std::nullopt, [](std::chrono::milliseconds waited) {
                return underWay ? underWay->goOn(waited) : waited < std::chrono::seconds(recordsetSeconds);
            }};
}

}  // namespace ado
