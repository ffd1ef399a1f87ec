#pragma once

#include <QString>

namespace ado {
class Command;
}
class frmMain;

/// The recipient grid of the main window: how it is filled, and what a user does in it. It has no model of
/// its own: each write goes to the table as a statement, and the cell on the screen is changed to match.
namespace griglia {

/// Gives the grid its first widths, its events and its pop-up menu. Once, when the main window has its grid,
/// its data control and its command bars.
void Collega(frmMain& principale);

/// Fills the grid with the recipients of the current node. Unguarded.
void RiempiGriglia();
/// Fills the grid anew with what its data control asked for last. Unguarded.
void RinfrescaGriglia();

/// Number of the recipient in the current row. Unguarded: fails where there is no such row.
QString idCorrente();

/// Name of the pop-up menu that belongs to the grid at this moment; empty for none.
QString MenuOra();

}  // namespace griglia

/// The recipient commands of the pop-up menus. Unguarded.
namespace comandiDestinatario {

/// Opens the recipient form, modally, for a new recipient in the current group.
void Nuovo();
/// Opens the recipient form, modally, on the recipient of the current row.
void Modifica();
/// Asks, then deletes the recipient of the current row.
void Elimina(ado::Command& comando);

}  // namespace comandiDestinatario
