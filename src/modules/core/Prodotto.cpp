// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/core/Prodotto.h"

QString prodotto::nome() {
    return QStringLiteral("Vestrola");
}

QString prodotto::versione() {
    return QStringLiteral("Ver. " VESTROLA_VERSION);
}

QString prodotto::paginaWeb() {
    return QStringLiteral("https://www.quintara.example/");
}

QString prodotto::indirizzoPosta() {
    return QStringLiteral("info@quintara.example");
}

QString prodotto::collegamentoPosta() {
    return QStringLiteral("mailto:") + indirizzoPosta();
}
