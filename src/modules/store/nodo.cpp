// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/store/nodo.h"

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/store/RecordsetDB.h"
#include "modules/store/Schema.h"
#include "platform/ado/Catalog.h"

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

int LarghezzaNomeGruppo() {
    const auto testo = [](std::u16string_view nome) {
        return QString::fromUtf16(nome.data(), static_cast<qsizetype>(nome.size()));
    };
    ado::Connection connessione;
    connessione.setConnectionTimeout(1);  // a window that opens does not wait for it any longer
    ado::Catalog catalogo;
    if (!connessione.open(connDB).ok()) return schema::larghezzaNomeGruppo;
    catalogo.setActiveConnection(connessione);
    const auto colonne = catalogo.columns(testo(schema::tabellaGruppi));
    if (!colonne.ok()) return schema::larghezzaNomeGruppo;
    for (const ado::Catalog::ColumnEntry& colonna : colonne.value())
        if (colonna.name.compare(QLatin1String("nome"), Qt::CaseInsensitive) == 0 &&
            colonna.type == jet::Type::Text && colonna.size > 0)
            return colonna.size;
    return schema::larghezzaNomeGruppo;
}
