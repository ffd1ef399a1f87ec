#include "windows/lang/bLANG_applica.h"

#include <QScopeGuard>

#include "modules/lang/bVAR.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/MessageDialog.h"
#include "windows/entry/Finestre.h"
#include "windows/lang/bLANG_chiavi.h"
#include "windows/shell/frmMain.h"

namespace {

ui::CommandList& cmdLang() {
    return *finestre::Main().Commands().GetList("cmdLang");
}

}  // namespace

void CaricaLingua() {
    ElencaLingue();
    ApplicaLingua();
}

void ElencaLingue() {
    cmdLang().Clear();
    QStringList voci;
    // What was read before a failure stands in the list.
    const auto mostra = qScopeGuard([&voci] {
        for (const QString& voce : voci)
            cmdLang().AddText(voce);
    });
    bLANG::ElencaLingue(voci);
}

void ApplicaLingua() {
    bLANG::LeggiTesti(bLANG::DestinazioneDi);
    finestre::Main().Commands().GetPopupMenu("mnuLingua")->setCaption(bVAR::Lingua);
}

void CambiaLingua() {
    const QString voce = cmdLang().Caption(cmdLang().SelectedIndex());
    if (bLANG::eSegnata(voce)) return;
    bLANG::ScriviLinguaInUso(voce);
    ui::MessageDialog::show(bVAR::ChangeLang01, ui::MessageDialog::Notice, bVAR::Attenzione);
}
