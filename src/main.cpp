#include <QApplication>

#include "core/bMain.h"
#include "core/FineSessione.h"
#include "core/Prodotto.h"
#include "core/Riavvio.h"
#include "platform/system/ProgramFolder.h"
#include "platform/ui/Contrast.h"
#include "platform/ui/Desktop.h"
#include "shell/bTheme.h"

int main(int argc, char** argv) {
    QApplication programma(argc, argv);
    QApplication::setApplicationName(prodotto::nome());
    ui::setUpDesktop(programma);
    sys::programFolder();  // made, or mended, before anything is read from it
    riavvio::Raccogli();
    SeguiFineSessione();
    SubMain();
    ui::watchContrast([] { RilevaTema(nullptr); });
    return QApplication::exec();
}
