#include <QApplication>

#include "core/bMain.h"
#include "core/Prodotto.h"
#include "platform/ui/Desktop.h"

int main(int argc, char** argv) {
    QApplication programma(argc, argv);
    QApplication::setApplicationName(prodotto::nome());
    ui::setUpDesktop(programma);
    SubMain();
    return QApplication::exec();
}
