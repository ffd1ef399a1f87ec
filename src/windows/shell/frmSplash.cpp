// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/shell/frmSplash.h"

#include <QVBoxLayout>

#include "modules/core/Prodotto.h"
#include "windows/core/bTheme.h"
#include "windows/core/CentraForm.h"
#include "windows/shell/Insegna.h"

frmSplash::frmSplash()
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                           Qt::WindowDoesNotAcceptFocus) {
    setObjectName("frmSplash");
    setWindowTitle(prodotto::nome());
    setFixedSize(420, 200);
}

void frmSplash::Carica() {
    RilevaTema(this);
    QVBoxLayout* colonna = CreaInsegna(*this);
    colonna->insertStretch(0);
    colonna->addStretch();
    CentraForm(*this);
}
