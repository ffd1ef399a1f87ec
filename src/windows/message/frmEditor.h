// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>
#include <vector>

#include "modules/message/CopiaRecupero.h"
#include "modules/message/MessaggioMss.h"
#include "platform/html/HtmlView.h"
#include "platform/ui/DockPanes.h"
#include "windows/core/Posizionamento.h"

class frmAllegati;
class frmPropBody;
class QEventLoop;
namespace ui {
class CommandBars;
class FindDialog;
class SourceEdit;
class TabStrip;
}  // namespace ui

/// The message editor: one document, made of a subject, a priority, a list of attachments and an HTML body.
///
/// The body is in three views. DHTML, the design view, is authoritative: it is what is saved. CODE, the
/// source view, and WEB, the preview, get the body when their tab is opened; leaving the source view puts its
/// text into the design view. The list of attachments is the control of frmAllegati alone.
class frmEditor : public QMainWindow {
    Q_OBJECT

  public:
    /// What the window needs of others.
    struct Vicini {
        Posizionamento posizione;
        std::function<frmPropBody&()> PropBody;  ///< made over this window when it is first named
    };

    explicit frmEditor(Vicini intorno, QWidget* parent = nullptr);
    ~frmEditor() override;

    /// The load of the window, run once by the first mention.
    void Carica();
    /// Shows the window over the main one; comes back when it is hidden.
    void MostraModale();

    /// An empty document. The path of the last open or save stays, and so does the tab. Ignores every
    /// failure.
    void NuovoMessaggio();
    /// Asks for a file and reads it. Ignores every failure.
    void ApriMessaggio();
    /// Reads this file, in the same way.
    void LeggiMessaggio(const QString& percorso);
    /// Writes over percorsoFile. Unguarded; the rescue copy is written first. Where the design view does not
    /// answer, a notice says so and nothing is written.
    void SalvaMessaggio();
    /// Asks for a file and writes it. Ignores every failure: title and path change even where the writing
    /// failed; then a notice says so, and the document is marked as changed.
    void SalvaMessaggioCome();
    /// Saves placement and layout and hides the window. Unguarded.
    void ChiudiEditor();

    /// Offers the rescue copies that earlier runs left, one by one. The first that is wanted becomes the
    /// document, and the window comes up over the main one until it is hidden. Whether one was wanted.
    bool OffriRecupero();

    void ImpostaTitolo();
    /// The one way to mark the document as changed.
    void SegnaModificato();
    bool IsModificato() const;
    /// Turns the bars "HTML", "Message" and "View" on or off.
    void ImpostaBarre(bool attive);

    /// Inserts at the selection of the design view, whatever tab is on show, and marks the document as
    /// changed. Ignores every failure.
    void InserisciHTML(const QString& testo);
    /// Runs the command of that name; a name that is not known has no effect. Unguarded.
    void ComandoPremuto(const QString& nome);
    /// Bring the tools in step with the selection of the design view, or of the source view.
    void AggiornaStatoDesign();
    void AggiornaStatoCodice();

    ui::CommandBars& Commands() { return *barre; }
    ui::DockPanes& DockWindows() { return pannelli; }
    /// The attachment window, reached through its pane. Fails before the load hosted it.
    frmAllegati& Allegati();

    /// In square brackets; "*" before the last one is the mark of a changed document.
    QString titoloFile;
    bool fileAperto = false;  ///< there is a path to save to
    QString percorsoFile;
    HtmlView* DHTML;
    ui::SourceEdit* CODE;
    HtmlView* WEB;
    ui::TabStrip* tb;

  protected:
    /// The window is left by its command only.
    void closeEvent(QCloseEvent* chiusura) override;
    void hideEvent(QHideEvent* nascosta) override;

  private:
    enum Scheda { Modifica = 0, Origine = 1, Anteprima = 2 };

    // frmEditor_barre.cpp: commands, bars, menus, keys
    void CreaComandi();
    void CreaMenu();
    void CreaBarre();
    void CreaTasti();
    void RiempiFont();

    // frmEditor_eventi.cpp: what the views report
    void CollegaViste();
    void CambiaScheda(int da, int a);
    Status SpostaBody(int da, int a);
    Status MostraBody(int scheda);
    void ScriviOrigine(const QString& testo);
    bool Riuscita(const Status& stato);
    static void AvvisaVista(const Status& stato, const QString& seguito);
    void MostraSchedaInStato();
    void MenuModifica(const QPoint& punto);

    // frmEditor_comandi.cpp
    bool ComandoFile(const QString& nome);
    bool ComandoDueViste(const QString& nome);
    bool ComandoDesign(const QString& nome);
    bool ComandoInserimento(const QString& nome);
    bool ComandoInterruttore(const QString& nome);
    bool ComandoAllegati(const QString& nome);
    void EseguiDesign(int numero, const QString& valore = {});
    void EseguiCodice(int numero);
    void CambiaPriorita(const QString& scelta, const QString& altra);

    // frmEditor_file.cpp
    void ChiediSalvataggio();
    std::optional<MessaggioMss> PrendiMessaggio();
    MessaggioMss Testata();
    void ImpostaTestata(const QString& oggetto, const QString& priorita);
    bool AggiungiAllegato(const AllegatoMss& allegato);
    void ImpostaFile(const QString& percorso);
    void RiconosciFile(const FileMss& file, const MessaggioLetto& letto);
    void AnnotaNoto(const QByteArray& scritto, const MessaggioMss& messaggio) const;

    // frmEditor_recupero.cpp: the rescue copy of the document
    void CollegaCopia();
    void DocumentoMutato();
    void ScriviCopia();
    void CopiaPrimaDiScrivere(const QString& corpo);
    void CopiaDopoScrittura(const QString& corpo);
    void ButtaCopia();
    void LasciaCopia();
    void RiprendiCopia(CopiaTrovata& trovata);
    MessaggioRecuperato DaRecuperare(const QString& corpo);

    // frmEditor_dialoghi.cpp: what the design view leaves to windows
    void DialogoImmagine();
    void DialogoCollegamento();
    void DialogoProprietaElemento();
    void Trova();

    const Vicini vicini;
    ui::CommandBars* barre;
    ui::DockPanes pannelli;
    ui::FindDialog* ricerca = nullptr;
    QStringList lstFont;  ///< the fonts of the desktop in the order of their names
    QEventLoop* attesa = nullptr;
    /// The document came in with a message file that is not known, or not wholly. Of what it names, `propri`
    /// is what the user chose himself or confirmed before.
    bool estraneo = false;
    QStringList propri;
    bool scriveOrigine = false;  ///< the text of the source view is set, not typed
    bool tornaIndietro = false;  ///< a change of tab is being taken back

    CopiaRecupero copia;                         ///< of the document
    std::vector<CopiaRecupero> lasciate;         ///< of documents that were left without being saved
    std::optional<MessaggioRecuperato> salvato;  ///< the document as it was saved last
    bool rinunciato = false;                     ///< the user discarded the content of the document
    bool copiaDovuta = false;                    ///< the document changed since its copy was written
    QTimer tempoCopia{this};
    QElapsedTimer primaMutazione;  ///< since the first change that the copy lacks
};
