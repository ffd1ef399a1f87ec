// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <QStringList>

/// The language files of the program folder: "LANG.lng" has every text in every language, "LANGz.lng" the
/// name of the language in use. Both are Windows-1252. docs/formats/lang.md shows the lines.
///
/// Everything here is unguarded: what was done before a failure stays.
namespace bLANG {

/// Languages that were counted in "LANG.lng". It only grows.
inline std::int16_t numeroLingue = 0;

/// Number of the language in use, counted from 1; 0 until it is found.
inline std::int16_t linguaScelta = 0;

/// Fills `voci` with the names of the languages, in the order of the file, and counts them; the one in use is
/// then marked and becomes `linguaScelta`. Where one of the files cannot be read, or the second one is empty,
/// the names stay as far as they were read.
void ElencaLingue(QStringList& voci);

/// ISO 639 code of the language in use, for the texts without a key; "it" while none is found, or for one in
/// which there are no such texts. Reads both files and changes nothing; it never fails.
QString CodiceLingua();

/// Makes another language the one of the next start.
void ScriviLinguaInUso(const QString& nome);

/// Whether an entry of the list is the marked one.
bool eSegnata(const QString& voce);

/// The target of a text; empty for an unknown key.
using Destinazione = std::function<void(const QString& testo)>;

/// Reads the texts of `linguaScelta`, in the order of the file, and passes each to what `destinazione` names
/// for its full key (section, point, key). The text of a key that is not known is dropped. Fails, besides an
/// unreadable file, at the first line of text that lacks the marker of its key, of a language or of the end,
/// or has them out of order, and at the first known key when no language is chosen.
void LeggiTesti(const std::function<Destinazione(const QString& chiave)>& destinazione);

}  // namespace bLANG
