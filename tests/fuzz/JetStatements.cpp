// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/JetExercise.h"
#include "platform/ado/Catalog.h"
#include "platform/ado/Command.h"
#include "platform/ado/GroupedInserts.h"
#include "platform/ado/Recordset.h"
#include "platform/ado/Snapshot.h"

namespace exercise {

namespace {

constexpr int mostRows = 5000;
constexpr size_t mostColumns = 4;  ///< columns of each table that get statements of their own

QString connection(const QString& file) {
    return QStringLiteral("Data Source = %1;;Jet OLEDB:Database Password=password").arg(file);
}

void readAll(const QString& file, const QString& statement) {
    ado::Recordset rows;
    if (!rows.setActiveConnection(connection(file)).ok()) return;
    rows.setCursorType(ado::CursorType::Static);
    rows.setSource(statement);
    if (!rows.open().ok()) return;
    for (int read = 0; !rows.isEof() && read < mostRows; ++read) {
        for (int i = 0; i < rows.fieldCount(); ++i)
            if (const auto value = rows.value(i); value.ok()) (void)value.value().toTextOrEmpty();
        if (!rows.moveNext().ok()) return;
    }
    (void)rows.recordCount();
}

void snapshot(const QString& file, const QString& statement) {
    const auto rows = ado::Snapshot::take(connection(file), statement);
    if (!rows.ok()) return;
    for (size_t row = 0; row < rows.value().size() && row < mostRows; ++row)
        for (size_t i = 0; i < rows.value().columns().size(); ++i)
            (void)rows.value().value(row, i).toTextOrEmpty();
}

void run(const QString& file, const QString& statement) {
    ado::Command command;
    if (!command.setActiveConnection(connection(file)).ok()) return;
    command.setCommandText(statement);
    command.setCommandTimeout(0);
    (void)command.execute();
}

QString literal(jet::Type type) {
    switch (type) {
        case jet::Type::YesNo:
            return QStringLiteral("True");
        case jet::Type::Text:
        case jet::Type::Memo:
            return QStringLiteral("'nome 7'");
        case jet::Type::Date:
            return QStringLiteral("#1/2/2003#");
        default:
            return QStringLiteral("1");
    }
}

void addRow(const QString& file, const QString& table, const ado::Catalog::ColumnEntry& column) {
    ado::Recordset rows;
    if (!rows.setActiveConnection(connection(file)).ok()) return;
    rows.setLockType(ado::LockType::Optimistic);
    rows.setSource(QStringLiteral("SELECT * FROM [%1];").arg(table));
    if (!rows.open().ok() || !rows.addNew().ok()) return;
    (void)rows.setValue(column.name, QStringLiteral("1"));
    (void)rows.update();
    (void)rows.setValue(column.name, QStringLiteral("2"));
    (void)rows.update();
}

void tryTable(const QString& file, const QString& table,
              const std::vector<ado::Catalog::ColumnEntry>& columns) {
    const QString select = QStringLiteral("SELECT * FROM [%1]").arg(table);
    readAll(file, select);
    for (size_t i = 0; i < columns.size() && i < mostColumns; ++i) {
        const QString name = QStringLiteral("[%1]").arg(columns[i].name);
        const QString where = QStringLiteral(" WHERE %1 = %2").arg(name, literal(columns[i].type));
        readAll(file, QStringLiteral("%1%2 ORDER BY %3 DESC, %4 ASC;")
                          .arg(select, where, name, QStringLiteral("[%1]").arg(columns.back().name)));
        snapshot(file, QStringLiteral("%1 ORDER BY %2 ASC;").arg(select, name));
        run(file,
            QStringLiteral("UPDATE [%1] SET %2 = %3%4 ;").arg(table, name, literal(columns[i].type), where));
        run(file, QStringLiteral("INSERT INTO [%1] (%2) SELECT %2 FROM [%1]%3 ;").arg(table, name, where));
        ado::GroupedInserts inserts;
        if (inserts.setActiveConnection(connection(file)).ok())
            for (int row = 0; row < 3; ++row)
                (void)inserts.execute(QStringLiteral("INSERT INTO [%1] (%2) VALUES (%3) ")
                                          .arg(table, name, literal(columns[i].type)));
        addRow(file, table, columns[i]);
        run(file, QStringLiteral("DELETE FROM [%1]%2 ;").arg(table, where));
    }
    run(file, QStringLiteral("DELETE FROM [%1]").arg(table));
}

}  // namespace

void runStatements(const std::string& file) {
    const QString name = QString::fromStdString(file);
    ado::Connection open;
    if (open.open(connection(name)).ok()) {
        ado::Catalog catalog;
        catalog.setActiveConnection(open);
        if (const auto tables = catalog.tables(); tables.ok()) {
            for (const auto& table : tables.value())
                if (const auto columns = catalog.columns(table.name);
                    columns.ok() && !columns.value().empty())
                    tryTable(name, table.name, columns.value());
            // Once more, after those that were refused.
            for (const auto& table : tables.value())
                readAll(name, QStringLiteral("SELECT * FROM [%1]").arg(table.name));
        }
    }
    ado::closeAll();
}

}  // namespace exercise
