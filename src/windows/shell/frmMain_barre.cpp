// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the main window and their places: menus, tool bars, pop-up menus, status bar.
#include <QLocale>
#include <QMenuBar>
#include <QShortcut>
#include <QStatusBar>
#include <QToolBar>
#include <vector>

#include "platform/system/Clock.h"
#include "platform/text/Words.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/DatabaseWait.h"
#include "platform/ui/DataGrid.h"
#include "windows/core/Evento.h"
#include "windows/shell/frmMain.h"
#include "windows/store/frmGruppi.h"
#include "windows/store/griglia.h"

namespace {

using Tasti = QList<QKeySequence>;
constexpr auto dalMenu = ui::CommandDesign::Scope::Popup;

// In the order of the menus. A command with keys of `dalMenu` reacts to them only where a pop-up offers it.
std::vector<ui::CommandDesign> comandiDeiMenu() {
    return {
        {"cmdFileAccount", "Imposta &Account", "Imposta Account", "user-properties",
         Tasti{Qt::CTRL | Qt::Key_Comma}},
        {"cmdInvia", "&Invia messaggi", "Invia i messaggi", "document-send",
         Tasti{Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Enter}},
        {"cmdEsci", "&Esci", "Esci dal programma", "application-exit", Tasti{Qt::CTRL | Qt::Key_Q}},
        {"cmdEditor", "Editor Messaggi", "Editor messaggi", "mail-message-new", Tasti{Qt::CTRL | Qt::Key_N}},
        {"cmdMailingApri", "&Apri Mailing List", "Apri Mailing List", "document-open",
         Tasti{Qt::CTRL | Qt::Key_O}},
        {"cmdMailingSalva", "&Salva Mailing List", "Salva Mailing List", "document-save-as",
         Tasti{Qt::CTRL | Qt::SHIFT | Qt::Key_S}},
        {"cmdMailingImpTXT", "Importa Mailing List da file di &testo",
         "Importa Mailing List da file di testo", "text-csv", Tasti{Qt::CTRL | Qt::Key_I}},
        {"cmdMailingImpOE", "Importa Mailing List da &Outlook Express",
         "Importa Mailing List da Outlook Express", "view-pim-contacts"},
        {"cmdMailingImpMSO", "Importa Mailing List da &Microsoft Outlook",
         "Importa Mailing List da Microsoft Outlook", "resource-group"},
        {"cmdMailingImpDB", "Importa Mailing List da Microsoft A&ccess",
         "Importa Mailing List da Microsoft Access", "application-vnd.ms-access"},
        {"cmdHelpGuida", "xxx Guida in linea", "Guida in linea", "help-contents", Tasti{Qt::Key_F1}},
        {"cmdHelpHomePage", "Visita la &home page di Quintara", "Visita la Home Page", "globe"},
        {"cmdHelpInviaMail", "Invia una &email a Quintara", "Invia una Email", "mail-message"},
        {"cmdHelpInfoSu", "&Info su...", "Info su...", "help-about"},
    };
}

std::vector<ui::CommandDesign> comandiDeiGruppi() {
    return {
        {"cmdPopMailingHead", "Imposta come cartella principale", "Imposta come cartella principale",
         "go-top"},
        {"cmdPopMailingDel", "Elimina cartella", "Elimina cartella", "edit-delete", Tasti{Qt::Key_Delete},
         dalMenu},
        {"cmdPopMailingCopia", "Copia cartella nello stesso livello", "Copia cartella nello stesso livello",
         "edit-copy", Tasti{Qt::CTRL | Qt::Key_D}, dalMenu},
        {"cmdPopMailingRinomina", "Rinomina cartella", "Rinomina cartella", "edit-rename", Tasti{Qt::Key_F2},
         dalMenu},
        {"cmdPopMailingNew", "Nuova cartella dentro questo livello", "Nuova cartella dentro questo livello",
         "folder-new", Tasti{Qt::CTRL | Qt::SHIFT | Qt::Key_N}, dalMenu},
        {"cmdPopMailingSelAllDB", "Seleziona l'intero database", "Seleziona l'intero database",
         "edit-select-all", Tasti{Qt::CTRL | Qt::Key_A}, dalMenu},
        {"cmdPopMailingSelNotDB", "Deseleziona l'intero database", "Deseleziona l'intero database",
         "edit-select-none", Tasti{Qt::CTRL | Qt::SHIFT | Qt::Key_A}, dalMenu},
        {"cmdPopMailingSelAllGRP", "Seleziona tutti i destinatari della cartella",
         "Seleziona tutti i destinatari della cartella", "edit-select-all", Tasti{Qt::CTRL | Qt::Key_A},
         dalMenu},
        {"cmdPopMailingSelNotGRP", "Deseleziona tutti i destinatari della cartella",
         "Deseleziona tutti i destinatari della cartella", "edit-select-none",
         Tasti{Qt::CTRL | Qt::SHIFT | Qt::Key_A}, dalMenu},
        {"cmdPopMailingSvuotaCartella", "Svuota cartella", "Svuota cartella", "edit-clear-all"},
    };
}

std::vector<ui::CommandDesign> comandiDeiDestinatari() {
    return {
        {"cmdPopMailingUserNew", "Nuovo destinatario in questa cartella",
         "Nuovo destinatario in questa cartella", "list-add-user", Tasti{Qt::Key_Insert}, dalMenu},
        {"cmdPopMailingUserMod", "Modifica destinatario", "Modifica destinatario", "document-edit",
         Tasti{Qt::Key_Return, Qt::Key_Enter}, dalMenu},
        {"cmdPopMailingUserDel", "Elimina destinatario", "Elimina destinatario", "list-remove-user",
         Tasti{Qt::Key_Delete}, dalMenu},
    };
}

}  // namespace

