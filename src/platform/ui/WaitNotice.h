// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <QObject>
#include <QPointer>
#include <QString>

#include "platform/ui/HeldWindows.h"

class QAbstractButton;
class QLabel;

namespace ui {

/// The notice to the user while the program waits for another one. A wait that lasts is shown in the
/// status bar and, where a modal window or the splash is in front, on that window. From then on Esc ends
/// it; a stop button does so at any time, and is clicked once the wait is over. Windows are only painted
/// meanwhile: a request to close one is repeated afterwards, other mouse and key events are dropped, timers,
/// sockets and posted events come when the event loop turns again.
class WaitNotice : public QObject {
    Q_OBJECT

  public:
    /// `words` name what is waited for. `tell` sets the text in the status bar; an empty one when the wait is
    /// over.
    WaitNotice(QString words, std::function<void(const QString&)> tell, QObject* parent);
    ~WaitNotice() override;

    /// To be called every few milliseconds with the time since the wait began; false where it was given up.
    bool goOn(std::chrono::milliseconds waited);
    /// To be called once after a wait, whatever became of it.
    void over();

    /// Makes it a stop button.
    static void makeStop(QAbstractButton& button);

  private:
    void show();
    void notice(QObject& receiver, QEvent& input);
    static QAbstractButton* stopMeant(QObject& receiver, QEvent& event);

    std::function<void(const QString&)> m_tell;
    QString m_words;
    std::chrono::milliseconds m_turned{};  ///< when, since the wait began; 0: not yet
    bool m_shown = false;
    bool m_givenUp = false;
    QPointer<QLabel> m_notice;  ///< on the window in front
    QPointer<QAbstractButton> m_pressed;
    HeldWindows m_windows;
};

}  // namespace ui
