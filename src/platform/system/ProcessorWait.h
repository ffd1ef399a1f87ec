// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QString>

/// How long a process could have run but had to wait for a processor, since this object was made: the waits
/// of all its threads, as one often waits for another, but never more than the time that has passed. A
/// process that sleeps, computes or is stopped does not wait.
///
/// Source: /proc/PID/task/TID/schedstat, whose second number is the time spent on a run queue in nanoseconds.
/// Where the kernel does not count it, or there is no such process, the wait is 0.
class ProcessorWait {
  public:
    explicit ProcessorWait(qint64 process);

    [[nodiscard]] qint64 milliseconds() const;

  private:
    using Waits = QHash<QString, qint64>;  // nanoseconds of each thread
    [[nodiscard]] Waits waits() const;

    QString m_threads;
    Waits m_before;
    QElapsedTimer m_elapsed;
};
