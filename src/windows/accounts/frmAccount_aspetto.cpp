// SPDX-License-Identifier: GPL-3.0-or-later
// The look of the account window: its controls, their places and their colours.
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include "platform/text/Words.h"
#include "platform/ui/Controls.h"
#include "platform/ui/LineEdit.h"
#include "platform/ui/LinkLabel.h"
#include "windows/accounts/frmAccount.h"
#include "windows/accounts/frmAccount_elenco.h"
#include "windows/core/bTheme.h"

namespace {

void coloraSfondo(QWidget* controllo, int indice) {
    QPalette tavolozza = controllo->palette();
    tavolozza.setColor(QPalette::Window, coloreTema(indice));
    controllo->setPalette(tavolozza);
    controllo->setBackgroundRole(QPalette::Window);
    controllo->setAutoFillBackground(true);
}

}  // namespace

void frmAccount::CreaControlli() {
    const char* const testi[] = {
        "Quando si invia un messaggio di posta elettronica, il nome del mittente viene visualizzato nel "
        "campo "
        "Da del messaggio in uscita. Digitare il nome come si desidera venga visualizzato in tale campo e "
        "l'email da utilizzare per spedire i messaggi",
        "Account presenti:",
        "Nome visualizzato:",
        "Ad esempio: Klukla",
        "Email:",
        "Ad esempio: nome@dominio.it",
        "Saluto:",
        "Server SMTP:",
        "Ad esempio: mail.serversmtp.com",
        "PORTA",
        "Username:",
        "Password:",
        "Porta di uscita:"};
    for (std::size_t i = 0; i < lbl.size(); ++i)
        lbl[i] = ui::named(new QLabel(testi[i], this), QString("lbl(%1)").arg(i));
    pic = ui::named(new QWidget(this), "pic");
    // In tab order.
    lstAccount = ui::named(new ElencoAccount(this), "lstAccount");
    CreaCaselle();
    cmdNuovo = ui::commandButton("&Nuovo Account", "cmdNuovo", this);
    cmdModifica = ui::commandButton("&Modifica Account", "cmdModifica", this);
    cmdChiudi = ui::commandButton("&Chiudi", "cmdChiudi", this);
    cmdModifica->setEnabled(false);
    CreaMenu();
}

void frmAccount::CreaCaselle() {
    const auto casella = [this](const char* nome, int limite, const char* testo = "") {
        auto* nuova = ui::named(new ui::LineEdit(testo, this), nome);
        nuova->setMaxLength(limite);
        nuova->setMinimumHeight(ui::fieldHeight);
        return nuova;
    };
    const auto porta = [&](const char* nome, const char* testo) {
        auto* nuova = casella(nome, 5, testo);
        nuova->setAlignment(Qt::AlignCenter);
        nuova->setFixedWidth(
            qMax(64, nuova->fontMetrics().horizontalAdvance("00000") + 2 * ui::windowMargin));
        return nuova;
    };
    const auto spunta = [this](const char* nome, const QString& testo) {
        auto* nuova = ui::named(new QCheckBox(testo, this), nome);
        nuova->setMinimumHeight(24);
        return nuova;
    };
    txtNomeVisual = casella("txtNomeVisual", 50);
    txtEmail = casella("txtEmail", 255);
    chkUsaSMTP = spunta("chkUsaSMTP", "Utilizza un server SMTP per l'invio dei messaggi.");
    chkUsaSMTP->setChecked(true);
    txtServerSMTP = casella("txtServerSMTP", 255);
    txtServerPORT = porta("txtServerPORT", "25");
    chkAutentick = spunta("chkAutentick", "Autenticazione del Server necessaria.");
    txtUsername = casella("txtUsername", 255);
    txtPassword = casella("txtPassword", 255);
    txtPassword->setEchoMode(QLineEdit::Password);
    chkPortachiavi = spunta("chkPortachiavi", Words::tr("Conserva la password nel portachiavi del desktop."));
    chkPortachiavi->hide();
    lnkBrowser = ui::named(new ui::LinkLabel(QString(), this), "lnkBrowser");
    lnkBrowser->hide();
    chkAvanzate = spunta("chkAvanzate", "Avanzate");
    cmbSaluto = ui::named(new QComboBox(this), "cmbSaluto");
    cmbSaluto->addItems({"EHLO", "HELO"});
    cmbSaluto->setMinimumHeight(qMax(ui::fieldHeight, cmbSaluto->sizeHint().height()));
    txtOutPort = porta("txtOutPort", "0");
    chkAutentick_Click();
    chkAvanzate_Click();
}

