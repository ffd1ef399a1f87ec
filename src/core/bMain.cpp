#include "core/bMain.h"

#include <QApplication>

#include "core/bError.h"
#include "core/Fallimento.h"
#include "core/Finestre.h"
#include "shell/frmMain.h"
#include "store/percorsoDBase.h"

void SubMain() {
    Prosegui prosegui;
    ScriviInizioLog();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    CaricaPercorsoDBase();
    // Naming the main window creates and loads it before the caption is stored.
    prosegui([] { TitoloPrincipale(); });
    prosegui([] { finestre::Main().show(); });
    prosegui([] { TitoloPrincipale(); });
    QApplication::restoreOverrideCursor();
}
