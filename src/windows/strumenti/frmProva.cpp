// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/strumenti/frmProva.h"

#include <initializer_list>
#include <QCloseEvent>
#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTimer>

#include "platform/html/HtmlView.h"
#include "platform/mail/Composer.h"
#include "platform/mail/DeliveryControl.h"
#include "platform/text/Words.h"
#include "platform/ui/Announcer.h"
#include "platform/ui/Controls.h"
#include "platform/ui/DialogForm.h"
#include "platform/ui/DialogFrame.h"
#include "platform/ui/TabStrip.h"
#include "windows/core/bTheme.h"
#include "windows/core/Evento.h"

frmProva::frmProva(Vicini intorno, QWidget* parent)
    : QDialog(parent), vicini(std::move(intorno)), compositore(std::make_unique<mail::Composer>()) {
    setObjectName("frmProva");
    setWindowTitle(Words::tr(" Prova messaggio"));
    RilevaTema(this);
    CreaControlli();
    DisponiControlli();
    CollegaEtichette();
    CollegaEventi();
    ui::openAtLeast(*this, {940, 640});
    ui::setUpDialog(*this);
}

frmProva::~frmProva() = default;

void frmProva::Carica() {
    // A window that gets the browser while it is on the screen is recreated, and is then no longer
    // modal.
    HTML->wake();
    winId();
    lblEsito->clear();
    txtCerca->clear();
    riga = -1;
    CaricaAccount();
    CaricaFile();
    UsaFile();
    cmbFile->setFocus();
}

void frmProva::reject() {
    if (inInvio)
        evento([this] { AnnullaInvio(); });
    else
        Lascia();
}

void frmProva::closeEvent(QCloseEvent* chiusura) {
    Lascia();
    chiusura->accept();
}

void frmProva::Lascia() {
    AnnullaInvio();
    tmrControllo->stop();
    tmrRicerca->stop();
    controllo.reset();
    ricerca.reset();
    hide();
}

void frmProva::CreaControlli() {
    const auto etichetta = [this](const char* nome, const QString& testo) {
        return ui::named(new QLabel(testo, this), nome);
    };
    const auto soloLettura = [this](const char* nome) {
        QLineEdit* campo = ui::textField(nome, this);
        campo->setReadOnly(true);
        return campo;
    };
    // In tab order.
    lblFile = etichetta("lblFile", Words::tr("File messaggio:"));
    cmbFile = ui::choiceField("cmbFile", {}, this);
    cmdFile = ui::commandButton("...", "cmdFile", this);
    lblDestinatario = etichetta("lblDestinatario", Words::tr("Destinatario:"));
    txtDestinatario = soloLettura("txtDestinatario");
    cmdPrecedente = ui::commandButton(Words::tr("&Precedente"), "cmdPrecedente", this);
    cmdSuccessivo = ui::commandButton(Words::tr("&Successivo"), "cmdSuccessivo", this);
    lblCerca = etichetta("lblCerca", Words::tr("Cerca:"));
    txtCerca = ui::textField("txtCerca", this);
    cmdCerca = ui::commandButton(Words::tr("Ce&rca"), "cmdCerca", this);
    lblStato = etichetta("lblStato", "");
    lblOggetto = etichetta("lblOggetto", Words::tr("Oggetto:"));
    txtOggetto = soloLettura("txtOggetto");
    schede = ui::named(new ui::TabStrip(this), "schede");
    HTML = ui::named(new HtmlView(HtmlView::Mode::Browse), "HTML");
    TESTO = ui::named(new QPlainTextEdit, "TESTO");
    lblAllegati = etichetta("lblAllegati", "");
    lblRilievi = etichetta("lblRilievi", Words::tr("Rilievi:"));
    lstRilievi = ui::named(new QListWidget(this), "lstRilievi");
    cmdVai = ui::commandButton(Words::tr("&Vai al primo"), "cmdVai", this);
    lblAccount = etichetta("lblAccount", Words::tr("Account mittente:"));
    cmbAccount = ui::choiceField("cmbAccount", {}, this);
    lblIndirizzo = etichetta("lblIndirizzo", Words::tr("Indirizzo della prova:"));
    txtIndirizzo = ui::textField("txtIndirizzo", this);
    lblEsito = etichetta("lblEsito", "");
    cmdInviaProva = ui::commandButton(Words::tr("&Invia una copia di prova"), "cmdInviaProva", this);
    cmdAnnulla = ui::commandButton(Words::tr("&Annulla"), "cmdAnnulla", this);
    cmdChiudi = ui::commandButton(Words::tr("&Chiudi"), "cmdChiudi", this);
    voce = new ui::Announcer(this);
    tmrControllo = ui::named(new QTimer(this), "tmrControllo");
    tmrRicerca = ui::named(new QTimer(this), "tmrRicerca");
    prova = ui::named(new mail::DeliveryControl(this), "prova");

    TESTO->setReadOnly(true);
    TESTO->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    TESTO->setTabChangesFocus(true);
    lstRilievi->setWordWrap(true);
    lstRilievi->setSpacing(2);
    lstRilievi->setResizeMode(QListView::Adjust);
    lstRilievi->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    cmdInviaProva->setIcon(QIcon::fromTheme("document-send"));
    cmdCerca->setIcon(QIcon::fromTheme("edit-find"));
    for (QLabel* testo : {lblStato, lblAllegati, lblEsito}) {
        testo->setWordWrap(true);
        testo->setTextFormat(Qt::PlainText);
        testo->setTextInteractionFlags(Qt::TextSelectableByMouse);
        testo->setFocusPolicy(Qt::NoFocus);
    }
}

