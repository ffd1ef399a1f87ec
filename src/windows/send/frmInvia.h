// SPDX-License-Identifier: GPL-3.0-or-later
// The send window.
#pragma once

#include <functional>
#include <optional>

#include "modules/accounts/AccountFile.h"
#include "modules/core/Fallimento.h"
#include "modules/message/MessaggiNoti.h"
#include "modules/message/MessaggioMss.h"
#include "modules/send/Limiti.h"
#include "modules/send/Personalizza.h"
#include "platform/html/HtmlDocument.h"
#include "platform/mail/RunLock.h"
#include "platform/ui/LateDialog.h"

/// A message file as it was when it was read, and what is known of it.
struct FonteMss {
    QString percorso;
    QByteArray impronta;  ///< empty where the file was not read to its end
    std::optional<messaggiNoti::Noto> noto;
};

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTimer;
namespace mail {
class DeliveryControl;
}
namespace ui {
class Announcer;
class CountLabel;
class ProgressCounter;
}  // namespace ui

/// The send window: its set-up and the engine that walks the selection, one recipient for each tick of `tmr`.
///
/// The column "sel" of the recipients is the queue: a delivered recipient leaves it, a failed one stays and
/// is stepped over by counting. The counters of a run are the values of the three bars; the run is over when
/// the to-do bar reaches zero or after a stop. docs/architecture.md has a table of the states of a run.
class frmInvia : public ui::LateDialog {
    Q_OBJECT

  public:
    /// `riempiGriglia` refills the grid with the recipients of the current node. Unguarded.
    explicit frmInvia(std::function<void()> riempiGriglia, QWidget* parent = nullptr);
    ~frmInvia() override;

    /// Counts the selected recipients and sets the bars and their labels to the start of a run. Unguarded.
    void SetPrgBar();
    /// Fills the three lists. Unguarded.
    void CaricaDati();

    /// The message file that is chosen; empty for none.
    QString FileMessaggio() const;

    /// The window is left by cmdChiudi only: Esc has no effect.
    void reject() override {}

  protected:
    void makeControls() override;
    void closeEvent(QCloseEvent* chiusura) override;

  private:
    // frmInvia.cpp: the window
    void CreaControlli();
    void DisponiControlli();
    QGridLayout* DisponiScelte();
    QGridLayout* DisponiContatori();
    void CollegaEtichette();
    void NominaSenzaEtichetta();
    void CollegaEventi();
    void AllargaEtichette();
    void chkBlocco_Click();
    void cmdChiudi_Click();

    // frmInvia_imposta.cpp: lists, checks and the preparation of a run
    void CaricaAccount();
    void CaricaPausa();
    void CaricaTimeout();
    void cmdInvia_Click();
    bool ControllaScelte();
    bool PreparaElenco();
    void AvvisaFirma();
    void FineInvio();
    void Rilascia();
    void ImpostaConsegna(Prosegui& prosegui, int indiceAccount);
    void ImpostaPausa(Prosegui& prosegui);
    void ImpostaTimeout(Prosegui& prosegui);

    // frmInvia_file.cpp: the message file and what it carries away
    void cmdFile_Click();
    bool ChiediFile(const FileMss& file, const MessaggioLetto& letto);
    void UsaMessaggio(const MessaggioLetto& letto);

    // frmInvia_tick.cpp: the engine
    void tmr_Timer();
    std::optional<qint32> LeggiDestinatario(Prosegui& prosegui);
    void AttendiEsito();
    void ContaInviata(Prosegui& prosegui, qint32 idDestinatario);
    void ContaFallita();
    void cmdFerma_Click();
    void AbilitaControlli(bool valore);
    void AggiornaDaInviare(double n);
    void AggiornaFallite(double n);
    void AggiornaInviate(double n);

    // frmInvia_conteggi.cpp: the figures of the run
    void DipingiConteggi();
    void RaccontaConteggi(bool finito);

    // frmInvia_suggerimenti.cpp: the additional text of tool tips and descriptions
    void CollegaSuggerimenti();
    QString DettagliDaInviare() const;
    QString DettagliFallite() const;

    // frmInvia_log.cpp: the log for support
    bool ChiediLog();
    void AvvisaLog();

    const std::function<void()> RiempiGriglia;
    QLabel* lblFile;
    QLineEdit* txtFile;
    QPushButton* cmdFile;
    QLabel* lblMittente;
    QComboBox* cmbAccount;
    QLabel* lblPausa;
    QComboBox* cmbPausa;
    QLabel* lblTimeOut;
    QComboBox* cmbTimeout;
    QCheckBox* chkBlocco;
    QLineEdit* txtBloccoNum;
    QLabel* lblBlocco1;
    QLineEdit* txtBloccoMin;
    QLabel* lblBlocco2;
    QCheckBox* chkLog;
    ui::CountLabel* lblDaInviare;
    ui::ProgressCounter* prgDaInviare;
    ui::CountLabel* lblFallite;
    ui::ProgressCounter* prgFallite;
    ui::CountLabel* lblInviate;
    ui::ProgressCounter* prgInviate;
    ui::Announcer* voce;
    QPushButton* cmdInvia;
    QPushButton* cmdFerma;
    QPushButton* cmdChiudi;
    HtmlDocument goDHTML;
    mail::DeliveryControl* SMTP;
    QTimer* tmr;

    TabellaAccount account;
    FonteMss fonteCorpo;        ///< of the body in goDHTML
    QStringList allegatiCorpo;  ///< attachments of that file

    // The run. The window stays loaded between runs, so each field keeps its value until it is set again.
    mail::RunLock invioInCorso;  ///< from the click until the last tick; seen by other processes
    bool nelGiro = false;        ///< a tick is under way
    bool siPrepara = false;      ///< a click prepares a run, which needs lock and room
    bool fermaInvio = false;
    bool mailInviata = false;
    bool mailFallita = false;
    qint32 saltaRecord = 0;    ///< rows to step over at the head of the selection: the failures of this run
    QString passwordMittente;  ///< of the account, from the file or the keyring
    QString corpoHtml;
    QString CorpoTesto;
    QString oggettoMail;
    ModelliDivisi modelli;     ///< of these three, split once
    QStringList filePermessi;  ///< attachments and images of the run, links resolved
    QString disiscrizione;     ///< the template's link marked rel="unsubscribe"
    LimiteBlocco limite;
    QString cartelleScelte;    ///< folders of the selection with their counts, at the last SetPrgBar
    QDateTime inizioInvio;     ///< of the run
    QDateTime ultimoRacconto;  ///< when the figures were last reported to assistive programs
};
