// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace ado {
class Command;
class Recordset;
}  // namespace ado
class frmGruppi;

/// The group commands of the pop-up menus. They act on nodoCorrente and its node in the tree, with the
/// recordset and the command that the main window has prepared for the event. Those of a node that was
/// removed do nothing. Unguarded.
namespace comandiGruppo {

/// A new group inside the current one.
void Nuovo(frmGruppi& gruppi, ado::Recordset& rs);
/// A copy of the group beside it, with its members but not its subgroups.
void Copia(frmGruppi& gruppi, ado::Recordset& rs, ado::Command& comando);
/// Deletes the group and its members, after a question; refused while it has subgroups.
void Elimina(frmGruppi& gruppi, ado::Command& comando);
/// Opens the selected node's name for editing.
void Rinomina(frmGruppi& gruppi);
/// Makes the group one of the top level.
void Testa(frmGruppi& gruppi, ado::Recordset& rs);
/// Deletes the members of the group, after a question.
void SvuotaCartella(frmGruppi& gruppi, ado::Command& comando);

/// Select for sending, or deselect, the members of the group or all recipients.
void SelAllGRP(ado::Command& comando);
void SelNotGRP(ado::Command& comando);
void SelAllDB(ado::Command& comando);
void SelNotDB(ado::Command& comando);

}  // namespace comandiGruppo
