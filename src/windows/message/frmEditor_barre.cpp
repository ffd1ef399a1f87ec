// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the editor and their places: bars, menus, keys.
#include <algorithm>
#include <QFontDatabase>
#include <QShortcut>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <vector>

#include "modules/message/variabili.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/TabStrip.h"
#include "windows/core/Evento.h"
#include "windows/message/frmColor.h"
#include "windows/message/frmEditor.h"

namespace {

using Tasti = QList<QKeySequence>;
using Comandi = std::vector<ui::CommandDesign>;
constexpr auto finestra = ui::CommandDesign::Scope::Window;
constexpr auto dalMenu = ui::CommandDesign::Scope::Popup;
constexpr bool conStato = true;

/// A command whose description repeats its caption.
ui::CommandDesign comando(const QString& nome, const QString& didascalia, const char* icona,
                          const Tasti& tasti = {}, bool stato = false) {
    return {nome, didascalia, QString(didascalia).remove('&'), icona, tasti, finestra, stato};
}

Comandi comandiFile() {
    return {
        comando("cmdNewMess", "Nuovo messaggio", "document-new", {Qt::CTRL | Qt::Key_N}),
        comando("cmdApriMess", "Apri messaggio", "document-open", {Qt::CTRL | Qt::Key_O}),
        comando("cmdSalva", "Salva messaggio", "document-save", {Qt::CTRL | Qt::Key_S}),
        comando("cmdSalvaAs", "Salva messaggio con nome", "document-save-as",
                {Qt::CTRL | Qt::SHIFT | Qt::Key_S}),
        comando("cmdStampa", "Stampa", "document-print", {Qt::CTRL | Qt::Key_P}),
        comando("cmdProprieta", "Prorietà messaggio", "document-properties",
                {Qt::ALT | Qt::Key_Return, Qt::ALT | Qt::Key_Enter}),
        comando("cmdEsci", "Esci", "application-exit", {Qt::CTRL | Qt::Key_W}),
    };
}

Comandi comandiModifica() {
    return {
        comando("cmdUndo", "Indietro", "edit-undo", {Qt::CTRL | Qt::Key_Z}),
        comando("cmdRedo", "Avanti", "edit-redo", {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y}),
        comando("cmdTaglia", "&Taglia", "edit-cut", {Qt::CTRL | Qt::Key_X}),
        comando("cmdCopia", "&Copia", "edit-copy", {Qt::CTRL | Qt::Key_C}),
        comando("cmdIncolla", "&Incolla", "edit-paste", {Qt::CTRL | Qt::Key_V}),
        comando("cmdSelezionaTutto", "Seleziona tutto", "edit-select-all", {Qt::CTRL | Qt::Key_A}),
        comando("cmdTrova", "Trova", "edit-find", {Qt::CTRL | Qt::Key_F}),
        comando("cmdShowDetails", "Visualizza dettagli", "format-text-code", {}, conStato),
        comando("cmdShowBorder", "Visualizza bordi", "format-border-set-all", {}, conStato),
    };
}

Comandi comandiMessaggio() {
    return {
        comando("cmdPriBassa", "Priorità bassa", "arrow-down-double", {}, conStato),
        comando("cmdPriAlta", "Priorità alta", "mail-mark-important", {}, conStato),
        comando("cmdAllegatiNew", "Nuovo Allegato", "mail-attachment", {Qt::CTRL | Qt::SHIFT | Qt::Key_A}),
        {"cmdAllegatiDel", "Elimina Allegato", "Elimina Allegato", "archive-remove", Tasti{Qt::Key_Delete},
         dalMenu},
    };
}

Comandi comandiTesto() {
    return {
        comando("cmdBold", "Grassetto", "format-text-bold", {Qt::CTRL | Qt::Key_B}, conStato),
        comando("cmdItalic", "Corsivo", "format-text-italic", {Qt::CTRL | Qt::Key_I}, conStato),
        comando("cmdUnderline", "Sottolineato", "format-text-underline", {Qt::CTRL | Qt::Key_U}, conStato),
        comando("cmdLeft", "Allinea a sinistra", "format-justify-left", {Qt::CTRL | Qt::Key_L}, conStato),
        comando("cmdCenter", "Allinea al centro", "format-justify-center", {Qt::CTRL | Qt::Key_E}, conStato),
        comando("cmdRight", "Allinea a destra", "format-justify-right", {Qt::CTRL | Qt::Key_R}, conStato),
        comando("cmdGiustify", "Giustifica", "format-justify-fill"),
        comando("cmdNumerato", "Elenco numerato", "format-list-ordered"),
        comando("cmdPuntato", "Elenco puntato", "format-list-unordered"),
        comando("cmdSX", "Sposta a sinistra", "format-indent-less"),
        comando("cmdDX", "Sposta a destra", "format-indent-more"),
    };
}

Comandi comandiInserisci() {
    return {
        comando("cmdLink", "Collegamento", "insert-link", {Qt::CTRL | Qt::Key_K}),
        comando("cmdImage", "Inserisci immagine", "insert-image"),
        comando("cmdHR", "Linea orizzontale", "insert-horizontal-rule"),
        comando("cmdTable", "Inserisci tabella", "insert-table"),
        comando("cmdTableInsRow", "Inserisci riga", "edit-table-insert-row-below"),
        comando("cmdTableInsCol", "Inserisci colonna", "edit-table-insert-column-right"),
        comando("cmdTableDelRow", "Elimina riga", "edit-table-delete-row"),
        comando("cmdTableDelCol", "Elimina colonna", "edit-table-delete-column"),
        comando("cmdModuliForm", "Form", "view-form"),
        comando("cmdModuliText", "Text", "text-field"),
        comando("cmdModuliTextArea", "Text Area", "insert-text-frame"),
        comando("cmdModuliCheckBox", "Check Box", "checkbox"),
        comando("cmdModuliRadioButton", "Radio Button", "choice-round"),
        comando("cmdModuliList", "List", "view-list-text"),
        comando("cmdModuliListMenu", "List Menu", "view-list-details"),
        comando("cmdModuliHidden", "Hidden", "view-hidden"),
    };
}

Comandi comandiVariabili() {
    Comandi comandi;
    for (const Variabile& variabile : VariabiliMessaggio())
        comandi.push_back(comando(variabile.comando, variabile.didascalia, ""));
    return comandi;
}

QStringList vociVariabili() {
    QStringList voci;
    for (const Variabile& variabile : VariabiliMessaggio()) {
        if (variabile.campo == schema::campo1) voci << "|";
        voci << variabile.comando;
    }
    return voci;
}

}  // namespace

