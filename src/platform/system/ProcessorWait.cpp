// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/ProcessorWait.h"

#include <algorithm>

#include <QByteArray>
#include <QDir>
#include <QFile>

namespace {

constexpr qint64 longestLine = 128;
constexpr qint64 nanosecondsPerMillisecond = 1'000'000;

}  // namespace

ProcessorWait::ProcessorWait(qint64 process)
    : m_threads(QStringLiteral("/proc/%1/task").arg(process)), m_before(waits()) {
    m_elapsed.start();
}

qint64 ProcessorWait::milliseconds() const {
    qint64 sum = 0;
    const Waits now = waits();
    for (auto thread = now.cbegin(); thread != now.cend(); ++thread)
        sum += thread.value() - m_before.value(thread.key());
    return std::min(sum / nanosecondsPerMillisecond, m_elapsed.elapsed());
}

ProcessorWait::Waits ProcessorWait::waits() const {
    Waits waits;
    const QDir threads(m_threads);
    for (const QString& thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile counters(threads.filePath(thread + QLatin1String("/schedstat")));
        if (!counters.open(QIODevice::ReadOnly)) continue;  // it has ended
        waits[thread] = counters.read(longestLine).split(' ').value(1).toLongLong();
    }
    return waits;
}
