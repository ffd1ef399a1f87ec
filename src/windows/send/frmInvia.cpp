// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/send/frmInvia.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "modules/core/bGlobal.h"
#include "modules/lang/bVAR.h"
#include "modules/send/Accettati.h"
#include "platform/mail/DeliveryControl.h"
#include "platform/text/NumberText.h"
#include "platform/text/Words.h"
#include "platform/ui/Announcer.h"
#include "platform/ui/Controls.h"
#include "platform/ui/CountLabel.h"
#include "platform/ui/DatabaseWait.h"
#include "platform/ui/DialogFrame.h"
#include "platform/ui/LineEdit.h"
#include "platform/ui/ProgressCounter.h"
#include "windows/core/bTheme.h"
#include "windows/core/Evento.h"

frmInvia::frmInvia(std::function<void()> riempiGriglia, QWidget* parent)
    : LateDialog(parent), RiempiGriglia(std::move(riempiGriglia)) {
    setObjectName("frmInvia");
    setWindowTitle(" Invia messaggi");
    RilevaTema(this);
}

void frmInvia::makeControls() {
    CreaControlli();
    DisponiControlli();
    CollegaEtichette();
    CollegaSuggerimenti();
    CollegaEventi();
    SMTP->Accepted = &accettati();
    risposteAttese() = {[this] { SMTP->Settle(); }, [this] { return SMTP->Awaited(percorsoDB); },
                        [this](const QList<qint64>& numeri) { SMTP->Forget(percorsoDB, numeri); }};
    resize(600, 340);
    ui::setUpDialog(*this);
}

frmInvia::~frmInvia() {
    risposteAttese() = {};
}

void frmInvia::CreaControlli() {
    const auto nomina = [this](auto* controllo, const char* nome) {
        controllo->setParent(this);
        return ui::named(controllo, nome);
    };
    const auto pulsante = [this](const char* nome, const char* testo, const char* icona) {
        auto* controllo = ui::commandButton(testo, nome, this);
        if (icona) controllo->setIcon(QIcon::fromTheme(icona));
        return controllo;
    };
    const auto casella = [&](const char* nome, const char* testo = "") {
        auto* controllo = nomina(new ui::LineEdit(testo), nome);
        controllo->setMinimumHeight(ui::fieldHeight);
        return controllo;
    };
    const auto elenco = [&](const char* nome) {
        auto* controllo = nomina(new QComboBox, nome);
        controllo->setMinimumHeight(ui::fieldHeight);
        return controllo;
    };
    const auto etichetta = [&](const char* nome, const char* testo) {
        return nomina(new QLabel(testo), nome);
    };
    const auto conteggio = [&](const char* nome, const char* testo) {
        return nomina(new ui::CountLabel(testo), nome);
    };
    // In tab order.
    lblFile = etichetta("lblFile", "File messaggio da inviare:");
    txtFile = casella("txtFile");
    cmdFile = pulsante("cmdFile", "...", nullptr);
    lblMittente = etichetta("lblMittente", "Account mittente:");
    cmbAccount = elenco("cmbAccount");
    lblPausa = etichetta("lblPausa", "Pausa:");
    cmbPausa = elenco("cmbPausa");
    lblTimeOut = etichetta("lblTimeOut", "Timeout:");
    cmbTimeout = elenco("cmbTimeout");
    chkBlocco = nomina(new QCheckBox("Non inviare più di"), "chkBlocco");
    txtBloccoNum = casella("txtBloccoNum", "50");
    lblBlocco1 = etichetta("lblBlocco1", "email ogni");
    txtBloccoMin = casella("txtBloccoMin", "5");
    lblBlocco2 = etichetta("lblBlocco2", "minuti.");
    chkLog = nomina(new QCheckBox("Crea File per assistenza."), "chkLog");
    lblDaInviare = conteggio("lblDaInviare", "Email da inviare:");
    prgDaInviare = nomina(new ui::ProgressCounter, "prgDaInviare");
    lblFallite = conteggio("lblFallite", "Email non inviate:");
    prgFallite = nomina(new ui::ProgressCounter, "prgFallite");
    lblInviate = conteggio("lblInviate", "Email inviate:");
    prgInviate = nomina(new ui::ProgressCounter, "prgInviate");
    voce = new ui::Announcer(this);
    cmdInvia = pulsante("cmdInvia", "&Invia messaggi", "document-send");
    cmdFerma = pulsante("cmdFerma", "&Ferma invio", "media-playback-stop");
    cmdChiudi = pulsante("cmdChiudi", "&Chiudi", nullptr);
    SMTP = nomina(new mail::DeliveryControl, "SMTP");
    tmr = nomina(new QTimer, "tmr");

    txtBloccoNum->setEnabled(false);
    txtBloccoMin->setEnabled(false);
    cmdFerma->setEnabled(false);
    ui::DatabaseWait::makeStop(*cmdFerma);
    cmdInvia->setDefault(true);
}

