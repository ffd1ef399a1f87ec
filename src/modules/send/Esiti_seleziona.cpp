// SPDX-License-Identifier: GPL-3.0-or-later
// Changes of the selection from the book, when the user asks for them.
#include <QHash>

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/send/Accettati.h"
#include "modules/send/Esiti.h"
#include "modules/store/RecordsetDB.h"
#include "platform/ado/Command.h"

namespace {

constexpr qsizetype perVolta = 200;  // rows of one statement

QString Elenco(const QList<qint64>& numeri) {
    QStringList testi;
    for (const qint64 numero : numeri)
        testi << QString::number(numero);
    return "([id] = " + testi.join(" OR [id] = ") + ')';
}

/// The wanted rows that have their address; those that are already as wanted are only counted.
QList<qint64> DaCambiare(const QHash<qint64, QString>& indirizzi, bool selezionati,
                         esiti::Cambiati& cambiati) {
    QList<qint64> numeri;
    ado::Recordset rs = RecordsetDB();
    rs.setSource("SELECT * FROM [tb_destinatari] WHERE " + Elenco(indirizzi.keys()) + ';');
    esigi(rs.open());
    for (; !rs.isEof(); esigi(rs.moveNext())) {
        const qint64 numero = esigi(esigi(rs.value(u"id")).toInteger());
        const ado::Value email = esigi(rs.value(u"email"));
        if (email.isNull() || esigi(email.toText()) != indirizzi.value(numero)) continue;
        const ado::Value sel = esigi(rs.value(u"sel"));
        if (!sel.isNull() && esigi(sel.toBool()) == selezionati)
            ++cambiati.giaCosi;
        else
            numeri.append(numero);
    }
    return numeri;
}

void Cambia(const QList<qint64>& numeri, bool selezionati) {
    if (numeri.isEmpty()) return;
    ado::Command cmd;
    esigi(cmd.setActiveConnection(connDB));
    cmd.setCommandTimeout(0);
    cmd.setPrepared(false);
    cmd.setCommandText("UPDATE [tb_destinatari] SET [sel] = " + QString(selezionati ? "True" : "False") +
                       " WHERE " + Elenco(numeri) + ';');
    esigi(cmd.execute());
}

}  // namespace

esiti::Cambiati esiti::Seleziona(const QList<Riga>& righe, bool selezionati) {
    Cambiati cambiati;
    QHash<qint64, QString> volti;  // of one statement
    const auto applica = [&] {
        if (volti.isEmpty()) return;
        const qint64 prima = cambiati.giaCosi;
        DimenticaAccettati(volti.keys());
        const QList<qint64> numeri = DaCambiare(volti, selezionati, cambiati);
        Cambia(numeri, selezionati);
        cambiati.cambiati += numeri.size();
        cambiati.nonTrovati += volti.size() - numeri.size() - (cambiati.giaCosi - prima);
        volti.clear();
    };
    for (const Riga& riga : righe) {
        if (!riga.delDatabase || riga.esito.address.isEmpty()) {
            ++cambiati.nonTrovati;
            continue;
        }
        volti.insert(*riga.esito.number, riga.esito.address);
        if (volti.size() == perVolta) applica();
    }
    applica();
    return cambiati;
}
