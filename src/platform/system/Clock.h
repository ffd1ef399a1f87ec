#pragma once

#include <chrono>
#include <functional>
#include <QDateTime>

namespace sys {

/// Time of day and waiting. Tests put their own functions in to let hours pass in no time.
struct Clock {
    std::function<QDateTime()> now;
    std::function<void(std::chrono::milliseconds)> sleep;  ///< holds the calling thread
};

/// The program's one clock; it starts as the machine's.
Clock& clock();

/// The clock of the machine.
Clock systemClock();

}  // namespace sys
