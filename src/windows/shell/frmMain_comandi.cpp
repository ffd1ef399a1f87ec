// SPDX-License-Identifier: GPL-3.0-or-later
// The one handler of all commands, and that of the tools.
#include <algorithm>
#include <iterator>
#include <QScopedValueRollback>

#include "modules/core/bFunctions.h"
#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/core/Prodotto.h"
#include "modules/lang/bVAR.h"
#include "modules/lang/Guida.h"
#include "modules/send/Selezione.h"
#include "modules/store/RecordsetDB.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/MessageDialog.h"
#include "windows/shell/frmMain.h"
#include "windows/store/frmGruppi_comandi.h"
#include "windows/store/griglia.h"

struct frmMain::RigaComando {
    const char* nome;
    void (*esegui)(frmMain& finestra, Accesso& accesso);
};

namespace {

using Accesso = std::optional<AccessoComando>;

/// A command that needs nothing but the prepared command.
template <void (*routine)(ado::Command&)>
void conComando(frmMain&, Accesso& accesso) {
    routine(accesso->comando);
}
template <void (*routine)()>
void solo(frmMain&, Accesso&) {
    routine();
}

/// The same for a command on a group of the tree.
template <void (*routine)(frmGruppi&, ado::Command&)>
void delGruppo(frmMain& finestra, Accesso& accesso) {
    routine(finestra.Gruppi(), accesso->comando);
}
template <void (*routine)(frmGruppi&, ado::Recordset&)>
void delGruppo(frmMain& finestra, Accesso& accesso) {
    routine(finestra.Gruppi(), accesso->rs);
}

}  // namespace

// The first equal name decides.
const frmMain::RigaComando frmMain::tabellaComandi[] = {
    {"cmdFileAccount", [](frmMain& finestra, Accesso&) { finestra.vicini.Account(); }},
    {"cmdEsci", [](frmMain& finestra, Accesso&) { finestra.close(); }},
    {"cmdEditor", [](frmMain& finestra, Accesso&) { finestra.vicini.Editor(); }},
    {"cmdMailingSalva", [](frmMain& finestra, Accesso& accesso) { finestra.cmdMailingSalva(accesso); }},
    {"cmdMailingApri", [](frmMain& finestra, Accesso& accesso) { finestra.cmdMailingApri(accesso); }},
    {"cmdMailingImpTXT", [](frmMain& finestra, Accesso&) { finestra.vicini.ImpTXT(); }},
    {"cmdMailingImpOE", [](frmMain& finestra, Accesso&) { finestra.vicini.ImportaRubrica(); }},
    {"cmdMailingImpMSO", [](frmMain& finestra, Accesso&) { finestra.vicini.ImportaOutlook(); }},
    {"cmdMailingImpDB", [](frmMain& finestra, Accesso&) { finestra.vicini.ImpDB(); }},
    {"cmdInvia", [](frmMain& finestra, Accesso& accesso) { finestra.cmdInvia(accesso); }},
    {"cmdPopMailingHead", delGruppo<comandiGruppo::Testa>},
    {"cmdPopMailingDel", delGruppo<comandiGruppo::Elimina>},
    {"cmdPopMailingCopia",
     [](frmMain& finestra, Accesso& accesso) {
         comandiGruppo::Copia(finestra.Gruppi(), accesso->rs, accesso->comando);
     }},
    {"cmdPopMailingRinomina",
     [](frmMain& finestra, Accesso&) { comandiGruppo::Rinomina(finestra.Gruppi()); }},
    {"cmdPopMailingNew", delGruppo<comandiGruppo::Nuovo>},
    {"cmdPopMailingSelAllGRP", conComando<comandiGruppo::SelAllGRP>},
    {"cmdPopMailingSelNotGRP", conComando<comandiGruppo::SelNotGRP>},
    {"cmdPopMailingSelAllDB", conComando<comandiGruppo::SelAllDB>},
    {"cmdPopMailingSelNotDB", conComando<comandiGruppo::SelNotDB>},
    {"cmdPopMailingUserNew", solo<comandiDestinatario::Nuovo>},
    {"cmdPopMailingUserMod", solo<comandiDestinatario::Modifica>},
    {"cmdPopMailingUserDel", conComando<comandiDestinatario::Elimina>},
    {"cmdPopMailingSvuotaCartella", delGruppo<comandiGruppo::SvuotaCartella>},
    {"cmdHelpGuida", [](frmMain& finestra, Accesso&) { finestra.cmdHelpGuida(); }},
    {"cmdHelpHomePage", [](frmMain&, Accesso&) { ApriShell(prodotto::paginaWeb()); }},
    {"cmdHelpInviaMail", [](frmMain&, Accesso&) { ApriShell(prodotto::collegamentoPosta()); }},
    {"cmdHelpInfoSu", [](frmMain& finestra, Accesso&) { finestra.vicini.InfoSu(); }},
    {"cmdLang", [](frmMain& finestra, Accesso&) { finestra.vicini.CambiaLingua(); }},
};

namespace {

AccessoComando creaAccesso() {
    AccessoComando accesso{RecordsetDB(), {}};
    esigi(accesso.comando.setActiveConnection(connDB));
    accesso.comando.setCommandTimeout(0);
    accesso.comando.setPrepared(false);
    return accesso;
}

}  // namespace

void frmMain::ComandoPremuto(const QString& nome) {
    if (comandoInCorso) return;
    const QScopedValueRollback inCorso(comandoInCorso, true);

    const auto riga = std::find_if(std::begin(tabellaComandi), std::end(tabellaComandi),
                                   [&](const RigaComando& r) { return nome == QLatin1String(r.nome); });
    const auto* pulsante = barre->GetToolButton(nome);
    const Operazione comando(pulsante ? pulsante->Description() : QString());
    Accesso accesso = creaAccesso();
    if (riga != std::end(tabellaComandi)) riga->esegui(*this, accesso);
    griglia::AggiornaFrase();
    AggiornaComandi();
}

void frmMain::ApriStrumento(const Strumento& strumento) {
    if (comandoInCorso) return;
    const QScopedValueRollback inCorso(comandoInCorso, true);
    const Operazione comando(strumento.descrizione);
    strumento.apri();
    griglia::AggiornaFrase();
    AggiornaComandi();
}

void frmMain::cmdMailingSalva(Accesso& accesso) {
    accesso.reset();
    SalvaDatabase();
}

void frmMain::cmdMailingApri(Accesso& accesso) {
    const int risposta = ui::MessageDialog::show(
        "Il percorso del database che verrà aperto diventerà quello di default per i prossimi avii.\r\n"
        "Il database deve stare in una cartella sicura e non potrà essere rinominato o spostato durante "
        "l'esecuzione per programma.\r\n"
        "La cartella contentente il database dovrà avere i permessi di scrittura altrimenti il software non "
        "funzionerà.\r\n"
        "Continuare?",
        ui::MessageDialog::AskNotice, "Attenzione");
    if (risposta != ui::MessageDialog::Yes) return;
    accesso.reset();
    ApriDatabase();
}

void frmMain::cmdInvia(Accesso& accesso) {
    if (ContaSelezionati(accesso->rs) < 1) {
        ui::MessageDialog::show(bVAR::AddDestinatario, ui::MessageDialog::Notice, bVAR::Attenzione);
        return;
    }
    vicini.Invia();
}

void frmMain::cmdHelpGuida() {
    guida::Apri(guida::PrimaPagina());
}
