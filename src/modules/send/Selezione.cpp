// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/send/Selezione.h"

#include "modules/core/Fallimento.h"

const QString codaInvio = QStringLiteral(
    "SELECT * FROM [tb_destinatari] WHERE [sel] = True "
    "ORDER BY rgs ASC, email ASC, nom ASC, loc ASC, ind ASC;");

qint64 ContaSelezionati(ado::Recordset& rs) {
    rs.setSource("SELECT * FROM [tb_destinatari] WHERE sel = True ;");
    esigi(rs.open());
    const qint64 conto = rs.recordCount();
    rs.close();
    return conto;
}
