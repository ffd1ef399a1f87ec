// SPDX-License-Identifier: GPL-3.0-or-later
// Opening another recipient database and saving a copy of the current one.
#include <QFile>

#include "modules/core/bFunctions.h"
#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/lang/bVAR.h"
#include "modules/store/percorsoDBase.h"
#include "platform/ado/Connection.h"
#include "platform/jet/Database.h"
#include "platform/system/OutputFile.h"
#include "platform/text/Words.h"
#include "platform/ui/DataControl.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/PaintedWork.h"
#include "windows/core/Puntatore.h"
#include "windows/shell/frmMain.h"
#include "windows/store/frmGruppi.h"

namespace {

/// Copies a database as it is between two changes. No file under the new name is lost before
/// the copy is complete.
void CopiaDatabase(const QString& sorgente, const QString& destinazione) {
    const auto database =
        esigi(jet::Database::open(QFile::encodeName(sorgente).toStdString(), {.readOnly = true}));
    const bool dellaCartellaDati = sys::kindByFolder(destinazione) == sys::FileKind::Own;
    esigi(database->copyTo(QFile::encodeName(destinazione).toStdString(), dellaCartellaDati));
}

}  // namespace

std::optional<QString> frmMain::ChiediDatabase() {
    return ui::FileDialog::open(bVAR::MailingOpen, "Database Mailing List *.mdb|*.mdb|");
}

void frmMain::CambiaDatabase(const QString& percorso) {
    // The files that are kept open are closed, so that the old one can be moved or its disk taken away.
    ado::closeAll();
    CambiaPercorsoDBase(percorso);
    // The number of a group of the old database may be that of another one in the new.
    Prosegui()([this] { Gruppi().DimenticaNodo(); });
    SvuotaGriglia();
    dati->setConnectionString(connDB);
}

void frmMain::ApriDatabase() {
    Prosegui prosegui;
    if (const auto percorso = ChiediDatabase()) {
        PuntatoreAttesa();
        bool valido = false;
        prosegui([&] { valido = VerificaDatabase(*percorso); });
        if (valido)
            CambiaDatabase(*percorso);
        else
            ui::MessageDialog::show("Formato file errato", ui::MessageDialog::Notice, "Attenzione");
        PuntatorePredefinito();
    }
    // The tree is rebuilt after a cancel or a refusal as well.
    prosegui([this] { Gruppi().CaricaGruppiINI(); });
}

void frmMain::SalvaDatabase() {
    const auto destinazione = ui::FileDialog::save(bVAR::MailingSalva, "Database Mailing List *.mdb|*.mdb",
                                                   Words::tr("Copia di ") + NomeDaPercorso(percorsoDB));
    if (!destinazione) fallisci(ErrorCode::CancelSelected);
    PuntatoreAttesa();
    ui::painted([&] { CopiaDatabase(percorsoDB, *destinazione); });
    PuntatorePredefinito();
}
