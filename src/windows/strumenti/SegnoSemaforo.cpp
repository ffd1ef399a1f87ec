// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/strumenti/SegnoSemaforo.h"

#include <QPainter>
#include <QPixmap>

namespace {

void disegna(QPainter& pennello, Semaforo semaforo) {
    switch (semaforo) {
        case Semaforo::Verde:
            pennello.setBrush(QColor(46, 107, 52));
            pennello.drawEllipse(QRectF(1.5, 1.5, 13, 13));
            break;
        case Semaforo::Giallo:
            pennello.setBrush(QColor(214, 137, 16));
            pennello.drawPolygon(QPolygonF{{8, 1}, {15.5, 14.5}, {0.5, 14.5}});
            break;
        case Semaforo::Rosso:
            pennello.setBrush(QColor(176, 42, 42));
            pennello.drawRect(QRectF(1.5, 1.5, 13, 13));
            break;
        case Semaforo::Attesa:
            break;
    }
}

}  // namespace

QIcon SegnoDi(Semaforo semaforo) {
    QIcon segno;
    if (semaforo == Semaforo::Attesa) return segno;
    for (const int scala : {1, 2, 3}) {
        QPixmap quadro(16 * scala, 16 * scala);
        quadro.setDevicePixelRatio(scala);
        quadro.fill(Qt::transparent);
        QPainter pennello(&quadro);
        pennello.setRenderHint(QPainter::Antialiasing);
        pennello.setPen(QPen(Qt::white, 1));
        disegna(pennello, semaforo);
        pennello.end();
        // The same picture where the row is chosen, which would be tinted otherwise.
        segno.addPixmap(quadro, QIcon::Normal);
        segno.addPixmap(quadro, QIcon::Selected);
    }
    return segno;
}
