// SPDX-License-Identifier: GPL-3.0-or-later
// Checking and saving the recipient.
#include <QLineEdit>

#include "modules/core/bFunctions.h"
#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/send/Accettati.h"
#include "modules/store/Destinatario.h"
#include "platform/ado/Command.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/PropertyList.h"
#include "windows/store/frmDestinatario.h"
#include "windows/store/frmDestinatario_campi.h"
#include "windows/store/griglia.h"

namespace {

QString Testo(ui::PropertyList& prp, schema::Campo campo) {
    return prp.Item(vociDestinatario[campo].chiave)->Value().toString();
}

destinatario::Valori Testi(ui::PropertyList& prp) {
    destinatario::Valori valori;
    for (const schema::Campo campo : schema::ordineIstruzioni)
        valori[campo] = Testo(prp, campo);
    return valori;
}

QString FlagSpedire(ui::PropertyList& prp) {
    return prp.Item("Spedire")->Value().toBool() ? QStringLiteral("True") : QStringLiteral("False");
}

}  // namespace

/// Cleans the texts where the user sees it: cut to the column's width, and without apostrophes, which would
/// end a text of the statement.
bool frmDestinatario::ValidaCampi() {
    for (const schema::Campo campo : schema::ordineIstruzioni) {
        QString testo = destinatario::Taglia(Testo(*prp, campo), campo);
        prp->Item(vociDestinatario[campo].chiave)->setValue(testo.remove('\''));
    }
    return EmailValida(Testo(*prp, schema::email));
}

void frmDestinatario::cdmSalva_Click() {
    if (!ValidaCampi()) {
        ui::MessageDialog::show("Impossibile continuare.\r\nL'email inserita non è corretta.",
                                ui::MessageDialog::Notice, "Attenzione");
        return;
    }
    Prosegui prosegui;
    ado::Command comando;
    prosegui([&] { esigi(comando.setActiveConnection(connDB)); });
    comando.setCommandTimeout(0);
    if (modo == 1) prosegui([this] { DimenticaAccettato(txtIDuser->text()); });
    comando.setCommandText(modo == 1 ? ComandoModifica() : ComandoNuovo());
    prosegui([&] { esigi(comando.execute()); });
    salvataggioFallito = prosegui.numero() != 0;
    if (salvataggioFallito)
        ui::MessageDialog::show(prosegui.testo(), ui::MessageDialog::Notice, "Attenzione");
    prosegui([this] { AggiornaGriglia(); });
    hide();
}

QString frmDestinatario::ComandoNuovo() const {
    return destinatario::IstruzioneNuovo(txtIDgroup->text(), FlagSpedire(*prp), Testi(*prp));
}

QString frmDestinatario::ComandoModifica() const {
    return destinatario::IstruzioneModifica(txtIDuser->text(), txtIDgroup->text(), FlagSpedire(*prp),
                                            Testi(*prp));
}

/// A new recipient has its place by the order of the list; an edited one keeps its row until the next fill.
void frmDestinatario::AggiornaGriglia() {
    if (modo != 1) {
        griglia::RiempiGriglia();
        return;
    }
    ui::DataGrid& grd = griglia::grd();
    // A fill after a failed save need not have found the recipient.
    if (ripiega(QString(), griglia::idCorrente) != txtIDuser->text()) {
        griglia::RinfrescaGriglia();
        return;
    }
    grd.setTextMatrix(grd.Row(), griglia::colonnaSel, FlagSpedire(*prp));
    for (const schema::Campo campo : schema::ordineIstruzioni)
        grd.setTextMatrix(grd.Row(), griglia::ColonnaDi(campo), Testo(*prp, campo));
}
