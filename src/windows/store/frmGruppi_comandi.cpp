// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/store/frmGruppi_comandi.h"

#include <QScopeGuard>

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/send/Accettati.h"
#include "modules/store/Destinatario.h"
#include "modules/store/nodo.h"
#include "modules/store/RecordsetDB.h"
#include "platform/ado/Command.h"
#include "platform/ado/Recordset.h"
#include "platform/text/Words.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/MessageDialog.h"
#include "windows/core/Puntatore.h"
#include "windows/store/frmGruppi.h"
#include "windows/store/griglia.h"

namespace {

using ui::MessageDialog;

/// Adds a group to the table. Its number is known before the row is posted. Returns it as text.
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
    comando.setCommandText(istruzione);
    esigi(inDisparte([&] { return comando.execute(); }));
}

void Seleziona(ado::Command& comando, const QString& istruzione) {
    Esegui(comando, istruzione);
    griglia::RinfrescaGriglia();
}

/// Null where the node has left the tree.
ui::GroupNodeRef NodoNellAlbero(const frmGruppi& gruppi) {
    if (!nodoCorrente) fallisci(ErrorCode::ItemNotFound);
    return gruppi.TREE->Node(nodoCorrente->Key);
}

/// Whether the group of nodoCorrente is there. The commands of one that was removed do nothing.
bool GruppoCorrenteEsiste() {
    return GruppoEsiste(NumeroNodoCorrente());
}

/// "Clienti: 25 destinatari"; the name alone where they cannot be counted.
QString NomeConDestinatari() {
    return ripiega(nodoCorrente->Text, [] {
        ado::Recordset rs = RecordsetDB();
        rs.setSource("SELECT * FROM [tb_destinatari] WHERE id_grp = " + NumeroNodoCorrente() + " ;");
        esigi(rs.open());
        const auto quanti = rs.recordCount();
        return nodoCorrente->Text + ": " + Words::tr("%Ln destinatari", nullptr, static_cast<int>(quanti));
    });
}

/// Asks before recipients of the current group are deleted; true for Yes. Meanwhile the tree shows its node
/// as selected, whichever was, and the status bar names it: what is asked about is what the user sees. Return
/// answers No.
bool ConfermaCancellazione(frmGruppi& gruppi, const QString& domanda, int stile) {
    ui::GroupTree& albero = *gruppi.TREE;
    ui::StaticItem& stcHelp = *gruppi.principale.Commands.GetStatic("stcHelp");
    const QString testoPrima = stcHelp.Text();
    const ui::GroupNodeRef sceltoPrima = albero.SelectedItem();
    const auto comePrima = qScopeGuard([&] {
        albero.setSelectedItem(sceltoPrima);
        stcHelp.setText(testoPrima);
    });
    if (const ui::GroupNodeRef nodo = NodoNellAlbero(gruppi)) {
        albero.setSelectedItem(nodo);
        albero.EnsureVisible(nodo);
    }
    stcHelp.setText(inDisparte(NomeConDestinatari));
    stcHelp.announce();
    return MessageDialog::show(domanda, stile, "Attenzione", MessageDialog::No) == MessageDialog::Yes;
}

}  // namespace

void comandiGruppo::Nuovo(frmGruppi& gruppi, ado::Recordset& rs) {
    if (!NodoNellAlbero(gruppi)) return;
    const QString padre = 'K' + NumeroNodoCorrente();
    const QString nome = "Nuovo gruppo";
    // The click may have failed to load the level.
    gruppi.CaricaSottogruppi(padre);
    gruppi.AggiungiNodo(padre, AggiungiGruppo(rs, padre, nome), nome);
}

void comandiGruppo::Copia(frmGruppi& gruppi, ado::Recordset& rs, ado::Command& comando) {
    const ui::GroupNodeRef nodo = NodoNellAlbero(gruppi);
    if (!nodo) return;
    const ui::GroupNodeRef padre = nodo->Parent();
    if (!padre) fallisci(ErrorCode::ItemNotFound);
    const QString nome = nodo->Text() + "_Copia";
    const QString id = AggiungiGruppo(rs, padre->Key(), nome);
    Esegui(comando, destinatario::IstruzioneCopia(NumeroNodoCorrente(), id));
    gruppi.AggiungiNodo(padre->Key(), id, nome);
}

