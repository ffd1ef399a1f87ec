// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/Busy.h"

#include <QCoreApplication>

namespace ui {

namespace {

int underWay = 0;

}  // namespace

Busy::Busy() {
    ++underWay;
    QCoreApplication::instance()->installEventFilter(this);
    m_sinceBreath.start();
}

Busy::~Busy() {
    QCoreApplication::processEvents();
    --underWay;
}

bool Busy::any() {
    return underWay > 0;
}

void Busy::breathe() {
    constexpr qint64 milliseconds = 100;
    if (m_sinceBreath.elapsed() < milliseconds) return;
    QCoreApplication::processEvents();
    m_sinceBreath.restart();
}

bool Busy::eventFilter(QObject*, QEvent* event) {
    return isInput(event->type());
}

bool isInput(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::Wheel:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride:
        case QEvent::InputMethod:
        case QEvent::ContextMenu:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TabletPress:
        case QEvent::TabletMove:
        case QEvent::TabletRelease:
        case QEvent::Drop:
            return true;
        default:
            return false;
    }
}

}  // namespace ui
