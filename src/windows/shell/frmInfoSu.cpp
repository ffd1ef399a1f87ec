// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/shell/frmInfoSu.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "modules/core/bFunctions.h"
#include "modules/core/Prodotto.h"
#include "platform/text/Words.h"
#include "platform/ui/DialogFrame.h"
#include "platform/ui/LinkLabel.h"
#include "windows/core/bTheme.h"
#include "windows/core/Evento.h"
#include "windows/shell/Insegna.h"

frmInfoSu::frmInfoSu(QWidget* parent) : QDialog(parent) {
    setObjectName("frmInfoSu");
    setWindowTitle("Info su...");
    RilevaTema(this);
    QVBoxLayout* colonna = CreaInsegna(*this);
    colonna->addSpacing(16);
    CreaCollegamento(*colonna, "Link", prodotto::paginaWeb(), prodotto::paginaWeb());
    CreaCollegamento(*colonna, "MailTo", prodotto::indirizzoPosta(), prodotto::collegamentoPosta());
    colonna->addStretch();
    auto* lblChiudi = new QLabel(Words::tr("Per chiudere: Esc o un clic"));
    lblChiudi->setObjectName("lblChiudi");
    lblChiudi->setMargin(4);
    QPalette tavolozza = lblChiudi->palette();
    tavolozza.setColor(QPalette::WindowText, misto(20, 0, 165));
    lblChiudi->setPalette(tavolozza);
    colonna->addWidget(lblChiudi);
    resize(QSize(420, 240).expandedTo(sizeHint()));
    ui::setUpDialog(*this);
}

void frmInfoSu::CreaCollegamento(QVBoxLayout& colonna, const char* nome, const QString& testo,
                                 const QString& destinazione) {
    auto* collegamento = new ui::LinkLabel(testo);
    collegamento->setObjectName(nome);
    colonna.addWidget(collegamento, 0, Qt::AlignLeft);
    connect(collegamento, &ui::LinkLabel::activated, this, [destinazione] {
        evento([&] {
            Prosegui prosegui;
            prosegui([&] { ApriShell(destinazione); });
        });
    });
}

void frmInfoSu::closeEvent(QCloseEvent* chiusura) {
    chiusura->ignore();
}

void frmInfoSu::mouseReleaseEvent(QMouseEvent*) {
    hide();
}

void frmInfoSu::keyPressEvent(QKeyEvent* tasto) {
    const auto chiavi = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space};
    if (std::find(chiavi.begin(), chiavi.end(), tasto->key()) == chiavi.end())
        QDialog::keyPressEvent(tasto);
    else
        hide();
}

void frmInfoSu::showEvent(QShowEvent* mostra) {
    QDialog::showEvent(mostra);
    // Return hides the window unless the user has gone to a link.
    setFocus();
}