void frmProva::DisponiControlli() {
    auto* divisore = ui::named(new QSplitter(Qt::Horizontal, this), "divisore");
    for (QWidget* parte : {DisponiMessaggio(), DisponiRilievi()}) {
        divisore->addWidget(parte);
        parte->raise();  // the splitter puts what it gets before the others
    }
    divisore->setStretchFactor(0, 5);
    divisore->setStretchFactor(1, 3);
    divisore->setChildrenCollapsible(false);
    divisore->setHandleWidth(ui::controlSpacing);

    auto* chiusura = new QHBoxLayout;
    chiusura->setSpacing(ui::controlSpacing);
    chiusura->addWidget(lblEsito, 1);
    for (QWidget* pulsante : {cmdInviaProva, cmdAnnulla, cmdChiudi})
        chiusura->addWidget(pulsante, 0, Qt::AlignBottom);

    auto* finestra = new QVBoxLayout(this);
    finestra->setContentsMargins(ui::windowMargin, ui::windowMargin, ui::windowMargin, ui::windowMargin);
    finestra->setSpacing(ui::controlSpacing);
    finestra->addLayout(DisponiScelte());
    finestra->addWidget(divisore, 1);
    finestra->addWidget(ui::separatorLine(this));
    finestra->addLayout(DisponiInvio());
    finestra->addLayout(chiusura);
    // Assistive programs read a window in the order of its children; those of the splitter were made last.
    for (QWidget* dopo : std::initializer_list<QWidget*>{lblAccount, cmbAccount, lblIndirizzo, txtIndirizzo,
                                                         lblEsito, cmdInviaProva, cmdAnnulla, cmdChiudi})
        dopo->raise();
    setTabOrder(txtOggetto, HTML);
}

QLayout* frmProva::DisponiScelte() {
    cmdFile->setMinimumSize(0, ui::fieldHeight);
    cmdFile->setMaximumWidth(cmdFile->fontMetrics().horizontalAdvance("...") + 28);
    cmbFile->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);

    auto* destinatario = new QHBoxLayout;
    destinatario->setSpacing(ui::controlSpacing);
    destinatario->addWidget(txtDestinatario, 1);
    destinatario->addWidget(cmdPrecedente);
    destinatario->addWidget(cmdSuccessivo);
    auto* ricercaDi = new QHBoxLayout;
    ricercaDi->setSpacing(ui::controlSpacing);
    ricercaDi->addWidget(txtCerca, 1);
    ricercaDi->addWidget(cmdCerca);
    auto* messaggio = new QHBoxLayout;
    messaggio->setSpacing(ui::controlSpacing);
    messaggio->addWidget(cmbFile, 1);
    messaggio->addWidget(cmdFile);

    auto* scelte = new QGridLayout;
    scelte->setSpacing(ui::controlSpacing);
    scelte->setColumnStretch(1, 1);
    scelte->addWidget(lblFile, 0, 0);
    scelte->addLayout(messaggio, 0, 1);
    scelte->addWidget(lblDestinatario, 1, 0);
    scelte->addLayout(destinatario, 1, 1);
    scelte->addWidget(lblCerca, 2, 0);
    scelte->addLayout(ricercaDi, 2, 1);
    scelte->addWidget(lblOggetto, 3, 0);
    scelte->addWidget(txtOggetto, 3, 1);
    scelte->addWidget(lblStato, 4, 0, 1, 2);
    return scelte;
}

