// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/strumenti/frmControlloMittente.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>

#include "modules/core/bImpostazioni.h"
#include "modules/core/Fallimento.h"
#include "modules/lang/bVAR.h"
#include "modules/send/Consegna.h"
#include "platform/text/Words.h"
#include "platform/ui/Announcer.h"
#include "platform/ui/DialogFrame.h"
#include "platform/ui/MessageDialog.h"
#include "windows/core/bTheme.h"
#include "windows/core/Evento.h"
#include "windows/core/Portachiavi_attesa.h"
#include "windows/strumenti/frmChiaveDkim.h"
#include "windows/strumenti/SegnoSemaforo.h"

using ui::MessageDialog;

frmControlloMittente::frmControlloMittente(QWidget* parent)
    : QDialog(parent),
      controllo({[this](int riga) { evento([&] { ScriviRiga(riga); }); },
                 [this] { evento([this] { Finito(); }); }}) {
    setObjectName("frmControlloMittente");
    setWindowTitle(Words::tr(" Controllo del mittente"));
    RilevaTema(this);
    CreaControlli();
    DisponiControlli();
    CollegaEventi();
    AbilitaControlli();
    resize(QSize(860, 560).expandedTo(sizeHint()));
    ui::setUpDialog(*this);
}

void frmControlloMittente::CaricaDati() {
    controllo.Annulla();
    account.clear();
    cmbAccount->clear();
    Prosegui prosegui;
    const bool letto = prosegui([this] {
        ::CaricaAccount(fileAccount(), account, [this](const Account& uno, int numero) {
            cmbAccount->addItem(VoceAccount(uno), numero);
        });
    });
    grdRighe->setRowCount(0);
    MostraDettagli();
    AbilitaControlli();
    if (cmbAccount->count() == 0)
        Avvisa(Words::tr("Nessun account: crearne uno con File, Imposta Account."));
    else if (!letto)
        Avvisa(Words::tr("Il file degli account è danneggiato: si vedono solo quelli prima del guasto."));
    else
        Avvisa(Words::tr("Scegliere un account e premere Controlla."));
    cmbAccount->setFocus();
}

const Account* frmControlloMittente::Scelto() const {
    if (cmbAccount->currentIndex() < 0) return nullptr;
    return &account.at(static_cast<std::size_t>(cmbAccount->currentData().toInt()));
}

void frmControlloMittente::cmdControlla_Click() {
    const Account* const scelto = Scelto();
    if (!scelto || controllo.InCorso()) return;
    QString password;
    if (!StradaDiretta(*scelto) && ChiedeAccesso(*scelto)) password = portachiavi::PasswordConAttesa(*scelto);
    grdRighe->setRowCount(0);
    controllo.Avvia(*scelto, password);
    RiempiRighe();
    AbilitaControlli();
    if (!controllo.InCorso()) {
        Finito();
        return;
    }
    Avvisa(Words::tr("Controllo in corso… Esc per interrompere."));
    grdRighe->setFocus();
}

void frmControlloMittente::RiempiRighe() {
    const int quante = static_cast<int>(controllo.Righe().size());
    grdRighe->setRowCount(quante);
    for (int riga = 0; riga < quante; ++riga) {
        for (int colonna = 0; colonna < grdRighe->columnCount(); ++colonna)
            grdRighe->setItem(riga, colonna, new QTableWidgetItem);
        ScriviRiga(riga);
    }
    grdRighe->setCurrentCell(0, 0);
}

void frmControlloMittente::ScriviRiga(int riga) {
    if (riga >= grdRighe->rowCount()) return;  // reported before the lines were shown
    const RigaControllo& contenuto = controllo.Righe().at(static_cast<std::size_t>(riga));
    const bool interrotta = contenuto.semaforo == Semaforo::Attesa && !controllo.InCorso();
    grdRighe->item(riga, 0)->setText(contenuto.controllo);
    grdRighe->item(riga, 1)->setText(interrotta ? Words::tr("Interrotto") : ParolaDi(contenuto.semaforo));
    grdRighe->item(riga, 1)->setIcon(SegnoDi(contenuto.semaforo));
    grdRighe->item(riga, 2)->setText(contenuto.frase);
    grdRighe->resizeRowToContents(riga);
    if (riga == grdRighe->currentRow()) MostraDettagli();
}

void frmControlloMittente::MostraDettagli() {
    const int riga = grdRighe->currentRow();
    const auto& righe = controllo.Righe();
    QString testo;
    if (riga >= 0 && riga < static_cast<int>(righe.size())) {
        const RigaControllo& contenuto = righe.at(static_cast<std::size_t>(riga));
        testo = (QStringList{contenuto.frase} + contenuto.dettagli).join('\n');
    }
    if (txtDettagli->toPlainText() != testo) txtDettagli->setPlainText(testo);
}

