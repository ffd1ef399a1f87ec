#include "core/bMain.h"

#include <QTimer>

#include "core/bError.h"
#include "core/CentraForm.h"
#include "core/Evento.h"
#include "core/Fallimento.h"
#include "core/Finestre.h"
#include "core/Puntatore.h"
#include "core/Riavvio.h"
#include "message/frmEditor.h"
#include "platform/ado/Notices.h"
#include "platform/ui/MessageDialog.h"
#include "send/Accettati.h"
#include "send/Accettati_avviso.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "store/percorsoDBase.h"

void SubMain() {
    Prosegui prosegui;
    ado::keepNotices();
    riavvio::SegnaAvvio();
    ScriviInizioLog();
    PuntatoreAttesa();
    const QString avvisoPercorso = CaricaPercorsoDBase();
    // Naming the main window creates and loads it before the caption is stored.
    prosegui([] { TitoloPrincipale(); });
    // The splash stays on top while the main window comes up.
    prosegui([] { CentraForm(finestre::Splash()); });
    prosegui([] { finestre::Main().show(); });
    prosegui([] { TitoloPrincipale(); });
    prosegui([] { finestre::Splash().hide(); });
    prosegui([] { finestre::ScaricaSplash(); });
    // What cannot be taken out of the selection now is remembered on.
    prosegui([] { ApplicaAccettati(); });
    PuntatorePredefinito();
    riavvio::SegnaFinestra();
    riavvio::RiprendiGruppo();
    AvvisaAccettatiScartati();
    mostraAvvisi();
    if (!avvisoPercorso.isEmpty())
        ui::MessageDialog::show(avvisoPercorso, ui::MessageDialog::Notice, "Attenzione");
    // The offer waits for an answer, so it comes with the first events.
    QTimer::singleShot(0, &finestre::Main(), [] { evento([] { finestre::Editor().OffriRecupero(); }); });
}
