// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/send/Cartelle.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <QList>
#include <QStringList>

#include "modules/core/Fallimento.h"
#include "modules/store/AlberoCartelle.h"
#include "modules/store/RecordsetDB.h"
#include "platform/text/NumberText.h"
#include "platform/text/Words.h"

namespace {

constexpr qsizetype alMassimo = 10;

struct Gruppo {
    QString nome;
    qint64 quanti = 0;
};

QList<Gruppo> Conta() {
    ado::Recordset rs = RecordsetDB();
    rs.setSource("SELECT [id_grp] FROM [tb_destinatari] WHERE [sel] = True;");
    esigi(rs.open());
    std::map<std::int32_t, qint64> quanti;
    qint64 perduti = 0;
    for (; !rs.isEof(); esigi(rs.moveNext())) {
        const ado::Value gruppo = esigi(rs.value(u"id_grp"));
        if (gruppo.isNull())
            ++perduti;
        else
            ++quanti[static_cast<std::int32_t>(esigi(gruppo.toInteger()))];
    }
    const AlberoCartelle albero = AlberoCartelle::Leggi();
    QList<Gruppo> gruppi;
    for (const auto& [numero, suoi] : quanti) {
        if (albero.Raggiunta(numero))
            gruppi.append({albero.Nome(numero).simplified(), suoi});
        else
            perduti += suoi;
    }
    std::ranges::sort(gruppi, {}, &Gruppo::nome);
    std::ranges::stable_sort(gruppi, std::ranges::greater(), &Gruppo::quanti);
    if (perduti > 0) gruppi.append({Words::tr("cartelle perdute"), perduti});
    return gruppi;
}

}  // namespace

QString CartelleSelezionate() {
    Prosegui prosegui;
    QList<Gruppo> gruppi;
    prosegui([&] { gruppi = Conta(); });
    if (gruppi.size() > alMassimo + 1) {
        Gruppo altre{Words::tr("altre %n cartelle", nullptr, static_cast<int>(gruppi.size() - alMassimo)), 0};
        for (qsizetype i = alMassimo; i < gruppi.size(); ++i)
            altre.quanti += gruppi[i].quanti;
        gruppi = gruppi.first(alMassimo) << altre;
    }
    QStringList testi;
    for (const Gruppo& gruppo : gruppi)
        testi << gruppo.nome + ' ' + text::formatGrouped(static_cast<double>(gruppo.quanti));
    return testi.join(", ");
}
