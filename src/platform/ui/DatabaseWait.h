#pragma once

#include <chrono>
#include <functional>
#include <QList>
#include <QObject>
#include <QPointer>

#include "platform/ado/Waiting.h"

class QAbstractButton;
class QLabel;

namespace ui {

/// What the user sees and can do while a statement waits for another program that works on the database. As
/// long as it lives, every wait of the data access layer goes through it.
///
/// A wait that lasts is shown in the status bar and, where a modal window or the splash is in front, on that
/// window. From then on Esc gives it up; a stop button does so at any time, and is clicked once the statement
/// has returned. Windows are only painted meanwhile: a request to close one is repeated afterwards, other
/// mouse and key events are dropped, timers, sockets and posted events come when the event loop turns again.
class DatabaseWait : public QObject {
    Q_OBJECT

  public:
    /// `tell` sets the text in the status bar; an empty one when the wait is over.
    DatabaseWait(std::function<void(const QString&)> tell, QObject* parent);
    ~DatabaseWait() override;

    /// Makes it a stop button.
    static void makeStop(QAbstractButton& button);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool goOn(std::chrono::milliseconds waited);
    void over();
    void turn();
    void show();
    QAbstractButton* stopMeant(QObject* receiver, QEvent* event) const;

    std::function<void(const QString&)> m_tell;
    ado::WaitHook m_before;
    std::chrono::milliseconds m_turned{};  ///< when, since the wait began; 0: not yet
    bool m_shown = false;
    bool m_givenUp = false;
    QPointer<QLabel> m_notice;  ///< on the window in front
    QPointer<QAbstractButton> m_pressed;
    QList<QPointer<QObject>> m_closing;  ///< windows that were asked to close
};

}  // namespace ui
