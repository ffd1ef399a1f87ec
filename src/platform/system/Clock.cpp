// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/Clock.h"

#include <thread>

namespace sys {

Clock& clock() {
    static Clock instance = systemClock();
    return instance;
}

Clock systemClock() {
    return {[] { return QDateTime::currentDateTime(); },
            [](std::chrono::milliseconds duration) { std::this_thread::sleep_for(duration); }};
}

}  // namespace sys
