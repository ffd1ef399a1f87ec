// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/strumenti/frmChiaveDkim.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "modules/strumenti/RecordChiave.h"
#include "platform/mail/DkimKey.h"
#include "platform/text/Words.h"
#include "platform/ui/Announcer.h"
#include "platform/ui/Controls.h"
#include "platform/ui/DialogForm.h"
#include "platform/ui/DialogFrame.h"
#include "windows/core/bTheme.h"
#include "windows/core/Evento.h"

namespace {

QLineEdit* campoFermo(const char* nome, const QString& testo, QWidget* finestra) {
    QLineEdit* const campo = ui::textField(nome, finestra);
    campo->setText(testo);
    campo->setReadOnly(true);
    return campo;
}

QPlainTextEdit* testoFermo(const char* nome, const QString& testo, QWidget* finestra) {
    auto* campo = ui::named(new QPlainTextEdit(testo, finestra), nome);
    campo->setReadOnly(true);
    campo->setTabChangesFocus(true);
    campo->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    campo->setWordWrapMode(QTextOption::WrapAnywhere);
    campo->setFixedHeight(campo->fontMetrics().lineSpacing() * 8 + ui::windowMargin);
    return campo;
}

}  // namespace

frmChiaveDkim::frmChiaveDkim(const QByteArray& dominio, const mail::DkimKey& chiave, bool nuova,
                             QWidget* parent)
    : QDialog(parent), annuncio(new ui::Announcer(this)) {
    setObjectName("frmChiaveDkim");
    setWindowTitle(Words::tr(" Chiave DKIM di %1").arg(QString::fromLatin1(dominio)));
    RilevaTema(this);
    const RecordChiave record = RecordDi(dominio, chiave);
    ui::DialogForm modulo(this);
    auto* spiegazione = ui::named(
        new QLabel(
            nuova ? Words::tr(
                        "La chiave è stata creata. Pubblicare nel DNS del dominio un record TXT con questo "
                        "nome e questo valore, poi premere Controlla.")
                  : Words::tr("Il dominio ha già una chiave, che resta com'è. Questo è il record TXT da "
                              "pubblicare nel "
                              "suo DNS."),
            this),
        "lblSpiegazione");
    spiegazione->setWordWrap(true);
    setAccessibleDescription(spiegazione->text());
    modulo.addField({}, spiegazione);
    modulo.addField(Words::tr("Selettore:"),
                    campoFermo("txtSelettore", QString::fromLatin1(chiave.selector), this));
    modulo.addField(Words::tr("Nome del record:"), campoFermo("txtNome", record.nome, this));
    modulo.addField(Words::tr("Valore:"), testoFermo("txtValore", record.valore, this));
    modulo.addField(Words::tr("Riga per un file di zona:"), testoFermo("txtZona", record.rigaDiZona, this));
    const auto copia = [&](const QString& didascalia, const char* nome, const QString& testo,
                           const QString& detto) {
        QPushButton* const pulsante = modulo.addButton(didascalia, nome);
        connect(pulsante, &QPushButton::clicked, this, [this, testo, detto] {
            evento([&] {
                QGuiApplication::clipboard()->setText(testo);
                annuncio->say(detto);
            });
        });
        return pulsante;
    };
    copia(Words::tr("Copia &nome"), "cmdCopiaNome", record.nome, Words::tr("Il nome è negli appunti."));
    QPushButton* const valore = copia(Words::tr("Copia &valore"), "cmdCopiaValore", record.valore,
                                      Words::tr("Il valore è negli appunti."));
    copia(Words::tr("Copia riga di &zona"), "cmdCopiaZona", record.rigaDiZona,
          Words::tr("La riga è negli appunti."));
    QPushButton* const cmdChiudi = modulo.addButton(Words::tr("&Chiudi"), "cmdChiudi");
    alClick(cmdChiudi, this, &QDialog::accept);
    modulo.finish(valore, 680);
    valore->setFocus();
    ui::setUpDialog(*this);
}