void frmEditor::CreaComandi() {
    for (const Comandi& comandi : {comandiFile(), comandiModifica(), comandiMessaggio(), comandiTesto(),
                                   comandiInserisci(), comandiVariabili()})
        for (const ui::CommandDesign& disegno : comandi)
            barre->addCommand(disegno);
    barre->GetToolButton("cmdAllegatiDel")->setEnabled(false);
    connect(barre, &ui::CommandBars::commandStarted, this,
            [this](const QString& nome) { evento([&] { ComandoPremuto(nome); }); });
    connect(barre, &ui::CommandBars::commandPointed, this,
            [this](const QString&, const QString& descrizione) {
                evento([&] { barre->GetStatic("stcHelp")->setText(descrizione); });
            });
    connect(barre, &ui::CommandBars::textEdited, this, [this] { evento([this] { SegnaModificato(); }); });
}

void frmEditor::CreaMenu() {
    barre->addMenu(
        "popTable", "Tabella", "Tabella",
        {"cmdTable", "|", "cmdTableInsRow", "cmdTableInsCol", "|", "cmdTableDelRow", "cmdTableDelCol"});
    barre->setMenuButton("popTable", "insert-table");
    barre->addMenu("popModuli", "Moduli", "Moduli",
                   {"cmdModuliForm", "|", "cmdModuliText", "cmdModuliTextArea", "cmdModuliCheckBox",
                    "cmdModuliRadioButton", "cmdModuliList", "cmdModuliListMenu", "cmdModuliHidden"});
    barre->setMenuButton("popModuli", "view-form");
    barre->addMenu("popVariabili", "Variabili", "Clicca per visualizzare le variabili", vociVariabili());
    barre->setMenuButton("popVariabili", "code-variable", {Qt::CTRL | Qt::SHIFT | Qt::Key_P});
    barre->addMenu("popModifica", "", "",
                   {"cmdUndo", "cmdRedo", "|", "cmdTaglia", "cmdCopia", "cmdIncolla", "|",
                    "cmdSelezionaTutto", "cmdTrova"});
    barre->addMenu("popAllegati", "", "", {"cmdAllegatiNew", "cmdAllegatiDel"});
}

