// SPDX-License-Identifier: GPL-3.0-or-later
// Long work that nothing may interrupt, while windows are painted.
#pragma once

#include <QElapsedTimer>
#include <QEvent>
#include <QObject>

namespace ui {

/// Whether events of that type come from the user's hands.
bool isInput(QEvent::Type type);

/// One long piece of work that nothing may interrupt. While it lasts, windows are still painted and answer
/// the desktop's question whether they are alive, but clicks, keys and the like are dropped, also those
/// that wait at its end.
class Busy : public QObject {
  public:
    Busy();
    ~Busy() override;

    /// Whether there is such work under way.
    static bool any();

    /// To be called at each step of the work; costs next to nothing unless something is due. Timers and
    /// sockets have their turn as well.
    void breathe();

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QElapsedTimer m_sinceBreath;
};

}  // namespace ui
