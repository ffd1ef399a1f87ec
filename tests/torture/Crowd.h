// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <QEventLoop>
#include <QObject>
#include <QTimer>
#include <vector>

/// A case that runs on the event loop beside others, so that one's waiting costs the others nothing.
class CrowdedCase : public QObject {
    Q_OBJECT
  public:
    /// One tick of the loop, some 50 ms. Ticks count only while events are processed: a busy machine slows
    /// them down like everything else.
    virtual void tick() = 0;
  Q_SIGNALS:
    void ended();
};

/// Plays the cases `first` to `first` + `count` - 1, `together` of them at a time.
inline void playCrowd(int first, int count, size_t together,
                      const std::function<std::unique_ptr<CrowdedCase>(int number)>& make) {
    QEventLoop loop;
    std::vector<std::unique_ptr<CrowdedCase>> running;
    int next = first;
    const auto fill = [&] {
        while (next < first + count && running.size() < together) {
            running.push_back(make(next++));
            CrowdedCase* const made = running.back().get();
            QObject::connect(made, &CrowdedCase::ended, &loop, [&running, made] {
                for (auto& one : running)
                    if (one.get() == made) one.release()->deleteLater();
                std::erase(running, nullptr);
            });
        }
        if (running.empty()) loop.quit();
    };
    QTimer ticks;
    ticks.setInterval(50);
    QObject::connect(&ticks, &QTimer::timeout, &loop, [&] {
        for (size_t i = 0; i < running.size(); ++i)
            running[i]->tick();
        fill();
    });
    ticks.start();
    fill();
    if (!running.empty()) loop.exec();
}
