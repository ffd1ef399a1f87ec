// SPDX-License-Identifier: GPL-3.0-or-later
// The commands on one recipient.
#include <QLabel>
#include <QLineEdit>

#include "modules/core/Fallimento.h"
#include "modules/lang/bVAR.h"
#include "modules/store/nodo.h"
#include "platform/ado/Command.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/MessageDialog.h"
#include "windows/store/frmDestinatario.h"
#include "windows/store/griglia.h"

namespace {

frmDestinatario& Intitola(const QString& titolo) {
    frmDestinatario& finestra = griglia::Destinatario();
    finestra.setWindowTitle(titolo + ' ');
    finestra.lbl->setText(titolo);
    return finestra;
}

/// Shows the form, and again with its content as long as saving failed. The grid then shows values
/// that are not stored: it is refilled in between.
void Mostra(frmDestinatario& finestra) {
    finestra.exec();
    while (finestra.salvataggioFallito) {
        Prosegui prosegui;
        prosegui(griglia::RinfrescaGriglia);
        griglia::ScegliRiga(finestra.txtIDuser->text());
        finestra.exec();
    }
}

}  // namespace

void comandiDestinatario::Nuovo() {
    if (!GruppoEsiste(NumeroNodoCorrente())) return;
    frmDestinatario& finestra = Intitola(bVAR::varAddDestinatario);
    finestra.txtIDgroup->setText(NumeroNodoCorrente());
    finestra.txtIDuser->setText("0");
    finestra.PulisciCampi();
    finestra.modo = 0;
    Mostra(finestra);
}

void comandiDestinatario::Modifica() {
    if (!GruppoEsiste(NumeroNodoCorrente())) return;
    frmDestinatario& finestra = Intitola(bVAR::varModDestinatario);
    const QString id = griglia::idCorrente();
    finestra.txtIDgroup->setText(NumeroNodoCorrente());
    finestra.txtIDuser->setText(id);
    finestra.CaricaUser(id.toInt());
    finestra.modo = 1;
    Mostra(finestra);
}

void comandiDestinatario::Elimina(ado::Command& comando) {
    using ui::MessageDialog;
    if (MessageDialog::show("Sicuro di voler cancellare questo destinatario?\r\nOperazione irreversibile.",
                            MessageDialog::AskNotice, "Attenzione", MessageDialog::No) != MessageDialog::Yes)
        return;
    comando.setCommandText("DELETE FROM [tb_destinatari] WHERE id = " + griglia::idCorrente() + " ;");
    esigi(comando.execute());
    griglia::grd().RemoveItem(griglia::grd().Row());
}
