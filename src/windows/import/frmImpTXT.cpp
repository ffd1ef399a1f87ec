// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/import/frmImpTXT.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>

#include "modules/core/bFunctions.h"
#include "modules/import/Inserimento.h"
#include "modules/import/RigaTesto.h"
#include "modules/import/UltimaImportazione.h"
#include "modules/store/RecordsetDB.h"
#include "platform/text/TextFile.h"
#include "platform/text/Words.h"
#include "platform/ui/Busy.h"
#include "platform/ui/Controls.h"
#include "platform/ui/DialogFrame.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/FileDrop.h"
#include "platform/ui/LineEdit.h"
#include "platform/ui/SeparatorEdit.h"
#include "windows/core/bTheme.h"
#include "windows/core/Evento.h"
#include "windows/core/Puntatore.h"
#include "windows/import/disposizione.h"
#include "windows/import/RiquadroCampi.h"
#include "windows/import/RiquadroCartella.h"

frmImpTXT::frmImpTXT(cartella::NuovoNodo nuovoNodo, QWidget* parent)
    : LateDialog(parent), NuovoNodo(std::move(nuovoNodo)) {
    setObjectName("frmImpTXT");
    setWindowTitle(" Importa destinatari da file di testo");
    RilevaTema(this);
}

void frmImpTXT::makeControls() {
    lblPercorso = ui::named(new QLabel("Percorso file di testo:", this), "lbl(0)");
    txtPath = ui::named(new ui::LineEdit(this), "txtPath");
    cmdSfoglia = ui::commandButton("Sfoglia", "cmdSfoglia", this);
    lblSeparatore = ui::named(new QLabel("Separatore campi:", this), "lbl(1)");
    txtSep = ui::named(new ui::SeparatorEdit(this), "txtSep");
    riquadroCampi = new RiquadroCampi(this);
    riquadroCartella = new RiquadroCartella("lbl(2)", this);
    cmdImportaTXT = ui::commandButton("&Importa destinatari", "cmdImportaTXT", this);
    cmdChiudi = ui::commandButton("&Chiudi", "cmdChiudi", this);
    DisponiImportazione(*this, {{lblPercorso, txtPath, cmdSfoglia}, {lblSeparatore, txtSep}}, riquadroCampi,
                        *riquadroCartella, {cmdImportaTXT, cmdChiudi});
    new ui::FileDrop(*this, [this](const QString& percorso) { txtPath->setText(percorso); });
    txtSep->setAlignment(Qt::AlignCenter);
    txtSep->setMaximumWidth(ui::scaledToFont(*this, 56));
    CollegaEventi();
    Carica();
    ui::openAtLeast(*this, {700, 440});
    ui::setUpDialog(*this);
}

void frmImpTXT::CollegaEventi() {
    alClick(cmdSfoglia, this, &frmImpTXT::cmdSfoglia_Click);
    alClick(cmdImportaTXT, this, &frmImpTXT::cmdImportaTXT_Click);
    connect(cmdChiudi, &QPushButton::clicked, this, &QWidget::hide);
    connect(&riquadroCampi->cmbCmp(campi::boxEmail), &QComboBox::currentIndexChanged, this,
            [this] { evento([this] { cmbCmp_Click(); }); });
}

void frmImpTXT::Carica() {
    riquadroCampi->Aggiungi(campi::nessuno);
    for (int n = 1; n <= RigaTesto::campiOfferti; ++n)
        riquadroCampi->Aggiungi("Campo n." + QString::number(n));
    riquadroCampi->ScegliPrima();
    cmbCmp_Click();
    txtPath->clear();
    txtSep->setText(";");
}

void frmImpTXT::closeEvent(QCloseEvent* chiusura) {
    chiusura->ignore();
}

void frmImpTXT::cmdSfoglia_Click() {
    const auto percorso = ui::FileDialog::open("Apri Database Access", "File di Testo (*.TXT)|*.TXT");
    if (percorso) txtPath->setText(*percorso);
}

void frmImpTXT::cmbCmp_Click() {
    const bool scelto = riquadroCampi->cmbCmp(campi::boxEmail).currentIndex() >= 1;
    cmdImportaTXT->setEnabled(scelto);
    (scelto ? cmdImportaTXT : cmdSfoglia)->setDefault(true);
}

RigaTesto frmImpTXT::Regola() const {
    RigaTesto regola;
    regola.separatore = txtSep->text();
    for (int i = 0; i < campi::quanti; ++i)
        regola.posizioni[static_cast<std::size_t>(i)] = riquadroCampi->cmbCmp(i).currentIndex();
    return regola;
}

void frmImpTXT::cmdImportaTXT_Click() {
    ado::Recordset rs = RecordsetDB();
    Inserimento inserimento;
    inserimento.Prepara();
    const auto gruppo = cartella::Scegli(riquadroCartella->Scelta(), rs, cartella::avvisoCartella,
                                         cartella::senzaGuardia, NuovoNodo);
    if (!gruppo) return;

    PuntatoreAttesa();
    const auto fatto = qScopeGuard(PuntatorePredefinito);
    ui::Busy lavoro;
    text::LineReader file;
    const QString percorso = PercorsoScritto(txtPath->text());
    const Operazione importazione(Words::tr("Importazione da file di testo"), percorso);
    esigi(file.open(percorso, text::LineEnds::Any, text::Encoding::Detected));
    const RigaTesto regola = Regola();
    QString riga;
    QString rifiutato;
    PuntoImportazione punto;
    UltimaImportazione& resoconto = ultimaImportazione();
    resoconto.Comincia(Words::tr("file di testo ") + NomeDaPercorso(percorso));
    for (; !file.atEnd(); ++punto.riga) {
        esigi(file.readLine(riga));
        if (const auto valori = regola.Leggi(riga, punto, &rifiutato)) {
            inserimento.Inserisci(*gruppo, *valori);
            ++punto.inseriti;
            resoconto.Importata(punto.riga, (*valori)[schema::email]);
        } else {
            resoconto.Rifiutata(punto.riga, riga, MotivoIndirizzo(rifiutato));
        }
        lavoro.breathe();
    }
    esigi(file.status());
    inserimento.Conferma();
    resoconto.Finisci(inserimento.Scritti());
    hide();
}
