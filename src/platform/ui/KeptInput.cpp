// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/KeptInput.h"

#include <QCoreApplication>
#include <QThread>
#include <QWindow>

namespace ui {

namespace {

constexpr int whileTheCommandLasts = 20;  // milliseconds

}  // namespace

bool isKey(QEvent::Type type) {
    return type == QEvent::KeyPress || type == QEvent::KeyRelease || type == QEvent::Shortcut ||
           type == QEvent::InputMethod;
}

KeptInput& KeptInput::all() {
    static QPointer<KeptInput> one;
    if (!one) one = new KeptInput(QCoreApplication::instance());
    return *one;
}

KeptInput::KeptInput(QObject* parent) : QObject(parent) {
    m_due.setSingleShot(true);
    m_due.callOnTimeout([this] { deliver(); });
}

void KeptInput::keep(QObject& receiver, const QEvent& event) {
    if (m_kept.empty()) m_loop = QThread::currentThread()->loopLevel();
    m_kept.emplace_back(&receiver, event.clone());
}

void KeptInput::release() {
    if (m_kept.empty()) return;
    QCoreApplication::instance()->installEventFilter(this);
    m_due.start(0);
}

bool KeptInput::eventFilter(QObject* watched, QEvent* event) {
    if (!event->spontaneous() || !isKey(event->type()) || !commandIsOver()) return false;
    keep(*watched, *event);
    return true;
}

bool KeptInput::commandIsOver() const {
    return QThread::currentThread()->loopLevel() <= m_loop;
}

void KeptInput::deliver() {
    if (!commandIsOver()) {
        m_due.start(whileTheCommandLasts);
        return;
    }
    QCoreApplication::instance()->removeEventFilter(this);
    for (auto& [receiver, event] : std::exchange(m_kept, {})) {
        const auto* window = qobject_cast<QWindow*>(receiver.data());
        const bool gone = !receiver || (window && !window->isVisible());
        if (!gone) QCoreApplication::sendEvent(receiver, event.get());
    }
}

}  // namespace ui
