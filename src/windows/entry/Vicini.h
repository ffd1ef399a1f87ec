#pragma once

#include "windows/import/ImportaContatti.h"
#include "windows/lang/bLANG_finestre.h"
#include "windows/message/frmEditor.h"
#include "windows/shell/frmMain.h"
#include "windows/strumenti/frmProva.h"

/// What the windows are handed when they are made: how each of them reaches what it needs of others. None of
/// these routines makes a window; what they hand out does, when it is called.
namespace finestre {

::frmMain::Vicini IntornoAMain();
::frmEditor::Vicini IntornoAEditor();
ViciniContatti IntornoAgliImport();
::frmProva::Vicini IntornoAProva();
bLANG::FinestreTradotte Tradotte();

}  // namespace finestre
