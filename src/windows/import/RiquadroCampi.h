// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <QWidget>

#include "modules/import/campi.h"

class QComboBox;
class QGridLayout;
class QLabel;

/// The 19 boxes "cmbCmp(n)" with their labels "lblcmp(n)" above them: four rows of five, the last of four, in
/// columns of equal width.
class RiquadroCampi : public QWidget {
  public:
    explicit RiquadroCampi(QWidget* parent);

    QComboBox& cmbCmp(int indice) const { return *boxes[static_cast<std::size_t>(indice)]; }
    void Svuota();
    /// Adds an entry to every box.
    void Aggiungi(const QString& voce);
    /// Shows the first entry in every box.
    void ScegliPrima();

  protected:
    void showEvent(QShowEvent* mostra) override;

  private:
    QGridLayout* griglia;
    std::array<QLabel*, campi::quanti> lblcmp;
    std::array<QComboBox*, campi::quanti> boxes;
};
