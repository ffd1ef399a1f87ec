// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/send/Cartelle.h"

#include <algorithm>
#include <limits>
#include <QHash>
#include <QList>
#include <QStringList>

#include "modules/core/Fallimento.h"
#include "modules/store/RecordsetDB.h"
#include "platform/text/NumberText.h"
#include "platform/text/Words.h"

namespace {

constexpr qsizetype alMassimo = 10;
constexpr qint64 numeroRadice = 0;
constexpr qint64 nessuno = std::numeric_limits<qint64>::min();

ado::Recordset Apri(const QString& istruzione) {
    ado::Recordset rs = RecordsetDB();
    rs.setSource(istruzione);
    esigi(rs.open());
    return rs;
}

qint64 Numero(const ado::Recordset& rs, QStringView colonna) {
    const ado::Value valore = esigi(rs.value(colonna));
    return valore.isNull() ? nessuno : esigi(valore.toInteger());
}

/// Whether the chain of parents ends at the root, not at a missing group nor in a cycle.
bool VieneDallaRadice(qint64 numero, const QHash<qint64, qint64>& superiori) {
    qsizetype passi = 0;
    while (numero != numeroRadice && superiori.contains(numero) && passi++ <= superiori.size())
        numero = superiori[numero];
    return numero == numeroRadice;
}

struct Gruppo {
    QString nome;
    qint64 quanti = 0;
};

QList<Gruppo> Conta() {
    QHash<qint64, qint64> quanti;
    ado::Recordset rs = Apri("SELECT [id_grp] FROM [tb_destinatari] WHERE [sel] = True;");
    for (; !rs.isEof(); esigi(rs.moveNext()))
        ++quanti[Numero(rs, u"id_grp")];
    QHash<qint64, qint64> superiori;
    QHash<qint64, QString> nomi{{numeroRadice, "Database Mailing"}};
    rs = Apri("SELECT * FROM [tb_gruppi];");
    for (; !rs.isEof(); esigi(rs.moveNext())) {
        const qint64 numero = Numero(rs, u"id");
        superiori[numero] = Numero(rs, u"id_up");
        nomi[numero] = esigi(rs.value(u"nome")).toTextOrEmpty().simplified();
    }
    QList<Gruppo> gruppi;
    for (const qint64 numero : quanti.keys())
        if (VieneDallaRadice(numero, superiori)) gruppi.append({nomi[numero], quanti.take(numero)});
    std::ranges::sort(gruppi, {}, &Gruppo::nome);
    std::ranges::stable_sort(gruppi, std::ranges::greater(), &Gruppo::quanti);
    qint64 perduti = 0;
    for (const qint64 suoi : std::as_const(quanti))
        perduti += suoi;
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
