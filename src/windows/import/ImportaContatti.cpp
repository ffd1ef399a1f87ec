// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/import/ImportaContatti.h"

#include "modules/import/UltimaImportazione.h"
#include "modules/store/Destinatario.h"
#include "modules/store/RecordsetDB.h"
#include "platform/ui/ProgressCounter.h"
#include "windows/import/frmScelta.h"

bool ImportaContatti::Comincia(const QString& origine) {
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
    ultimaImportazione().Comincia(origine);
    return true;
}

void ImportaContatti::Conta(int massimo) {
    vicini.stcProgress().setMaximum(massimo);
    vicini.stcProgress().setValue(0);
}

void ImportaContatti::Avanza() {
    vicini.stcProgress().setValue(vicini.stcProgress().value() + 1);
}

void ImportaContatti::Inserisci(qint64 numero, const destinatario::Valori& valori) {
    const QString& indirizzo = valori[schema::email];
    if (prosegui([&] { inserimento.Inserisci(gruppo, valori); }))
        ultimaImportazione().Importata(numero, indirizzo);
    else
        ultimaImportazione().Rifiutata(numero, indirizzo, prosegui.testo());
}

void ImportaContatti::Finisci() {
    vicini.stcProgress().setValue(0);
    prosegui([&] { inserimento.Conferma(); });
    ultimaImportazione().Finisci(inserimento.Scritti());
}
