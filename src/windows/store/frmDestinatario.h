// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <QStringList>

#include "platform/ui/LateDialog.h"

class QLabel;
class QLineEdit;
class QPushButton;
namespace ui {
class PropertyList;
}

/// The form in which one recipient is added to the current group or the recipient of the grid's current row
/// is edited. The caller sets the captions, the two numbers and `modo` before showing it.
class frmDestinatario : public ui::LateDialog {
    Q_OBJECT

  public:
    explicit frmDestinatario(QWidget* parent = nullptr);

    /// All items empty, "Spedire" ticked. Unguarded.
    void PulisciCampi();
    /// Loads a recipient into the items. Unguarded: fails for one that does not exist.
    void CaricaUser(std::int32_t id);

    /// The window is left by its buttons only: Esc has no effect.
    void reject() override {}

    bool salvataggioFallito =
        false;              ///< how the last opening ended; where it was not saved, the items keep the texts
    std::int16_t modo = 0;  ///< 0 a new recipient, 1 an edited one
    QLineEdit* txtIDuser;   ///< hidden: number of the edited recipient
    QLineEdit* txtIDgroup;  ///< hidden: number of the group
    QLabel* lbl;            ///< heading
    ui::PropertyList* prp;
    QPushButton* cdmSalva;
    QPushButton* cmdAnnulla;

  protected:
    void makeControls() override;
    void closeEvent(QCloseEvent* chiusura) override;
    void showEvent(QShowEvent* mostra) override;

  private:
    void CreaVoci();

    QStringList
        didascalie;  ///< of the items, in the order of the form, as they were when the window was made

    // frmDestinatario_salva.cpp
    bool ValidaCampi();
    void cdmSalva_Click();
    QString ComandoNuovo() const;
    QString ComandoModifica() const;
    void AggiornaGriglia();
};
