// SPDX-License-Identifier: GPL-3.0-or-later
// The copy that goes to an address of the user's.
#include <algorithm>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "modules/core/bImpostazioni.h"
#include "modules/core/Fallimento.h"
#include "modules/send/Consegna.h"
#include "platform/mail/AddrSpec.h"
#include "platform/mail/DeliveryControl.h"
#include "platform/mail/ServerVerdict.h"
#include "platform/text/Blanks.h"
#include "platform/text/Words.h"
#include "platform/ui/MessageDialog.h"
#include "windows/core/DomandaFile.h"
#include "windows/core/Evento.h"
#include "windows/core/Portachiavi_attesa.h"
#include "windows/strumenti/frmProva.h"

namespace {

constexpr qint16 attesaServer = 30;  // seconds without progress

}  // namespace

void frmProva::CaricaAccount() {
    const QString prima = cmbAccount->currentText();
    cmbAccount->clear();
    account.clear();
    Prosegui prosegui;
    prosegui([this] {
        ::CaricaAccount(fileAccount(), account, [this](const Account& uno, int numero) {
            cmbAccount->addItem(VoceAccount(uno), numero);
        });
    });
    cmbAccount->setCurrentIndex(
        std::max(cmbAccount->findText(prima, Qt::MatchExactly), cmbAccount->count() > 0 ? 0 : -1));
    UsaAccount();
}

const Account* frmProva::MittenteScelto() const {
    if (cmbAccount->currentIndex() < 0) return nullptr;
    const auto numero = static_cast<std::size_t>(cmbAccount->currentData().toInt());
    return numero < account.size() ? &account[numero] : nullptr;
}

/// Proposes the account's own address, unless the user wrote another one.
void frmProva::UsaAccount() {
    const Account* mittente = MittenteScelto();
    if (mittente && (txtIndirizzo->text().isEmpty() || txtIndirizzo->text() == propostaIndirizzo)) {
        propostaIndirizzo = mittente->txtEmail;
        txtIndirizzo->setText(propostaIndirizzo);
    }
    if (modello && copia) MostraAllegati(*copia);
    AbilitaInvio();
}

/// While a copy is under way the keyboard is on the button that ends it.
void frmProva::AbilitaInvio() {
    const bool suInvia = cmdInviaProva->hasFocus(), suAnnulla = cmdAnnulla->hasFocus();
    if (inInvio) {
        cmdAnnulla->setEnabled(true);
        if (suInvia) cmdAnnulla->setFocus();
    }
    for (QWidget* campo :
         std::initializer_list<QWidget*>{cmbFile, cmdFile, cmbAccount, txtIndirizzo, cmdInviaProva})
        campo->setEnabled(!inInvio);
    if (!inInvio) {
        if (suAnnulla) cmdInviaProva->setFocus();
        cmdAnnulla->setEnabled(false);
    }
}

void frmProva::cmdInviaProva_Click() {
    const Account* mittente = MittenteScelto();
    const QString indirizzo = text::trimBlanks(txtIndirizzo->text()).toString();
    if (!modello || !copia)
        return Racconta(*lblEsito, Words::tr("Scegliere un messaggio prima di inviare la prova."));
    if (!mittente)
        return Racconta(*lblEsito,
                        Words::tr("Nessun account: crearne uno con il comando \"Imposta Account\"."));
    const auto casella = mail::parseAddrSpec(indirizzo);
    if (!casella.ok()) {
        txtIndirizzo->setFocus();
        return Racconta(*lblEsito, Words::tr("L'indirizzo della prova non è valido."));
    }
    if (!ChiediFile()) return Racconta(*lblEsito, Words::tr("La prova non è stata inviata."));

    Prosegui prosegui;
    const QString password = portachiavi::PasswordConAttesa(*mittente);
    ImpostaMittente(*prova, *mittente, prosegui);
    prova->TimeoutSecs = attesaServer;
    mail::MessageData& messaggio = *prova;
    messaggio = DatiMessaggio(*modello, *copia, *mittente, prova->FilesToCarry);
    prova->ToAddress = indirizzo;
    inInvio = true;
    AbilitaInvio();
    Racconta(*lblEsito, Words::tr("Invio della prova a %1… Esc per interrompere.").arg(indirizzo));
    if (StradaDiretta(*mittente)) return InviaDiretta(casella.value().domain);
    UsaServerAccount(*prova, *mittente, password, prosegui);
    prova->Send();
}

/// To the exchanger of the domain once it is known. The reason of a domain without one comes with
/// the outcome.
void frmProva::InviaDiretta(const QByteArray& dominio) {
    ricercaMX.Avvia(dominio, [this](const ServerMX& trovato) {
        evento([&] {
            UsaServerMX(*prova, trovato.server, trovato.motivo);
            prova->Send();
        });
    });
}

/// Asks about files that the user has not agreed to send; false where he does not. His answer counts for this
/// copy alone.
bool frmProva::ChiediFile() {
    const QList<FileInPartenza> tutti = modello->inPartenza();
    QStringList concessi;
    for (const FileInPartenza& uno : tutti)
        concessi << uno.risolto;
    prova->FilesToCarry = concessi;
    const QList<FileInPartenza> chiesti = DaChiedere(tutti);
    if (chiesti.isEmpty()) return true;
    return ui::MessageDialog::askAbout(DomandaFile(
               chiesti, Words::tr("La copia di prova porta con sé questi file di questo computer.\r\n"
                                  "Vuoi inviarli?"))) != ui::MessageDialog::No;
}

void frmProva::AnnullaInvio() {
    if (!ricercaMX.InCorso()) return prova->Abort();
    ricercaMX.Annulla();
    inInvio = false;
    AbilitaInvio();
    Racconta(*lblEsito, Words::tr("La prova non è stata consegnata. Invio interrotto."));
}

void frmProva::FineInvio(bool consegnata) {
    inInvio = false;
    AbilitaInvio();
    const mail::DeliveryOutcome& esito = prova->LastOutcome();
    QString parole = esito.code ? QString::number(esito.code) + ' ' + esito.text : esito.text;
    parole = parole.trimmed();
    QString testo =
        consegnata ? Words::tr("La prova è stata accettata dal server per %1.").arg(QString(prova->ToAddress))
        : esito.unanswered ? Words::tr(
                                 "La prova può essere stata consegnata: il server ha ricevuto tutto il "
                                 "messaggio e non ha risposto.")
                           : Words::tr("La prova non è stata consegnata.");
    if (const QString verdetto = mail::verdictOf(esito); !verdetto.isEmpty())
        testo += ' ' + verdetto;
    else if (!parole.isEmpty())
        testo += ' ' + (esito.code ? Words::tr("Il server ha risposto: %1").arg(parole) : parole);
    Racconta(*lblEsito, testo);
}
