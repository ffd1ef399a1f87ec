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

/// A window that stands over another one and belongs to it, made from what it needs of others.
template <class Finestra, class... Cose>
Finestra& dialogo(QWidget& sopra, Cose&&... cose) {
    static QPointer<Finestra> finestra;
    if (!finestra) finestra = new Finestra(std::forward<Cose>(cose)..., &sopra);
    return *finestra;
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
    return dialogo<frmAccount>(Main());
}

frmInvia& finestre::Invia() {
    return dialogo<frmInvia>(Main(), griglia::RiempiGriglia);
}

frmEsiti& finestre::Esiti() {
    return dialogo<frmEsiti>(Main(), griglia::RiempiGriglia);
}

frmDestinatario& finestre::Destinatario() {
    return dialogo<frmDestinatario>(Main());
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
    return dialogo<frmPropBody>(Editor(), *Editor().DHTML, *Editor().CODE);
}

frmScelta& finestre::Scelta() {
    return dialogo<frmScelta>(Main());
}

frmImpTXT& finestre::ImpTXT() {
    return dialogo<frmImpTXT>(Main(), IntornoAgliImport().NuovoNodo);
}

frmImpDB& finestre::ImpDB() {
    return dialogo<frmImpDB>(Main(), IntornoAgliImport().NuovoNodo);
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
