// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/core/Puntatore.h"

#include <QApplication>

void PuntatoreAttesa() {
    PuntatorePredefinito();
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

void PuntatorePredefinito() {
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
}
