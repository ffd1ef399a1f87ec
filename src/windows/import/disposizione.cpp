// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/import/disposizione.h"

#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "platform/ui/Controls.h"
#include "windows/import/RiquadroCampi.h"
#include "windows/import/RiquadroCartella.h"

namespace {

QGridLayout* DisponiSorgente(std::initializer_list<RigaSorgente> sorgente) {
    auto* griglia = new QGridLayout;
    griglia->setSpacing(ui::controlSpacing);
    griglia->setColumnStretch(1, 1);
    int riga = 0;
    for (const auto& [etichetta, campo, pulsante] : sorgente) {
        ui::bindLabel(etichetta, campo);
        campo->setMinimumHeight(ui::fieldHeight);
        griglia->addWidget(etichetta, riga, 0);
        griglia->addWidget(campo, riga, 1);
        if (pulsante) griglia->addWidget(pulsante, riga, 2);
        ++riga;
    }
    return griglia;
}

}  // namespace

void DisponiImportazione(QDialog& finestra, std::initializer_list<RigaSorgente> sorgente,
                         RiquadroCampi* campi, RiquadroCartella& cartella,
                         std::initializer_list<QPushButton*> comandi) {
    auto* righe = new QVBoxLayout(&finestra);
    righe->setContentsMargins(ui::windowMargin, ui::windowMargin, ui::windowMargin, ui::windowMargin);
    righe->setSpacing(ui::windowMargin);
    if (campi) {
        righe->addLayout(DisponiSorgente(sorgente));
        righe->addWidget(campi);
        righe->addWidget(ui::separatorLine(&finestra));
    }
    righe->addWidget(&cartella);
    righe->addStretch();
    auto* pulsanti = new QHBoxLayout;
    pulsanti->setSpacing(ui::controlSpacing);
    pulsanti->addStretch();
    for (QPushButton* comando : comandi)
        pulsanti->addWidget(comando);
    righe->addLayout(pulsanti);
}
