// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/import/RiquadroCampi.h"

#include <algorithm>
#include <QAbstractItemView>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

#include "modules/store/Destinatario.h"
#include "platform/text/Words.h"
#include "platform/ui/Controls.h"

namespace {

constexpr int colonneGriglia = 5;

void segnaObbligatorio(QComboBox& box) {
    const QColor giallo(255, 255, 204);
    QPalette tavolozza = box.palette();
    for (const auto ruolo : {QPalette::Base, QPalette::Button})
        tavolozza.setColor(ruolo, giallo);
    box.setPalette(tavolozza);
    box.setAccessibleDescription(Words::tr("obbligatorio"));
}

}  // namespace

RiquadroCampi::RiquadroCampi(QWidget* parent) : QWidget(parent), griglia(new QGridLayout(this)) {
    griglia->setContentsMargins(0, 0, 0, 0);
    griglia->setHorizontalSpacing(ui::controlSpacing);
    griglia->setVerticalSpacing(ui::controlSpacing / 4);
    for (int i = 0; i < campi::quanti; ++i) {
        const int numero = campi::etichette[static_cast<std::size_t>(i)];
        const QString testo = destinatario::Didascalia(campi::colonne[static_cast<std::size_t>(i)]) + ':';
        auto* etichetta = ui::named(new QLabel(testo, this), QString("lblcmp(%1)").arg(numero));
        auto* box = ui::named(new QComboBox(this), QString("cmbCmp(%1)").arg(i));
        box->setMinimumHeight(ui::fieldHeight);
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(8);
        ui::bindLabel(etichetta, box);
        lblcmp[static_cast<std::size_t>(numero)] = etichetta;
        boxes[static_cast<std::size_t>(i)] = box;
        const int riga = i / colonneGriglia * 3;
        griglia->addWidget(etichetta, riga, i % colonneGriglia);
        griglia->addWidget(box, riga + 1, i % colonneGriglia);
        if (riga > 0) griglia->setRowMinimumHeight(riga - 1, ui::controlSpacing / 2);
    }
    for (int colonna = 0; colonna < colonneGriglia; ++colonna)
        griglia->setColumnStretch(colonna, 1);
    segnaObbligatorio(cmbCmp(campi::boxEmail));
}

/// The language file may have changed the labels: the widest asks for the width of all columns.
void RiquadroCampi::showEvent(QShowEvent* mostra) {
    QWidget::showEvent(mostra);
    int larghezza = boxes[0]->minimumSizeHint().width();
    for (const QLabel* etichetta : lblcmp)
        larghezza = std::max(larghezza, etichetta->minimumSizeHint().width());
    for (int colonna = 0; colonna < colonneGriglia; ++colonna)
        griglia->setColumnMinimumWidth(colonna, larghezza);
}

void RiquadroCampi::Svuota() {
    for (QComboBox* box : boxes)
        box->clear();
}

void RiquadroCampi::Aggiungi(const QString& voce) {
    for (QComboBox* box : boxes)
        box->addItem(voce);
}

void RiquadroCampi::ScegliPrima() {
    for (QComboBox* box : boxes) {
        box->setCurrentIndex(0);
        box->view()->setMinimumWidth(box->view()->sizeHintForColumn(0) + 2 * ui::windowMargin);
    }
}
