// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "modules/core/bGlobal.h"
#include "modules/send/Consegna.h"
#include "modules/send/Selezione.h"
#include "modules/store/RecordsetDB.h"
#include "platform/ado/Command.h"
#include "platform/mail/DeliveryControl.h"
#include "platform/text/NumberText.h"
#include "platform/ui/CountLabel.h"
#include "platform/ui/ProgressCounter.h"
#include "windows/send/frmInvia.h"

namespace {

/// The caption up to and including its first colon, a blank, the number.
void AggiornaEtichetta(QLabel* etichetta, double n) {
    const QString testo = etichetta->text();
    etichetta->setText(testo.left(testo.indexOf(':') + 1) + ' ' + text::formatGrouped(n));
}

}  // namespace

/// One recipient: read his row, submit his copy, wait for the outcome, count it, arm the timer for the
/// next one. The row is read on a recordset that is closed before the delivery starts; a failure of any
/// statement leaves what it would have set as it was and never ends the run.
void frmInvia::tmr_Timer() {
    if (nelGiro) return;  // a new run was started in it: this tick is its first
    Prosegui prosegui;
    const int indiceAccount = cmbAccount->currentData().toInt();
    tmr->stop();
    nelGiro = true;
    SMTP->BeginTick();

    SMTP->BodyHtml = corpoHtml;
    SMTP->BodyText = CorpoTesto;
    SMTP->Subject = oggettoMail;
    const std::optional<qint32> letto = LeggiDestinatario(prosegui);
    const qint32 idDestinatario = letto.value_or(0);

    QCoreApplication::processEvents();
    // A stop and a new start may just have been taken: this tick is then the new run's first, and it re-arms
    // the timer.
    tmr->stop();
    mailInviata = false;
    mailFallita = false;
    ScegliStrada(*SMTP, account.at(indiceAccount), passwordMittente, prosegui);
    SMTP->RecipientNumber = letto ? *letto : mail::recipient::nobody;
    SMTP->Send();
    AttendiEsito();
    tmr->stop();  // as above: the same may have been taken during the wait

    if (mailInviata) {
        ContaInviata(prosegui, idDestinatario);
    } else {
        ContaFallita();
    }
    prgDaInviare->setValue(prgDaInviare->value() - 1);
    AggiornaDaInviare(prgDaInviare->value());

    nelGiro = false;
    if (prgDaInviare->value() > 0 && !fermaInvio) {
        RaccontaConteggi(false);
        if (limite.bloccoAttivo) DipingiConteggi();
        limite.applica();
        tmr->start();
    } else {
        AbilitaControlli(true);
        RaccontaConteggi(true);
        FineInvio();
    }
}

/// Personalises the message for the next recipient and returns his number, if it can be read.
std::optional<qint32> frmInvia::LeggiDestinatario(Prosegui& prosegui) {
    std::optional<qint32> idDestinatario;
    SMTP->Database = percorsoDB;
    ado::Recordset rs;
    prosegui([&] { rs = RecordsetDB(); });
    rs.setSource(codaInvio);
    prosegui([&] { esigi(rs.open()); });
    prosegui([&] { esigi(rs.move(saltaRecord)); });

    const LeggiColonna leggi = ColonneDi(rs);
    const TestiMessaggio testi = modelli.Personalizza(
        {SMTP->BodyHtml, SMTP->BodyText, SMTP->Subject, disiscrizione}, LeggiValori(leggi));
    SMTP->BodyHtml = testi.corpoHtml;
    SMTP->BodyText = testi.corpoTesto;
    SMTP->Subject = testi.oggetto;
    SMTP->UnsubscribeLink = testi.disiscrizione;

    prosegui([&] { SMTP->ToAddress = esigi(esigi(rs.value(u"email")).toText()); });
    prosegui([&] { SMTP->ToName = esigi(NomeDestinatario(leggi)); });
    prosegui([&] { idDestinatario = static_cast<qint32>(esigi(esigi(rs.value(u"id")).toInteger())); });
    rs.close();
    return idDestinatario;
}

/// Runs events between its tests, so that the window responds and the outcome arrives in either order.
void frmInvia::AttendiEsito() {
    while (!mailInviata && !fermaInvio && !mailFallita)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

void frmInvia::ContaInviata(Prosegui& prosegui, qint32 idDestinatario) {
    prgInviate->setValue(prgInviate->value() + 1);
    AggiornaInviate(prgInviate->value());
    const bool tolto = prosegui([&] {
        ado::Command cmd;
        esigi(cmd.setActiveConnection(connDB));
        cmd.setCommandTimeout(0);
        cmd.setPrepared(false);
        cmd.setCommandText("UPDATE [tb_destinatari] SET [sel] = False WHERE [id] = " +
                           QString::number(idDestinatario) + ';');
        esigi(cmd.execute());
    });
    if (tolto) SMTP->Marked(idDestinatario);
}

void frmInvia::ContaFallita() {
    saltaRecord += 1;
    prgFallite->setValue(prgFallite->value() + 1);
    AggiornaFallite(prgFallite->value());
}

void frmInvia::cmdFerma_Click() {
    SMTP->Abort();
    fermaInvio = true;
    AbilitaControlli(true);
    FineInvio();
}

void frmInvia::AbilitaControlli(bool valore) {
    const bool fuocoSuFerma = focusWidget() == cmdFerma;  // also while another program is in front
    // The focus moves to the next step before the focused control is disabled: else it would pass from one
    // control to the next as they are turned off.
    QPushButton* prossimo = valore ? cmdChiudi : cmdFerma;
    prossimo->setEnabled(true);
    prossimo->setDefault(true);
    if (!valore || fuocoSuFerma) prossimo->setFocus();
    for (QWidget* controllo : std::initializer_list<QWidget*>{chkLog, txtFile, cmdFile, cmbAccount, cmbPausa,
                                                              cmbTimeout, chkBlocco, cmdChiudi, cmdInvia})
        controllo->setEnabled(valore);
    if (valore) cmdFerma->setEnabled(false);
}

void frmInvia::AggiornaDaInviare(double n) {
    AggiornaEtichetta(lblDaInviare, n);
}

void frmInvia::AggiornaFallite(double n) {
    AggiornaEtichetta(lblFallite, n);
}

void frmInvia::AggiornaInviate(double n) {
    AggiornaEtichetta(lblInviate, n);
}
