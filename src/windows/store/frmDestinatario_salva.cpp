// Checking and saving the recipient.
#include <QLineEdit>

#include "modules/core/bFunctions.h"
#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/send/Accettati.h"
#include "platform/ado/Command.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/PropertyList.h"
#include "windows/store/frmDestinatario.h"
#include "windows/store/frmDestinatario_campi.h"
#include "windows/store/griglia.h"

namespace {

QString Testo(ui::PropertyList& prp, const CampoDestinatario& campo) {
    return prp.Item(campo.chiave)->Value().toString();
}

QString FlagSpedire(ui::PropertyList& prp) {
    return prp.Item("Spedire")->Value().toBool() ? QStringLiteral("True") : QStringLiteral("False");
}

}  // namespace

/// Cleans the texts where the user sees it: cut to the column's width, and without apostrophes, which would
/// end a text of the statement.
bool frmDestinatario::ValidaCampi() {
    for (const CampoDestinatario& campo : campiDestinatario) {
        QString testo = Testo(*prp, campo).left(campo.massimo);
        prp->Item(campo.chiave)->setValue(testo.remove('\''));
    }
    return EmailValida(Testo(*prp, campiDestinatario.front()));
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
    QString valori;
    for (const CampoDestinatario& campo : campiDestinatario)
        valori += ", '" + Testo(*prp, campo) + '\'';
    return "INSERT INTO [tb_destinatari] (id_grp, sel, email, rgs, nom, piva, ind, cap, loc, prov, tel, fax, "
           "campo1, campo2, campo3, campo4, campo5, campo6, campo7, campo8, campo9) VALUES (" +
           txtIDgroup->text() + ", " + FlagSpedire(*prp) + valori + ") ";
}

QString frmDestinatario::ComandoModifica() const {
    QString valori;
    for (const CampoDestinatario& campo : campiDestinatario)
        valori += QStringLiteral(", ") + campo.colonna + " = '" + Testo(*prp, campo) + '\'';
    return "UPDATE [tb_destinatari] SET id_grp = " + txtIDgroup->text() + ", sel = " + FlagSpedire(*prp) +
           valori + " WHERE id = " + txtIDuser->text() + " ;";
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
    grd.setTextMatrix(grd.Row(), 2, FlagSpedire(*prp));
    for (const CampoDestinatario& campo : campiDestinatario)
        grd.setTextMatrix(grd.Row(), campo.colonnaGriglia, Testo(*prp, campo));
}
