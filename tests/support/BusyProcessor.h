// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sched.h>
#include <sys/resource.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include <QDir>
#include <QString>

/// One processor of the machine that a thread of the test keeps busy, for a while or until the object's end.
/// A process that is put there gets one part in seventy of it, and all of it afterwards.
class BusyProcessor {
  public:
    explicit BusyProcessor(std::chrono::milliseconds duration = std::chrono::hours(1))
        : m_thread([this, duration] { compute(duration); }) {}
    ~BusyProcessor() {
        m_over = true;
        m_thread.join();
    }
    BusyProcessor(const BusyProcessor&) = delete;
    BusyProcessor& operator=(const BusyProcessor&) = delete;

    [[nodiscard]] bool over() const { return m_over; }

    /// Puts all threads of a process there.
    void take(qint64 process) const {
        const QDir threads(QStringLiteral("/proc/%1/task").arg(process));
        for (const QString& thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            move(thread.toInt());
            demand(::setpriority(PRIO_PROCESS, thread.toUInt(), 19) == 0);
        }
    }

  private:
    void compute(std::chrono::milliseconds duration) {
        move(0);
        const auto end = std::chrono::steady_clock::now() + duration;
        while (!m_over && std::chrono::steady_clock::now() < end) {
        }
        m_over = true;
    }

    void move(pid_t thread) const {
        cpu_set_t one;
        CPU_ZERO(&one);
        CPU_SET(m_number, &one);
        demand(::sched_setaffinity(thread, sizeof one, &one) == 0);
    }

    static void demand(bool done) {
        if (done || errno == ESRCH) return;  // a thread that has ended meanwhile needs no place
        std::perror("BusyProcessor");
        std::abort();
    }

    const int m_number = ::sched_getcpu();
    std::atomic<bool> m_over = false;
    std::thread m_thread;
};
