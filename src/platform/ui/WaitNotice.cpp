// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/WaitNotice.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QToolTip>

namespace ui {

namespace {

using std::chrono::milliseconds;

// Most waits are over before the user sees them: until then nothing is painted and no click is lost.
constexpr milliseconds unnoticed{200};
constexpr milliseconds betweenPaintings{40};
constexpr milliseconds lasting{1000};

constexpr const char* stopMark = "endsWaitNotice";

/// The window that the user looks at where that is not the one with the status bar.
QWidget* windowInFront() {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    QWidget* front = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || window->windowType() == Qt::Popup) continue;
        if (window->inherits("QMainWindow")) return nullptr;
        front = window;
    }
    return front;
}

}  // namespace

WaitNotice::WaitNotice(QString words, std::function<void(const QString&)> tell, QObject* parent)
    : QObject(parent),
      m_tell(std::move(tell)),
      m_words(std::move(words)),
      m_windows(HeldWindows::Keys::Dropped,
                [this](QObject& receiver, QEvent& input) { notice(receiver, input); }) {}

WaitNotice::~WaitNotice() {
    delete m_notice;
}

void WaitNotice::makeStop(QAbstractButton& button) {
    button.setProperty(stopMark, true);
}

bool WaitNotice::goOn(milliseconds waited) {
    if (waited < unnoticed || waited - m_turned < betweenPaintings) return true;
    m_turned = waited;
    if (waited >= lasting && !m_shown) show();
    m_windows.turn();
    return !m_givenUp;
}

void WaitNotice::show() {
    m_shown = true;
    m_tell(m_words);
    QWidget* window = windowInFront();
    if (!window) return;
    m_notice = new QLabel(m_words, window);
    m_notice->setObjectName("AvvisoAttesa");
    m_notice->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_notice->setPalette(QToolTip::palette());
    m_notice->setAutoFillBackground(true);
    m_notice->setFrameStyle(QFrame::Box | QFrame::Plain);
    m_notice->setAlignment(Qt::AlignCenter);
    m_notice->setWordWrap(true);
    m_notice->setMargin(4);
    // Above: the buttons are below.
    m_notice->setGeometry(0, 0, window->width(), m_notice->heightForWidth(window->width()));
    m_notice->show();
    QAccessibleEvent alert(m_notice, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void WaitNotice::over() {
    if (m_turned > milliseconds{}) m_windows.turn();  // what waits at the end is dropped as well
    if (m_shown) m_tell({});
    delete m_notice;
    if (m_pressed) QMetaObject::invokeMethod(m_pressed, &QAbstractButton::click, Qt::QueuedConnection);
    m_windows.release();
    m_turned = {};
    m_shown = false;
    m_givenUp = false;
    m_pressed.clear();
}

/// The stop button that a press of the mouse or of a key means, or null.
QAbstractButton* WaitNotice::stopMeant(QObject& receiver, QEvent& event) {
    const auto stop = [](QWidget* widget) -> QAbstractButton* {
        auto* button = qobject_cast<QAbstractButton*>(widget);
        return button && button->isEnabled() && button->property(stopMark).toBool() ? button : nullptr;
    };
    if (event.type() == QEvent::MouseButtonPress) {
        const auto& press = static_cast<QMouseEvent&>(event);
        if (press.button() != Qt::LeftButton) return nullptr;
        auto* widget = qobject_cast<QWidget*>(&receiver);
        return stop(widget ? widget : QApplication::widgetAt(press.globalPosition().toPoint()));
    }
    if (event.type() != QEvent::KeyPress && event.type() != QEvent::ShortcutOverride) return nullptr;
    const auto& key = static_cast<QKeyEvent&>(event);
    if (key.key() == Qt::Key_Space || key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter)
        return stop(QApplication::focusWidget());
    QWidget* window = QApplication::activeWindow();
    if (!window) return nullptr;
    for (auto* button : window->findChildren<QAbstractButton*>())
        if (stop(button) && button->shortcut() == QKeySequence(key.keyCombination())) return button;
    return nullptr;
}

void WaitNotice::notice(QObject& receiver, QEvent& input) {
    if (QAbstractButton* stop = stopMeant(receiver, input)) {
        m_pressed = stop;
        m_givenUp = true;
    }
    const bool key = input.type() == QEvent::KeyPress || input.type() == QEvent::ShortcutOverride;
    if (key && m_shown && static_cast<QKeyEvent&>(input).key() == Qt::Key_Escape) m_givenUp = true;
}

}  // namespace ui
