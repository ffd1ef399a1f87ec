// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QEvent>
#include <QList>
#include <QObject>
#include <QPointer>

namespace ui {

/// Windows that are painted while the program cannot answer them. What the user does reaches no window
/// meanwhile; a request to close one is repeated afterwards, and so is the end of a press that a window had
/// got.
class HeldWindows : public QObject {
  public:
    enum class Keys {
        Dropped,
        Kept  ///< they come afterwards (KeptInput.h)
    };
    /// Called for each event of the user's hands, with its first receiver.
    using Input = std::function<void(QObject& receiver, QEvent& event)>;
    explicit HeldWindows(Keys keys, Input input = {});

    /// Processes the events of windows once (WindowTurn.h).
    void turn();
    /// To be called once afterwards: what is repeated comes when the event loop turns.
    void release();

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool kept(QEvent::Type type);

    const Keys m_keys;
    const Input m_input;
    int m_pressed = 0;                   ///< presses that were dropped, and not yet their ends
    QList<QPointer<QObject>> m_closing;  ///< windows that were asked to close
};

}  // namespace ui
