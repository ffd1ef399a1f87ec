// SPDX-License-Identifier: GPL-3.0-or-later
// Stop and continue, repeatedly, with a slow server: nobody gets a message twice, and nobody is left out.
#include <map>
#include <random>

#include "platform/mail/smtp_run_fixture.h"
#include "support/SmtpSink.h"

namespace smtp_stop_test {

using testing_support::SmtpSink;

namespace {

constexpr int slownessMs = 10;

/// Rows of a database: number to address.
using Rows = std::map<qint64, QString>;

Rows rows(int count) {
    Rows all;
    for (int number = 1; number <= count; ++number)
        all[number] = QStringLiteral("r%1@example.it").arg(number);
    return all;
}

/// The send window's work on the selected rows in one run, which a stop may end.
class RunOfRows {
  public:
    RunOfRows(RunClient& client, Rows& selected) : m_client(client), m_selected(selected) {}

    /// Deselects rows that are accepted and not marked, as the start button does.
    void begin() {
        for (auto row = m_selected.begin(); row != m_selected.end();) {
            const auto [number, address] = *row++;
            if (m_client.remembers(number, address)) mark(number);
        }
        m_client.smtp.BeginRun();
    }

    /// Serves all of the rest, or until the stop after `stopMs`, which one more tick follows.
    void serve(int stopMs) {
        QTimer stop;
        bool stopped = false;
        QObject::connect(&stop, &QTimer::timeout, [&] {
            stopped = true;
            m_client.smtp.Abort();
        });
        stop.setSingleShot(true);
        stop.setTimerType(Qt::PreciseTimer);
        if (stopMs >= 0) stop.start(stopMs);
        const Rows before = m_selected;
        for (const auto& [number, address] : before) {
            const bool last = stopped;
            m_client.begin(number, address);
            m_client.waitForOutcome();
            EXPECT_EQ(m_client.heard.size(), 1);
            if (m_client.heard.first().done) mark(number);
            if (last) return;
            if (m_client.heard.first().done) continue;
            if (stopped) return;
        }
    }

  private:
    void mark(qint64 number) {
        m_selected.erase(number);
        m_client.smtp.Marked(number);
    }

    RunClient& m_client;
    Rows& m_selected;
};

TEST(StopAndContinue, AHundredTimesNobodyGetsTwoCopies) {
    SmtpSink sink;
    sink.setDelay(slownessMs);
    RunClient client(sink.port());
    client.smtp.StageTimes.finalReply = 20000;
    constexpr int count = 150;
    Rows selected = rows(count);
    std::mt19937 chance(20251122);
    std::uniform_int_distribution<int> moment(0, 8 * slownessMs);
    for (int stops = 0; stops < 100; ++stops) {
        RunOfRows run(client, selected);
        run.begin();
        run.serve(moment(chance));
    }
    RunOfRows last(client, selected);
    for (int attempts = 0; !selected.empty() && attempts < 20; ++attempts) {
        last.begin();
        last.serve(-1);
    }
    EXPECT_TRUE(selected.empty());
    QHash<QByteArray, int> copies;
    for (const SmtpSink::Message& taken : sink.messages())
        ++copies[taken.recipient];
    EXPECT_EQ(copies.size(), count);
    for (auto copy = copies.cbegin(); copy != copies.cend(); ++copy)
        EXPECT_EQ(copy.value(), 1) << copy.key().constData();
}

}  // namespace

}  // namespace smtp_stop_test
