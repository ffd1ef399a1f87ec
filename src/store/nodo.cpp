#include "store/nodo.h"

#include "core/bGlobal.h"
#include "core/Fallimento.h"

QString NumeroNodo(const QString& chiave) {
    return chiave.mid(1);
}

QString NumeroNodoCorrente() {
    if (!nodoCorrente) fallisci(ErrorCode::ItemNotFound);
    return NumeroNodo(nodoCorrente->Key);
}
