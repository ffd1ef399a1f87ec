// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <QString>

class frmDestinatario;
class frmGruppi;
namespace ui {
class CommandBars;
class DataControl;
class DataGrid;
}  // namespace ui

/// What the tree, the grid and their commands need of their main window. It passes this on
/// when it makes them, and outlives them. Each of the three calls the others: a click on the tree fills the
/// grid, a drop from the grid changes the tree, and what commands can be started depends on both.
struct Principale {
    ui::DataGrid& grd;
    ui::DataControl& Adodc;
    ui::CommandBars& Commands;
    std::function<frmGruppi&()> Gruppi;  ///< fails while the tree is not there
    std::function<frmDestinatario&()> Destinatario;
    std::function<void()> SvuotaGriglia;
    std::function<void()> AggiornaComandi;  ///< to be called after the current node or the rows have changed
    std::function<bool()> ComandoInCorso;   ///< the handler of a command runs; nothing else may begin
    std::function<std::optional<QString>()> ChiediDatabase;  ///< none when the user gave up
    std::function<void(const QString& percorso)> CambiaDatabase;
};
