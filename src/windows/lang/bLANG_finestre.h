#pragma once

#include <functional>

class QWidget;
namespace ui {
class CommandBars;
class DockPanes;
class TabStrip;
}  // namespace ui

namespace bLANG {

/// A window with bars and panes, by its parts.
struct FinestraConBarre {
    std::function<ui::CommandBars&()> Commands;
    std::function<ui::DockPanes&()> DockWindows;
};

/// The windows that have texts in the language file. Each is made when it is first named.
struct FinestreTradotte {
    FinestraConBarre Main;
    FinestraConBarre Editor;
    std::function<ui::TabStrip&()> SchedeEditor;
    std::function<QWidget&()> Account;
    std::function<QWidget&()> Invia;
    std::function<QWidget&()> PropBody;
    std::function<QWidget&()> Destinatario;
    std::function<QWidget&()> Scelta;
    std::function<QWidget&()> ImpDB;
    std::function<QWidget&()> ImpTXT;
};

}  // namespace bLANG
