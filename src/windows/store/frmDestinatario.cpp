// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/store/frmDestinatario.h"

#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

#include "modules/store/Destinatario.h"
#include "modules/store/RecordsetDB.h"
#include "platform/text/Words.h"
#include "platform/ui/Controls.h"
#include "platform/ui/DialogFrame.h"
#include "platform/ui/PropertyList.h"
#include "windows/core/bTheme.h"
#include "windows/core/Evento.h"
#include "windows/core/SchedaProprieta.h"
#include "windows/store/frmDestinatario_campi.h"
#include "windows/store/griglia.h"

frmDestinatario::frmDestinatario(QWidget* parent) : LateDialog(parent) {
    RilevaTema(this);
    setObjectName("frmDestinatario");
    for (const schema::Campo campo : schema::ordineIstruzioni)
        didascalie += griglia::Intestazione(campo);
}

void frmDestinatario::makeControls() {
    txtIDuser = new QLineEdit(this);
    txtIDgroup = new QLineEdit(this);
    lbl = new QLabel(this);
    prp = new ui::PropertyList(this);
    cdmSalva = ui::commandButton("&Salva", "cdmSalva", this);
    cmdAnnulla = ui::commandButton("&Annulla", "cmdAnnulla", this);
    txtIDuser->setObjectName("txtIDuser");
    txtIDgroup->setObjectName("txtIDgroup");
    lbl->setObjectName("lbl");
    prp->setObjectName("prp");
    txtIDuser->hide();
    txtIDgroup->hide();
    CreaVoci();
    DisponiScheda(*this, {lbl, prp, cdmSalva, cmdAnnulla}, "user-properties");
    alClick(cdmSalva, this, &frmDestinatario::cdmSalva_Click);
    alClick(cmdAnnulla, this, &QWidget::hide);
    const QSize dimensione(ui::scaledToFont(*this, 460), ui::scaledToFont(*this, 640));
    resize(dimensione.boundedTo(screen()->availableSize()));
    ui::setUpDialog(*this);
}

void frmDestinatario::CreaVoci() {
    prp->addGroup("Datidestinatario", "Dati destinatario");
    prp->addBoolean("Spedire", "Send", Words::tr("Il destinatario è compreso nel prossimo invio"));
    auto didascalia = didascalie.cbegin();
    for (const schema::Campo campo : schema::ordineIstruzioni) {
        if (campo == schema::campo1) prp->addGroup("Altro", "Altro");
        const auto& [chiave, descrizione] = vociDestinatario[campo];
        prp->addText(chiave, *didascalia++, Words::tr(descrizione).arg(schema::testi[campo].massimo));
    }
}

void frmDestinatario::PulisciCampi() {
    prp->Item("Spedire")->setValue(true);
    for (const VoceDestinatario& voce : vociDestinatario)
        prp->Item(voce.chiave)->setValue(QString());
}

void frmDestinatario::CaricaUser(std::int32_t id) {
    ado::Recordset rs = RecordsetDB();
    rs.setSource("SELECT * FROM [tb_destinatari] WHERE id = " + QString::number(id) + " ;");
    esigi(rs.open());
    prp->Item("Spedire")->setValue(esigi(esigi(rs.value(u"sel")).toBool()));
    for (const schema::Campo campo : schema::ordineIstruzioni)
        prp->Item(vociDestinatario[campo].chiave)
            ->setValue(esigi(rs.value(destinatario::NomeColonna(campo))).toTextOrEmpty());
}

void frmDestinatario::closeEvent(QCloseEvent* chiusura) {
    chiusura->ignore();
}

void frmDestinatario::showEvent(QShowEvent* mostra) {
    QDialog::showEvent(mostra);
    salvataggioFallito = false;
    prp->focusProxy()->setAccessibleName(prp->Item("Datidestinatario")->Caption());
    prp->setFocus();
    prp->setCurrentItem(modo == 1 ? "Spedire" : "Email");
}