QWidget* frmProva::DisponiMessaggio() {
    schede->addView(HTML, "HTML", "text-html");
    schede->addView(TESTO, Words::tr("Solo testo"), "view-list-text");
    schede->setTabToolTip(0, Words::tr("Il messaggio come lo vede il destinatario"));
    schede->setTabToolTip(1, Words::tr("Il messaggio come lo legge chi non vede l'HTML"));
    schede->setColours({coloreTema(9), coloreTema(10), coloreTema(1)});
    auto* parte = new QWidget(this);
    auto* colonna = new QVBoxLayout(parte);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(ui::controlSpacing);
    colonna->addWidget(schede, 1);
    colonna->addWidget(lblAllegati);
    return parte;
}

QWidget* frmProva::DisponiRilievi() {
    auto* parte = new QWidget(this);
    auto* colonna = new QVBoxLayout(parte);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(ui::controlSpacing);
    colonna->addWidget(lblRilievi);
    colonna->addWidget(lstRilievi, 1);
    colonna->addWidget(cmdVai, 0, Qt::AlignRight);
    return parte;
}

QLayout* frmProva::DisponiInvio() {
    cmbAccount->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto* invio = new QGridLayout;
    invio->setSpacing(ui::controlSpacing);
    invio->setColumnStretch(1, 1);
    invio->addWidget(lblAccount, 0, 0);
    invio->addWidget(cmbAccount, 0, 1);
    invio->addWidget(lblIndirizzo, 1, 0);
    invio->addWidget(txtIndirizzo, 1, 1);
    return invio;
}

void frmProva::CollegaEtichette() {
    ui::bindLabel(lblFile, cmbFile);
    ui::bindLabel(lblDestinatario, txtDestinatario);
    ui::bindLabel(lblCerca, txtCerca);
    ui::bindLabel(lblOggetto, txtOggetto);
    ui::bindLabel(lblRilievi, lstRilievi);
    ui::bindLabel(lblAccount, cmbAccount);
    ui::bindLabel(lblIndirizzo, txtIndirizzo);
    cmdFile->setAccessibleName(Words::tr("Sfoglia il messaggio"));
    cmdCerca->setAccessibleName(Words::tr("Cerca il destinatario"));
    HTML->setAccessibleName(Words::tr("Messaggio in HTML"));
    TESTO->setAccessibleName(Words::tr("Messaggio di solo testo"));
    schede->setAccessibleName(Words::tr("Forme del messaggio"));
    cmdPrecedente->setAccessibleDescription(
        Words::tr("Mostra il messaggio del destinatario selezionato precedente"));
    cmdSuccessivo->setAccessibleDescription(
        Words::tr("Mostra il messaggio del destinatario selezionato successivo"));
    cmdAnnulla->setAccessibleDescription(Words::tr("Interrompe l'invio della copia di prova"));
    cmdVai->setAccessibleDescription(Words::tr("Mostra il primo destinatario di questo rilievo"));
}

void frmProva::CollegaEventi() {
    alClick(cmdFile, this, &frmProva::cmdFile_Click);
    alClick(cmdPrecedente, this, [this] { MostraDestinatario(riga - 1); });
    alClick(cmdSuccessivo, this, [this] { MostraDestinatario(riga + 1); });
    alClick(cmdCerca, this, &frmProva::Cerca);
    alClick(cmdVai, this, &frmProva::VaiAlPrimo);
    alClick(cmdInviaProva, this, &frmProva::cmdInviaProva_Click);
    alClick(cmdAnnulla, this, &frmProva::AnnullaInvio);
    alClick(cmdChiudi, this, &frmProva::Lascia);
    connect(cmbFile, &QComboBox::activated, this, [this] { evento([this] { UsaFile(); }); });
    connect(cmbAccount, &QComboBox::activated, this, [this] { evento([this] { UsaAccount(); }); });
    connect(txtCerca, &QLineEdit::returnPressed, this, [this] { evento([this] { Cerca(); }); });
    connect(lstRilievi, &QListWidget::currentRowChanged, this, [this] { evento([this] { AbilitaVai(); }); });
    connect(lstRilievi, &QListWidget::itemActivated, this, [this] { evento([this] { VaiAlPrimo(); }); });
    connect(tmrControllo, &QTimer::timeout, this, [this] { evento([this] { ContinuaControllo(); }); });
    connect(tmrRicerca, &QTimer::timeout, this, [this] { evento([this] { ContinuaRicerca(); }); });
    connect(prova, &mail::DeliveryControl::SendDone, this, [this] { evento([this] { FineInvio(true); }); });
    connect(prova, &mail::DeliveryControl::SendError, this, [this] { evento([this] { FineInvio(false); }); });
}

void frmProva::Racconta(QLabel& dove, const QString& testo) {
    dove.setText(testo);
    if (!testo.isEmpty()) voce->say(testo);
}
