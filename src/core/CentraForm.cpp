#include "core/CentraForm.h"

#include <QScreen>
#include <QWidget>

void CentraForm(QWidget& finestra) {
    // Changing a flag of a window that is shown already would hide it.
    if (!finestra.windowFlags().testFlag(Qt::WindowStaysOnTopHint))
        finestra.setWindowFlag(Qt::WindowStaysOnTopHint);
    finestra.setAttribute(Qt::WA_ShowWithoutActivating);
    const QRect schermo = finestra.screen()->geometry();
    finestra.move(schermo.x() + (schermo.width() - finestra.width()) / 2,
                  schermo.y() + (schermo.height() - finestra.height()) / 2);
    finestra.show();
}
