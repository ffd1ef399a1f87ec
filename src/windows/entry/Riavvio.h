// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

/// The restart that the box of a failure offers. The program returns to its state: the main window in
/// its place and the group that was open. What it needs for that goes through the file "riavvio.imp" of the
/// data folder (docs/formats/riavvio.md), since there is no command line. The same file names the message
/// that was opened from the desktop.
namespace riavvio {

/// The program begins to start. From here on the box of a failure may offer a restart.
void SegnaAvvio();
/// The main window has come up.
void SegnaFinestra();
bool FinestraMostrata();
/// Whether a restart may be offered: the main window has come up, and ten seconds have gone by since the
/// program began to start, so that a program that fails at once does not restart for ever.
bool Possibile();

/// Writes the file and restarts the program. Ignores every failure.
void Avvia();

/// For tests: what starts the program. An empty function puts the real start back.
void sostituisciPartenza(std::function<void()> partenza);

/// At the very start: takes the file in and removes it, and waits up to half a minute for the end of the
/// program that wrote it, whose files and locks are free after that. What is older than a minute does not
/// count; a damaged file is set aside.
void Raccogli();
/// Puts the main window where it was. Does nothing without a file.
void RiprendiPosizione();
/// Opens the group that was open, as far as it is still there. Does nothing without a file, or with one for
/// another database.
void RiprendiGruppo();
/// Opens the message that was left for this start in the editor, and comes back when the editor is closed.
/// Does nothing without one, and at a second call.
void ApriMessaggio();

}  // namespace riavvio
