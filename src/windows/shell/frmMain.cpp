// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/shell/frmMain.h"

#include <QCloseEvent>
#include <QVBoxLayout>

#include "modules/core/bGlobal.h"
#include "modules/core/bImpostazioni.h"
#include "modules/core/Prodotto.h"
#include "modules/send/Accettati.h"
#include "platform/system/ProgramFolder.h"
#include "platform/text/Words.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/Controls.h"
#include "platform/ui/DataControl.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/DialogFrame.h"
#include "platform/ui/FindBar.h"
#include "windows/core/bTheme.h"
#include "windows/core/CentraForm.h"
#include "windows/core/Evento.h"
#include "windows/shell/frmSplash.h"
#include "windows/store/frmGruppi.h"
#include "windows/store/griglia.h"
#include "windows/store/TrovaDestinatari.h"

namespace {

QString fileDisposizione() {
    return cartellaDati() + "LayoutMain.imp";
}

}  // namespace

frmMain::frmMain(Vicini intorno)
    : vicini(std::move(intorno)),
      barre(new ui::CommandBars(this)),
      pannelli(this),
      destinatari(new ui::DataGrid),
      barraTrova(new ui::FindBar(TrovaDestinatari::Luoghi(), this)),
      dati(new ui::DataControl(this)) {
    setObjectName("frmMain");
    destinatari->setObjectName("grd");
    destinatari->setAccessibleName("Mailing List");
    destinatari->setDataSource(dati);
    dati->setObjectName("Adodc");
    auto* centro = new QWidget;
    auto* righe = new QVBoxLayout(centro);
    righe->setContentsMargins(0, 0, 0, 0);
    righe->setSpacing(0);
    righe->addWidget(barraTrova);
    righe->addWidget(destinatari);
    setCentralWidget(centro);
    CreaComandi();
    CreaMenu();
    CreaBarre();
    CreaBarraStato();
    pannelli.addPane("dckGruppi", "Gruppi mailing", Qt::LeftDockWidgetArea, ui::scaledToFont(*this, 230));
    resize(1080, 640);
}

void frmMain::Carica() {
    griglia::Collega(PerGruppiEGriglia());
    trova = new TrovaDestinatari(PerGruppiEGriglia(), *barraTrova, this);
    CentraForm(vicini.Splash());
    SvuotaGriglia();
    RilevaTema(this);
    ImpostaColori();
    // Without a readable layout the bars and panes keep their design.
    static_cast<void>(pannelli.loadLayout(fileDisposizione()));
    // From here on it exists, hidden, and is never unloaded.
    vicini.CreaEditor();
    vicini.CaricaLingua();
    vicini.posizione.carica(*this);
    // The installed placement is no user's choice; a saved one is applied unchanged, on any screen.
    if (sys::programFolderIsNew()) ui::bringIntoReach(*this);
    vicini.RiprendiPosizione();
    TitoloPrincipale(*this);
    CaricaGruppi();
    vicini.ScaricaSplash();
}

void frmMain::CaricaGruppi() {
    auto* gruppi = new frmGruppi(PerGruppiEGriglia());
    ui::DockPane& pannello = *pannelli.DockWindows("dckGruppi");
    gruppi->TREE->setAccessibleName(pannello.Caption());
    pannello.setContent(gruppi);
    gruppi->CaricaGruppiINI();
    CreaGiroFuoco(*gruppi);
    gruppi->TREE->setFocus();
    AggiornaComandi();
}

Principale frmMain::PerGruppiEGriglia() {
    return {*destinatari,
            *dati,
            *barre,
            [this]() -> frmGruppi& { return Gruppi(); },
            vicini.Destinatario,
            [this] { SvuotaGriglia(); },
            [this] { AggiornaComandi(); },
            [this] { return comandoInCorso; },
            ChiediDatabase,
            [this](const QString& percorso) { CambiaDatabase(percorso); }};
}

frmGruppi& frmMain::Gruppi() {
    QWidget* contenuto = pannelli.DockWindows("dckGruppi")->content();
    if (!contenuto) fallisci(ErrorCode::ItemNotFound);
    return static_cast<frmGruppi&>(*contenuto);
}

void frmMain::ApriTrova() {
    trova->Apri();
}

void frmMain::SvuotaGriglia() {
    destinatari->Clear();
    destinatari->setRows(1);
    destinatari->setEmptyText(Words::tr("Scegliere una cartella"));
    destinatari->setNotice({});
    AggiornaComandi();
}

void frmMain::ImpostaColori() {
    ImpostaColoriGriglia();
    destinatari->setBackColor(mistoSuBianco(0, 10));
    destinatari->setAlternateBackColor(mistoSuBianco(0, 50));
    ui::ProgressCounter& stcProgress = *barre->GetProgress("stcProgress");
    QPalette tavolozza = stcProgress.palette();
    tavolozza.setColor(QPalette::Base, coloreTema(0));
    stcProgress.setPalette(tavolozza);
}

void frmMain::ImpostaColoriGriglia() {
    destinatari->setLineColor(coloreTema(24));
    destinatari->setFixedColor(coloreTema(0));
}

void frmMain::closeEvent(QCloseEvent* chiusura) {
    chiusura->ignore();
    evento([this] {
        const Operazione chiusa(Words::tr("Chiusura del programma"));
        static_cast<void>(pannelli.saveLayout(fileDisposizione()));
        vicini.posizione.salva(*this);
        if (risposteAttese().concludi) risposteAttese().concludi();
        TerminaProgramma(0);
    });
}

void frmMain::resizeEvent(QResizeEvent* dimensione) {
    QMainWindow::resizeEvent(dimensione);
    evento([this] {
        RilevaTema(this);
        ImpostaColoriGriglia();
    });
}

void frmMain::changeEvent(QEvent* cambiamento) {
    QMainWindow::changeEvent(cambiamento);
    if (cambiamento->type() == QEvent::ActivationChange) evento([this] { AggiornaData(); });
}

void TitoloPrincipale(frmMain& principale) {
    principale.setWindowTitle(prodotto::nome() + " - " + prodotto::versione());
}
