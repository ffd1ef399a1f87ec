// SPDX-License-Identifier: GPL-3.0-or-later
// What the user does to the tree.
#include "modules/core/bGlobal.h"
#include "modules/store/nodo.h"
#include "modules/store/RecordsetDB.h"
#include "platform/ado/Command.h"
#include "platform/ui/CommandBars.h"
#include "windows/core/Evento.h"
#include "windows/store/frmGruppi.h"
#include "windows/store/griglia.h"

namespace {

/// Changes one column of one group. A recordset carries the value, so a quote in a name is harmless.
void ScriviGruppo(const QString& chiave, QStringView colonna, const ado::Value& valore) {
    ado::Recordset rs = RecordsetDB();
    rs.setSource("SELECT * FROM [tb_gruppi] WHERE id = " + NumeroNodo(chiave) + " ORDER BY nome ASC;");
    esigi(rs.open());
    esigi(rs.setValue(colonna, valore));
    esigi(rs.update());
}

}  // namespace

void frmGruppi::CollegaEventi() {
    using ui::GroupTree;
    const auto alClick = [this](void (frmGruppi::*gestore)(const ui::GroupNodeRef&)) {
        return [this, gestore](const ui::GroupNodeRef& nodo) { evento([&] { (this->*gestore)(nodo); }); };
    };
    connect(TREE, &GroupTree::nodeClick, this, alClick(&frmGruppi::TREENodeClick));
    connect(TREE, &GroupTree::rowDropped, this, alClick(&frmGruppi::TREEDragDrop));
    connect(TREE, &GroupTree::nodeDropped, this, alClick(&frmGruppi::TREEOLEDragDrop));
    // What moves is the group last clicked; so nothing else is shown as being dragged.
    connect(TREE, &GroupTree::beforeDrag, this,
            [this](const ui::GroupNodeRef& nodo, bool* annulla) { *annulla = nodo->Key() != chiaveNodo; });
    connect(TREE, &GroupTree::draggedOver, TREE, &GroupTree::setDropHighlight);
    connect(TREE, &GroupTree::click, this, [this] { evento([this] { TREEClick(); }); });
    connect(TREE, &GroupTree::beforeLabelEdit, this, [this](bool* annulla) {
        *annulla = chiaveNodo == "K0";
        if (!*annulla) TREE->setLongestLabel(LarghezzaNomeGruppo());
    });
    connect(TREE, &GroupTree::afterLabelEdit, this, [this](const QString& testo, bool* annulla) {
        evento([&] { TREEAfterLabelEdit(testo, annulla); });
    });
    connect(TREE, &GroupTree::mouseMove, this, [this] {
        evento([this] { principale.Commands.GetStatic("stcHelp")->setText("Mailing List"); });
    });
    connect(TREE, &GroupTree::mouseUp, this, [this](Qt::MouseButton pulsante, const QPoint& punto) {
        evento([&] { TREEMouseUp(pulsante, punto); });
    });
    principale.Commands.offerPopup(TREE, [this] { return MenuOra(); });
}

void frmGruppi::TREENodeClick(const ui::GroupNodeRef& nodo) {
    TREE->setDropHighlight(nodo);
    chiaveNodo = nodo->Key();
    nodoCorrente = Nodo{nodo->Key(), nodo->Text()};
}

void frmGruppi::Apri(const QStringList& chiavi) {
    ui::GroupNodeRef ultimo;
    for (const QString& chiave : chiavi) {
        const ui::GroupNodeRef nodo = TREE->Node(chiave);
        if (!nodo || nodo->Parent() != ultimo) break;
        CaricaSottogruppi(chiave);
        if (ultimo) esigi(TREE->Expand(ultimo->Key()));
        ultimo = nodo;
    }
    if (ultimo) TREE->Click(ultimo);
}

void frmGruppi::TREEMouseUp(Qt::MouseButton pulsante, const QPoint& punto) {
    const QString menu = MenuDelNodo();
    if (pulsante == Qt::RightButton && !menu.isEmpty()) principale.Commands.showPopup(menu, punto);
}

void frmGruppi::TREEAfterLabelEdit(const QString& testo, bool* annulla) {
    // The node shows the new name only if the table has it.
    *annulla = true;
    if (chiaveNodo == "K0" || testo.isEmpty()) return;
    ScriviGruppo(chiaveNodo, u"nome", testo);
    *annulla = false;
    if (nodoCorrente && nodoCorrente->Key == chiaveNodo) nodoCorrente->Text = testo;
}

/// A recipient came from the grid.
void frmGruppi::TREEDragDrop(const ui::GroupNodeRef& nodo) {
    if (!nodo) fallisci(ErrorCode::ItemNotFound);
    SpostaDestinatario(griglia::idCorrente(), nodo);
}

/// Makes the node current and puts the recipient into its group. The level of its new group is loaded, since
/// the group's commands, which look at its children in the tree, take it from here on.
void frmGruppi::SpostaDestinatario(const QString& id, const ui::GroupNodeRef& nodo) {
    nodoCorrente = Nodo{nodo->Key(), nodo->Text()};
    CaricaSottogruppi(nodo->Key());
    ado::Command comando;
    esigi(comando.setActiveConnection(connDB));
    comando.setCommandTimeout(0);
    comando.setCommandText("UPDATE [tb_destinatari] SET id_grp = " + NumeroNodoCorrente() +
                           " WHERE id = " + id + " ;");
    esigi(comando.execute());
    TREEClick();
}

/// A group came from this tree: the one last clicked, whatever was dragged. The tree refuses to put a node
/// below itself, and the table is reached only after that.
void frmGruppi::TREEOLEDragDrop(const ui::GroupNodeRef& nodo) {
    if (nodo) SpostaGruppo(chiaveNodo, nodo);
}

/// False where a step failed; those that follow it did not run.
bool frmGruppi::SpostaGruppo(const QString& chiave, const ui::GroupNodeRef& nodo) {
    Prosegui prosegui;
    return prosegui([&] {
        CaricaSottogruppi(nodo->Key());
        chiaveDestinazione = nodo->Key();
        if (chiave.isEmpty() || chiave == chiaveDestinazione) return;
        esigi(TREE->Move(chiave, chiaveDestinazione));
        ScriviGruppo(chiave, u"id_up", NumeroNodo(chiaveDestinazione).toInt());
    });
}
