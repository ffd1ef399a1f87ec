// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/lang/bLANG_chiavi_barre.h"

#include "modules/message/variabili.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/DockPanes.h"
#include "platform/ui/TabStrip.h"
#include "windows/lang/bLANG_finestre.h"

namespace {

using bLANG::Chiavi;
using bLANG::FinestraConBarre;

/// Commands of the main window: each has a caption and a description.
constexpr const char* pulsantiMain[] = {
    "cmdFileAccount",
    "cmdInvia",
    "cmdEsci",
    "cmdMailingApri",
    "cmdMailingSalva",
    "cmdMailingImpTXT",
    "cmdMailingImpOE",
    "cmdMailingImpMSO",
    "cmdHelpGuida",
    "cmdHelpHomePage",
    "cmdHelpInviaMail",
    "cmdHelpInfoSu",
    "cmdMailingImpDB",
    "cmdPopMailingHead",
    "cmdPopMailingDel",
    "cmdPopMailingCopia",
    "cmdPopMailingRinomina",
    "cmdPopMailingNew",
    "cmdPopMailingSelAllDB",
    "cmdPopMailingSelNotDB",
    "cmdPopMailingSelAllGRP",
    "cmdPopMailingSelNotGRP",
    "cmdPopMailingUserNew",
    "cmdPopMailingUserMod",
    "cmdPopMailingUserDel",
    "cmdPopMailingSvuotaCartella",
};
constexpr const char* menuMain[] = {"mnuFile", "mnuMailing", "mnuHelp"};

/// Of the editor, beside the placeholders. "cmdGiustify" and "popVariabili" have no key.
constexpr const char* pulsantiEditor[] = {
    "cmdBold",
    "cmdItalic",
    "cmdUnderline",
    "cmdNumerato",
    "cmdPuntato",
    "cmdDX",
    "cmdSX",
    "cmdLeft",
    "cmdCenter",
    "cmdRight",
    "cmdImage",
    "cmdLink",
    "cmdHR",
    "cmdTable",
    "cmdNewMess",
    "cmdApriMess",
    "cmdSalva",
    "cmdStampa",
    "cmdEsci",
    "cmdProprieta",
    "cmdPriBassa",
    "cmdPriAlta",
    "cmdTaglia",
    "cmdCopia",
    "cmdIncolla",
    "cmdUndo",
    "cmdRedo",
    "cmdTrova",
    "cmdSelezionaTutto",
    "cmdShowDetails",
    "cmdShowBorder",
    "cmdAllegatiNew",
    "cmdAllegatiDel",
    "cmdTableInsRow",
    "cmdTableInsCol",
    "cmdTableDelRow",
    "cmdTableDelCol",
    "cmdModuliForm",
    "cmdModuliText",
    "cmdModuliTextArea",
    "cmdModuliCheckBox",
    "cmdModuliRadioButton",
    "cmdModuliList",
    "cmdModuliListMenu",
    "cmdModuliHidden",
    "cmdSalvaAs",
};
constexpr const char* menuEditor[] = {"popTable", "popModuli"};

/// The first part of the keys of one tool of a window's bars.
QString inizio(const char* finestra, const char* genere, const QString& nome) {
    return QStringLiteral("%1.Dks.Commands.%2(\"%3\").").arg(finestra, genere, nome);
}

/// The two keys of a button or menu.
void aggiungiComando(Chiavi& chiavi, const FinestraConBarre& istanza, const char* finestra,
                     const char* genere, const QString& nome,
                     ui::Command* (ui::CommandBars::*trova)(const QString&) const) {
    const QString chiave = inizio(finestra, genere, nome);
    chiavi[chiave + "Caption"] = [nome, trova, barre = istanza.Commands](const QString& testo) {
        (barre().*trova)(nome)->setCaption(testo);
    };
    chiavi[chiave + "Description"] = [nome, trova, barre = istanza.Commands](const QString& testo) {
        (barre().*trova)(nome)->setDescription(testo);
    };
}

/// The keys of both windows: buttons, menus, the status text, one pane.
template <class Pulsanti, class Menu>
void aggiungiBarre(Chiavi& chiavi, const FinestraConBarre& istanza, const char* finestra,
                   const Pulsanti& pulsanti, const Menu& menu, const char* pannello) {
    for (const char* nome : pulsanti)
        aggiungiComando(chiavi, istanza, finestra, "GetToolButton", nome, &ui::CommandBars::GetToolButton);
    for (const char* nome : menu)
        aggiungiComando(chiavi, istanza, finestra, "GetPopupMenu", nome, &ui::CommandBars::GetPopupMenu);
    chiavi[inizio(finestra, "GetStatic", "stcHelp") + "Text"] =
        [barre = istanza.Commands](const QString& testo) { barre().GetStatic("stcHelp")->setText(testo); };
    chiavi[QStringLiteral("%1.Dks.DockWindows(\"%2\").Caption").arg(finestra, pannello)] =
        [pannello, pannelli = istanza.DockWindows](const QString& testo) {
            pannelli().DockWindows(pannello)->setCaption(testo);
        };
}

}  // namespace

void bLANG::aggiungiMain(Chiavi& chiavi, const FinestreTradotte& finestre) {
    aggiungiBarre(chiavi, finestre.Main, "frmMain", pulsantiMain, menuMain, "dckGruppi");
}

void bLANG::aggiungiEditor(Chiavi& chiavi, const FinestreTradotte& finestre) {
    constexpr auto editor = "frmEditor";
    const auto& barre = finestre.Editor.Commands;
    const auto& tb = finestre.SchedeEditor;
    aggiungiBarre(chiavi, finestre.Editor, editor, pulsantiEditor, menuEditor, "dckAllegati");
    for (const Variabile& variabile : VariabiliMessaggio())
        aggiungiComando(chiavi, finestre.Editor, editor, "GetToolButton", variabile.comando,
                        &ui::CommandBars::GetToolButton);
    for (const char* nome : {"cmbFontName", "cmbFontSize"})
        chiavi[inizio(editor, "GetComboBox", nome) + "Description"] = [nome, barre](const QString& testo) {
            barre().GetComboBox(nome)->setDescription(testo);
        };
    chiavi[inizio(editor, "GetCustomPopup", "popColors") + "Description"] = [barre](const QString& testo) {
        barre().GetCustomPopup("popColors")->setDescription(testo);
    };
    chiavi[inizio(editor, "GetEdit", "txtOggetto") + "Label"] = [barre](const QString& testo) {
        barre().GetEdit("txtOggetto")->setLabel(testo);
    };
    chiavi[inizio(editor, "GetEdit", "txtOggetto") + "Description"] = [barre](const QString& testo) {
        barre().GetEdit("txtOggetto")->setDescription(testo);
    };
    for (int scheda = 0; scheda < 3; ++scheda) {
        chiavi[QStringLiteral("frmEditor.tb.TabCaption(%1)").arg(scheda)] =
            [scheda, tb](const QString& testo) { tb().setTabCaption(scheda, testo); };
        chiavi[QStringLiteral("frmEditor.tb.TabToolTip(%1)").arg(scheda)] =
            [scheda, tb](const QString& testo) { tb().setTabToolTip(scheda, testo); };
    }
}
