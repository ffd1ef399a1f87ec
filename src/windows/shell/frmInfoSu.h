// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

/// The about window: name and version of the program, its web site and its mail address. A click, or Esc,
/// Return or the space bar, hides it; its title bar does not.
class frmInfoSu : public QDialog {
    Q_OBJECT

  public:
    explicit frmInfoSu(QWidget* parent = nullptr);

    /// What Esc does.
    void reject() override { hide(); }

  protected:
    void closeEvent(QCloseEvent* chiusura) override;
    void mouseReleaseEvent(QMouseEvent* rilascio) override;
    void keyPressEvent(QKeyEvent* tasto) override;
    void showEvent(QShowEvent* mostra) override;

  private:
    void CreaCollegamento(class QVBoxLayout& colonna, const char* nome, const QString& testo,
                          const QString& destinazione);
};
