// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <QString>

/// Small routines without state that many windows call.

/// Opens a web address or a mail link through the desktop. The result is the desktop's; no caller uses it.
bool ApriShell(const QString& destinazione);

/// Whether the path can be opened for input. A folder, a device and a file that may not be read count as
/// missing.
bool FileEsiste(const QString& percorso);

/// The one address check of the program: letters, digits, "_", ".", "=" and "-", an at sign, letters, digits,
/// "_", "." and "-", a point and a last label of two to four letters, digits or "_". The text is taken
/// unchanged.
bool EmailValida(const QString& testo);

/// The colour value (red in the low byte) of a text such as "#0A141E". Texts of another length yield what
/// their first, middle and last two characters give; a text that is no hexadecimal number yields 0.
std::uint32_t ColoreDaHex(const QString& testo);

/// The text of a colour value, such as "#0A141E". Bits above the lower 24 are left out.
QString HexDaColore(std::uint32_t colore);

/// The text without double quotes and single quotes, then without blanks at its ends.
QString PulisciValore(const QString& testo);

/// The path that a user wrote or pasted: line breaks and NULs that hang on to its end are left out, and so
/// are blanks there, unless a file has them in its name.
QString PercorsoScritto(const QString& testo);

/// What follows the last slash or backslash of a path; the whole path if it has none.
QString NomeDaPercorso(const QString& percorso);

/// Whether the file is a database with the tables "tb_destinatari" and "tb_gruppi", in any mix of case;
/// columns are not looked at. Unguarded: a file that cannot be opened as a database fails, which callers take
/// for False.
bool VerificaDatabase(const QString& percorso);
