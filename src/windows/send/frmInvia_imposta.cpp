// SPDX-License-Identifier: GPL-3.0-or-later
#include <cassert>
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStorageInfo>
#include <QTimer>
#include <tuple>
#include <utility>

#include "modules/core/bFunctions.h"
#include "modules/core/bGlobal.h"
#include "modules/core/bImpostazioni.h"
#include "modules/lang/bVAR.h"
#include "modules/message/MessaggioMss.h"
#include "modules/send/Accettati.h"
#include "modules/send/bMXQuery.h"
#include "modules/send/Cartelle.h"
#include "modules/send/Consegna.h"
#include "modules/send/Esiti.h"
#include "modules/send/Selezione.h"
#include "modules/store/RecordsetDB.h"
#include "platform/ado/Connection.h"
#include "platform/mail/DeliveryControl.h"
#include "platform/mail/DkimSigner.h"
#include "platform/mail/Unsubscribe.h"
#include "platform/system/Clock.h"
#include "platform/text/NumberText.h"
#include "platform/text/Words.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/ProgressCounter.h"
#include "windows/core/Portachiavi_attesa.h"
#include "windows/send/Accettati_avviso.h"
#include "windows/send/frmInvia.h"

using ui::MessageDialog;

void frmInvia::SetPrgBar() {
    ado::Recordset rs = RecordsetDB();
    const auto conto = static_cast<double>(ContaSelezionati(rs));
    for (ui::ProgressCounter* contatore : {prgDaInviare, prgFallite, prgInviate})
        contatore->setMaximum(conto);
    prgDaInviare->setValue(conto);
    prgFallite->setValue(0);
    prgInviate->setValue(0);
    AllargaEtichette();
    AggiornaDaInviare(conto);
    AggiornaFallite(0);
    AggiornaInviate(0);
    cartelleScelte = CartelleSelezionate();
    inizioInvio = {};
}

void frmInvia::CaricaDati() {
    CaricaAccount();
    CaricaPausa();
    CaricaTimeout();
    cmdInvia->setDefault(true);
    txtFile->setFocus();
    NominaSenzaEtichetta();
    // Lists that were never shown do not report their new content to their layout.
    layout()->invalidate();
    layout()->activate();
    resize(size().expandedTo(sizeHint()));
}

void frmInvia::CaricaAccount() {
    cmbAccount->clear();
    const bool letto = ::CaricaAccount(fileAccount(), account, [this](const Account& uno, int numero) {
        cmbAccount->addItem(VoceAccount(uno), numero);
    });
    // The list chooses its first entry by itself; the one to choose is the account numbered 0.
    if (letto)
        cmbAccount->setCurrentIndex(cmbAccount->findText(VoceAccount(account.front()), Qt::MatchExactly));
}

void frmInvia::CaricaPausa() {
    cmbPausa->clear();
    for (const char* scelta : {"0.0 ", "0.5 ", "1.0 ", "1.5 ", "2.0 ", "2.5 ", "3.0 ", "3.5 ", "4.0 ", "4.5 ",
                               "5.0 ", "10 ", "20 ", "30 ", "60 "})
        cmbPausa->addItem(scelta + bVAR::goSecondi);
    cmbPausa->setCurrentIndex(0);
}

void frmInvia::CaricaTimeout() {
    cmbTimeout->clear();
    // Two blanks after the 5: the value is read back from the first three characters.
    for (const char* scelta : {"5  ", "10 ", "20 ", "30 ", "60 "})
        cmbTimeout->addItem(scelta + bVAR::goSecondi);
    cmbTimeout->setCurrentIndex(0);
}

void frmInvia::cmdInvia_Click() {
    Prosegui prosegui;
    if (!ControllaScelte()) return;
    limite.bloccoAttivo = chkBlocco->isChecked();
    const auto logPrima = std::pair(SMTP->LogFile, SMTP->LogEnabled);
    if (chkLog->isChecked() && !ChiediLog()) return;
    const FileMss file = LeggiFileMss(txtFile->text());
    const MessaggioLetto letto = LeggiMss(file);
    // The boxes may let a tick that was pending end the run before.
    const QScopedValueRollback prepara(siPrepara, true);
    if (!PreparaElenco() || !ChiediFile(file, letto)) {
        Rilascia();
        std::tie(SMTP->LogFile, SMTP->LogEnabled) = logPrima;
        return;
    }
    AvvisaLog();
    AvvisaFirma();
    AbilitaControlli(false);
    prosegui([&] { SetPrgBar(); });
    ImpostaPausa(prosegui);
    saltaRecord = 0;
    fermaInvio = false;
    const int indiceAccount = cmbAccount->currentData().toInt();
    if (!file.aperto.ok() || !FileEsiste(txtFile->text())) {
        // The controls stay locked until cmdFerma is pressed.
        MessageDialog::show("Il File messaggio è stato eliminato o spostato.", MessageDialog::Notice,
                            "Attenzione");
        return;
    }
    UsaMessaggio(letto);
    // The body is sent as it was when the file was picked; the file's present content is ignored.
    corpoHtml = goDHTML.documentHTML();
    CorpoTesto = goDHTML.bodyInnerText();
    ImpostaConsegna(prosegui, indiceAccount);
    limite.avvia(txtBloccoMin->text(), txtBloccoNum->text());
    SMTP->BeginRun();
    NuovoGiroMX();
    assert(accettati().room() > 0 || prgDaInviare->maximum() == 0);
    tmr->start();
}

