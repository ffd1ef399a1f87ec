#include "store/RecordsetDB.h"

#include "core/bGlobal.h"
#include "core/Fallimento.h"

ado::Recordset RecordsetDB() {
    ado::Recordset rs;
    esigi(rs.setActiveConnection(connDB));
    rs.setCursorType(ado::CursorType::Static);
    rs.setCursorLocation(ado::CursorLocation::Server);
    rs.setLockType(ado::LockType::Optimistic);
    return rs;
}
