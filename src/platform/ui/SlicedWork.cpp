// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/SlicedWork.h"

#include <QApplication>

namespace ui {

SlicedWork::SlicedWork(Part part) : m_part(std::move(part)) {
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { turn(); });
}

void SlicedWork::start() {
    if (!m_timer.isActive()) m_timer.start(0);
}

void SlicedWork::turn() {
    constexpr int whileResting = 100;
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget()) {
        restFor(whileResting);
        return;
    }
    // A part that starts new work, or asks for a rest, has started the timer itself.
    if (m_part(Slice())) start();
}

}  // namespace ui