void comandiGruppo::Elimina(frmGruppi& gruppi, ado::Command& comando) {
    const ui::GroupNodeRef nodo = NodoNellAlbero(gruppi);
    if (!nodo) return;
    gruppi.CompletaLivello(nodo->Key());
    if (nodo->Children() > 0) {
        MessageDialog::show(
            "Impossibile eliminare questo gruppo.\r\nEliminare tutti i sottogruppi prima di continuare.",
            MessageDialog::Notice, "Attenzione");
        return;
    }
    if (!ConfermaCancellazione(gruppi,
                               "Sicuro di voler eliminare questo gruppo?\r\n"
                               "Tutti i destinatari appartenenti a questo gruppo saranno cancellati.",
                               MessageDialog::AskQuestion))
        return;
    Esegui(comando, "DELETE FROM [tb_destinatari] WHERE id_grp = " + NumeroNodoCorrente() + " ;");
    Esegui(comando, "DELETE FROM [tb_gruppi] WHERE id = " + NumeroNodoCorrente() + " ;");
    ui::GroupTree& albero = *gruppi.TREE;
    esigi(albero.Remove(nodoCorrente->Key));
    // Nothing is chosen until the next click; otherwise the neighbour would look as if it were.
    albero.clearSelection();
}

void comandiGruppo::Rinomina(frmGruppi& gruppi) {
    gruppi.TREE->StartLabelEdit();
}

void comandiGruppo::Testa(frmGruppi& gruppi, ado::Recordset& rs) {
    if (!NodoNellAlbero(gruppi) || nodoCorrente->Key == "K0") return;
    const QString numero = NumeroNodoCorrente();
    esigi(gruppi.TREE->Move(nodoCorrente->Key, "K0"));
    rs.setSource("SELECT * FROM [tb_gruppi] WHERE id = " + numero + " ;");
    esigi(rs.open());
    esigi(rs.setValue(u"id_up", 0));
    esigi(rs.update());
    rs.close();
}

void comandiGruppo::SvuotaCartella(frmGruppi& gruppi, ado::Command& comando) {
    if (!GruppoCorrenteEsiste()) return;
    if (!ConfermaCancellazione(gruppi,
                               "Sicuro di voler svuotare questa cartella?\r\n"
                               "Tutti i destinatari verranno cancellati.\r\n"
                               "Operazione irreversibile.",
                               MessageDialog::AskNotice))
        return;
    Esegui(comando, "DELETE FROM [tb_destinatari] WHERE id_grp = " + NumeroNodoCorrente() + " ;");
    griglia::RinfrescaGriglia();
}

void comandiGruppo::SelAllGRP(ado::Command& comando) {
    if (!GruppoCorrenteEsiste()) return;
    DimenticaAccettatiDelGruppo(NumeroNodoCorrente());
    Seleziona(comando,
              "UPDATE [tb_destinatari] SET sel = True WHERE id_grp = " + NumeroNodoCorrente() + " ;");
}

void comandiGruppo::SelNotGRP(ado::Command& comando) {
    if (!GruppoCorrenteEsiste()) return;
    DimenticaAccettatiDelGruppo(NumeroNodoCorrente());
    Seleziona(comando,
              "UPDATE [tb_destinatari] SET sel = False WHERE id_grp = " + NumeroNodoCorrente() + " ;");
}

void comandiGruppo::SelAllDB(ado::Command& comando) {
    DimenticaAccettati();
    Seleziona(comando, "UPDATE [tb_destinatari] SET sel = True;");
}

void comandiGruppo::SelNotDB(ado::Command& comando) {
    DimenticaAccettati();
    Seleziona(comando, "UPDATE [tb_destinatari] SET sel = False;");
}
