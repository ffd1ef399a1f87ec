#pragma once

#include <QMainWindow>

namespace ado {
class Recordset;
}

/// The main window: the doorway to everything else. All of its commands come through ComandoPremuto.
class frmMain : public QMainWindow {
    Q_OBJECT

  public:
    frmMain();

    /// Runs the command of that name; a name that is not known has no effect. Unguarded. While one command
    /// runs, further ones are ignored.
    void ComandoPremuto(const QString& nome);

  protected:
    /// Every way of closing the window ends the program.
    void closeEvent(QCloseEvent* chiusura) override;

  private:
    void CreaMenu();
    void cmdInvia(ado::Recordset& rs);

    bool comandoInCorso = false;
};

/// Sets the caption of the main window: the product's name and version.
void TitoloPrincipale();
