// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>

#include "modules/core/Prodotto.h"
#include "modules/lang/bLANG.h"
#include "platform/system/ProgramFolder.h"
#include "platform/text/Language.h"
#include "platform/ui/Contrast.h"
#include "platform/ui/Desktop.h"
#include "windows/core/bTheme.h"
#include "windows/entry/bMain.h"
#include "windows/entry/FineSessione.h"
#include "windows/entry/Riavvio.h"
#include "windows/entry/TastoGuida.h"

int main(int argc, char** argv) {
    QApplication::setApplicationName(prodotto::nome());  // before anything asks for it
    QApplication programma(argc, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("vestrola"));  // its window gets the menu's icon
    ui::setUpDesktop(programma);
    sys::programFolder();  // made, or mended, before anything is read from it
    // Ahead of the first window: the language step of the main window finds most windows made.
    text::setLanguage(bLANG::CodiceLingua());
    riavvio::Raccogli();
    SeguiFineSessione();
    SeguiTastoGuida();
    SubMain();
    ui::watchContrast([] { RilevaTema(nullptr); });
    return QApplication::exec();
}