// In three rows: what concerns the document, the message's head, the text.
void frmEditor::CreaBarre() {
    constexpr int larghezzaFont = 150;
    constexpr int larghezzaCorpo = 48;
    constexpr auto icone = Qt::ToolButtonIconOnly;
    barre->addToolBar("File",
                      {"cmdNewMess", "cmdApriMess", "cmdSalva", "cmdSalvaAs", "cmdStampa", "|",
                       "cmdProprieta", "|", "cmdEsci"},
                      icone);
    barre->addToolBar("Modifica",
                      {"cmdUndo", "cmdRedo", "|", "cmdTaglia", "cmdCopia", "cmdIncolla", "|",
                       "cmdSelezionaTutto", "cmdTrova"},
                      icone);
    barre->addToolBar("View", {"cmdShowDetails", "cmdShowBorder"}, icone);
    addToolBarBreak();
    barre->addEdit("txtOggetto", "Oggetto:", "Oggetto del messaggio");
    barre->addToolBar(
        "Message", {"txtOggetto", "|", "cmdPriBassa", "cmdPriAlta", "|", "cmdAllegatiNew", "cmdAllegatiDel"},
        icone);
    addToolBarBreak();
    barre->addComboBox("cmbFontName", "Seleziona font", larghezzaFont);
    barre->addComboBox("cmbFontSize", "Font size", larghezzaCorpo);
    auto* pwnColor = new frmColor(*DHTML, *barre, this);
    barre->addCustomPopup({"popColors", "Tabella colori", "Tabella colori", "format-text-color"}, pwnColor);
    connect(barre, &ui::CommandBars::popupOpening, pwnColor,
            [pwnColor] { evento([pwnColor] { pwnColor->PrendiColore(); }); });
    QToolBar* html = barre->addToolBar(
        "HTML",
        {"cmbFontName", "cmbFontSize", "popColors", "|",           "cmdBold",     "cmdItalic", "cmdUnderline",
         "|",           "cmdLeft",     "cmdCenter", "cmdRight",    "cmdGiustify", "|",         "cmdNumerato",
         "cmdPuntato",  "cmdSX",       "cmdDX",     "|",           "cmdLink",     "cmdImage",  "cmdHR",
         "popTable",    "|",           "popModuli", "popVariabili"},
        icone);
    html->findChild<QToolButton*>("popVariabili")->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    statusBar()->setObjectName("StatusBar");
    barre->addStatic("stcHelp", "Pronto...", 1);
}

void frmEditor::CreaTasti() {
    const auto passa = [this](const Tasti& tasti, int passo) {
        for (const QKeySequence& tasto : tasti)
            connect(new QShortcut(tasto, this), &QShortcut::activated, this,
                    [this, passo] { evento([this, passo] { tb->step(passo); }); });
    };
    passa({Qt::CTRL | Qt::Key_PageDown, Qt::CTRL | Qt::Key_Tab}, 1);
    passa({Qt::CTRL | Qt::Key_PageUp, Qt::CTRL | Qt::SHIFT | Qt::Key_Tab,
           Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab},
          -1);
}

void frmEditor::RiempiFont() {
    lstFont = QFontDatabase::families();
    std::sort(lstFont.begin(), lstFont.end(), [](const QString& a, const QString& b) {
        return QString::compare(a, b, Qt::CaseInsensitive) < 0;
    });
    ui::ComboTool& cmbFontName = *barre->GetComboBox("cmbFontName");
    for (const QString& font : lstFont)
        cmbFontName.AddItem(font);
    cmbFontName.setText("Arial");
    ui::ComboTool& cmbFontSize = *barre->GetComboBox("cmbFontSize");
    for (int corpo = 1; corpo <= 7; ++corpo)
        cmbFontSize.AddItem(QString::number(corpo));
    cmbFontSize.setText("3");
}
