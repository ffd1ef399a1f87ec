// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/PaintedWork.h"

#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <optional>
#include <QCoreApplication>
#include <QThread>
#include <system_error>
#include <thread>

#include "platform/ado/Waiting.h"
#include "platform/ui/HeldWindows.h"

namespace ui {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// Most work is over before the user sees it: until then no click is lost.
constexpr milliseconds untilFirstTurn{100};
constexpr milliseconds betweenTurns{40};

/// When the windows were left unpainted, and until when. Pieces of work that follow each other closely are
/// one to the user.
struct Unpainted {
    Clock::time_point since;
    Clock::time_point until;
} unpainted;

class Job;
/// The one under way, in its own thread and in the window's.
thread_local Job* jobUnderWay = nullptr;

/// One piece of work in its thread, and what that thread wants of the window's.
class Job {
  public:
    explicit Job(const std::function<void()>& work)
        : m_thread([this, &work] { run(work); }), m_statements(m_thread.get_id()) {}

    /// Until the work has ended.
    void paint() {
        const Clock::time_point now = Clock::now();
        if (now - unpainted.until > betweenTurns) unpainted.since = now;
        Clock::time_point next = unpainted.since + untilFirstTurn;
        std::unique_lock lock(m_mutex);
        while (!m_ended) {
            const bool told = m_changed.wait_until(lock, next, [this] { return m_ended || m_call; });
            if (m_call) {
                lock.unlock();
                (*m_call)();
                lock.lock();
                m_call = nullptr;
                m_changed.notify_all();
            } else if (!told) {
                lock.unlock();
                turn();
                next = unpainted.since + betweenTurns;
                lock.lock();
            }
        }
    }
    /// What was thrown, or null.
    std::exception_ptr end() {
        m_thread.join();
        if (m_turned) turn();  // clicks that wait at the end are dropped as well
        unpainted.until = Clock::now();
        m_windows.release();
        return m_failure;
    }

    void callInWindowThread(const std::function<void()>& call) {
        std::unique_lock lock(m_mutex);
        m_call = &call;
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return !m_call; });
    }

  private:
    void turn() {
        m_windows.turn();
        m_turned = true;
        unpainted.since = Clock::now();
    }
    void run(const std::function<void()>& work) {
        jobUnderWay = this;
        try {
            work();
        } catch (...) {
            m_failure = std::current_exception();
        }
        const std::lock_guard lock(m_mutex);
        m_ended = true;
        m_changed.notify_all();
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    const std::function<void()>* m_call = nullptr;
    bool m_ended = false;
    std::exception_ptr m_failure;
    bool m_turned = false;
    HeldWindows m_windows{HeldWindows::Keys::Kept};
    std::thread m_thread;
    ado::StatementsOf m_statements;
};

bool inWindowsThread() {
    const QCoreApplication* application = QCoreApplication::instance();
    return application && QThread::currentThread() == application->thread();
}

}  // namespace

void paintWhile(const std::function<void()>& work) {
    if (jobUnderWay || !inWindowsThread()) return work();
    std::optional<Job> job;
    try {
        job.emplace(work);
    } catch (const std::system_error&) {
        return work();  // the system has no thread left
    }
    jobUnderWay = &*job;
    job->paint();
    const std::exception_ptr failure = job->end();
    jobUnderWay = nullptr;
    job.reset();
    if (failure) std::rethrow_exception(failure);
}

void inWindowThread(const std::function<void()>& call) {
    if (!jobUnderWay || inWindowsThread()) return call();
    jobUnderWay->callInWindowThread(call);
}

}  // namespace ui
