// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>

#include "modules/accounts/AccountFile.h"
#include "platform/ui/LateDialog.h"

class ElencoAccount;
class QAction;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class Status;

namespace oauth {
class Consent;
}
namespace ui {
class LinkLabel;
}

/// The account window: sender accounts are made, changed and deleted here, each by a button,
/// which writes the account file at once. The window reads the file when it is created and is only hidden
/// afterwards, so that list and table live until the program ends.
///
/// Where the server belongs to a provider of OAuth 2.0, a link under the password leads to its page in the
/// browser. The result is put into the controls; the user saves it like any other value.
///
/// A list position is taken as an index of the table. They differ after the only account was deleted and
/// another one was made, since the table never becomes empty.
class frmAccount : public ui::LateDialog {
    Q_OBJECT

  public:
    /// Unguarded: fails where the account file cannot be read.
    explicit frmAccount(QWidget* parent = nullptr);

    /// The window is left by cmdChiudi only: Esc has no effect.
    void reject() override {}

  protected:
    void makeControls() override;
    void closeEvent(QCloseEvent* chiusura) override;
    void showEvent(QShowEvent* mostra) override;
    void hideEvent(QHideEvent* nascosta) override;
    bool eventFilter(QObject* oggetto, QEvent* accaduto) override;

  private:
    // frmAccount_aspetto.cpp: controls and layout
    void CreaControlli();
    void CreaCaselle();
    void CreaMenu();
    void DisponiControlli();
    QWidget* DisponiTestata();
    QGridLayout* DisponiModulo();
    void DisponiServer(QGridLayout& modulo, int riga);
    QWidget* DisponiAvanzate();
    void ColoraControlli();
    void CollegaEtichette();
    void AdattaAltezza();

    // frmAccount.cpp: what the controls do
    void CollegaEventi();
    void lstAccount_Click();
    void chkAutentick_Click();
    void chkAvanzate_Click();
    void chkUsaSMTP_Click();
    void cmdChiudi_Click();
    void MostraMenu(const QPoint& punto);
    void ScegliPredefinito();
    static void SelezionaTesto(QLineEdit& casella);

    // frmAccount_archivio.cpp: the accounts
    void CaricaAccount();
    bool ValidaAccount();
    void TogliSeparatori();
    void EliminaAccount(int indice);
    void AzzeraControlli();
    Account LeggiControlli() const;
    /// What is to be written of the controls, the password in its place; none where it cannot be stored,
    /// which is reported.
    std::optional<Account> Custodisci(bool nuovo);
    void cmdNuovo_Click();
    void cmdModifica_Click();

    // frmAccount_browser.cpp: the login by the browser
    void CollegaBrowser();
    void AggiornaAccesso();
    void MostraAttesa();
    void lnkBrowser_Click();
    void AccessoFinito(const Status& esito);

    ElencoAccount* lstAccount;
    QLineEdit* txtNomeVisual;
    QLineEdit* txtEmail;
    QCheckBox* chkUsaSMTP;
    QLineEdit* txtServerSMTP;
    QLineEdit* txtServerPORT;
    QCheckBox* chkAutentick;
    QLineEdit* txtUsername;
    QLineEdit* txtPassword;
    QCheckBox* chkPortachiavi;  ///< on show where there is a keyring, or an account that uses one
    ui::LinkLabel* lnkBrowser;
    QCheckBox* chkAvanzate;
    QComboBox* cmbSaluto;
    QLineEdit* txtOutPort;
    QPushButton* cmdNuovo;
    QPushButton* cmdModifica;
    QPushButton* cmdChiudi;
    QMenu* mnuElenco;
    QAction* mnuElimina;
    QWidget* pic;
    /// 0 the help text, 1 heads the list, 2 and 3 name and hint of txtNomeVisual, 4 and 5 of txtEmail,
    /// 6 cmbSaluto, 7 and 8 txtServerSMTP, 9 txtServerPORT, 10 txtUsername, 11 txtPassword, 12 txtOutPort.
    /// Their object names are "lbl(0)" to "lbl(12)".
    std::array<QLabel*, 13> lbl;

    oauth::Consent* consenso;
    TabellaAccount account;
    QStringList vociCaricate;            ///< read with the table, for lstAccount when it is made
    QLineEdit* appenaPremuta = nullptr;  ///< the box that takes the focus by the mouse press under way
};
