#include "core/Prodotto.h"

QString prodotto::nome() {
    return QStringLiteral("Vestrola");
}

QString prodotto::versione() {
    return QStringLiteral("Ver. " VESTROLA_VERSION);
}
