// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <initializer_list>
#include <memory>
#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QLabel>
#include <QLineEdit>
#include <QObject>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "platform/mail/DeliveryControl.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/ProgressCounter.h"
#include "support/SampleFolder.h"
#include "support/SmtpSink.h"
#include "windows/send/frmInvia.h"

namespace testing_support {

/// The environment of one send window: a program folder, a loopback server, one account that leads to it, the
/// window opened as the main window opens it (though not modally), and functions that find its controls.
/// Boxes and file dialogs answer from their queues; the end of the program is only noted.
class SendStage {
  public:
    /// `recipients` are the addresses of selected recipients, sorted as they are given.
    explicit SendStage(const QStringList& recipients);
    explicit SendStage(std::initializer_list<const char*> recipients = {});
    explicit SendStage(const QList<SampleFolder::Columns>& recipients);
    ~SendStage();

    SampleFolder folder;
    SmtpSink sink;
    std::unique_ptr<frmInvia> window;
    QList<int> ends;  ///< exit statuses of the ends of the program that were asked for

    /// What the main window does to open it.
    void open();
    /// Chooses the message with the button.
    void pick(const QString& path);
    void pick() { pick(folder.writeMessage()); }
    void click(const char* name);
    /// Starts a run with a hardly noticeable pause.
    void start();
    /// Turns the event loop until the run is over; false when it takes too long.
    bool waitForEnd();
    /// start() and waitForEnd() after pick().
    bool run();

    template <class Control>
    Control* control(const char* name) const {
        auto* found = window->findChild<Control*>(name);
        if (!found) qFatal("no control %s", name);
        return found;
    }
    mail::DeliveryControl& smtp() const { return *control<mail::DeliveryControl>("SMTP"); }
    QTimer& timer() const { return *control<QTimer>("tmr"); }
    QString label(const char* name) const { return control<QLabel>(name)->text(); }
    double counter(const char* name) const { return control<ui::ProgressCounter>(name)->value(); }
    bool enabled(const char* name) const { return control<QWidget>(name)->isEnabled(); }
    /// To do, failed, delivered.
    QList<double> counters() const {
        return {counter("prgDaInviare"), counter("prgFallite"), counter("prgInviate")};
    }
    /// The header field of a message that the server accepted.
    QByteArray header(int message, const QByteArray& name) const;
};

/// Lets the running tests see the state right after the window handled one event of `watched`.
class EventWatch : public QObject {
    Q_OBJECT

  public:
    /// Runs `action` once, before the next event of that type reaches `watched`.
    EventWatch(QObject* watched, QEvent::Type type, std::function<void()> action);
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QEvent::Type m_type;
    std::function<void()> m_action;
};

/// The program's clock under the test's control: sleeping only advances it.
class TestClock {
  public:
    TestClock();
    ~TestClock();
    void advance(int seconds);
    QDateTime now() const { return m_now; }
    int slept() const { return m_slept; }  ///< milliseconds since the start or clearSlept()
    void clearSlept() { m_slept = 0; }
    /// Runs at each sleep.
    void onSleep(std::function<void()> action) { m_onSleep = std::move(action); }

  private:
    QDateTime m_now;
    int m_slept = 0;
    std::function<void()> m_onSleep;
};

}  // namespace testing_support
