#include "shell/frmMain.h"

#include <QCloseEvent>
#include <QMenuBar>

#include "core/Evento.h"
#include "core/Finestre.h"
#include "core/Prodotto.h"
#include "shell/bTheme.h"

frmMain::frmMain() {
    setObjectName("frmMain");
    RilevaTema(this);
    CreaMenu();
    resize(1080, 640);
}

void frmMain::CreaMenu() {
    menuBar()->setObjectName("Menu");
    QMenu* mnuFile = menuBar()->addMenu("&File");
    mnuFile->setObjectName("mnuFile");
    const auto comando = [this, mnuFile](const char* nome, const char* testo, const char* descrizione,
                                         const char* icona) {
        QAction* azione = mnuFile->addAction(QIcon::fromTheme(icona), testo);
        azione->setObjectName(nome);
        azione->setStatusTip(descrizione);
        connect(azione, &QAction::triggered, this,
                [this, azione] { evento([&] { ComandoPremuto(azione->objectName()); }); });
        return azione;
    };
    comando("cmdInvia", "&Invia messaggi", "Invia i messaggi", "document-send")
        ->setShortcut(Qt::CTRL | Qt::Key_Return);
    mnuFile->addSeparator();
    comando("cmdEsci", "&Esci", "Esci dal programma", "application-exit")->setShortcut(Qt::CTRL | Qt::Key_Q);
}

void frmMain::closeEvent(QCloseEvent* chiusura) {
    evento([] { TerminaProgramma(0); });
    chiusura->ignore();
}

void TitoloPrincipale() {
    finestre::Main().setWindowTitle(prodotto::nome() + " - " + prodotto::versione());
}