void frmInvia::DisponiControlli() {
    auto* comandi = new QHBoxLayout;
    comandi->setSpacing(ui::controlSpacing);
    comandi->addStretch();
    for (QPushButton* pulsante : {cmdInvia, cmdFerma, cmdChiudi}) {
        if (pulsante == cmdChiudi) comandi->addSpacing(ui::windowMargin);
        comandi->addWidget(pulsante);
    }

    auto* finestra = new QVBoxLayout(this);
    finestra->setContentsMargins(ui::windowMargin, ui::windowMargin, ui::windowMargin, ui::windowMargin);
    finestra->setSpacing(ui::windowMargin);
    finestra->addLayout(DisponiScelte());
    finestra->addWidget(ui::separatorLine(this));
    finestra->addLayout(DisponiContatori());
    finestra->addStretch();
    finestra->addLayout(comandi);
}

QGridLayout* frmInvia::DisponiScelte() {
    cmdFile->setMinimumSize(0, ui::fieldHeight);
    cmdFile->setMaximumWidth(cmdFile->fontMetrics().horizontalAdvance("...") + 28);
    auto* file = new QHBoxLayout;
    file->setSpacing(ui::controlSpacing);
    file->addWidget(txtFile, 1);
    file->addWidget(cmdFile);

    auto* tempi = new QHBoxLayout;
    tempi->setSpacing(ui::controlSpacing);
    tempi->addWidget(cmbPausa);
    tempi->addSpacing(2 * ui::windowMargin);
    tempi->addWidget(lblTimeOut);
    tempi->addWidget(cmbTimeout);
    tempi->addStretch();
    for (QComboBox* elenco : {cmbPausa, cmbTimeout})
        elenco->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    // A long name of an account does not widen the window.
    cmbAccount->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);

    auto* blocco = new QHBoxLayout;
    blocco->setSpacing(ui::controlSpacing);
    blocco->addWidget(chkBlocco);
    blocco->addWidget(txtBloccoNum);
    blocco->addWidget(lblBlocco1);
    blocco->addWidget(txtBloccoMin);
    blocco->addWidget(lblBlocco2);
    blocco->addStretch();
    for (QLineEdit* casella : {txtBloccoNum, txtBloccoMin}) {
        casella->setMaximumWidth(casella->fontMetrics().horizontalAdvance("000000") + 12);
        casella->setAlignment(Qt::AlignRight);
    }

    auto* scelte = new QGridLayout;
    scelte->setHorizontalSpacing(ui::controlSpacing);
    scelte->setVerticalSpacing(ui::windowMargin);
    scelte->setColumnStretch(1, 1);
    scelte->addWidget(lblFile, 0, 0);
    scelte->addLayout(file, 0, 1);
    scelte->addWidget(lblMittente, 1, 0);
    scelte->addWidget(cmbAccount, 1, 1);
    scelte->addWidget(lblPausa, 2, 0);
    scelte->addLayout(tempi, 2, 1);
    scelte->addLayout(blocco, 3, 0, 1, 2);
    scelte->addWidget(chkLog, 4, 0, 1, 2);
    return scelte;
}