void frmAccount::CreaMenu() {
    mnuElenco = ui::named(new QMenu("Elenco", this), "mnuElenco");
    mnuElimina = ui::named(mnuElenco->addAction("&Elimina Account"), "mnuElimina");
}

void frmAccount::ColoraControlli() {
    for (QWidget* controllo : std::initializer_list<QWidget*>{this, chkUsaSMTP, chkAutentick, chkPortachiavi})
        coloraSfondo(controllo, 0);
    for (QWidget* controllo : std::initializer_list<QWidget*>{chkAvanzate, pic})
        coloraSfondo(controllo, 24);
    // the rim of the focus: its usual colour is too near to that of the band
    QPalette scuro = chkAvanzate->palette();
    scuro.setColor(QPalette::Highlight, coloreTema(20));
    chkAvanzate->setPalette(scuro);
    for (std::size_t indice : {3, 5, 8}) {
        QPalette tavolozza = lbl[indice]->palette();
        tavolozza.setColor(QPalette::WindowText, misto(20, 0, 165));
        lbl[indice]->setPalette(tavolozza);
    }
}

void frmAccount::DisponiControlli() {
    auto* elenco = new QVBoxLayout;
    elenco->setSpacing(ui::controlSpacing / 2);
    elenco->addWidget(lbl[1]);
    elenco->addWidget(lstAccount, 1);
    lstAccount->setFixedWidth(ui::scaledToFont(*this, 210));

    auto* modulo = new QVBoxLayout;
    modulo->setSpacing(0);
    modulo->addLayout(DisponiModulo());
    modulo->addStretch();
    auto* corpo = new QHBoxLayout;
    corpo->setContentsMargins(ui::windowMargin, ui::windowMargin, ui::windowMargin, ui::windowMargin);
    corpo->setSpacing(16);
    corpo->addLayout(elenco);
    corpo->addLayout(modulo, 1);

    auto* comandi = new QHBoxLayout;
    comandi->setContentsMargins(ui::windowMargin, 0, ui::windowMargin, ui::windowMargin);
    comandi->setSpacing(ui::controlSpacing);
    comandi->addWidget(cmdNuovo);
    comandi->addWidget(cmdModifica);
    comandi->addStretch();
    comandi->addWidget(cmdChiudi);

    auto* finestra = new QVBoxLayout(this);
    finestra->setContentsMargins(0, 0, 0, 0);
    finestra->setSpacing(0);
    finestra->addWidget(DisponiTestata());
    finestra->addWidget(ui::separatorLine(this));
    finestra->addLayout(corpo, 1);
    finestra->addLayout(comandi);
    // Read after the last band.
    for (QWidget* controllo : std::initializer_list<QWidget*>{lbl[6], cmbSaluto, lbl[12], txtOutPort,
                                                              cmdNuovo, cmdModifica, cmdChiudi})
        controllo->raise();
}

QWidget* frmAccount::DisponiTestata() {
    pic->setFixedWidth(56);
    auto* img = ui::named(new QLabel(pic), "img");
    img->setPixmap(QIcon::fromTheme("user-properties").pixmap(32));
    auto* quadro = new QVBoxLayout(pic);
    quadro->setContentsMargins(0, 0, 0, 0);
    quadro->addWidget(img, 0, Qt::AlignCenter);

    auto* testata = new QWidget(this);
    coloraSfondo(testata, 1);
    auto* riga = new QHBoxLayout(testata);
    riga->setContentsMargins(0, 0, 0, 0);
    riga->setSpacing(0);
    riga->addWidget(pic);
    riga->addWidget(lbl[0], 1);
    lbl[0]->setWordWrap(true);
    lbl[0]->setContentsMargins(ui::windowMargin, ui::controlSpacing, ui::windowMargin, ui::controlSpacing);
    return testata;
}

