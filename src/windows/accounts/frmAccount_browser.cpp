// SPDX-License-Identifier: GPL-3.0-or-later
// The login by the browser, for servers of providers that end the login by password.
#include <optional>
#include <QAccessible>
#include <QCheckBox>
#include <QLayout>
#include <QLineEdit>

#include "modules/core/bImpostazioni.h"
#include "modules/lang/bVAR.h"
#include "platform/oauth/Consent.h"
#include "platform/oauth/TokenSource.h"
#include "platform/system/Shell.h"
#include "platform/text/Words.h"
#include "platform/ui/LinkLabel.h"
#include "platform/ui/MessageDialog.h"
#include "windows/accounts/frmAccount.h"
#include "windows/accounts/frmAccount_elenco.h"
#include "windows/core/Evento.h"

namespace {

void avvisaAccesso(const QString& testo) {
    ui::MessageDialog::show(testo, ui::MessageDialog::Notice, bVAR::Attenzione);
}

/// The provider of a server. None where the file cannot be read; a run reports what is wrong with it.
std::optional<oauth::Provider> fornitoreDi(const QString& server) {
    const auto fornitori = oauth::readProviders(cartellaOAuth());
    return fornitori.ok() ? oauth::providerOf(fornitori.value(), server) : std::nullopt;
}

}  // namespace

void frmAccount::CollegaBrowser() {
    consenso = new oauth::Consent(cartellaOAuth(), cartellaCertificati(), this);
    connect(consenso, &oauth::Consent::finished, this,
            [this](const Status& esito) { evento([&] { AccessoFinito(esito); }); });
    connect(lnkBrowser, &ui::LinkLabel::activated, this, [this] { evento([this] { lnkBrowser_Click(); }); });
    // A consent is of one user at one server: it does not outlive a change of either.
    const auto alCambio = [this] { evento([this] { AggiornaAccesso(); }); };
    connect(txtServerSMTP, &QLineEdit::textChanged, this, alCambio);
    connect(txtUsername, &QLineEdit::textChanged, this, alCambio);
    connect(chkUsaSMTP, &QCheckBox::toggled, this, alCambio);
    connect(lstAccount, &ElencoAccount::Click, this, alCambio);
    AggiornaAccesso();
}

/// Drops a consent that is under way and shows the link where the server belongs to a provider.
void frmAccount::AggiornaAccesso() {
    consenso->cancel();
    MostraAttesa();
    const bool serve = chkUsaSMTP->isChecked() && fornitoreDi(txtServerSMTP->text());
    if (lnkBrowser->isHidden() != serve) return;
    lnkBrowser->setVisible(serve);
    if (serve && isVisible()) AdattaAltezza();
}

void frmAccount::MostraAttesa() {
    const QString testo = consenso->waiting() ? Words::tr("In attesa del browser: annulla l'accesso")
                                              : Words::tr("Accedi con il browser...");
    if (lnkBrowser->text() == testo) return;
    lnkBrowser->setText(testo);
    QAccessibleEvent nome(lnkBrowser, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&nome);
}

void frmAccount::lnkBrowser_Click() {
    if (consenso->waiting()) {
        AggiornaAccesso();
        return;
    }
    const auto fornitore = fornitoreDi(txtServerSMTP->text());
    if (!fornitore) {
        AggiornaAccesso();
        return;
    }
    if (txtUsername->text().isEmpty()) {
        chkAutentick->setChecked(true);
        avvisaAccesso(Words::tr(
            "Per accedere con il browser scrivere prima lo username, di solito l'indirizzo email."));
        txtUsername->setFocus();
        return;
    }
    const Result<QUrl> pagina = consenso->start(*fornitore, txtUsername->text());
    Status esito = pagina.status();
    if (pagina.ok()) esito = sys::openAddress(pagina.value().toString(QUrl::FullyEncoded));
    if (!esito.ok()) consenso->cancel();
    MostraAttesa();
    if (!esito.ok()) avvisaAccesso(esito.text());
}

void frmAccount::AccessoFinito(const Status& esito) {
    MostraAttesa();
    if (!esito.ok()) {
        avvisaAccesso(esito.text());
        return;
    }
    chkAutentick->setChecked(true);
    txtPassword->setText(oauth::passwordWord.toString());
    avvisaAccesso(
        Words::tr("Accesso riuscito. Salvare ora l'account con \"Nuovo Account\" o \"Modifica Account\"."));
}

void frmAccount::hideEvent(QHideEvent* nascosta) {
    QDialog::hideEvent(nascosta);
    // A window that is only minimised keeps waiting.
    if (!nascosta->spontaneous()) AggiornaAccesso();
}