void frmMain::CreaComandi() {
    for (const auto& comandi : {comandiDeiMenu(), comandiDeiGruppi(), comandiDeiDestinatari()})
        for (const ui::CommandDesign& comando : comandi)
            barre->addCommand(comando);
    connect(barre, &ui::CommandBars::commandStarted, this,
            [this](const QString& nome) { evento([&] { ComandoPremuto(nome); }); });
    connect(barre, &ui::CommandBars::commandPointed, this,
            [this](const QString&, const QString& descrizione) {
                evento([&] { barre->GetStatic("stcHelp")->setText(descrizione); });
            });
}

void frmMain::CreaMenu() {
    barre->addMenu("mnuFile", "&File", "File", {"cmdFileAccount", "cmdInvia", "|", "cmdEsci"});
    barre->addMenu("mnuEditor", "&Editor", "Editor", {"cmdEditor"});
    barre->addMenu("mnuMailing", "&Mailing", "Mailing",
                   {"cmdMailingApri", "cmdMailingSalva", "|", "cmdMailingImpTXT", "cmdMailingImpOE",
                    "cmdMailingImpMSO", "cmdMailingImpDB"});
    barre->addMenu("mnuHelp", "&Help", "Help",
                   {"cmdHelpGuida", "|", "cmdHelpHomePage", "cmdHelpInviaMail", "|", "cmdHelpInfoSu"});
    barre->addListMenu("mnuLingua", "&Lingua", "Lingua", "cmdLang");
    QStringList menu{"mnuFile", "mnuEditor", "mnuMailing", "mnuLingua", "mnuHelp"};
    if (const QStringList strumenti = CreaStrumenti(); !strumenti.isEmpty()) {
        barre->addMenu("mnuStrumenti", Words::tr("&Strumenti"), Words::tr("Strumenti"), strumenti);
        menu << "mnuStrumenti";
    }
    barre->addMenuBar("Menu", menu);

    barre->addMenu("popMailing", "", "",
                   {"cmdPopMailingNew", "cmdPopMailingCopia", "cmdPopMailingDel", "cmdPopMailingRinomina",
                    "cmdPopMailingHead", "|", "cmdPopMailingUserNew", "|", "cmdPopMailingSelAllGRP",
                    "cmdPopMailingSelNotGRP", "|", "cmdPopMailingSvuotaCartella"});
    barre->addMenu("popMailingHead", "", "",
                   {"cmdPopMailingNew", "|", "cmdPopMailingSelAllDB", "cmdPopMailingSelNotDB"});
    barre->addMenu("popMailingGRD", "", "",
                   {"cmdPopMailingUserNew", "cmdPopMailingUserMod", "cmdPopMailingUserDel", "|",
                    "cmdPopMailingSelAllGRP", "cmdPopMailingSelNotGRP", "|", "cmdPopMailingSvuotaCartella"});
}

