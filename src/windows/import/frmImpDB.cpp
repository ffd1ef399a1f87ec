// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/import/frmImpDB.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "platform/ui/Controls.h"
#include "platform/ui/DialogFrame.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/LineEdit.h"
#include "windows/core/bTheme.h"
#include "windows/core/Evento.h"
#include "windows/import/disposizione.h"
#include "windows/import/RiquadroCampi.h"
#include "windows/import/RiquadroCartella.h"

frmImpDB::frmImpDB(cartella::NuovoNodo nuovoNodo, QWidget* parent)
    : LateDialog(parent), NuovoNodo(std::move(nuovoNodo)) {
    setObjectName("frmImpDB");
    setWindowTitle(" Importa destinatari da Database Access");
    RilevaTema(this);
}

void frmImpDB::makeControls() {
    lblDatabase = ui::named(new QLabel("Percorso Database:", this), "lbl(0)");
    txtDatabase = ui::named(new ui::LineEdit(this), "txtDatabase");
    cmdSfoglia = ui::commandButton("Sfoglia", "cmdSfoglia", this);
    lblPassword = ui::named(new QLabel("Password Database:", this), "lbl(3)");
    txtPassword = ui::named(new ui::LineEdit(this), "txtPassword");
    cmdApri = ui::commandButton("Apri", "cmdApri", this);
    lblTabelle = ui::named(new QLabel("Tabelle esistenti:", this), "lbl(1)");
    cmbTab = ui::named(new QComboBox(this), "cmbTab");
    riquadroCampi = new RiquadroCampi(this);
    riquadroCartella = new RiquadroCartella("lbl(2)", this);
    cmdImportaDB = ui::commandButton("&Importa destinatari", "cmdImportaDB", this);
    cmdChiudi = ui::commandButton("&Chiudi", "cmdChiudi", this);
    DisponiImportazione(
        *this,
        {{lblDatabase, txtDatabase, cmdSfoglia}, {lblPassword, txtPassword, cmdApri}, {lblTabelle, cmbTab}},
        riquadroCampi, *riquadroCartella, {cmdImportaDB, cmdChiudi});
    cmbTab->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    CollegaEventi();
    AbilitaImportazione(false);
    ui::openAtLeast(*this, {700, 500});
    ui::setUpDialog(*this);
}

void frmImpDB::CollegaEventi() {
    alClick(cmdSfoglia, this, &frmImpDB::cmdSfoglia_Click);
    alClick(cmdApri, this, &frmImpDB::ElencaTabelle);
    alClick(cmdImportaDB, this, &frmImpDB::cmdImportaDB_Click);
    connect(cmdChiudi, &QPushButton::clicked, this, &QWidget::hide);
    connect(cmbTab, &QComboBox::activated, this, [this] { evento([this] { cmbTab_Click(); }); });
}

void frmImpDB::closeEvent(QCloseEvent* chiusura) {
    chiusura->ignore();
}

void frmImpDB::AbilitaImportazione(bool valore) {
    cmdImportaDB->setEnabled(valore);
    (valore ? cmdImportaDB : cmdApri)->setDefault(true);
}

void frmImpDB::cmdSfoglia_Click() {
    const auto percorso = ui::FileDialog::open("Apri Database Access", "Database Access (*.MDB)|*.MDB");
    if (percorso) txtDatabase->setText(*percorso);
}
