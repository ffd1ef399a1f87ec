// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/import/ImportaContatti.h"
#include "windows/lang/bLANG_finestre.h"
#include "windows/message/frmEditor.h"
#include "windows/shell/frmMain.h"
#include "windows/strumenti/frmProva.h"

/// The dependencies that windows get when they are made: how each reaches what it needs of others. None of
/// these routines makes a window; the functions they return do, when called.
namespace finestre {

::frmMain::Vicini IntornoAMain();
::frmEditor::Vicini IntornoAEditor();
ViciniContatti IntornoAgliImport();
::frmProva::Vicini IntornoAProva();
bLANG::FinestreTradotte Tradotte();

}  // namespace finestre
