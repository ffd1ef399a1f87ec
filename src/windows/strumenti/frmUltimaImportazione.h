// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QComboBox;
class QLabel;
class QPushButton;
class QTreeWidget;
class UltimaImportazione;

/// The window "Ultima importazione...": which lines of the last import came in, and why the others did not.
/// It shows what is in memory and changes nothing.
class frmUltimaImportazione : public QDialog {
    Q_OBJECT

  public:
    explicit frmUltimaImportazione(QWidget* parent = nullptr);

    /// To be called before each opening.
    void Mostra(const UltimaImportazione& resoconto);

    QLabel* const lblRiassunto;
    QComboBox* const cmbMostra;
    QTreeWidget* const lstRighe;
    QPushButton* const cmdCopia;
    QPushButton* const cmdChiudi;

  private:
    void Filtra();
    void Copia() const;
};
