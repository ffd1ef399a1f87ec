#pragma once

class frmInvia;
class frmMain;

/// The references of the windows: each window exists once, is created when it is first named and is kept for
/// the whole run, so that a window that is only hidden keeps its content for the next opening.
namespace finestre {

::frmMain& Main();
::frmInvia& Invia();

}  // namespace finestre
