#include <QScopedValueRollback>

#include "core/Finestre.h"
#include "lang/bVAR.h"
#include "platform/ui/MessageDialog.h"
#include "send/frmInvia.h"
#include "send/Selezione.h"
#include "shell/frmMain.h"

void frmMain::ComandoPremuto(const QString& nome) {
    if (comandoInCorso) return;
    const QScopedValueRollback inCorso(comandoInCorso, true);

    // Every command has a recordset of its own, used or not; it is gone when the command is done.
    ado::Recordset rs = RecordsetSelezione();
    if (nome == "cmdEsci") {
        close();
    } else if (nome == "cmdInvia") {
        cmdInvia(rs);
    }
}

void frmMain::cmdInvia(ado::Recordset& rs) {
    if (ContaSelezionati(rs) < 1) {
        ui::MessageDialog::show(bVAR::AddDestinatario, ui::MessageDialog::Notice, bVAR::Attenzione);
        return;
    }
    frmInvia& invio = finestre::Invia();
    invio.SetPrgBar();
    invio.CaricaDati();
    invio.exec();
}
