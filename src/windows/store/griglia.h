// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <QString>

#include "modules/store/Schema.h"

namespace ado {
class Command;
}
class frmDestinatario;
namespace ui {
class DataGrid;
}
struct Principale;

/// The recipient grid of the main window: how it is filled, and what a user does in it. It has no model of
/// its own: each write goes to the table as a statement, and the cell on the screen is changed to match.
namespace griglia {

// The columns of the grid, once they were rearranged after a fill: after the leading one the recipient's
// number, "sel", the address, the number of the group, then the other texts in the order of the table.
inline constexpr int colonnaId = 1;
inline constexpr int colonnaSel = 2;
inline constexpr int colonnaEmail = 3;
inline constexpr int primaColonnaTradotta = 5;

/// The column of a text.
constexpr int ColonnaDi(schema::Campo campo) {
    if (campo == schema::email) return colonnaEmail;
    return primaColonnaTradotta + static_cast<int>(campo) - (campo > schema::email ? 1 : 0);
}

/// What grid and form call a text: from the language file, but for the address.
QString Intestazione(schema::Campo campo);

/// Gives the grid of the main window its first widths, its events and its pop-up menu. To be called first, by
/// each main window when it has its grid, its data control and its command bars.
void Collega(const Principale& finestra);

/// The grid, and the form of its recipients.
ui::DataGrid& grd();
frmDestinatario& Destinatario();

/// Fills the grid with the recipients of the current node. Unguarded.
void RiempiGriglia();
/// Number of the group with which the grid was filled last.
std::int32_t CartellaMostrata();
/// Refills the grid with what its data control asked for last. Unguarded. Where that is not the current
/// group, because it could not be read, the rows stay covered.
void RinfrescaGriglia();

/// To be called when a click on a node could not fill the grid: says so over the rows that it still shows.
void SegnaNonLetta();
/// Updates the sentence over an empty grid: an import adds rows without the grid.
void AggiornaFrase();
/// Marks the current row as one that is to move; returns the recipient's address.
QString SegnaRiga();
/// Makes the recipient's row the current one, if the grid shows it.
void ScegliRiga(const QString& id);

/// Number of the recipient in the current row. Unguarded: fails where there is no such row.
QString idCorrente();

/// Name of the pop-up menu whose commands keys start in the grid at this moment; empty for none, also where
/// the current node is not the one that the tree shows as selected.
QString MenuOra();

}  // namespace griglia

/// The recipient commands of the pop-up menus. Where the group of nodoCorrente was removed a recipient is
/// neither added to it nor edited. Unguarded.
namespace comandiDestinatario {

/// Opens the recipient form, modally, for a new recipient in the current group.
void Nuovo();
/// Opens the recipient form, modally, on the recipient of the current row.
void Modifica();
/// Asks, then deletes the recipient of the current row.
void Elimina(ado::Command& comando);

}  // namespace comandiDestinatario