QStringList frmMain::CreaStrumenti() {
    QStringList voci;
    for (const GruppoStrumenti& gruppo : vicini.strumenti) {
        if (!gruppo.empty() && !voci.isEmpty()) voci << "|";
        for (const Strumento& strumento : gruppo) {
            barre->addCommand({strumento.nome, strumento.didascalia, strumento.descrizione, strumento.icona,
                               strumento.tasti},
                              [this, &strumento] { evento([&] { ApriStrumento(strumento); }); });
            voci << strumento.nome;
        }
    }
    return voci;
}

// In the order of the work: recipients, message, sending.
void frmMain::CreaBarre() {
    barre->addToolBar("Mailing",
                      {"cmdMailingApri", "cmdMailingSalva", "|", "cmdPopMailingNew", "cmdPopMailingUserNew",
                       "|", "cmdMailingImpTXT", "cmdMailingImpOE", "cmdMailingImpMSO", "cmdMailingImpDB"},
                      Qt::ToolButtonIconOnly);
    barre->addToolBar("Editor", {"cmdEditor"}, Qt::ToolButtonTextBesideIcon);
    barre->addToolBar("Send", {"cmdFileAccount", "cmdInvia"}, Qt::ToolButtonTextBesideIcon);
}

void frmMain::CreaBarraStato() {
    statusBar()->setObjectName("StatusBar");
    barre->addStatic("stcHelp", "Pronto...", 1);
    barre->addProgress("stcProgress", Words::tr("Avanzamento"));
    barre->addStatic("stcData", {}, 0);
    AggiornaData();
    new ui::DatabaseWait([this](const QString& testo) { MostraAttesa(testo); }, this);
}

void frmMain::MostraAttesa(const QString& testo) {
    auto* stcHelp = barre->GetStatic("stcHelp");
    if (testo.isEmpty()) return stcHelp->setText(primaDellAttesa);
    primaDellAttesa = stcHelp->Text();
    stcHelp->setText(testo);
    stcHelp->announce();
}

void frmMain::AggiornaData() {
    barre->GetStatic("stcData")->setText(QLocale().toString(sys::clock().now().date(), QLocale::LongFormat));
}

/// The two commands that are in the pop-up menus and on a bar are disabled there wherever no key starts
/// them, so that they never meet an empty nodoCorrente, nor a group that is not the one shown as selected.
void frmMain::AggiornaComandi() {
    auto* gruppi = static_cast<frmGruppi*>(pannelli.DockWindows("dckGruppi")->content());
    const QString menuAlbero = gruppi ? gruppi->MenuOra() : QString();
    const bool daGriglia = !menuAlbero.isEmpty() && !griglia::MenuOra().isEmpty();
    barre->GetToolButton("cmdPopMailingNew")->setOnBars(!menuAlbero.isEmpty());
    barre->GetToolButton("cmdPopMailingUserNew")->setOnBars(menuAlbero == "popMailing" || daGriglia);
}

void frmMain::CreaGiroFuoco(frmGruppi& gruppi) {
    setTabOrder(gruppi.TREE, destinatari);
    auto* menu = new QShortcut(Qt::Key_F10, this);
    connect(menu, &QShortcut::activated, this,
            [this] { menuBar()->setActiveAction(menuBar()->actions().constFirst()); });
    auto* giro = new QShortcut(Qt::Key_F6, this);
    connect(giro, &QShortcut::activated, this, [this, &gruppi] {
        evento([&] {
            if (gruppi.TREE->hasFocus())
                destinatari->setFocus(Qt::ShortcutFocusReason);
            else if (destinatari->hasFocus())
                barre->focusBars();
            else
                gruppi.TREE->setFocus(Qt::ShortcutFocusReason);
        });
    });
}
