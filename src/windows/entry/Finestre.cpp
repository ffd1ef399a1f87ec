// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/entry/Finestre.h"

#include <QPointer>

#include "modules/lang/bLANG.h"
#include "windows/accounts/frmAccount.h"
#include "windows/entry/Vicini.h"
#include "windows/import/frmImpDB.h"
#include "windows/import/frmImpTXT.h"
#include "windows/import/frmScelta.h"
#include "windows/message/frmEditor.h"
#include "windows/message/frmPropBody.h"
#include "windows/send/frmInvia.h"
#include "windows/shell/frmInfoSu.h"
#include "windows/shell/frmMain.h"
#include "windows/shell/frmSplash.h"
#include "windows/store/frmDestinatario.h"
#include "windows/store/griglia.h"
#include "windows/strumenti/frmControlloMittente.h"
#include "windows/strumenti/frmEsiti.h"
#include "windows/strumenti/frmProva.h"
#include "windows/strumenti/frmUltimaImportazione.h"

// The program ends without unloading its windows, so nothing here is destroyed at the end.

namespace {

QPointer<frmMain> principale;
QPointer<frmSplash> apertura;
QPointer<frmEditor> scrittura;

/// A child window over another one, made from what it needs of others.
template <class Finestra, class... Cose>
Finestra& dialogo(QWidget& sopra, Cose&&... cose) {
    static QPointer<Finestra> finestra;
    if (!finestra) finestra = new Finestra(std::forward<Cose>(cose)..., &sopra);
    return *finestra;
}

/// A dialog of which more is needed than that it is there.
template <class Finestra>
Finestra& completa(ui::LateDialog& (*senza)()) {
    ui::LateDialog& finestra = senza();
    finestra.complete();
    return static_cast<Finestra&>(finestra);
}

}  // namespace

frmMain& finestre::Main() {
    if (!principale) {
        principale = new frmMain(IntornoAMain());
        principale->Carica();
    }
    return *principale;
}

frmAccount& finestre::Account() {
    return completa<frmAccount>(senzaControlli::Account);
}

frmInvia& finestre::Invia() {
    return completa<frmInvia>(senzaControlli::Invia);
}

frmEsiti& finestre::Esiti() {
    return dialogo<frmEsiti>(Main(), griglia::RiempiGriglia);
}

frmDestinatario& finestre::Destinatario() {
    return completa<frmDestinatario>(senzaControlli::Destinatario);
}

frmInfoSu& finestre::InfoSu() {
    return dialogo<frmInfoSu>(Main());
}

frmEditor& finestre::Editor() {
    if (!scrittura) {
        scrittura = new frmEditor(IntornoAEditor(), &Main());
        scrittura->Carica();
    }
    return *scrittura;
}

frmPropBody& finestre::PropBody() {
    return completa<frmPropBody>(senzaControlli::PropBody);
}

frmScelta& finestre::Scelta() {
    return completa<frmScelta>(senzaControlli::Scelta);
}

frmImpTXT& finestre::ImpTXT() {
    return completa<frmImpTXT>(senzaControlli::ImpTXT);
}

frmImpDB& finestre::ImpDB() {
    return completa<frmImpDB>(senzaControlli::ImpDB);
}

frmProva& finestre::Prova() {
    return dialogo<frmProva>(Main(), IntornoAProva());
}

frmControlloMittente& finestre::Controllo() {
    return dialogo<frmControlloMittente>(Main());
}

frmSplash& finestre::Splash() {
    if (!apertura) {
        apertura = new frmSplash;
        apertura->Carica();
    }
    return *apertura;
}

frmUltimaImportazione& finestre::UltimaImportazione() {
    return dialogo<frmUltimaImportazione>(Main());
}

ui::LateDialog& finestre::senzaControlli::Account() {
    return dialogo<frmAccount>(Main());
}

ui::LateDialog& finestre::senzaControlli::Invia() {
    return dialogo<frmInvia>(Main(), griglia::RiempiGriglia);
}

ui::LateDialog& finestre::senzaControlli::PropBody() {
    return dialogo<frmPropBody>(Editor(), *Editor().DHTML, *Editor().CODE);
}

ui::LateDialog& finestre::senzaControlli::Destinatario() {
    return dialogo<frmDestinatario>(Main());
}

ui::LateDialog& finestre::senzaControlli::Scelta() {
    return dialogo<frmScelta>(Main());
}

ui::LateDialog& finestre::senzaControlli::ImpTXT() {
    return dialogo<frmImpTXT>(Main(), IntornoAgliImport().NuovoNodo);
}

ui::LateDialog& finestre::senzaControlli::ImpDB() {
    return dialogo<frmImpDB>(Main(), IntornoAgliImport().NuovoNodo);
}

void finestre::ScaricaSplash() {
    delete apertura;
    if (principale) principale->setEnabled(true);
}

void finestre::dimentica() {
    delete apertura;
    delete principale;
    bLANG::numeroLingue = 0;
    bLANG::linguaScelta = 0;
}
