#include "modules/store/nodo.h"

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/store/RecordsetDB.h"

QString NumeroNodo(const QString& chiave) {
    return chiave.mid(1);
}

QString NumeroNodoCorrente() {
    if (!nodoCorrente) fallisci(ErrorCode::ItemNotFound);
    return NumeroNodo(nodoCorrente->Key);
}

bool GruppoEsiste(const QString& numero) {
    if (numero == QLatin1String("0")) return true;
    return ripiega(true, [&] {
        ado::Recordset rs = RecordsetDB();
        rs.setSource("SELECT * FROM [tb_gruppi] WHERE id = " + numero + " ;");
        esigi(rs.open());
        return !rs.isEof();
    });
}
