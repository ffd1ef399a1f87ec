#include "shell/frmSplash.h"

#include <QVBoxLayout>

#include "core/CentraForm.h"
#include "core/Prodotto.h"
#include "shell/bTheme.h"
#include "shell/Insegna.h"

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
