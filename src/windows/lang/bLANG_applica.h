// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace bLANG {
struct FinestreTradotte;
}
namespace ui {
class CommandList;
}

/// The language of the windows. It is read once, by the load of the main window; a change counts from the
/// next start on. Unguarded, as in bLANG.h: what was set before a failure stays.

/// Lists the languages, then reads the texts of the one in use.
void CaricaLingua(const bLANG::FinestreTradotte& finestre);

/// Fills the language list of the main window.
void ElencaLingue(ui::CommandList& cmdLang);

/// Puts the texts of the language in use into the controls of the windows and into bVAR. Afterwards every
/// window that the file names exists, hidden.
void ApplicaLingua(const bLANG::FinestreTradotte& finestre);

/// Takes the language that was picked in the list for the next start and says so. The language in use does
/// nothing.
void CambiaLingua(ui::CommandList& cmdLang);
