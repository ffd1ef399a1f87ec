// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/accounts/frmAccount.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <utility>

#include "modules/accounts/Portachiavi.h"
#include "platform/text/NumberText.h"
#include "platform/ui/DialogFrame.h"
#include "windows/accounts/frmAccount_elenco.h"
#include "windows/core/bTheme.h"
#include "windows/core/Evento.h"

frmAccount::frmAccount(QWidget* parent) : LateDialog(parent) {
    setObjectName("frmAccount");
    setWindowTitle(" Impostazioni Account");
    RilevaTema(this);
    CaricaAccount();
}

void frmAccount::makeControls() {
    CreaControlli();
    ColoraControlli();
    DisponiControlli();
    CollegaEventi();
    CollegaBrowser();
    ScegliPredefinito();
    resize(730, 475);
    ui::setUpDialog(*this);
    lstAccount->addItems(std::exchange(vociCaricate, {}));
    cmbSaluto->setCurrentIndex(0);
}

void frmAccount::CollegaEventi() {
    // A check box runs its handler whenever its value changes, by the user or by code.
    const auto alCambio = [this](QCheckBox* casella, void (frmAccount::*gestore)()) {
        connect(casella, &QCheckBox::toggled, this, [this, gestore] { evento([&] { (this->*gestore)(); }); });
    };
    const auto elimina = [this] { evento([this] { EliminaAccount(lstAccount->ListIndex()); }); };
    connect(lstAccount, &ElencoAccount::Click, this, [this] { evento([this] { lstAccount_Click(); }); });
    connect(lstAccount, &ElencoAccount::MenuRichiesto, this, &frmAccount::MostraMenu);
    connect(lstAccount, &ElencoAccount::EliminaPremuto, this, elimina);
    connect(mnuElimina, &QAction::triggered, this, elimina);
    alCambio(chkUsaSMTP, &frmAccount::chkUsaSMTP_Click);
    alCambio(chkAutentick, &frmAccount::chkAutentick_Click);
    alCambio(chkAvanzate, &frmAccount::chkAvanzate_Click);
    alClick(cmdNuovo, this, &frmAccount::cmdNuovo_Click);
    alClick(cmdModifica, this, &frmAccount::cmdModifica_Click);
    alClick(cmdChiudi, this, &frmAccount::cmdChiudi_Click);
    for (QLineEdit* casella :
         {txtNomeVisual, txtEmail, txtServerSMTP, txtServerPORT, txtUsername, txtPassword})
        casella->installEventFilter(this);
}

void frmAccount::closeEvent(QCloseEvent* chiusura) {
    chiusura->ignore();
}

void frmAccount::showEvent(QShowEvent* mostra) {
    QDialog::showEvent(mostra);
    // The captions may have changed since the last opening.
    CollegaEtichette();
    chkPortachiavi->setVisible(portachiavi::Usato(account) || sys::keyring::available());
    AdattaAltezza();
    if (lstAccount->count() > 0)
        lstAccount->setFocus();
    else
        txtNomeVisual->setFocus();
}

void frmAccount::AdattaAltezza() {
    const int larghezza = qMax(width(), sizeHint().width());
    resize(larghezza, qMax(height(), layout()->totalHeightForWidth(larghezza)));
}

/// A box that takes the focus selects its text. The press that gives it the focus must not put the caret
/// anywhere, or the selection would be gone at once.
bool frmAccount::eventFilter(QObject* oggetto, QEvent* accaduto) {
    auto* casella = qobject_cast<QLineEdit*>(oggetto);
    if (casella && accaduto->type() == QEvent::FocusIn) {
        evento([&] { SelezionaTesto(*casella); });
        const auto motivo = static_cast<QFocusEvent*>(accaduto)->reason();
        appenaPremuta = motivo == Qt::MouseFocusReason ? casella : nullptr;
    } else if (casella && accaduto->type() == QEvent::MouseButtonPress) {
        const bool prima = appenaPremuta == casella;
        appenaPremuta = nullptr;
        return prima;
    }
    return QDialog::eventFilter(oggetto, accaduto);
}

void frmAccount::SelezionaTesto(QLineEdit& casella) {
    casella.setSelection(0, static_cast<int>(casella.text().size()));
}

/// The box of chkUsaSMTP changes after the port was put: going from unchecked to checked, it leaves 25 there.
void frmAccount::lstAccount_Click() {
    const int posizione = lstAccount->ListIndex();
    ScegliPredefinito();
    if (posizione < 0) {
        cmdModifica->setEnabled(false);
        return;
    }
    cmdModifica->setEnabled(true);
    if (posizione >= static_cast<int>(account.size())) fallisci(ErrorCode::SubscriptOutOfRange);
    const Account scelto = account[static_cast<std::size_t>(posizione)];
    txtNomeVisual->setText(scelto.txtNomeVisual);
    txtEmail->setText(scelto.txtEmail);
    txtServerSMTP->setText(scelto.txtServerSMTP);
    txtServerPORT->setText(scelto.txtServerPORT);
    // A gap in the table has no number at all, which reads as 0.
    chkAutentick->setChecked(text::leadingNumber(scelto.chkAutentick) != 0);
    chkAutentick_Click();
    txtUsername->setText(scelto.txtUsername);
    txtPassword->setText(scelto.txtPassword);
    chkPortachiavi->setChecked(sys::keyring::isMarker(scelto.txtPassword));
    chkUsaSMTP->setChecked(text::leadingNumber(scelto.chkUsaSMTP) != 0);
    for (QWidget* controllo : std::initializer_list<QWidget*>{lbl[7], txtServerSMTP, txtServerPORT})
        controllo->setEnabled(chkUsaSMTP->isChecked());
    cmbSaluto->setCurrentIndex(scelto.cmbSaluto == "EHLO" ? 0 : 1);
    txtOutPort->setText(scelto.txtOutPort);
}

void frmAccount::chkAutentick_Click() {
    for (QWidget* controllo : std::initializer_list<QWidget*>{lbl[10], lbl[11], txtUsername, txtPassword})
        controllo->setEnabled(chkAutentick->isChecked());
}

void frmAccount::chkAvanzate_Click() {
    for (QWidget* controllo : std::initializer_list<QWidget*>{cmbSaluto, txtOutPort, lbl[6], lbl[12]})
        controllo->setEnabled(chkAvanzate->isChecked());
}

void frmAccount::chkUsaSMTP_Click() {
    const bool usa = chkUsaSMTP->isChecked();
    for (QWidget* controllo :
         std::initializer_list<QWidget*>{lbl[7], txtServerSMTP, txtServerPORT, chkAutentick})
        controllo->setEnabled(usa);
    if (!usa) {
        for (QWidget* controllo : std::initializer_list<QWidget*>{lbl[10], lbl[11], txtUsername, txtPassword})
            controllo->setEnabled(false);
        return;
    }
    txtServerPORT->setText("25");
    chkAutentick_Click();
}

void frmAccount::cmdChiudi_Click() {
    hide();
}

void frmAccount::MostraMenu(const QPoint& punto) {
    if (lstAccount->count() >= 1) mnuElenco->popup(punto);
}

/// The Enter key changes the account that is chosen and never copies it.
void frmAccount::ScegliPredefinito() {
    (lstAccount->ListIndex() < 0 ? cmdNuovo : cmdModifica)->setDefault(true);
}
