// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/store/frmGruppi.h"

#include <QVBoxLayout>

#include "modules/core/bFunctions.h"
#include "modules/core/bGlobal.h"
#include "modules/store/nodo.h"
#include "platform/ado/Recordset.h"
#include "platform/text/Words.h"
#include "platform/ui/MessageDialog.h"
#include "windows/core/Evento.h"
#include "windows/core/Puntatore.h"
#include "windows/store/griglia.h"

namespace {

ado::Recordset LivelloDi(const QString& numero) {
    ado::Recordset rs;
    esigi(rs.setActiveConnection(connDB));
    rs.setCursorType(ado::CursorType::ForwardOnly);
    rs.setCursorLocation(ado::CursorLocation::Server);
    rs.setLockType(ado::LockType::ReadOnly);
    rs.setSource("SELECT * FROM [tb_gruppi] WHERE id_up = " + numero + " ORDER BY nome ASC;");
    esigi(rs.open());
    return rs;
}

}  // namespace

frmGruppi::frmGruppi(const Principale& finestra, QWidget* parent)
    : QWidget(parent), principale(finestra), TREE(new ui::GroupTree(this)) {
    setObjectName("frmGruppi");
    setWindowTitle("Gruppi mailing");
    TREE->setObjectName("TREE");
    TREE->setFrameShape(QFrame::NoFrame);
    TREE->setImage("Mailing", "server-database");
    TREE->setImage("Close", "folder");
    TREE->setImage("Open", "folder-open");
    TREE->setEmptyText(Words::tr("Nuova cartella: tasto destro sulla radice"));
    auto* area = new QVBoxLayout(this);
    area->setContentsMargins(0, 0, 0, 0);
    area->addWidget(TREE);
    CollegaEventi();
    CollegaTaglia();
}

void frmGruppi::AggiungiNodo(const QString& chiavePadre, const QString& id, const QString& nome) {
    esigi(TREE->Add(chiavePadre, 'K' + id, nome, "Close", "Open"));
}

void frmGruppi::CaricaLivello(ado::Recordset& rs, const QString& chiavePadre) {
    for (; !rs.isEof(); esigi(rs.moveNext()))
        AggiungiNodo(chiavePadre, esigi(rs.value(u"id")).toTextOrEmpty(),
                     esigi(rs.value(u"nome")).toTextOrEmpty());
}

void frmGruppi::CaricaGruppiINI() {
    while (!CaricaPrimoLivello())
        ChiediAltroDatabase();
}

bool frmGruppi::CaricaPrimoLivello() {
    Prosegui prosegui;
    TREE->Clear();
    prosegui([this] {
        ado::Recordset rs = LivelloDi("0");
        esigi(TREE->Add({}, "K0", "Database Mailing", "Mailing", "Mailing"));
        CaricaLivello(rs, "K0");
        esigi(TREE->Expand("K0"));
    });
    return prosegui.numero() == 0;
}

void frmGruppi::ChiediAltroDatabase() {
    ui::MessageDialog::show(
        "Impossibile trovare il database.\r\nCaricare un'altro database prima di continuare.",
        ui::MessageDialog::Stop, "Attenzione");
    const auto percorso = principale.ChiediDatabase();
    if (!percorso) {
        ui::MessageDialog::show(
            "Si è scelto di non continuare.\r\n"
            "Impossibile utilizzare il programma senza un Database valido.",
            ui::MessageDialog::Stop, "Attenzione");
        TerminaProgramma();
    }
    PuntatoreAttesa();
    if (!ripiega(false, [&] { return VerificaDatabase(*percorso); })) {
        ui::MessageDialog::show("Formato file errato", ui::MessageDialog::Notice, "Attenzione");
        TerminaProgramma();
    }
    principale.CambiaDatabase(*percorso);
    PuntatorePredefinito();
}

void frmGruppi::CaricaSottogruppi(const QString& chiave) {
    const ui::GroupNodeRef nodo = TREE->Node(chiave);
    if (!nodo) fallisci(ErrorCode::ItemNotFound);
    ado::Recordset rs = LivelloDi(NumeroNodo(chiave));
    if (nodo->Children() == 0) CaricaLivello(rs, chiave);
}

void frmGruppi::TREEClick() {
    const ui::GroupNodeRef scelto = TREE->SelectedItem();
    if (!scelto) return;
    Prosegui prosegui;
    const bool riempita = prosegui([&] {
        livelloMancato = scelto->Key();
        CaricaSottogruppi(scelto->Key());
        livelloMancato.clear();
        griglia::RiempiGriglia();
    });
    if (!riempita) griglia::SegnaNonLetta();
    principale.AggiornaComandi();
}

void frmGruppi::CompletaLivello(const QString& chiave) {
    if (livelloMancato != chiave) return;
    CaricaSottogruppi(chiave);
    livelloMancato.clear();
}

void frmGruppi::DimenticaNodo() {
    nodoCorrente.reset();
    chiaveNodo.clear();
    livelloMancato.clear();
    DimenticaTaglio();
}

QString frmGruppi::MenuDelNodo() const {
    if (TREE->Count() == 0 || !nodoCorrente) return {};
    return nodoCorrente->Key == "K0" ? QStringLiteral("popMailingHead") : QStringLiteral("popMailing");
}

QString frmGruppi::MenuOra() const {
    const ui::GroupNodeRef scelto = TREE->SelectedItem();
    return nodoCorrente && scelto && scelto->Key() == nodoCorrente->Key ? MenuDelNodo() : QString();
}
