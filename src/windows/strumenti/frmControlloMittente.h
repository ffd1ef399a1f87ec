// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include "modules/accounts/AccountFile.h"
#include "modules/strumenti/ControlloMittente.h"

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTableWidget;

namespace ui {
class Announcer;
}

/// The check of a sender: what receivers find out about the account's domain and server, a line each, with
/// what to do about it. Nothing begins before cmdControlla; Esc ends a check that is under way.
class frmControlloMittente : public QDialog {
    Q_OBJECT

  public:
    explicit frmControlloMittente(QWidget* parent = nullptr);

    /// Reads the accounts again. A file that is missing or damaged yields those before the damage, or none,
    /// which the window reports.
    void CaricaDati();

    /// Esc: ends the check; the window stays.
    void reject() override;

  protected:
    void closeEvent(QCloseEvent* chiusura) override;

  private:
    // frmControlloMittente_aspetto.cpp: controls, places, names
    void CreaControlli();
    void DisponiControlli();
    void CollegaEventi();

    // frmControlloMittente.cpp
    void cmdControlla_Click();
    void cmdChiave_Click();
    void cmdCopia_Click();
    void cmdChiudi_Click();
    void Interrompi();
    void RiempiRighe();
    void ScriviRiga(int riga);
    void MostraDettagli();
    void Finito();
    void AbilitaControlli();
    /// Shows it and reports it to assistive programs.
    void Avvisa(const QString& frase);
    const Account* Scelto() const;
    QString Rapporto() const;

    TabellaAccount account;
    ControlloMittente controllo;

    QLabel* lblAccount;
    QComboBox* cmbAccount;
    QPushButton* cmdControlla;
    QPushButton* cmdInterrompi;
    QTableWidget* grdRighe;
    QLabel* lblEsito;
    QLabel* lblDettagli;
    QPlainTextEdit* txtDettagli;
    QPushButton* cmdChiave;
    QPushButton* cmdCopia;
    QPushButton* cmdChiudi;
    ui::Announcer* annuncio;
};
