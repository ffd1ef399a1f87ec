// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/entry/Strumenti.h"

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/import/UltimaImportazione.h"
#include "modules/store/AlberoCartelle.h"
#include "modules/store/nodo.h"
#include "platform/text/Words.h"
#include "platform/ui/DataGrid.h"
#include "windows/entry/Finestre.h"
#include "windows/store/frmGruppi.h"
#include "windows/store/griglia.h"
#include "windows/strumenti/frmControlloMittente.h"
#include "windows/strumenti/frmEsiti.h"
#include "windows/strumenti/frmProva.h"
#include "windows/strumenti/frmUltimaImportazione.h"
#include "windows/strumenti/ViciniDestinatari.h"

namespace {

void apriProva() {
    frmProva& prova = finestre::Prova();
    prova.Carica();
    prova.exec();
}

void apriControllo() {
    frmControlloMittente& controllo = finestre::Controllo();
    controllo.CaricaDati();
    controllo.exec();
}

void apriEsiti() {
    frmEsiti& esiti = finestre::Esiti();
    esiti.Carica();
    esiti.exec();
}

/// The row that was current is so again, if it is still there.
void rinfrescaGriglia() {
    ui::DataGrid& grd = griglia::grd();
    if (grd.Rows() == 1) return;
    const QString id = ripiega(QString(), griglia::idCorrente);
    griglia::RinfrescaGriglia();
    griglia::ScegliRiga(id);
}

/// The tree as the table has it now, with the current group open in it, if it is reachable.
void ricaricaAlbero() {
    frmGruppi& gruppi = finestre::Main().Gruppi();
    gruppi.CaricaGruppiINI();
    const QStringList chiavi =
        nodoCorrente ? AlberoCartelle::Leggi().Chiavi(NumeroNodoCorrente().toInt()) : QStringList();
    if (!chiavi.isEmpty()) gruppi.Apri(chiavi);
}

ViciniDestinatari intornoAiDestinatari() {
    return {rinfrescaGriglia, ricaricaAlbero};
}

void apriUltimaImportazione() {
    frmUltimaImportazione& finestra = finestre::UltimaImportazione();
    finestra.Mostra(ultimaImportazione());
    finestra.exec();
}

void ordinaGriglia() {
    griglia::grd().sortBy(griglia::grd().Col());
}

}  // namespace

// Mnemonics in the order of the menu: &Prova, &mittente, &Esito; &Trova, &Ordina, &Indirizzi, &cartelle;
// &Ultima.
std::vector<frmMain::GruppoStrumenti> finestre::Strumenti() {
    const frmMain::GruppoStrumenti invio{
        {"cmdStrumentiProva", Words::tr("&Prova messaggio..."),
         Words::tr("Il messaggio come lo riceve un destinatario"), "view-visible", apriProva},
        {"cmdStrumentiMittente", Words::tr("Controllo del &mittente..."),
         Words::tr("Come i server dei destinatari vedono il dominio e il server di un account"),
         "document-edit-verify", apriControllo},
        {"cmdStrumentiEsiti", Words::tr("&Esito degli invii..."),
         Words::tr("Chi ha ricevuto i messaggi, chi no e perché"), "view-list-details", apriEsiti}};
    const frmMain::GruppoStrumenti destinatari{
        {"cmdStrumentiTrova",
         Words::tr("&Trova destinatari..."),
         Words::tr("Trova destinatari nella cartella o ovunque"),
         "edit-find",
         [] { Main().ApriTrova(); },
         {QKeySequence::Find}},
        {"cmdStrumentiOrdina",
         Words::tr("&Ordina per la colonna corrente"),
         Words::tr("Ordina l'elenco per la colonna corrente; la terza volta torna l'ordine di prima"),
         "view-list-details",
         ordinaGriglia,
         {Qt::CTRL | Qt::SHIFT | Qt::Key_O}},
        {"cmdStrumentiDoppi", Words::tr("&Indirizzi doppi..."),
         Words::tr("Trova gli indirizzi selezionati più di una volta"), "edit-copy",
         [] { ControllaDoppi(intornoAiDestinatari()); }},
        {"cmdStrumentiPerdute", Words::tr("Recupera &cartelle perdute..."),
         Words::tr("Riporta sotto la radice cartelle e destinatari che l'albero non mostra"), "folder-new",
         [] { RecuperaPerdute(intornoAiDestinatari()); }},
    };
    const frmMain::GruppoStrumenti importazione{
        {"cmdStrumentiUltimaImportazione", Words::tr("&Ultima importazione..."),
         Words::tr("Righe importate e rifiutate dall'ultima importazione"), "view-list-text",
         apriUltimaImportazione},
    };
    return {invio, destinatari, importazione};
}
