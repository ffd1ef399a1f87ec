// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ui/LateDialog.h"
#include "windows/import/cartella.h"

class QPushButton;
class RiquadroCartella;

/// The question of the imports that have no window of their own: into which group do the new recipients go?
/// The window keeps its last choice and name. It is left by its two buttons only.
class frmScelta : public ui::LateDialog {
    Q_OBJECT

  public:
    explicit frmScelta(QWidget* parent = nullptr);

    bool cartellaSelezionata = true;  ///< set by cmdOK: use nodoCorrente
    bool sceltaAnnullata = true;      ///< the whole import stops

    /// The choice as it was confirmed.
    cartella::Scelta Scelta() const;

    void reject() override {}

  protected:
    void makeControls() override;
    void closeEvent(QCloseEvent* chiusura) override;

  private:
    void cmdOK_Click();
    void cmdAnnulla_Click();

    RiquadroCartella* riquadro;
    QPushButton* cmdOK;
    QPushButton* cmdAnnulla;
};
