// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/import/frmScelta.h"

#include <QCloseEvent>
#include <QPushButton>

#include "platform/ui/Controls.h"
#include "platform/ui/DialogFrame.h"
#include "windows/core/bTheme.h"
#include "windows/core/Evento.h"
#include "windows/import/disposizione.h"
#include "windows/import/RiquadroCartella.h"

frmScelta::frmScelta(QWidget* parent) : LateDialog(parent) {
    setObjectName("frmScelta");
    setWindowTitle(" Nuovi destinatari");
    RilevaTema(this);
}

void frmScelta::makeControls() {
    riquadro = new RiquadroCartella("lbl", this);
    cmdOK = ui::commandButton("&OK", "cmdOK", this);
    cmdAnnulla = ui::commandButton("&Annulla", "cmdAnnulla", this);
    DisponiImportazione(*this, {}, nullptr, *riquadro, {cmdOK, cmdAnnulla});
    cmdOK->setDefault(true);
    alClick(cmdOK, this, &frmScelta::cmdOK_Click);
    alClick(cmdAnnulla, this, &frmScelta::cmdAnnulla_Click);
    ui::openAtLeast(*this, {440, 190});
    ui::setUpDialog(*this);
}

void frmScelta::cmdOK_Click() {
    cartellaSelezionata = riquadro->Scelta().selezionata;
    sceltaAnnullata = false;
    hide();
}

void frmScelta::cmdAnnulla_Click() {
    sceltaAnnullata = true;
    hide();
}

cartella::Scelta frmScelta::Scelta() const {
    return {cartellaSelezionata, riquadro->Scelta().nuova};
}

void frmScelta::closeEvent(QCloseEvent* chiusura) {
    chiusura->ignore();
}
