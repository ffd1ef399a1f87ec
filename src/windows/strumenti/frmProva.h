// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <QDialog>

#include "modules/accounts/AccountFile.h"
#include "modules/strumenti/ControlloCampi.h"
#include "modules/strumenti/CopiaProva.h"
#include "modules/strumenti/ModelloProva.h"
#include "modules/strumenti/RicercaMX.h"
#include "modules/strumenti/Rilievi.h"

class HtmlView;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QTimer;
namespace mail {
class Composer;
class DeliveryControl;
}  // namespace mail
namespace ui {
class Announcer;
class TabStrip;
}  // namespace ui

/// "Prova messaggio": a message as one selected recipient will get it, what is wrong with it, and a
/// copy of it to an address of the user's.
///
/// Nothing is written but the list of known message files, where the user agrees to carry files away. The
/// recipients are counted in slices, between which the window lives; the test copy has a delivery control of
/// its own and belongs to no run.
class frmProva : public QDialog {
    Q_OBJECT

  public:
    /// What the window needs of others.
    struct Vicini {
        std::function<QString()> FileEditor;  ///< last opened or saved in the editor; empty: none
        std::function<QString()> FileInvio;   ///< chosen in the send window; empty: none
    };

    explicit frmProva(Vicini intorno, QWidget* parent = nullptr);
    ~frmProva() override;

    /// Reads files, accounts and selection again; to be called before the window is shown. Ignores every
    /// failure; what is missing is shown in the window.
    void Carica();

    /// Esc: ends a test copy that is under way, otherwise leaves the window.
    void reject() override;

  protected:
    /// The title bar leaves the window as its button does, whatever is running.
    void closeEvent(QCloseEvent* chiusura) override;

  private:
    // frmProva.cpp: the window
    void CreaControlli();
    void DisponiControlli();
    QLayout* DisponiScelte();
    QWidget* DisponiMessaggio();
    QWidget* DisponiRilievi();
    QLayout* DisponiInvio();
    void CollegaEtichette();
    void CollegaEventi();
    void Lascia();

    // frmProva_copia.cpp: the message and the recipient
    void CaricaFile();
    void cmdFile_Click();
    void UsaFile();
    void MostraDestinatario(qint64 riga);
    void MostraCopia(const CopiaProva& copia);
    void MostraAllegati(const CopiaProva& copia);
    QString DimensioneMessaggio(const CopiaProva& copia) const;
    void Cerca();
    void ContinuaRicerca();

    // frmProva_rilievi.cpp: the findings
    void IniziaControllo();
    void ContinuaControllo();
    void MostraRilievi();
    void VaiAlPrimo();
    void AbilitaVai();

    // frmProva_invio.cpp: the test copy
    void CaricaAccount();
    void UsaAccount();
    const Account* MittenteScelto() const;
    void cmdInviaProva_Click();
    void InviaDiretta(const QByteArray& dominio);
    bool ChiediFile();
    void AnnullaInvio();
    void FineInvio(bool consegnata);
    void AbilitaInvio();
    void Racconta(QLabel& dove, const QString& testo);

    const Vicini vicini;
    QLabel* lblFile;
    QComboBox* cmbFile;
    QPushButton* cmdFile;
    QLabel* lblDestinatario;
    QPushButton* cmdPrecedente;
    QPushButton* cmdSuccessivo;
    QLineEdit* txtDestinatario;
    QLabel* lblCerca;
    QLineEdit* txtCerca;
    QPushButton* cmdCerca;
    QLabel* lblStato;
    QLabel* lblOggetto;
    QLineEdit* txtOggetto;
    ui::TabStrip* schede;
    HtmlView* HTML;
    QPlainTextEdit* TESTO;
    QLabel* lblAllegati;
    QLabel* lblRilievi;
    QListWidget* lstRilievi;
    QPushButton* cmdVai;
    QLabel* lblAccount;
    QComboBox* cmbAccount;
    QLabel* lblIndirizzo;
    QLineEdit* txtIndirizzo;
    QPushButton* cmdInviaProva;
    QPushButton* cmdAnnulla;
    QLabel* lblEsito;
    QPushButton* cmdChiudi;
    ui::Announcer* voce;
    QTimer* tmrControllo;
    QTimer* tmrRicerca;
    mail::DeliveryControl* prova;
    std::unique_ptr<mail::Composer> compositore;

    QStringList file;  ///< as the entries of cmbFile
    std::optional<ModelloProva> modello;
    std::optional<CopiaProva> copia;  ///< on show
    qint64 selezionati = 0;
    qint64 riga = -1;  ///< of the recipient on show, from 0 in the order of a run
    std::optional<ControlloCampi> controllo;
    bool controlloFinito = false;
    QString guastoControllo;
    std::optional<ado::Recordset> ricerca;  ///< under way
    qint64 rigaRicerca = 0;
    qint64 vistiRicerca = 0;
    QList<Rilievo> rilieviModello;
    QList<Rilievo> rilievi;  ///< as the entries of lstRilievi
    TabellaAccount account;
    QString propostaIndirizzo;
    bool inInvio = false;
    RicercaMX ricercaMX;
};
