// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "platform/html/HtmlView.h"
#include "platform/ui/SourceEdit.h"

// The commands of the editor that its views know by a number.

/// A command that goes to the view on show.
struct DueViste {
    const char* nome;
    int design;
    int codice;
    bool segna;         ///< marks the document as changed, whatever tab is on show
    bool segue = true;  ///< its tool is on where the view can run it
};

inline constexpr std::array comandiDueViste{
    DueViste{"cmdUndo", HtmlView::Undo, ui::SourceEdit::Undo, true},
    DueViste{"cmdRedo", HtmlView::Redo, ui::SourceEdit::Redo, true},
    DueViste{"cmdTaglia", HtmlView::Cut, ui::SourceEdit::Cut, true},
    DueViste{"cmdCopia", HtmlView::Copy, ui::SourceEdit::Copy, false},
    DueViste{"cmdIncolla", HtmlView::Paste, ui::SourceEdit::Paste, true},
    DueViste{"cmdSelezionaTutto", HtmlView::SelectAll, ui::SourceEdit::SelectAll, false},
    DueViste{"cmdTrova", HtmlView::FindText, ui::SourceEdit::FindText, false, false},
};

/// A command that goes to the design view whatever tab is on show. None of them marks the document: only the
/// next key does.
struct SoloDesign {
    enum Segue {
        Nulla,
        Formato,  ///< the tool is pressed where the selection has the format
        Tabella   ///< the tool is on where the selection is in a table
    };
    const char* nome;
    int numero;
    Segue segue = Nulla;
};

inline constexpr std::array comandiDesign{
    SoloDesign{"cmdBold", HtmlView::Bold, SoloDesign::Formato},
    SoloDesign{"cmdItalic", HtmlView::Italic, SoloDesign::Formato},
    SoloDesign{"cmdUnderline", HtmlView::Underline, SoloDesign::Formato},
    SoloDesign{"cmdNumerato", HtmlView::OrderList},
    SoloDesign{"cmdPuntato", HtmlView::UnorderList},
    SoloDesign{"cmdSX", HtmlView::Outdent},
    SoloDesign{"cmdDX", HtmlView::Indent},
    SoloDesign{"cmdLeft", HtmlView::JustifyLeft, SoloDesign::Formato},
    SoloDesign{"cmdCenter", HtmlView::JustifyCenter, SoloDesign::Formato},
    SoloDesign{"cmdRight", HtmlView::JustifyRight, SoloDesign::Formato},
    SoloDesign{"cmdImage", HtmlView::Image},
    SoloDesign{"cmdLink", HtmlView::Hyperlink},
    SoloDesign{"cmdTableInsRow", HtmlView::InsertRow, SoloDesign::Tabella},
    SoloDesign{"cmdTableInsCol", HtmlView::InsertCol, SoloDesign::Tabella},
    SoloDesign{"cmdTableDelRow", HtmlView::DeleteRows, SoloDesign::Tabella},
    SoloDesign{"cmdTableDelCol", HtmlView::DeleteCols, SoloDesign::Tabella},
};
