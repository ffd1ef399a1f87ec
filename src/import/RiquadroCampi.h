#pragma once

#include <array>
#include <QWidget>

#include "import/campi.h"

class QComboBox;
class QLabel;

/// The 19 boxes "cmbCmp(n)" with their labels "lblcmp(n)" above them: four rows of five, the last of four.
class RiquadroCampi : public QWidget {
  public:
    explicit RiquadroCampi(QWidget* parent);

    QComboBox& cmbCmp(int indice) const { return *boxes[static_cast<std::size_t>(indice)]; }
    void Svuota();
    /// Adds an entry to every box.
    void Aggiungi(const QString& voce);
    /// Shows the first entry in every box.
    void ScegliPrima();

  private:
    std::array<QLabel*, campi::quanti> lblcmp;
    std::array<QComboBox*, campi::quanti> boxes;
};
