// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/ProcessorWait.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>

#include <optional>

#include <QDeadlineTimer>
#include <QProcess>
#include <QThread>

#include "support/BusyProcessor.h"

namespace processor_wait_test {

namespace {

/// A process that computes all the time.
class Computing {
  public:
    Computing() {
        m_process.start(QStringLiteral("/bin/sh"),
                        {QStringLiteral("-c"), QStringLiteral("while :; do :; done")});
        if (!m_process.waitForStarted()) qFatal("no shell");
    }
    ~Computing() {
        m_process.kill();
        m_process.waitForFinished();
    }
    Computing(const Computing&) = delete;
    Computing& operator=(const Computing&) = delete;

    void stop() const {
        siginfo_t news{};
        const auto number = static_cast<pid_t>(m_process.processId());
        if (::kill(number, SIGSTOP) != 0 ||
            ::waitid(P_PID, static_cast<id_t>(number), &news, WSTOPPED | WNOWAIT) != 0)
            qFatal("the process does not stop");
    }

    [[nodiscard]] qint64 number() const { return m_process.processId(); }

  private:
    QProcess m_process;
};

bool reaches(const ProcessorWait& wait, qint64 milliseconds) {
    const QDeadlineTimer patience(60000);
    while (wait.milliseconds() < milliseconds && !patience.hasExpired())
        QThread::msleep(10);
    return wait.milliseconds() >= milliseconds;
}

}  // namespace

TEST(ProcessorWait, GrowsWhileAnotherProcessHasTheProcessorAndTheOneThatIsStoppedDoesNotWait) {
    const BusyProcessor busy;
    const Computing waiting;
    const Computing stopped;
    stopped.stop();
    busy.take(waiting.number());
    const ProcessorWait wait(waiting.number());
    const ProcessorWait noWait(stopped.number());
    EXPECT_TRUE(reaches(wait, 300));
    EXPECT_EQ(noWait.milliseconds(), 0);
}

TEST(ProcessorWait, CountsFromWhereItWasMade) {
    const BusyProcessor busy;
    const Computing process;
    busy.take(process.number());
    const ProcessorWait first(process.number());
    ASSERT_TRUE(reaches(first, 300));
    process.stop();
    const ProcessorWait second(process.number());
    EXPECT_EQ(second.milliseconds(), 0);
}

TEST(ProcessorWait, IsNothingWhereThereIsNoSuchProcess) {
    EXPECT_EQ(ProcessorWait(0).milliseconds(), 0);
    EXPECT_EQ(ProcessorWait(-1).milliseconds(), 0);
    std::optional<ProcessorWait> wait;
    {
        const Computing process;
        wait.emplace(process.number());
    }
    EXPECT_EQ(wait->milliseconds(), 0);
}

}  // namespace processor_wait_test
