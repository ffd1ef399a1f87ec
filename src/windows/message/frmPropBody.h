// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Status.h"
#include "platform/ui/LateDialog.h"

class QLabel;
class HtmlView;
class QPushButton;
namespace ui {
class PropertyList;
class SourceEdit;
}  // namespace ui

/// Margins, colours and background image of the message page, all of them attributes of the body element.
/// Saving writes every one, changed or not, and never marks the message as changed.
class frmPropBody : public ui::LateDialog {
    Q_OBJECT

  public:
    /// The page of `vista`; saving shows its new text in `origine`. Both outlive the window.
    frmPropBody(HtmlView& vista, ui::SourceEdit& origine, QWidget* parent = nullptr);

    /// Fills the list from the document of the design view. Fails where that does not answer.
    Status PrendiValori();

    /// The window is left by its buttons only: Esc has no effect.
    void reject() override {}

    QLabel* lbl;  ///< heading
    ui::PropertyList* prp;
    QPushButton* cdmSalva;
    QPushButton* cmdAnnulla;

  protected:
    void makeControls() override;
    void closeEvent(QCloseEvent* chiusura) override;
    void showEvent(QShowEvent* mostra) override;

  private:
    Status Scrivi();
    void cdmSalva_Click();

    HtmlView& DHTML;
    ui::SourceEdit& CODE;
};
