// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <utility>
#include <vector>

namespace ui {

/// What the user did while a window could not take it and that must not be lost: keys, and the ends of
/// presses that had been delivered. It comes in its order, once the command during which it was kept is over;
/// the event loops and boxes of that command do not get it.
class KeptInput : public QObject {
  public:
    /// The one of the application.
    static KeptInput& all();

    void keep(QObject& receiver, const QEvent& event);
    /// To be called once windows can take input again.
    void release();

    /// Keys that come before those that were kept follow them.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    explicit KeptInput(QObject* parent);
    bool commandIsOver() const;
    void deliver();

    std::vector<std::pair<QPointer<QObject>, std::unique_ptr<QEvent>>> m_kept;
    int m_loop = 0;  ///< how deep event loops were nested at the first one
    QTimer m_due;
};

/// Whether events of that type are keys that were struck, or released.
bool isKey(QEvent::Type type);

}  // namespace ui
