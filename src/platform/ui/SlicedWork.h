// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QElapsedTimer>
#include <QTimer>

namespace ui {

/// Work in the window's thread that keys and mouse go before: done in slices of some milliseconds, one at
/// each turn of the event loop. It rests while a dialog or a menu has the user.
class SlicedWork {
  public:
    /// The time that is left of a slice. Asking costs a look at the clock: once for some dozens of rows.
    class Slice {
      public:
        Slice() { m_begun.start(); }
        bool over() const { return m_begun.elapsed() >= milliseconds; }

      private:
        QElapsedTimer m_begun;
    };
    static constexpr int milliseconds = 10;

    /// Does a part of the work, until the slice is over; false when all is done.
    using Part = std::function<bool(const Slice& slice)>;

    explicit SlicedWork(Part part);

    /// From the next turn of the event loop on; what is under way continues.
    void start();
    void stop() { m_timer.stop(); }
    bool underWay() const { return m_timer.isActive(); }
    /// Does the next part no earlier than that.
    void restFor(int restMilliseconds) { m_timer.start(restMilliseconds); }

  private:
    void turn();

    Part m_part;
    QTimer m_timer;
};

}  // namespace ui
