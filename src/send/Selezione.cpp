#include "send/Selezione.h"

#include "core/bGlobal.h"
#include "core/Fallimento.h"

ado::Recordset RecordsetSelezione() {
    ado::Recordset rs;
    esigi(rs.setActiveConnection(connDB));
    rs.setCursorType(ado::CursorType::Static);
    rs.setCursorLocation(ado::CursorLocation::Server);
    rs.setLockType(ado::LockType::Optimistic);
    return rs;
}

qint64 ContaSelezionati(ado::Recordset& rs) {
    rs.setSource("SELECT * FROM [tb_destinatari] WHERE sel = True ;");
    esigi(rs.open());
    const qint64 conto = rs.recordCount();
    rs.close();
    return conto;
}
