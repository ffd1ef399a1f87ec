#include "windows/import/ImportaContatti.h"

#include "modules/store/RecordsetDB.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/ProgressCounter.h"
#include "windows/entry/Finestre.h"
#include "windows/import/cartella.h"
#include "windows/import/frmScelta.h"
#include "windows/shell/frmMain.h"

ui::ProgressCounter& ImportaContatti::stcProgress() {
    return *finestre::Main().Commands().GetProgress("stcProgress");
}

bool ImportaContatti::Comincia() {
    frmScelta& scelta = finestre::Scelta();
    scelta.exec();
    if (scelta.sceltaAnnullata) return false;
    ado::Recordset rs;
    prosegui([&] { inserimento.Prepara(); });
    prosegui([&] { rs = RecordsetDB(); });
    const auto scelto = cartella::Scegli(scelta.Scelta(), rs, cartella::avvisoCartella, std::ref(prosegui));
    if (!scelto) return false;
    gruppo = *scelto;
    return true;
}

void ImportaContatti::Conta(int massimo) {
    stcProgress().setMaximum(massimo);
    stcProgress().setValue(0);
}

void ImportaContatti::Avanza() {
    stcProgress().setValue(stcProgress().value() + 1);
}

void ImportaContatti::Inserisci(const inserimento::Valori& valori) {
    prosegui([&] { inserimento.Inserisci(gruppo, valori); });
}

void ImportaContatti::Finisci() {
    stcProgress().setValue(0);
    prosegui([&] { inserimento.Conferma(); });
}
