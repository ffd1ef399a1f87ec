// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ui/LateDialog.h"
#include "windows/import/cartella.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class RiquadroCampi;
class RiquadroCartella;

/// The window of the Access import: one recipient for each record of a table with a valid address. It
/// stays loaded and keeps its fields between imports; it is left by cmdChiudi, or by an import that reached
/// its end.
///
/// cmdApri lists the tables and chooses the first one; only that one can be imported, since choosing another
/// table turns the import button off.
class frmImpDB : public ui::LateDialog {
    Q_OBJECT

  public:
    explicit frmImpDB(cartella::NuovoNodo nuovoNodo, QWidget* parent = nullptr);

    void reject() override {}

  protected:
    void makeControls() override;
    void closeEvent(QCloseEvent* chiusura) override;

  private:
    // frmImpDB.cpp: the window
    void CollegaEventi();
    void AbilitaImportazione(bool valore);
    void cmdSfoglia_Click();

    // frmImpDB_importa.cpp: tables, columns and records of the source
    QString ConnessioneSorgente() const;
    void ElencaTabelle();
    void cmbTab_Click();
    void cmdImportaDB_Click();

    const cartella::NuovoNodo NuovoNodo;
    QLabel* lblDatabase;
    QLineEdit* txtDatabase;
    QPushButton* cmdSfoglia;
    QLabel* lblPassword;
    QLineEdit* txtPassword;
    QPushButton* cmdApri;
    QLabel* lblTabelle;
    QComboBox* cmbTab;
    RiquadroCampi* riquadroCampi;
    RiquadroCartella* riquadroCartella;
    QPushButton* cmdImportaDB;
    QPushButton* cmdChiudi;
};
