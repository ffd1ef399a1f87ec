#include "core/Finestre.h"

#include <QPointer>

#include "accounts/frmAccount.h"
#include "import/frmImpDB.h"
#include "import/frmImpTXT.h"
#include "import/frmScelta.h"
#include "lang/bLANG.h"
#include "message/frmEditor.h"
#include "message/frmPropBody.h"
#include "send/frmInvia.h"
#include "shell/frmInfoSu.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "store/frmDestinatario.h"

// The program ends without unloading its windows, so nothing here is destroyed at the end.

namespace {

QPointer<frmMain> principale;
QPointer<frmSplash> apertura;
QPointer<frmEditor> scrittura;

/// A window that stands over another one and belongs to it.
template <class Finestra>
Finestra& dialogo(QWidget& sopra = finestre::Main()) {
    static QPointer<Finestra> finestra;
    if (!finestra) finestra = new Finestra(&sopra);
    return *finestra;
}

}  // namespace

frmMain& finestre::Main() {
    if (!principale) {
        principale = new frmMain;
        principale->Carica();
    }
    return *principale;
}

frmAccount& finestre::Account() {
    return dialogo<frmAccount>();
}

frmInvia& finestre::Invia() {
    return dialogo<frmInvia>();
}

frmDestinatario& finestre::Destinatario() {
    return dialogo<frmDestinatario>();
}

frmInfoSu& finestre::InfoSu() {
    return dialogo<frmInfoSu>();
}

frmEditor& finestre::Editor() {
    if (!scrittura) {
        scrittura = new frmEditor(&Main());
        scrittura->Carica();
    }
    return *scrittura;
}

frmPropBody& finestre::PropBody() {
    return dialogo<frmPropBody>(Editor());
}

frmScelta& finestre::Scelta() {
    return dialogo<frmScelta>();
}

frmImpTXT& finestre::ImpTXT() {
    return dialogo<frmImpTXT>();
}

frmImpDB& finestre::ImpDB() {
    return dialogo<frmImpDB>();
}

frmSplash& finestre::Splash() {
    if (!apertura) {
        apertura = new frmSplash;
        apertura->Carica();
    }
    return *apertura;
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
