// Opening another recipient database and saving a copy of the current one.
#include <QFileInfo>
#include <QSaveFile>

#include "core/bFunctions.h"
#include "core/bGlobal.h"
#include "core/Fallimento.h"
#include "core/Puntatore.h"
#include "lang/bVAR.h"
#include "platform/ado/Connection.h"
#include "platform/jet/Database.h"
#include "platform/ui/DataControl.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/MessageDialog.h"
#include "shell/frmMain.h"
#include "store/frmGruppi.h"
#include "store/percorsoDBase.h"

namespace {

/// Copies a database while nobody writes to it. The copy appears under its name only when it is complete.
void CopiaDatabase(const QString& sorgente, const QString& destinazione) {
    if (QFileInfo(sorgente).canonicalFilePath() == QFileInfo(destinazione).canonicalFilePath())
        fallisci(ErrorCode::PathAccess);
    const auto database =
        esigi(jet::Database::open(QFile::encodeName(sorgente).toStdString(), {.readOnly = true}));
    const jet::ReadScope nessunoScrive(*database);
    esigi(nessunoScrive.status());
    QFile da(sorgente);
    QSaveFile a(destinazione);
    if (!da.open(QIODevice::ReadOnly) || !a.open(QIODevice::WriteOnly)) fallisci(ErrorCode::PathAccess);
    while (!da.atEnd()) {
        const QByteArray blocco = da.read(1 << 20);
        if (blocco.isEmpty() || a.write(blocco) != blocco.size()) fallisci(ErrorCode::DeviceIo);
    }
    if (!a.commit()) fallisci(ErrorCode::DeviceIo);
}

}  // namespace

std::optional<QString> frmMain::ChiediDatabase() {
    return ui::FileDialog::open(bVAR::MailingOpen, "Database Mailing List *.mdb|*.mdb|");
}

void frmMain::CambiaDatabase(const QString& percorso) {
    // The files that are kept open are let go, so that the old one can be moved or its disk taken away.
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
    // The tree is built anew after a cancel or a refusal as well.
    prosegui([this] { Gruppi().CaricaGruppiINI(); });
}

void frmMain::SalvaDatabase() {
    const auto destinazione = ui::FileDialog::save(bVAR::MailingSalva, "Database Mailing List *.mdb|*.mdb");
    if (!destinazione) fallisci(ErrorCode::CancelSelected);
    PuntatoreAttesa();
    CopiaDatabase(percorsoDB, *destinazione);
    PuntatorePredefinito();
}
