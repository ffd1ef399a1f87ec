#include <QApplication>

#include "core/bMain.h"
#include "core/Prodotto.h"
#include "platform/ui/Contrast.h"
#include "platform/ui/Desktop.h"
#include "shell/bTheme.h"

int main(int argc, char** argv) {
    QApplication programma(argc, argv);
    QApplication::setApplicationName(prodotto::nome());
    ui::setUpDesktop(programma);
    SubMain();
    ui::watchContrast([] { RilevaTema(nullptr); });
    return QApplication::exec();
}
