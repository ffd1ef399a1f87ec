#include "store/frmGruppi_comandi.h"

#include <QScopeGuard>

#include "core/bGlobal.h"
#include "core/Fallimento.h"
#include "core/Finestre.h"
#include "core/Puntatore.h"
#include "platform/ado/Command.h"
#include "platform/ado/Recordset.h"
#include "platform/ui/MessageDialog.h"
#include "shell/frmMain.h"
#include "store/frmGruppi.h"
#include "store/griglia.h"
#include "store/nodo.h"

namespace {

using ui::MessageDialog;

/// The columns of a recipient that a copy takes along.
const QString colonneCopiate =
    "rgs, nom, piva, ind, cap, loc, prov, tel, fax, email, "
    "campo1, campo2, campo3, campo4, campo5, campo6, campo7, campo8, campo9, sel";

/// Adds a group to the table. Its number is known before the row is posted. Gives it as text.
QString AggiungiGruppo(ado::Recordset& rs, const QString& chiavePadre, const QString& nome) {
    rs.setSource("SELECT * FROM [tb_gruppi];");
    esigi(rs.open());
    esigi(rs.addNew());
    esigi(rs.setValue(u"id_up", NumeroNodo(chiavePadre).toInt()));
    esigi(rs.setValue(u"nome", nome));
    QString id = esigi(rs.value(u"id")).toTextOrEmpty();
    esigi(rs.update());
    rs.close();
    return id;
}

void Esegui(ado::Command& comando, const QString& istruzione) {
    PuntatoreAttesa();
    const auto fatto = qScopeGuard(PuntatorePredefinito);
    comando.setCommandText(istruzione);
    esigi(comando.execute());
}

void Seleziona(ado::Command& comando, const QString& istruzione) {
    Esegui(comando, istruzione);
    griglia::RinfrescaGriglia();
}

/// Null where the node has left the tree.
ui::GroupNodeRef NodoNellAlbero() {
    if (!nodoCorrente) fallisci(ErrorCode::ItemNotFound);
    return finestre::Main().Gruppi().TREE->Node(nodoCorrente->Key);
}

}  // namespace

void comandiGruppo::Nuovo(ado::Recordset& rs) {
    const QString padre = 'K' + NumeroNodoCorrente();
    const QString nome = "Nuovo gruppo";
    frmGruppi& gruppi = finestre::Main().Gruppi();
    // A recipient's drop makes a node current whose level may not be there yet.
    gruppi.CaricaSottogruppi(padre);
    gruppi.AggiungiNodo(padre, AggiungiGruppo(rs, padre, nome), nome);
}

void comandiGruppo::Copia(ado::Recordset& rs, ado::Command& comando) {
    const ui::GroupNodeRef nodo = NodoNellAlbero();
    const ui::GroupNodeRef padre = nodo ? nodo->Parent() : nullptr;
    if (!padre) fallisci(ErrorCode::ItemNotFound);
    const QString nome = nodo->Text() + "_Copia";
    const QString id = AggiungiGruppo(rs, padre->Key(), nome);
    Esegui(comando, "INSERT INTO tb_destinatari (id_grp," + colonneCopiate + ") " + "SELECT " + id +
                        " as id_grp, " + colonneCopiate + " " +
                        "FROM tb_destinatari WHERE id_grp = " + NumeroNodoCorrente() + " ;");
    finestre::Main().Gruppi().AggiungiNodo(padre->Key(), id, nome);
}

void comandiGruppo::Elimina(ado::Command& comando) {
    const ui::GroupNodeRef nodo = NodoNellAlbero();
    if (nodo && nodo->Children() > 0) {
        MessageDialog::show(
            "Impossibile eliminare questo gruppo.\r\nEliminare tutti i sottogruppi prima di continuare.",
            MessageDialog::Notice, "Attenzione");
        return;
    }
    if (MessageDialog::show("Sicuro di voler eliminare questo gruppo?\r\n"
                            "Tutti i destinatari appartenenti a questo gruppo saranno cancellati.",
                            MessageDialog::AskQuestion, "Attenzione") != MessageDialog::Yes)
        return;
    Esegui(comando, "DELETE FROM [tb_destinatari] WHERE id_grp = " + NumeroNodoCorrente() + " ;");
    Esegui(comando, "DELETE FROM [tb_gruppi] WHERE id = " + NumeroNodoCorrente() + " ;");
    ui::GroupTree& albero = *finestre::Main().Gruppi().TREE;
    esigi(albero.Remove(nodoCorrente->Key));
    // Nothing is chosen until the next click; otherwise the neighbour would look as if it were.
    albero.clearSelection();
}

void comandiGruppo::Rinomina() {
    finestre::Main().Gruppi().TREE->StartLabelEdit();
}

void comandiGruppo::Testa(ado::Recordset& rs) {
    const QString numero = NumeroNodoCorrente();
    if (nodoCorrente->Key == "K0") return;
    esigi(finestre::Main().Gruppi().TREE->Move(nodoCorrente->Key, "K0"));
    rs.setSource("SELECT * FROM [tb_gruppi] WHERE id = " + numero + " ;");
    esigi(rs.open());
    esigi(rs.setValue(u"id_up", 0));
    esigi(rs.update());
    rs.close();
}

void comandiGruppo::SvuotaCartella(ado::Command& comando) {
    if (MessageDialog::show("Sicuro di voler svuotare questa cartella?\r\n"
                            "Tutti i destinatari verranno cancellati.\r\n"
                            "Operazione irreversibile.",
                            MessageDialog::AskNotice, "Attenzione") != MessageDialog::Yes)
        return;
    Esegui(comando, "DELETE FROM [tb_destinatari] WHERE id_grp = " + NumeroNodoCorrente() + " ;");
    griglia::RinfrescaGriglia();
}

void comandiGruppo::SelAllGRP(ado::Command& comando) {
    Seleziona(comando,
              "UPDATE [tb_destinatari] SET sel = True WHERE id_grp = " + NumeroNodoCorrente() + " ;");
}

void comandiGruppo::SelNotGRP(ado::Command& comando) {
    Seleziona(comando,
              "UPDATE [tb_destinatari] SET sel = False WHERE id_grp = " + NumeroNodoCorrente() + " ;");
}

void comandiGruppo::SelAllDB(ado::Command& comando) {
    Seleziona(comando, "UPDATE [tb_destinatari] SET sel = True;");
}

void comandiGruppo::SelNotDB(ado::Command& comando) {
    Seleziona(comando, "UPDATE [tb_destinatari] SET sel = False;");
}