void frmControlloMittente::Finito() {
    if (grdRighe->rowCount() != static_cast<int>(controllo.Righe().size())) return;  // goes on in the click
    int rosse = 0, gialle = 0;
    for (const RigaControllo& riga : controllo.Righe()) {
        rosse += riga.semaforo == Semaforo::Rosso;
        gialle += riga.semaforo == Semaforo::Giallo;
    }
    AbilitaControlli();
    const auto quante = [](int numero) { return Words::tr("%n righe", nullptr, numero); };
    if (rosse + gialle == 0)
        Avvisa(Words::tr("Controllo finito: tutto in ordine."));
    else
        Avvisa(Words::tr("Controllo finito: %1 da correggere, %2 con attenzione.")
                   .arg(quante(rosse), quante(gialle)));
}

void frmControlloMittente::Interrompi() {
    if (!controllo.InCorso()) return;
    controllo.Annulla();
    for (int riga = 0; riga < grdRighe->rowCount(); ++riga)
        ScriviRiga(riga);
    AbilitaControlli();
    Avvisa(Words::tr("Controllo interrotto."));
}

void frmControlloMittente::AbilitaControlli() {
    const bool inCorso = controllo.InCorso();
    const bool conAccount = Scelto() != nullptr;
    const bool suInterrompi = cmdInterrompi->hasFocus();
    cmbAccount->setEnabled(!inCorso);
    cmdControlla->setEnabled(!inCorso && conAccount);
    cmdControlla->setDefault(!inCorso);
    cmdInterrompi->setEnabled(inCorso);
    cmdChiave->setEnabled(!inCorso && conAccount);
    cmdCopia->setEnabled(!inCorso && grdRighe->rowCount() > 0);
    if (suInterrompi && !inCorso) cmdControlla->setFocus();
}

void frmControlloMittente::Avvisa(const QString& frase) {
    lblEsito->setText(frase);
    annuncio->say(frase);
}

void frmControlloMittente::cmdChiave_Click() {
    const Account* const scelto = Scelto();
    if (!scelto) return;
    const QByteArray dominio = DominioDi(*scelto);
    const auto avvisa = [](const QString& testo) {
        MessageDialog::show(testo, MessageDialog::Notice, bVAR::Attenzione);
    };
    if (dominio.isEmpty()) {
        avvisa(Words::tr("L'indirizzo email dell'account non è valido."));
        return;
    }
    const QString cartella = cartellaDkim();
    const QString nome = QString::fromLatin1(dominio);
    auto chiave = mail::readDkimKey(cartella, dominio);
    const bool nuova = !chiave.ok() && !mail::hasDkimFiles(cartella, dominio);
    if (nuova) {
        const int risposta = MessageDialog::show(
            Words::tr("Creare una chiave DKIM per %1?\r\nDa quel momento i messaggi di questo dominio "
                      "vengono firmati; la firma vale quando il suo record è pubblicato.")
                .arg(nome),
            MessageDialog::AskQuestion, Words::tr("Chiave DKIM"));
        if (risposta != MessageDialog::Yes) return;
        chiave = mail::createDkimKey(cartella, dominio);
    }
    if (!chiave.ok()) {
        avvisa(nuova ? chiave.status().text()
                     : chiave.status().text() + "\r\n" +
                           Words::tr("I file della chiave non sono stati cambiati."));
        return;
    }
    frmChiaveDkim(dominio, chiave.value(), nuova, this).exec();
}

QString frmControlloMittente::Rapporto() const {
    QStringList testo{cmbAccount->currentText(), {}};
    for (const RigaControllo& riga : controllo.Righe()) {
        testo.append(QStringLiteral("%1: %2. %3").arg(riga.controllo, ParolaDi(riga.semaforo), riga.frase));
        for (const QString& dettaglio : riga.dettagli)
            testo.append("    " + dettaglio);
    }
    return testo.join('\n') + '\n';
}

void frmControlloMittente::cmdCopia_Click() {
    QGuiApplication::clipboard()->setText(Rapporto());
    Avvisa(Words::tr("Il rapporto è negli appunti."));
}

void frmControlloMittente::cmdChiudi_Click() {
    controllo.Annulla();
    hide();
}

void frmControlloMittente::reject() {
    evento([this] { Interrompi(); });
}

void frmControlloMittente::closeEvent(QCloseEvent* chiusura) {
    chiusura->ignore();
}
