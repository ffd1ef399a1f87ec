// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/TerminationSignal.h"

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#include <QEventLoop>

namespace termination_signal_test {

namespace {

/// The exit status of a process that runs `play` and would otherwise wait for events for ever.
int statusOf(const std::function<void()>& play) {
    const pid_t child = ::fork();
    if (child == 0) {
        play();
        QEventLoop().exec();
        ::_exit(99);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return status;
}

}  // namespace

TEST(TerminationSignal, EachOfTheThreeReachesTheHandlerFromTheEventLoop) {
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        const int status = statusOf([number] {
            sys::onTerminationSignal([] { ::_exit(7); });
            ::raise(number);
        });
        EXPECT_TRUE(WIFEXITED(status)) << number;
        EXPECT_EQ(WEXITSTATUS(status), 7) << number;
    }
}

TEST(TerminationSignal, ASecondOneEndsAProgramThatDoesNotListen) {
    const int status = statusOf([] {
        sys::onTerminationSignal([] { ::_exit(7); });
        ::raise(SIGTERM);
        ::raise(SIGTERM);
    });
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGTERM);
}

TEST(TerminationSignal, OneThatIsIgnoredStaysIgnored) {
    const int status = statusOf([] {
        ::signal(SIGHUP, SIG_IGN);
        sys::onTerminationSignal([] { ::_exit(7); });
        ::raise(SIGHUP);
        ::raise(SIGHUP);
        ::_exit(8);
    });
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 8);
}

}  // namespace termination_signal_test
