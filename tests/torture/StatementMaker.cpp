// SPDX-License-Identifier: GPL-3.0-or-later
#include "torture/StatementMaker.h"

#include <iterator>
#include <QStringList>

namespace {

constexpr const char* texts[] = {"rgs", "nom", "loc", "email", "campo1", "prov"};
constexpr const char* numbers[] = {"id", "id_grp"};
constexpr const char* relations[] = {"=", "<>", "<", "<=", ">", ">="};

}  // namespace

QString StatementMaker::text(int most) {
    QString made;
    for (int left = below(most + 1); left > 0; --left)
        made += QLatin1Char("abcdeilnorst0123"[below(16)]);
    return made;
}

QString StatementMaker::textLiteral() {
    if (below(8) == 0) return QStringLiteral("Null");
    // now and then longer than some columns
    return QLatin1Char('\'') + text(below(30) == 0 ? 80 : 6) + QLatin1Char('\'');
}

QString StatementMaker::number() {
    return QString::number(below(10) ? below(60) : below(100000) - 50000);
}

QString StatementMaker::comparison() {
    const QString column = QLatin1String(texts[below(std::size(texts))]);
    const QString whole = QLatin1String(numbers[below(std::size(numbers))]);
    const QString relation = QLatin1String(relations[below(std::size(relations))]);
    const auto compared = [&] {
        const QString value = text(3);
        return QLatin1Char('\'') + (below(3) ? value : value.toUpper()) + QLatin1Char('\'');
    };
    switch (below(14)) {
        case 0:
            return QStringLiteral("[sel] %1 %2")
                .arg(below(3) ? "=" : relation, QLatin1String(below(2)   ? "True"
                                                              : below(2) ? "False"
                                                                         : "-1"));
        case 1:
            return column + (below(2) ? " Is Null" : " Is Not Null");
        case 2:
            return QStringLiteral("%1 IN (%2, %3, %4)").arg(whole, number(), number(), number());
        case 3:
            return QStringLiteral("%1 BETWEEN %2 AND %3").arg(whole, number(), number());
        case 4:
            return QStringLiteral("%1 BETWEEN %2 AND %3").arg(column, compared(), compared());
        case 5:
            return QStringLiteral("[%1] = [%2]").arg(column, QLatin1String(texts[below(std::size(texts))]));
        case 6:
            return QStringLiteral("%1 IN (%2, %3)").arg(column, compared(), compared());
        case 7:
        case 8:
            return QStringLiteral("[id_grp] = ") + number();
        case 9:
            return QStringLiteral("[id] = ") + number();
        case 10:
        case 11:
            return whole + ' ' + relation + ' ' + number();
        default:
            return '[' + column + "] " + relation + ' ' + compared();
    }
}

QString StatementMaker::condition(int depth) {
    if (depth > 2 || below(3) > 0) return comparison();
    switch (below(3)) {
        case 0:
            return QStringLiteral("(%1 AND %2)").arg(condition(depth + 1), condition(depth + 1));
        case 1:
            return QStringLiteral("(%1 OR %2)").arg(condition(depth + 1), condition(depth + 1));
        default:
            return QStringLiteral("NOT (%1)").arg(condition(depth + 1));
    }
}

QString StatementMaker::where() {
    return below(10) ? QStringLiteral(" WHERE ") + condition() : QString();
}

StatementMaker::Statement StatementMaker::select() {
    if (below(5) == 0)
        return {QStringLiteral("SELECT COUNT(*) FROM [tb_destinatari]%1;").arg(where()), true, true};
    if (below(6) == 0) {
        const QString by = QLatin1String(below(2) ? "id_grp" : texts[below(std::size(texts))]);
        return {QStringLiteral("SELECT %1, COUNT(*) FROM tb_destinatari%2 GROUP BY %1;").arg(by, where()),
                true, false};
    }
    const QString list = QLatin1String(below(3) ? "*" : below(2) ? "id, rgs, sel, email" : "email, [nom]");
    QString statement = QStringLiteral("SELECT %1 FROM [tb_destinatari]%2").arg(list, where());
    const bool ordered = below(3) > 0;
    if (ordered) {
        QStringList by;
        for (int left = below(3); left > 0; --left) {
            const QString column = QLatin1String(below(5) ? texts[below(std::size(texts))] : "sel");
            // Null and the like come first on both sides only in rising order of such a column
            by << column + (below(3) ? " ASC" : " DESC");
        }
        by << (below(2) ? "id ASC" : "id DESC");
        statement += " ORDER BY " + by.join(", ");
        if (below(5) == 0) statement += QStringLiteral(" LIMIT %1").arg(below(20));
    }
    return {statement + ';', true, ordered};
}

StatementMaker::Statement StatementMaker::insert() {
    if (below(6) == 0)
        return {QStringLiteral(
                    "INSERT INTO [tb_destinatari] (id_grp, rgs, nom, loc, email, campo1, sel) SELECT "
                    "id_grp, nom, rgs, loc, email, campo1, sel FROM [tb_destinatari] WHERE %1 ORDER BY "
                    "id ASC;")
                    .arg(condition())};
    QStringList columns{"id_grp", "sel"};
    QStringList values{number(), below(2) ? "True" : "False"};
    for (const char* column : texts) {
        if (below(3) == 0) continue;
        columns << QLatin1String(column);
        values << textLiteral();
    }
    if (below(12) == 0) {
        columns << "id";
        values << QString::number(below(3000) + 1);
    }
    return {QStringLiteral("INSERT INTO [tb_destinatari] (%1) VALUES (%2);")
                .arg(columns.join(", "), values.join(", "))};
}

StatementMaker::Statement StatementMaker::update() {
    QStringList changes;
    for (int left = 1 + below(3); left > 0; --left) {
        const QString column = QLatin1String(texts[below(std::size(texts))]);
        const QString twice = column + " = ";
        if (changes.join(' ').contains(twice)) continue;
        switch (below(6)) {
            case 0:
                if (!changes.join(' ').contains("[sel]"))
                    changes << QStringLiteral("[sel] = ") + (below(2) ? "True" : "False");
                break;
            case 1:
                if (!changes.join(' ').contains("id_grp")) changes << "id_grp = " + number();
                break;
            case 2:
                changes << twice + QLatin1String(texts[below(std::size(texts))]);
                break;
            default:
                changes << twice + textLiteral();
        }
    }
    if (changes.isEmpty()) changes << "[sel] = False";
    return {QStringLiteral("UPDATE [tb_destinatari] SET %1%2;").arg(changes.join(", "), where())};
}

StatementMaker::Statement StatementMaker::next(qint64 rows) {
    if (rows > 400)
        return {QStringLiteral("DELETE FROM [tb_destinatari] WHERE [id] > %1 OR %2;")
                    .arg(below(900))
                    .arg(condition())};
    if (rows < 5) return insert();
    switch (below(10)) {
        case 0:
        case 1:
        case 2:
        case 3:
            return select();
        case 4:
        case 5:
        case 6:
            return insert();
        case 7:
        case 8:
            return update();
        default:
            return {QStringLiteral("DELETE FROM [tb_destinatari] WHERE %1 AND [id_grp] BETWEEN %2 AND 45;")
                        .arg(condition())
                        .arg(25 + below(20))};
    }
}
