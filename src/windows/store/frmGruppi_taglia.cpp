// SPDX-License-Identifier: GPL-3.0-or-later
// Moving recipients and groups without the mouse: Ctrl+X marks what is to move, Ctrl+V on a group moves it
// there, Esc takes the mark back.
#include <QShortcut>

#include "modules/core/bGlobal.h"
#include "platform/text/Words.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/DataGrid.h"
#include "windows/core/Evento.h"
#include "windows/store/frmGruppi.h"
#include "windows/store/griglia.h"

void frmGruppi::Racconta(const QString& testo) {
    ui::StaticItem& stcHelp = *principale.Commands.GetStatic("stcHelp");
    stcHelp.setText(testo);
    stcHelp.announce();
}

void frmGruppi::CollegaTaglia() {
    ui::DataGrid& grd = principale.grd;
    const auto tasto = [this](QWidget* dove, const QKeySequence& tasti, void (frmGruppi::*gestore)()) {
        auto* scorciatoia = new QShortcut(tasti, dove);
        scorciatoia->setContext(Qt::WidgetShortcut);
        connect(scorciatoia, &QShortcut::activated, this,
                [this, gestore] { evento([&] { (this->*gestore)(); }); });
    };
    tasto(&grd, Qt::CTRL | Qt::Key_X, &frmGruppi::TagliaDestinatario);
    tasto(TREE, Qt::CTRL | Qt::Key_X, &frmGruppi::TagliaGruppo);
    tasto(TREE, Qt::CTRL | Qt::Key_V, &frmGruppi::Incolla);
    tasto(&grd, Qt::Key_Escape, &frmGruppi::DimenticaTaglio);
    tasto(TREE, Qt::Key_Escape, &frmGruppi::DimenticaTaglio);
}

void frmGruppi::TagliaDestinatario() {
    if (griglia::MenuOra().isEmpty()) return;
    DimenticaTaglio();
    tagliato = Taglio{false, griglia::idCorrente()};
    Racconta(Words::tr("Destinatario da spostare: %1. Ctrl+V su una cartella lo sposta")
                 .arg(griglia::SegnaRiga()));
}

void frmGruppi::TagliaGruppo() {
    if (MenuOra() != "popMailing") return;
    DimenticaTaglio();
    tagliato = Taglio{true, nodoCorrente->Key};
    TREE->setMarked(TREE->Node(nodoCorrente->Key));
    Racconta(
        Words::tr("Cartella da spostare: %1. Ctrl+V su un'altra cartella la sposta").arg(nodoCorrente->Text));
}

/// The move removes the mark, even where it fails.
void frmGruppi::Incolla() {
    if (!tagliato || MenuOra().isEmpty()) return;
    const Taglio taglio = *tagliato;
    DimenticaTaglio();
    const ui::GroupNodeRef nodo = TREE->SelectedItem();
    if (!taglio.gruppo) {
        SpostaDestinatario(taglio.chiave, nodo);
        griglia::ScegliRiga(taglio.chiave);
        Racconta(Words::tr("Destinatario spostato in %1").arg(nodo->Text()));
        return;
    }
    const bool spostato = taglio.chiave != nodo->Key() && SpostaGruppo(taglio.chiave, nodo);
    Racconta((spostato ? Words::tr("Cartella spostata in %1")
                       : Words::tr("La cartella non può essere spostata in %1"))
                 .arg(nodo->Text()));
}

void frmGruppi::DimenticaTaglio() {
    tagliato.reset();
    TREE->setMarked(nullptr);
    principale.grd.markRow(0);
}
