#pragma once

#include <QDialog>

#include "platform/Status.h"

class QLabel;
class QPushButton;
namespace ui {
class PropertyList;
}

/// Margins, colours and background image of the message page, all of them attributes of the body element.
/// Saving writes every one, changed or not, and never marks the message as changed.
class frmPropBody : public QDialog {
    Q_OBJECT

  public:
    explicit frmPropBody(QWidget* parent = nullptr);

    /// Fills the list from the document of the design view. Fails where that does not answer.
    Status PrendiValori();

    /// The window is left by its buttons only: Esc has no effect.
    void reject() override {}

    QLabel* lbl;  ///< heading
    ui::PropertyList* prp;
    QPushButton* cdmSalva;
    QPushButton* cmdAnnulla;

  protected:
    void closeEvent(QCloseEvent* chiusura) override;
    void showEvent(QShowEvent* mostra) override;

  private:
    Status Scrivi();
    void cdmSalva_Click();
};
