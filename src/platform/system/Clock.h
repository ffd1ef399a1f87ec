// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <QDateTime>

namespace sys {

/// Time of day and waiting. Tests set their own functions to simulate the passing of hours.
struct Clock {
    std::function<QDateTime()> now;                        ///< local time, with its distance from UTC
    std::function<void(std::chrono::milliseconds)> sleep;  ///< blocks the calling thread
};

/// The program's one clock; initially the machine's.
Clock& clock();

/// The clock of the machine.
Clock systemClock();

}  // namespace sys
