// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/import/RiquadroCartella.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "modules/store/nodo.h"
#include "platform/ui/Controls.h"
#include "platform/ui/LineEdit.h"
#include "windows/core/bTheme.h"
#include "windows/core/Evento.h"

RiquadroCartella::RiquadroCartella(const QString& nomeEtichetta, QWidget* parent)
    : QWidget(parent),
      lbl(ui::named(new QLabel("Come vuoi inserire i nuovi destinatari?", this), nomeEtichetta)),
      opt{ui::named(new QRadioButton("Aggiungi i destinatari nella cartella selezionata.", this), "opt(0)"),
          ui::named(new QRadioButton("Aggiungi i destinatari in una nuova cartella.", this), "opt(1)")},
      txtCartella(ui::named(new ui::LineEdit("Nuova cartella", this), "txtCartella")) {
    opt[0]->setChecked(true);
    txtCartella->setEnabled(false);
    txtCartella->setMinimumSize(ui::scaledToFont(*this, ui::fieldWidth), ui::fieldHeight);
    lbl->setBuddy(opt[0]);
    for (QRadioButton* opzione : opt) {
        opzione->setAccessibleName(ui::spokenCaption(opzione->text()));
        opzione->setMinimumHeight(ui::fieldHeight);
        QPalette tavolozza = opzione->palette();
        tavolozza.setColor(QPalette::Window, coloreTema(0));
        opzione->setPalette(tavolozza);
        opzione->setBackgroundRole(QPalette::Window);
        opzione->setAutoFillBackground(true);
        connect(opzione, &QRadioButton::clicked, this, [this] { evento([this] { opt_Click(); }); });
    }
    auto* griglia = new QGridLayout(this);
    griglia->setContentsMargins(0, 0, 0, 0);
    griglia->setHorizontalSpacing(ui::controlSpacing);
    griglia->setVerticalSpacing(ui::controlSpacing / 2);
    griglia->setColumnStretch(1, 1);
    griglia->addWidget(lbl, 0, 0, 1, 2);
    griglia->addWidget(opt[0], 1, 0, 1, 2);
    griglia->addWidget(opt[1], 2, 0);
    griglia->addWidget(txtCartella, 2, 1);
}

/// The box of the name has no caption of its own: it is called after its option, whose text the language file
/// may have changed. Its limit is that of the column in the current database.
void RiquadroCartella::showEvent(QShowEvent* mostra) {
    QWidget::showEvent(mostra);
    txtCartella->setMaxLength(LarghezzaNomeGruppo());
    txtCartella->setAccessibleName(ui::spokenCaption(opt[1]->text()));
}

void RiquadroCartella::opt_Click() {
    txtCartella->setEnabled(opt[1]->isChecked());
}

cartella::Scelta RiquadroCartella::Scelta() const {
    return {opt[0]->isChecked(), txtCartella->text()};
}
