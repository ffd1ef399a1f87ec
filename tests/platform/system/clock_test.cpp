// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/Clock.h"

#include <gtest/gtest.h>

namespace clock_test {

TEST(Clock, StartsAsTheMachinesClock) {
    const QDateTime before = QDateTime::currentDateTime();
    const QDateTime now = sys::clock().now();
    EXPECT_GE(now, before);
    EXPECT_LE(now, QDateTime::currentDateTime());
    EXPECT_EQ(now.offsetFromUtc(), QDateTime::currentDateTime().offsetFromUtc());
    EXPECT_EQ(now.toLocalTime().time(), now.time());
    sys::clock().sleep(std::chrono::milliseconds(20));
    EXPECT_GE(sys::clock().now(), now);
}

TEST(Clock, CanBeSet) {
    QDateTime time(QDate(2026, 1, 1), QTime(12, 0));
    sys::clock() = {[&] { return time; },
                    [&](std::chrono::milliseconds span) { time = time.addMSecs(span.count()); }};
    sys::clock().sleep(std::chrono::hours(2));
    EXPECT_EQ(sys::clock().now().time(), QTime(14, 0));
    sys::clock() = sys::systemClock();
}

}  // namespace clock_test
