// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/Clock.h"

#include <thread>

namespace sys {

namespace {

// Each conversion to local time looks at the zone's file. Messages are composed in less time than that takes.
QDateTime localNow() {
    static thread_local qint64 knownSecond = -1;
    static thread_local int fromUtc = 0;
    const qint64 ms = QDateTime::currentMSecsSinceEpoch();
    if (ms / 1000 != knownSecond) {
        knownSecond = ms / 1000;
        fromUtc = QDateTime::fromMSecsSinceEpoch(ms).offsetFromUtc();
    }
    return QDateTime::fromMSecsSinceEpoch(ms, Qt::OffsetFromUTC, fromUtc);
}

}  // namespace

Clock& clock() {
    static Clock instance = systemClock();
    return instance;
}

Clock systemClock() {
    return {localNow, [](std::chrono::milliseconds duration) { std::this_thread::sleep_for(duration); }};
}

}  // namespace sys
