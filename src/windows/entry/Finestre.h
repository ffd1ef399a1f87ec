// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class frmAccount;
class frmControlloMittente;
class frmDestinatario;
class frmEditor;
class frmEsiti;
class frmImpDB;
class frmImpTXT;
class frmInfoSu;
class frmInvia;
class frmMain;
class frmPropBody;
class frmProva;
class frmScelta;
class frmSplash;
class frmUltimaImportazione;
namespace ui {
class LateDialog;
}

/// The references of the windows: each window exists once, is created when it is first named and is kept for
/// the whole run, so that a window that is only hidden keeps its content for the next opening.
namespace finestre {

/// The first mention creates the window and runs its load. A load that fails leaves the window as far as it
/// got.
::frmMain& Main();
::frmAccount& Account();
::frmInvia& Invia();
::frmEsiti& Esiti();
::frmDestinatario& Destinatario();
::frmInfoSu& InfoSu();
::frmEditor& Editor();
::frmPropBody& PropBody();
::frmScelta& Scelta();
::frmImpTXT& ImpTXT();
::frmImpDB& ImpDB();
::frmProva& Prova();
::frmControlloMittente& Controllo();
::frmUltimaImportazione& UltimaImportazione();

/// The splash is the one window that is unloaded: a later mention loads it again.
::frmSplash& Splash();
/// Unloads the splash; from then on the main window is enabled.
void ScaricaSplash();

/// Dialogs for callers that need them to exist only, hidden: their controls are made when
/// they are named above.
namespace senzaControlli {
ui::LateDialog& Account();
ui::LateDialog& Invia();
ui::LateDialog& PropBody();
ui::LateDialog& Destinatario();
ui::LateDialog& Scelta();
ui::LateDialog& ImpTXT();
ui::LateDialog& ImpDB();
}  // namespace senzaControlli

/// For tests: destroys every window, so that the next mention starts again.
void dimentica();

}  // namespace finestre
