// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/entry/bMain.h"

#include <QTimer>

#include "modules/core/bError.h"
#include "modules/core/Fallimento.h"
#include "modules/core/SenzaPermessi.h"
#include "modules/send/Accettati.h"
#include "modules/store/percorsoDBase.h"
#include "platform/ado/Notices.h"
#include "platform/text/Words.h"
#include "platform/ui/MessageDialog.h"
#include "windows/core/CentraForm.h"
#include "windows/core/Evento.h"
#include "windows/core/Puntatore.h"
#include "windows/entry/Finestre.h"
#include "windows/entry/Riavvio.h"
#include "windows/message/frmEditor.h"
#include "windows/send/Accettati_avviso.h"
#include "windows/shell/frmMain.h"
#include "windows/shell/frmSplash.h"

void SubMain() {
    Prosegui prosegui;
    ado::keepNotices();
    riavvio::SegnaAvvio();
    ScriviInizioLog();
    PuntatoreAttesa();
    const QString avvisoPercorso = CaricaPercorsoDBase();
    // Naming the main window creates and loads it before the caption is stored.
    prosegui([] { TitoloPrincipale(finestre::Main()); });
    // The splash stays on top while the main window comes up.
    prosegui([] { CentraForm(finestre::Splash()); });
    prosegui([] { finestre::Main().show(); });
    prosegui([] { TitoloPrincipale(finestre::Main()); });
    prosegui([] { finestre::Splash().hide(); });
    prosegui([] { finestre::ScaricaSplash(); });
    // What cannot be deselected now stays remembered.
    prosegui([] { ApplicaAccettati(); });
    PuntatorePredefinito();
    riavvio::SegnaFinestra();
    riavvio::RiprendiGruppo();
    AvvisaAccettatiScartati();
    mostraAvvisi();
    if (const QString avviso = AvvisoSenzaPermessi(); !avviso.isEmpty())
        ui::MessageDialog::show(avviso, ui::MessageDialog::Notice, Words::tr("Attenzione"));
    if (!avvisoPercorso.isEmpty())
        ui::MessageDialog::show(avvisoPercorso, ui::MessageDialog::Notice, Words::tr("Attenzione"));
    // The offer waits for an answer, so it comes with the first events.
    QTimer::singleShot(0, &finestre::Main(), [] {
        evento([] {
            if (!finestre::Editor().OffriRecupero()) riavvio::ApriMessaggio();
        });
    });
}
