// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/TerminationSignal.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>
#include <QCoreApplication>
#include <QSocketNotifier>

namespace sys {

namespace {

// A signal handler may do no more than write to a pipe.
int pipeEnds[2] = {-1, -1};

void wake(int) {
    const int before = errno;
    const char byte = 0;
    static_cast<void>(!::write(pipeEnds[1], &byte, 1));
    errno = before;
}

}  // namespace

void onTerminationSignal(std::function<void()> handler) {
    if (::pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0) return;
    auto* notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [handler = std::move(handler)] {
        char bytes[16];
        static_cast<void>(!::read(pipeEnds[0], bytes, sizeof bytes));
        handler();
    });
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction now {};
        if (::sigaction(number, nullptr, &now) == 0 && now.sa_handler == SIG_IGN) continue;
        struct sigaction ours {};
        ours.sa_handler = wake;
        ours.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
        ::sigaction(number, &ours, nullptr);
    }
}

}  // namespace sys
