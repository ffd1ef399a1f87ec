// SPDX-License-Identifier: GPL-3.0-or-later
// The main window.
#pragma once

#include <functional>
#include <optional>
#include <QKeySequence>
#include <QList>
#include <QMainWindow>
#include <QString>
#include <QStringList>
#include <vector>

#include "platform/ado/Command.h"
#include "platform/ado/Recordset.h"
#include "platform/ui/DockPanes.h"
#include "windows/core/Posizionamento.h"
#include "windows/store/Principale.h"

class frmDestinatario;
class frmGruppi;
class frmSplash;
class TrovaDestinatari;
namespace ui {
class CommandBars;
class DataControl;
class DataGrid;
class FindBar;
}  // namespace ui

/// What every command can use; it is destroyed when the command is done, so that no cursor
/// outlives it.
struct AccessoComando {
    ado::Recordset rs;     ///< static cursor, server side, optimistic lock, on connDB
    ado::Command comando;  ///< text, no time-out, not prepared, on connDB
};

/// The main window. It contains the menus and bars, the grid of recipients and
/// the pane of the groups. All of its commands come through ComandoPremuto, but for those of the menu
/// "Strumenti", each of which has its own handler.
class frmMain : public QMainWindow {
    Q_OBJECT

  public:
    /// Opens another window, modally, and comes back when it is closed, or runs an import with its questions.
    /// Unguarded.
    using Apertura = std::function<void()>;

    /// A command of the menu "Strumenti". The caption contains its mnemonic; the icon is a name of the icon
    /// theme.
    struct Strumento {
        QString nome;
        QString didascalia;
        QString descrizione;
        QString icona;
        Apertura apri;
        QList<QKeySequence> tasti = {};
    };
    /// The commands between two separators.
    using GruppoStrumenti = std::vector<Strumento>;

    /// What the window needs of others. Each of them is made when it is first named.
    struct Vicini {
        std::function<frmSplash&()> Splash;  ///< reloads it after it was unloaded
        std::function<void()> ScaricaSplash;
        std::function<void()> CreaEditor;    ///< makes it, hidden
        std::function<void()> CaricaLingua;  ///< unguarded
        Posizionamento posizione;
        std::function<void()> RiprendiPosizione;  ///< of the program that restarted this one, if any
        std::function<frmDestinatario&()> Destinatario;
        Apertura Account;
        Apertura Editor;  ///< with an empty document
        Apertura Invia;   ///< with the selected recipients counted
        Apertura ImpTXT;
        Apertura ImpDB;
        Apertura ImportaRubrica;
        Apertura ImportaOutlook;
        Apertura InfoSu;
        std::function<void()> CambiaLingua;  ///< to what was picked in the list of languages
        std::vector<GruppoStrumenti> strumenti = {};
    };

    explicit frmMain(Vicini intorno);

    /// The load of the window, run once by the first mention: splash, theme, layout, editor, language,
    /// placement, group tree. Unguarded: what follows a failed step does not run.
    void Carica();

    ui::CommandBars& Commands() { return *barre; }
    ui::DockPanes& DockWindows() { return pannelli; }
    ui::DataGrid& grd() { return *destinatari; }
    ui::DataControl& Adodc() { return *dati; }
    /// The group window, reached through its pane. Fails when the load did not get that far.
    frmGruppi& Gruppi();

    /// Opens the bar that finds recipients.
    void ApriTrova();

    /// Runs the command of that name; a name that is not known has no effect. Unguarded. While one command
    /// runs, further ones are ignored.
    void ComandoPremuto(const QString& nome);

    /// Shows in the status bar what is waited for; an empty text restores the previous one.
    void MostraAttesa(const QString& testo);

    /// The grid without rows; it stays so until a group is clicked.
    void SvuotaGriglia();

  protected:
    /// Every way of closing the window ends the program: layout and placement are saved, no other window is
    /// asked.
    void closeEvent(QCloseEvent* chiusura) override;
    void resizeEvent(QResizeEvent* dimensione) override;
    void changeEvent(QEvent* cambiamento) override;

  private:
    /// The open dialog for a recipient database; empty when it was cancelled.
    static std::optional<QString> ChiediDatabase();
    /// Makes another database the current one: path file, connection text, no current node, and an empty grid
    /// that is bound to it.
    void CambiaDatabase(const QString& percorso);
    /// Enables or disables the commands of both a bar and a pop-up menu. To be called after nodoCorrente
    /// or the rows of the grid have changed.
    void AggiornaComandi();

    // frmMain_barre.cpp: menus, bars, status bar
    void CreaComandi();
    void CreaMenu();
    /// Adds the commands of the menu "Strumenti"; returns its items.
    QStringList CreaStrumenti();
    void CreaBarre();
    void CreaBarraStato();
    /// Tab goes from the tree to the grid; F6 moves between tree, grid and bars; F10 opens the first menu.
    void CreaGiroFuoco(frmGruppi& gruppi);
    void AggiornaData();

    // frmMain_comandi.cpp
    struct RigaComando;
    static const RigaComando tabellaComandi[];
    using Accesso = std::optional<AccessoComando>;
    void cmdMailingSalva(Accesso& accesso);
    void cmdMailingApri(Accesso& accesso);
    void cmdInvia(Accesso& accesso);
    void cmdHelpGuida();
    /// What a command of the menu "Strumenti" does. Ignored while another command runs. Unguarded.
    void ApriStrumento(const Strumento& strumento);

    // frmMain_database.cpp
    void ApriDatabase();
    void SalvaDatabase();

    void CaricaGruppi();
    Principale PerGruppiEGriglia();
    void ImpostaColori();
    /// The two colours of the grid that follow a change of the desktop's colours.
    void ImpostaColoriGriglia();

    const Vicini vicini;
    ui::CommandBars* barre;
    ui::DockPanes pannelli;
    ui::DataGrid* destinatari;
    ui::FindBar* barraTrova;
    TrovaDestinatari* trova = nullptr;
    ui::DataControl* dati;
    QString primaDellAttesa;
    bool comandoInCorso = false;
};

/// Sets the caption of the window: the product's name and version.
void TitoloPrincipale(frmMain& principale);
