// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ui/LateDialog.h"
#include "windows/import/cartella.h"

class QLabel;
class QLineEdit;
class QPushButton;
class RiquadroCampi;
class RiquadroCartella;
struct RigaTesto;

/// The window of the text import: one recipient for each line of a delimited text file with a valid
/// address. It stays loaded and keeps its fields between imports; it is left by cmdChiudi, or by an import
/// that went through.
class frmImpTXT : public ui::LateDialog {
    Q_OBJECT

  public:
    explicit frmImpTXT(cartella::NuovoNodo nuovoNodo, QWidget* parent = nullptr);

    void reject() override {}

  protected:
    void makeControls() override;
    void closeEvent(QCloseEvent* chiusura) override;

  private:
    void Carica();
    void CollegaEventi();
    void cmdSfoglia_Click();
    void cmbCmp_Click();
    void cmdImportaTXT_Click();
    RigaTesto Regola() const;

    const cartella::NuovoNodo NuovoNodo;
    QLabel* lblPercorso;
    QLineEdit* txtPath;
    QPushButton* cmdSfoglia;
    QLabel* lblSeparatore;
    QLineEdit* txtSep;
    RiquadroCampi* riquadroCampi;
    RiquadroCartella* riquadroCartella;
    QPushButton* cmdImportaTXT;
    QPushButton* cmdChiudi;
};
