// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/lang/bLANG_applica.h"

#include <QScopeGuard>

#include "modules/lang/bVAR.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/MessageDialog.h"
#include "windows/lang/bLANG_chiavi.h"
#include "windows/lang/bLANG_finestre.h"

void CaricaLingua(const bLANG::FinestreTradotte& finestre) {
    ElencaLingue(*finestre.Main.Commands().GetList("cmdLang"));
    ApplicaLingua(finestre);
}

void ElencaLingue(ui::CommandList& cmdLang) {
    cmdLang.Clear();
    QStringList voci;
    // What was read before a failure is in the list.
    const auto mostra = qScopeGuard([&] {
        for (const QString& voce : voci)
            cmdLang.AddText(voce);
    });
    bLANG::ElencaLingue(voci);
}

void ApplicaLingua(const bLANG::FinestreTradotte& finestre) {
    const bLANG::Chiavi chiavi = bLANG::TutteLeChiavi(finestre);
    bLANG::LeggiTesti([&chiavi](const QString& chiave) { return chiavi.value(chiave); });
    finestre.Main.Commands().GetPopupMenu("mnuLingua")->setCaption(bVAR::Lingua);
}

void CambiaLingua(ui::CommandList& cmdLang) {
    const QString voce = cmdLang.Caption(cmdLang.SelectedIndex());
    if (bLANG::eSegnata(voce)) return;
    bLANG::ScriviLinguaInUso(voce);
    ui::MessageDialog::show(bVAR::ChangeLang01, ui::MessageDialog::Notice, bVAR::Attenzione);
}