QGridLayout* frmInvia::DisponiContatori() {
    prgFallite->setBarColor(QColor(176, 42, 42));
    prgInviate->setBarColor(QColor(46, 107, 52));
    auto* contatori = new QGridLayout;
    contatori->setSpacing(ui::windowMargin);
    contatori->setColumnStretch(1, 1);
    contatori->addWidget(lblDaInviare, 0, 0);
    contatori->addWidget(prgDaInviare, 0, 1);
    contatori->addWidget(lblFallite, 1, 0);
    contatori->addWidget(prgFallite, 1, 1);
    contatori->addWidget(lblInviate, 2, 0);
    contatori->addWidget(prgInviate, 2, 1);
    return contatori;
}

void frmInvia::CollegaEtichette() {
    ui::bindLabel(lblFile, txtFile);
    ui::bindLabel(lblMittente, cmbAccount);
    ui::bindLabel(lblPausa, cmbPausa);
    ui::bindLabel(lblTimeOut, cmbTimeout);
    ui::bindLabel(lblBlocco1, txtBloccoMin);
    ui::bindLabel(lblBlocco2, txtBloccoMin);
    ui::bindLabel(lblDaInviare, prgDaInviare);
    ui::bindLabel(lblFallite, prgFallite);
    ui::bindLabel(lblInviate, prgInviate);
    for (QCheckBox* casella : {chkBlocco, chkLog})
        casella->setAccessibleName(ui::spokenCaption(casella->text()));
    NominaSenzaEtichetta();
}

/// What has no label of its own is named by translated words: those of the dialog that it opens, or those
/// around it.
void frmInvia::NominaSenzaEtichetta() {
    cmdFile->setAccessibleName(bVAR::goApriEmail.isEmpty() ? Words::tr("Sfoglia il messaggio")
                                                           : bVAR::goApriEmail);
    txtBloccoNum->setAccessibleName(chkBlocco->text() + " … " + lblBlocco1->text());
    txtBloccoMin->setAccessibleName(lblBlocco1->text() + " … " + lblBlocco2->text());
}

void frmInvia::CollegaEventi() {
    alClick(cmdFile, this, &frmInvia::cmdFile_Click);
    alClick(cmdInvia, this, &frmInvia::cmdInvia_Click);
    alClick(cmdFerma, this, &frmInvia::cmdFerma_Click);
    alClick(cmdChiudi, this, &frmInvia::cmdChiudi_Click);
    connect(chkBlocco, &QCheckBox::toggled, this, [this] { evento([&] { chkBlocco_Click(); }); });
    connect(tmr, &QTimer::timeout, this, [this] { evento([&] { tmr_Timer(); }); });
    connect(SMTP, &mail::DeliveryControl::SendDone, this, [this] { mailInviata = true; });
    connect(SMTP, &mail::DeliveryControl::SendError, this, [this] { mailFallita = true; });
    connect(SMTP, &mail::DeliveryControl::AwaitedEnded, this, [this] { evento([&] { FineInvio(); }); });
}

/// The labels' column has room for seven figures from the start, so that the bars never move during a run.
void frmInvia::AllargaEtichette() {
    const QString cifre = ' ' + text::formatGrouped(9999999);
    int larghezza = 0;
    for (const ui::CountLabel* etichetta : {lblDaInviare, lblFallite, lblInviate}) {
        const QString nome = etichetta->text().left(etichetta->text().indexOf(':') + 1);
        larghezza =
            qMax(larghezza, etichetta->fontMetrics().size(Qt::TextShowMnemonic, nome + cifre).width());
    }
    lblDaInviare->setMinimumWidth(larghezza);
}

void frmInvia::closeEvent(QCloseEvent* chiusura) {
    chiusura->ignore();
}

void frmInvia::chkBlocco_Click() {
    txtBloccoNum->setEnabled(chkBlocco->isChecked());
    txtBloccoMin->setEnabled(chkBlocco->isChecked());
}

void frmInvia::cmdChiudi_Click() {
    hide();
    // What cannot be deselected now stays remembered.
    Prosegui prosegui;
    prosegui([this] { ApplicaAccettati([this](const QString& riga) { SMTP->Remark(riga); }); });
    if (nodoCorrente) RiempiGriglia();
}