/// Labels in one column, fields in the other, each hint 1 below its field.
QGridLayout* frmAccount::DisponiModulo() {
    auto* modulo = new QGridLayout;
    modulo->setHorizontalSpacing(ui::controlSpacing);
    modulo->setVerticalSpacing(0);
    modulo->setColumnStretch(1, 1);
    int riga = 0;
    const auto stacca = [&](int quanto) { modulo->setRowMinimumHeight(riga++, quanto); };
    const auto campo = [&](QLabel* etichetta, QWidget* casella, QLabel* esempio) {
        modulo->addWidget(etichetta, riga, 0);
        if (casella) modulo->addWidget(casella, riga, 1);
        ++riga;
        if (!esempio) return;
        esempio->setContentsMargins(2, 1, 0, 0);
        modulo->addWidget(esempio, riga++, 1);
    };
    campo(lbl[2], txtNomeVisual, lbl[3]);
    stacca(ui::controlSpacing);
    campo(lbl[4], txtEmail, lbl[5]);
    stacca(ui::controlSpacing);
    modulo->addWidget(chkUsaSMTP, riga++, 0, 1, 2);
    stacca(ui::controlSpacing / 2);
    DisponiServer(*modulo, riga);
    campo(lbl[7], nullptr, lbl[8]);
    stacca(ui::controlSpacing);
    modulo->addWidget(chkAutentick, riga++, 0, 1, 2);
    stacca(ui::controlSpacing / 2);
    campo(lbl[10], txtUsername, nullptr);
    stacca(ui::controlSpacing);
    campo(lbl[11], txtPassword, nullptr);
    stacca(ui::controlSpacing / 2);  // the box below paints a little over its place, and would hide the rim
    modulo->addWidget(chkPortachiavi, riga++, 1);
    modulo->addWidget(lnkBrowser, riga++, 1, Qt::AlignLeft);
    stacca(ui::controlSpacing);
    modulo->addWidget(DisponiAvanzate(), riga++, 0, 1, 2);
    stacca(ui::controlSpacing);
    auto* saluto = new QHBoxLayout;
    saluto->setSpacing(ui::controlSpacing);
    saluto->addWidget(cmbSaluto);
    saluto->addSpacing(ui::windowMargin);
    saluto->addWidget(lbl[12]);
    saluto->addWidget(txtOutPort);
    saluto->addStretch();
    modulo->addWidget(lbl[6], riga, 0);
    modulo->addLayout(saluto, riga, 1);
    return modulo;
}

void frmAccount::DisponiServer(QGridLayout& modulo, int riga) {
    auto* server = new QHBoxLayout;
    server->setSpacing(ui::controlSpacing);
    server->addWidget(txtServerSMTP, 1);
    server->addWidget(lbl[9]);
    server->addWidget(txtServerPORT);
    modulo.addLayout(server, riga, 1);
}

QWidget* frmAccount::DisponiAvanzate() {
    auto* fascia = new QWidget(this);
    coloraSfondo(fascia, 24);
    fascia->setMinimumHeight(28);
    auto* riga = new QHBoxLayout(fascia);
    riga->setContentsMargins(6, 2, 6, 2);
    riga->addWidget(chkAvanzate);
    return fascia;
}

/// Names for assistive programs, from the captions unchanged.
void frmAccount::CollegaEtichette() {
    const auto collega = [this](std::size_t indice, QWidget* controllo, int esempio = -1) {
        ui::bindLabel(lbl[indice], controllo);
        if (esempio >= 0) controllo->setAccessibleDescription(lbl[static_cast<std::size_t>(esempio)]->text());
    };
    collega(1, lstAccount);
    collega(2, txtNomeVisual, 3);
    collega(4, txtEmail, 5);
    collega(6, cmbSaluto);
    collega(7, txtServerSMTP, 8);
    collega(9, txtServerPORT);
    collega(10, txtUsername);
    collega(11, txtPassword);
    collega(12, txtOutPort);
    for (QCheckBox* casella : {chkUsaSMTP, chkAutentick, chkPortachiavi, chkAvanzate})
        casella->setAccessibleName(ui::spokenCaption(casella->text()));
}
