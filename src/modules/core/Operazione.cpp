// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/core/Operazione.h"

namespace {

const Operazione* ultima = nullptr;

}  // namespace

Operazione::Operazione(const QString& nome, const QString& file) : circostanze{nome, file}, fuori(ultima) {
    ultima = this;
}

Operazione::~Operazione() {
    ultima = fuori;
}

Circostanze Operazione::Ora() {
    return ultima ? ultima->circostanze : Circostanze();
}