bool frmInvia::ControllaScelte() {
    const auto avvisa = [](const QString& testo) {
        MessageDialog::show(testo, MessageDialog::Notice, bVAR::Attenzione);
        return false;
    };
    if (txtFile->text().right(3).toLower() != "mss")
        return avvisa("Selezionare un messaggio prima di continuare.");
    if (cmbAccount->currentIndex() < 0) return avvisa("Creare un mittente per inviare i messaggi.");
    if (!chkBlocco->isChecked()) return true;
    if (!text::isNumeric(txtBloccoNum->text()))
        return avvisa("Inserire il numero di messaggi massimo da inviare entro [X] minuti.");
    if (!text::isNumeric(txtBloccoMin->text()))
        return avvisa("Inserire l'intervallo in minuti per l'invio massimo di [X] email.");
    return true;
}

namespace {

/// Whether the disk has no room even for the mark of one row. File systems that write each change to a new
/// place keep none ahead; with some space left that is no matter.
bool DiscoPienoPrimaDellInvio() {
    constexpr qint64 poco = qint64{1} << 20;
    if (QStorageInfo(QFileInfo(percorsoDB).absolutePath()).bytesAvailable() >= poco) return false;
    ado::Connection database;
    return database.open(connDB).ok() && !database.roomReserved();
}

}  // namespace

/// Ensures that no recipient of an earlier run is served again: no other process is sending, those who are
/// remembered leave the selection, and there is room to remember those of this run. Otherwise nothing has
/// changed.
bool frmInvia::PreparaElenco() {
    const auto avvisa = [](const QString& testo) {
        MessageDialog::show(testo, MessageDialog::Notice, bVAR::Attenzione);
    };
    if (!invioInCorso.take(percorsoDB)) {
        avvisa(
            Words::tr("Un'altra finestra di Vestrola sta inviando ai destinatari di questo database.\r\n"
                      "Riprovare quando avrà finito."));
        return false;
    }
    Prosegui prosegui;
    if (!prosegui([this] { ApplicaAccettati([this](const QString& riga) { SMTP->Remark(riga); }); })) {
        Rilascia();
        avvisa(Words::tr("Alcuni destinatari sono già stati serviti, ma non è possibile toglierli dalla "
                         "selezione:") +
               "\r\n" + prosegui.testo() + "\r\n" +
               Words::tr("L'invio non è iniziato. Riprovare più tardi."));
        return false;
    }
    AvvisaAccettatiScartati();
    // The window is modal: there are not more than when it was opened.
    const auto conto = static_cast<qsizetype>(prgDaInviare->maximum());
    const Status riservato = accettati().reserve(mail::DatabaseFile::at(percorsoDB), conto);
    if (riservato.ok()) {
        if (DiscoPienoPrimaDellInvio())
            avvisa(Words::tr(
                "Il disco del database è pieno. Chi riceve il messaggio resta selezionato finché non c'è di "
                "nuovo "
                "posto, ma non lo riceve una seconda volta."));
        return true;
    }
    if (accettati().room() < 1) {
        Rilascia();
        avvisa(riservato.text() + "\r\n" + Words::tr("L'invio non è iniziato."));
        return false;
    }
    avvisa(riservato.text() + "\r\n" +
           Words::tr("Se il database non potrà essere aggiornato, non tutti i destinatari saranno serviti."));
    return true;
}

/// Reports a key that cannot sign before a whole run goes out without a signature.
void frmInvia::AvvisaFirma() {
    const Account& mittente = account.at(cmbAccount->currentData().toInt());
    const Status firma = mail::DkimSigner::usable(cartellaDkim(), mittente.txtEmail);
    if (!firma.ok())
        MessageDialog::show(
            firma.text() + "\r\n" + Words::tr("I messaggi di questo invio partono senza firma."),
            MessageDialog::Notice, bVAR::Attenzione);
}

/// Other processes may send again, once no reply of this run can arrive any more.
void frmInvia::FineInvio() {
    if (!siPrepara) Rilascia();
}

void frmInvia::Rilascia() {
    if (nelGiro || tmr->isActive() || SMTP->Awaiting()) return;
    invioInCorso.release();
    accettati().release();
}

void frmInvia::ImpostaConsegna(Prosegui& prosegui, int indiceAccount) {
    const Account& mittente = account.at(indiceAccount);
    passwordMittente = portachiavi::PasswordConAttesa(mittente);
    ImpostaMittente(*SMTP, mittente, prosegui);
    ImpostaTimeout(prosegui);
    SMTP->BodyFormat = 1;
    SMTP->TemplateHtml = corpoHtml;
    disiscrizione = mail::markedUnsubscribe(corpoHtml);
    SMTP->BookFolder = esiti::Acceso() ? esiti::Cartella() : QString();
    SMTP->BookTitle = oggettoMail;
    inizioInvio = sys::clock().now();
}

void frmInvia::ImpostaPausa(Prosegui& prosegui) {
    prosegui([&] { tmr->setInterval(MillisecondiPausa(cmbPausa->currentText())); });
}

void frmInvia::ImpostaTimeout(Prosegui& prosegui) {
    prosegui([&] { SMTP->TimeoutSecs = static_cast<qint16>(SecondiTimeout(cmbTimeout->currentText())); });
}
