#include "core/Finestre.h"

#include "send/frmInvia.h"
#include "shell/frmMain.h"

// The instances are never destroyed: the program ends without unloading its windows.

frmMain& finestre::Main() {
    static auto* finestra = new frmMain;
    return *finestra;
}

frmInvia& finestre::Invia() {
    static auto* finestra = new frmInvia(&Main());
    return *finestra;
}
