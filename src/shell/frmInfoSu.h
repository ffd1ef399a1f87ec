#pragma once

#include <QDialog>

/// The about window: name and version of the program, its web site and its mail address. A click, or Return
/// or the space bar, hides it; nothing else does.
class frmInfoSu : public QDialog {
    Q_OBJECT

  public:
    explicit frmInfoSu(QWidget* parent = nullptr);

    /// Esc has no effect.
    void reject() override {}

  protected:
    void closeEvent(QCloseEvent* chiusura) override;
    void mouseReleaseEvent(QMouseEvent* rilascio) override;
    void keyPressEvent(QKeyEvent* tasto) override;
    void showEvent(QShowEvent* mostra) override;

  private:
    void CreaCollegamento(class QVBoxLayout& colonna, const char* nome, const QString& testo,
                          const QString& destinazione);
};
