// SPDX-License-Identifier: GPL-3.0-or-later
// The windows that have texts in the language file.
#pragma once

#include <functional>

namespace ui {
class CommandBars;
class DockPanes;
class LateDialog;
class TabStrip;
}  // namespace ui

namespace bLANG {

/// A window with bars and panes, by its parts.
struct FinestraConBarre {
    std::function<ui::CommandBars&()> Commands;
    std::function<ui::DockPanes&()> DockWindows;
};

/// The windows that have texts in the language file. Each is made when it is first named; a dialog without
/// its controls, which get their texts when they are made.
struct FinestreTradotte {
    FinestraConBarre Main;
    FinestraConBarre Editor;
    std::function<ui::TabStrip&()> SchedeEditor;
    std::function<ui::LateDialog&()> Account;
    std::function<ui::LateDialog&()> Invia;
    std::function<ui::LateDialog&()> PropBody;
    std::function<ui::LateDialog&()> Destinatario;
    std::function<ui::LateDialog&()> Scelta;
    std::function<ui::LateDialog&()> ImpDB;
    std::function<ui::LateDialog&()> ImpTXT;
};

}  // namespace bLANG
