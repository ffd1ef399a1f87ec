// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QDialog>

#include "modules/send/Esiti.h"

class EsitiFiltro;
class EsitiModello;
class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QTableView;

/// "Esito degli invii...": what became of each recipient of the last runs.
class frmEsiti : public QDialog {
    Q_OBJECT

  public:
    /// `riempiGriglia` refills the grid after the selection was changed. Unguarded.
    explicit frmEsiti(std::function<void()> riempiGriglia, QWidget* parent = nullptr);

    /// Reads which runs there are, and shows the newest.
    void Carica();

  private:
    // frmEsiti.cpp: the window and what it shows
    void CreaControlli();
    void Disponi();
    QLayout* DisponiFiltri();
    QLayout* DisponiComandi();
    void CollegaEventi();
    void cmbInvio_Click();
    void RiempiFiltri();
    void AggiornaFiltro();
    void AggiornaComandi();
    QString Riassunto() const;

    // frmEsiti_comandi.cpp: what the buttons do
    void cmdCopia_Click();
    void cmdSalva_Click();
    void cmdSeleziona_Click();
    void cmdDeseleziona_Click();
    void cmdElimina_Click();
    void cmdEliminaTutti_Click();
    void chkRegistro_Click();
    void Cambia(const QList<esiti::Riga>& righe, bool selezionati);
    QList<esiti::Riga> Mostrate() const;
    /// What the user has marked in the table, or everything that is shown where that is one row or none.
    QList<esiti::Riga> Scelte() const;

    const std::function<void()> RiempiGriglia;
    QComboBox* cmbInvio;
    QPushButton* cmdElimina;
    QPushButton* cmdEliminaTutti;
    QComboBox* cmbEsito;
    QComboBox* cmbMotivo;
    QLineEdit* txtCerca;
    QTableView* tabella;
    QLabel* lblRiassunto;
    QCheckBox* chkRegistro;
    QPushButton* cmdSeleziona;
    QPushButton* cmdDeseleziona;
    QPushButton* cmdCopia;
    QPushButton* cmdSalva;
    QPushButton* cmdChiudi;
    EsitiModello* modello;
    EsitiFiltro* filtro;
    esiti::Invio invio;  ///< the run on show, its rows excepted
    QString guasto;      ///< why it cannot be read
};
