// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/entry/Vicini.h"

#include "platform/ui/CommandBars.h"
#include "windows/accounts/frmAccount.h"
#include "windows/entry/Finestre.h"
#include "windows/entry/Posizione.h"
#include "windows/entry/Riavvio.h"
#include "windows/entry/Strumenti.h"
#include "windows/import/frmImpDB.h"
#include "windows/import/frmImpTXT.h"
#include "windows/import/frmScelta.h"
#include "windows/import/ImportaOutlook.h"
#include "windows/import/ImportaRubrica.h"
#include "windows/lang/bLANG_applica.h"
#include "windows/message/frmPropBody.h"
#include "windows/send/frmInvia.h"
#include "windows/shell/frmInfoSu.h"
#include "windows/store/frmDestinatario.h"
#include "windows/store/frmGruppi.h"

namespace {

Posizionamento posizionamento() {
    return {CaricaPosizioneForm, SalvaPosizioneForm};
}

void apriEditor() {
    frmEditor& editor = finestre::Editor();
    editor.NuovoMessaggio();
    editor.MostraModale();
}

void apriInvia() {
    frmInvia& invio = finestre::Invia();
    invio.SetPrgBar();
    invio.CaricaDati();
    invio.exec();
}

ui::CommandBars& barreDiMain() {
    return finestre::Main().Commands();
}

}  // namespace

frmMain::Vicini finestre::IntornoAMain() {
    return {.Splash = Splash,
            .ScaricaSplash = ScaricaSplash,
            .CreaEditor = [] { Editor(); },
            .CaricaLingua = [] { ::CaricaLingua(Tradotte()); },
            .posizione = posizionamento(),
            .RiprendiPosizione = riavvio::RiprendiPosizione,
            .Destinatario = Destinatario,
            .Account = [] { Account().exec(); },
            .Editor = apriEditor,
            .Invia = apriInvia,
            .ImpTXT = [] { ImpTXT().exec(); },
            .ImpDB = [] { ImpDB().exec(); },
            .ImportaRubrica = [] { ::ImportaRubrica(IntornoAgliImport()); },
            .ImportaOutlook = [] { ::ImportaOutlook(IntornoAgliImport()); },
            .InfoSu = [] { InfoSu().exec(); },
            .CambiaLingua = [] { ::CambiaLingua(*barreDiMain().GetList("cmdLang")); },
            .strumenti = Strumenti()};
}

frmEditor::Vicini finestre::IntornoAEditor() {
    return {posizionamento(), PropBody};
}

ViciniContatti finestre::IntornoAgliImport() {
    return {.Scelta = Scelta,
            .stcProgress = []() -> ui::ProgressCounter& { return *barreDiMain().GetProgress("stcProgress"); },
            .NuovoNodo = [](const QString& id,
                            const QString& nome) { Main().Gruppi().AggiungiNodo("K0", id, nome); },
            .MostraAttesa = [](const QString& testo) { Main().MostraAttesa(testo); }};
}

frmProva::Vicini finestre::IntornoAProva() {
    return {.FileEditor = [] { return Editor().percorsoFile; },
            .FileInvio = [] { return Invia().FileMessaggio(); }};
}

bLANG::FinestreTradotte finestre::Tradotte() {
    return {.Main = {barreDiMain, []() -> ui::DockPanes& { return Main().DockWindows(); }},
            .Editor = {[]() -> ui::CommandBars& { return Editor().Commands(); },
                       []() -> ui::DockPanes& { return Editor().DockWindows(); }},
            .SchedeEditor = []() -> ui::TabStrip& { return *Editor().tb; },
            .Account = senzaControlli::Account,
            .Invia = senzaControlli::Invia,
            .PropBody = senzaControlli::PropBody,
            .Destinatario = senzaControlli::Destinatario,
            .Scelta = senzaControlli::Scelta,
            .ImpDB = senzaControlli::ImpDB,
            .ImpTXT = senzaControlli::ImpTXT};
}
