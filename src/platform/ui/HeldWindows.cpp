// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/HeldWindows.h"

#include <QCoreApplication>
#include <QWidget>
#include <QWindow>
#include <utility>

#include "platform/ui/Busy.h"
#include "platform/ui/KeptInput.h"
#include "platform/ui/WindowTurn.h"

namespace ui {

HeldWindows::HeldWindows(Keys keys, Input input) : m_keys(keys), m_input(std::move(input)) {}

void HeldWindows::turn() {
    QCoreApplication::instance()->installEventFilter(this);
    turnWindows();
    QCoreApplication::instance()->removeEventFilter(this);
}

void HeldWindows::release() {
    m_pressed = 0;
    KeptInput::all().release();
    const auto closeLater = [](auto* asked) {
        if (asked)
            QMetaObject::invokeMethod(
                asked, [asked] { asked->close(); }, Qt::QueuedConnection);
    };
    for (const QPointer<QObject>& asked : std::exchange(m_closing, {})) {
        closeLater(qobject_cast<QWindow*>(asked));
        closeLater(qobject_cast<QWidget*>(asked));
    }
}

/// A window that got a press and never its end would take all that follows for part of it.
bool HeldWindows::kept(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::TouchBegin:
        case QEvent::TabletPress:
            ++m_pressed;
            return false;
        case QEvent::MouseButtonRelease:
        case QEvent::TouchEnd:
        case QEvent::TabletRelease:
            if (m_pressed == 0) return true;
            --m_pressed;
            return false;
        default:
            return m_keys == Keys::Kept && isKey(type);
    }
}

bool HeldWindows::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Close) {
        if (!m_closing.contains(watched)) m_closing.append(watched);
        event->ignore();
        return true;
    }
    if (!isInput(event->type())) return false;
    if (kept(event->type())) KeptInput::all().keep(*watched, *event);
    if (m_input) m_input(*watched, *event);
    return true;
}

}  // namespace ui
