#include "windows/entry/Strumenti.h"

#include "platform/ui/DataGrid.h"
#include "windows/entry/Finestre.h"
#include "windows/strumenti/frmControlloMittente.h"
#include "windows/store/griglia.h"
#include "windows/strumenti/frmEsiti.h"
#include "windows/strumenti/frmProva.h"

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

void ordinaGriglia() {
    griglia::grd().sortBy(griglia::grd().Col());
}

}  // namespace

// Mnemonics in the order of the menu: &Prova, &mittente, &Esito; &Trova, &Ordina, &Indirizzi, &cartelle;
// &Ultima.
std::vector<frmMain::GruppoStrumenti> finestre::Strumenti() {
    const frmMain::GruppoStrumenti invio{
        {"cmdStrumentiProva", "&Prova messaggio...", "Il messaggio come lo riceve un destinatario",
         "view-visible", apriProva},
        {"cmdStrumentiMittente", "Controllo del &mittente...",
         "Come i server dei destinatari vedono il dominio e il server di un account", "document-edit-verify",
         apriControllo},
        {"cmdStrumentiEsiti", "&Esito degli invii...", "Chi ha ricevuto i messaggi, chi no e perché",
         "view-list-details", apriEsiti}};
    const frmMain::GruppoStrumenti destinatari{
        {"cmdTrova",
         "&Trova destinatari...",
         "Trova destinatari nella cartella o ovunque",
         "edit-find",
         [] { Main().ApriTrova(); },
         {QKeySequence::Find}},
        {"cmdOrdina",
         "&Ordina per la colonna corrente",
         "Ordina l'elenco per la colonna corrente; la terza volta torna l'ordine di prima",
         "view-list-details",
         ordinaGriglia,
         {Qt::CTRL | Qt::SHIFT | Qt::Key_O}},
    };
    const frmMain::GruppoStrumenti importazione{};
    return {invio, destinatari, importazione};
}
