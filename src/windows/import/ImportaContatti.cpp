#include "windows/import/ImportaContatti.h"

#include "modules/store/RecordsetDB.h"
#include "platform/ui/ProgressCounter.h"
#include "windows/import/frmScelta.h"

bool ImportaContatti::Comincia() {
    frmScelta& scelta = vicini.Scelta();
    scelta.exec();
    if (scelta.sceltaAnnullata) return false;
    ado::Recordset rs;
    prosegui([&] { inserimento.Prepara(); });
    prosegui([&] { rs = RecordsetDB(); });
    const auto scelto =
        cartella::Scegli(scelta.Scelta(), rs, cartella::avvisoCartella, std::ref(prosegui), vicini.NuovoNodo);
    if (!scelto) return false;
    gruppo = *scelto;
    return true;
}

void ImportaContatti::Conta(int massimo) {
    vicini.stcProgress().setMaximum(massimo);
    vicini.stcProgress().setValue(0);
}

void ImportaContatti::Avanza() {
    vicini.stcProgress().setValue(vicini.stcProgress().value() + 1);
}

void ImportaContatti::Inserisci(const inserimento::Valori& valori) {
    prosegui([&] { inserimento.Inserisci(gruppo, valori); });
}

void ImportaContatti::Finisci() {
    vicini.stcProgress().setValue(0);
    prosegui([&] { inserimento.Conferma(); });
}
