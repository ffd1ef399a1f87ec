// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/store/RecordsetDB.h"

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"

ado::Recordset RecordsetDB() {
    ado::Recordset rs;
    esigi(rs.setActiveConnection(connDB));
    rs.setCursorType(ado::CursorType::Static);
    rs.setCursorLocation(ado::CursorLocation::Server);
    rs.setLockType(ado::LockType::Optimistic);
    return rs;
}
