// SPDX-License-Identifier: GPL-3.0-or-later
// The accounts of the window: reading, checking and writing them.
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "modules/core/bFunctions.h"
#include "modules/core/bImpostazioni.h"
#include "modules/core/Fallimento.h"
#include "modules/lang/bVAR.h"
#include "platform/system/OutputFile.h"
#include "platform/text/AnsiCodec.h"
#include "platform/text/NumberText.h"
#include "platform/text/Words.h"
#include "platform/ui/MessageDialog.h"
#include "windows/accounts/frmAccount.h"
#include "windows/accounts/frmAccount_elenco.h"
#include "windows/core/Portachiavi_attesa.h"

void frmAccount::CaricaAccount() {
    ::CaricaAccount(fileAccount(), account,
                    [this](const Account& uno, int) { vociCaricate += VoceAccount(uno); });
}

bool frmAccount::ValidaAccount() {
    QString errori;
    const auto segnala = [&errori](const QString& testo) { errori += testo + "\r\n"; };
    if (txtNomeVisual->text().isEmpty()) segnala(bVAR::accNomeVisual);
    if (!EmailValida(txtEmail->text())) segnala(bVAR::accEmailCorretta);
    if (chkUsaSMTP->isChecked()) {
        if (txtServerSMTP->text().isEmpty()) segnala(bVAR::accServerSMTP);
        if (!text::isNumeric(txtServerPORT->text())) segnala(bVAR::accPort);
        const bool senzaNome = txtUsername->text().isEmpty() || txtPassword->text().isEmpty();
        if (chkAutentick->isChecked() && senzaNome) segnala(bVAR::accAutenticazione);
    }
    if (errori.isEmpty()) return true;
    ui::MessageDialog::show(bVAR::ImpossibileContinuare + "\r\n\r\n" + errori, ui::MessageDialog::Notice,
                            bVAR::Attenzione);
    return false;
}

void frmAccount::TogliSeparatori() {
    for (QLineEdit* casella :
         {txtNomeVisual, txtEmail, txtServerSMTP, txtServerPORT, txtUsername, txtPassword})
        casella->setText(casella->text().remove('|'));
}

Account frmAccount::LeggiControlli() const {
    const auto valore = [](const QCheckBox* casella) { return casella->isChecked() ? "1" : "0"; };
    Account letto;
    letto.txtNomeVisual = txtNomeVisual->text();
    letto.txtEmail = txtEmail->text();
    letto.txtServerSMTP = txtServerSMTP->text();
    letto.txtServerPORT = txtServerPORT->text();
    letto.chkAutentick = valore(chkAutentick);
    letto.txtUsername = txtUsername->text();
    letto.txtPassword = txtPassword->text();
    letto.cmbSaluto = cmbSaluto->currentText();
    letto.txtOutPort = txtOutPort->text();
    letto.chkUsaSMTP = valore(chkUsaSMTP);
    return letto;
}

namespace {

/// Reports that nothing was written, where the file is another user's; else what the file has lost, before
/// every recipient sees it. Of a password no character is shown.
void AvvisaPerdite(const Account& valori) {
    if (sys::belongsToAnother(fileAccount())) {
        ui::MessageDialog::show(
            Words::tr("Gli account non sono stati salvati:\r\nil file Account.imp appartiene a un altro "
                      "utente, che potrebbe leggere le password."),
            ui::MessageDialog::Notice, bVAR::Attenzione);
        return;
    }
    struct Casella {
        const char* nome;
        const QString& testo;
        bool segreta = false;
    };
    QStringList righe;
    for (const auto& [nome, testo, segreta] :
         {Casella{"Nome visualizzato", valori.txtNomeVisual}, Casella{"Email", valori.txtEmail},
          Casella{"Server SMTP", valori.txtServerSMTP}, Casella{"Username", valori.txtUsername},
          Casella{"Password", valori.txtPassword, true}}) {
        const QStringList persi = text::outsideAnsi(testo);
        if (!persi.isEmpty()) righe << QString(nome) + (segreta ? QString() : ": " + persi.join(' '));
    }
    if (righe.isEmpty()) return;
    ui::MessageDialog::show(
        Words::tr("Il file degli account non può contenere questi caratteri:") + "\r\n" + righe.join("\r\n"),
        ui::MessageDialog::Notice, bVAR::Attenzione);
}

}  // namespace

std::optional<Account> frmAccount::Custodisci(bool nuovo) {
    const auto custodito =
        portachiavi::CustodisciConAttesa(LeggiControlli(), account, nuovo, chkPortachiavi->isChecked());
    if (custodito.ok()) return custodito.value();
    ui::MessageDialog::show(custodito.status().text(), ui::MessageDialog::Notice, bVAR::Attenzione);
    return std::nullopt;
}

void frmAccount::cmdNuovo_Click() {
    if (!ValidaAccount()) return;
    TogliSeparatori();
    Prosegui prosegui;
    const auto custodito = Custodisci(true);
    if (!custodito) return;
    const Account& nuovo = *custodito;
    const int numero = NuovoAccount(fileAccount(), account, nuovo);
    lstAccount->addItem(VoceAccount(nuovo));
    // A list that is shorter than the table has no such position: the choice stays as it is.
    if (numero < lstAccount->count()) {
        lstAccount->setListIndex(numero);
        prosegui([this] { lstAccount_Click(); });
    }
    AvvisaPerdite(nuovo);
}

void frmAccount::cmdModifica_Click() {
    if (!ValidaAccount()) return;
    TogliSeparatori();
    const int posizione = lstAccount->ListIndex();
    const auto custodito = Custodisci(false);
    if (!custodito) return;
    const Account& valori = *custodito;
    const TabellaAccount prima = account;
    if (QListWidgetItem* voce = lstAccount->item(posizione)) voce->setText(VoceAccount(valori));
    ModificaAccount(fileAccount(), account, lstAccount->count(), posizione, valori);
    portachiavi::Ripulisci(prima, fileAccount(), lstAccount->count());
    txtPassword->setText(valori.txtPassword);
    AvvisaPerdite(valori);
}

/// With entries but none chosen, the first account leaves the table and the file while the list keeps all its
/// entries: each step that fails for the position -1 is skipped.
void frmAccount::EliminaAccount(int indice) {
    Prosegui prosegui;
    const TabellaAccount prima = account;
    const int voci = lstAccount->count();
    ::EliminaAccount(fileAccount(), account, voci, indice);
    portachiavi::Ripulisci(prima, fileAccount(), voci - 1);
    if (indice >= 0) lstAccount->RemoveItem(indice);
    const int rimaste = lstAccount->count();
    lstAccount->setListIndex(indice + 1 <= rimaste ? indice : rimaste - 1);
    prosegui([this] { lstAccount_Click(); });
    cmdModifica->setEnabled(rimaste >= 1);
    if (rimaste == 0) AzzeraControlli();
}

void frmAccount::AzzeraControlli() {
    for (QLineEdit* casella : {txtNomeVisual, txtEmail, txtServerSMTP, txtUsername, txtPassword})
        casella->clear();
    txtServerPORT->setText("25");
    chkPortachiavi->setChecked(false);
    chkAutentick->setChecked(false);
    cmbSaluto->setCurrentIndex(0);
    txtOutPort->setText("0");
    chkUsaSMTP->setChecked(true);
}
