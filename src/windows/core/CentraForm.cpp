// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/core/CentraForm.h"

#include <QScreen>
#include <QWidget>

void CentraForm(QWidget& finestra) {
    // Changing a flag of a window that is shown already would hide it.
    if (!finestra.windowFlags().testFlag(Qt::WindowStaysOnTopHint))
        finestra.setWindowFlag(Qt::WindowStaysOnTopHint);
    finestra.setAttribute(Qt::WA_ShowWithoutActivating);
    const auto centra = [&finestra] {
        const QRect schermo = finestra.screen()->geometry();
        const QSize libero = schermo.size() - finestra.frameGeometry().size();
        finestra.move(schermo.x() + libero.width() / 2, schermo.y() + libero.height() / 2);
    };
    // Only a window that is shown has a known frame width; one without a frame does not jump.
    centra();
    finestra.show();
    centra();
}
