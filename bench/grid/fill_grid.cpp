// SPDX-License-Identifier: GPL-3.0-or-later
// Each of these is a process of its own that prints one line of JSON.
//
// fill_grid --prepare DATABASE SQLITE   puts all recipients into group 1, and the rows into a SQLite file
// fill_grid --query DATABASE            runs the grid's statement to its end
// fill_grid --grid DATABASE             fills a grid and paints its first rows
// fill_grid --model SQLITE              the same with a QSqlTableModel that is fetched whole
//
// "ms" is the time from the first touch of the file to the answer, "kilobytes" by how much the process grew
// meanwhile, "rowBytes" what the rows take in the file.
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <fstream>
#include <QApplication>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlTableModel>
#include <QTableView>
#include <QTemporaryDir>

#include "modules/store/NuovoDatabase.h"
#include "platform/ado/Command.h"
#include "platform/ado/Recordset.h"
#include "platform/jet/Database.h"
#include "platform/ui/DataControl.h"
#include "platform/ui/DataGrid.h"

namespace {

using Clock = std::chrono::steady_clock;

const QString listing = QStringLiteral("SELECT * FROM tb_destinatari WHERE id_grp = 1 ORDER BY rgs ASC;");
constexpr QSize windowSize(1000, 600);

[[noreturn]] void give_up(const QString& why) {
    std::fprintf(stderr, "fill_grid: %s\n", qPrintable(why));
    std::exit(1);
}

void demand(const Status& status) {
    if (!status.ok()) give_up(status.text());
}

QString connectionTo(const QString& path) {
    return QStringLiteral("Provider = Microsoft.Jet.OLEDB.4.0; Data Source = ") + path;
}

long residentKilobytes() {
    long total = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

/// Measures from its construction to tell().
class Measure {
  public:
    void tell(qint64 rows, const char* more = "", qint64 value = 0) const {
        const double ms = std::chrono::duration<double, std::milli>(Clock::now() - m_start).count();
        std::printf("{\"ms\": %.2f, \"kilobytes\": %ld, \"rows\": %lld%s", ms,
                    residentKilobytes() - m_resident, static_cast<long long>(rows), more);
        if (*more) std::printf("%lld", static_cast<long long>(value));
        std::printf("}\n");
    }

  private:
    long m_resident = residentKilobytes();
    Clock::time_point m_start = Clock::now();
};

void openSqlite(const QString& path) {
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    database.setDatabaseName(path);
    if (!database.open()) give_up(database.lastError().text());
}

void run(QSqlQuery& query) {
    if (!query.exec()) give_up(query.lastError().text());
}

void run(const QString& sql) {
    QSqlQuery query;
    if (!query.prepare(sql)) give_up(query.lastError().text());
    run(query);
}

QVariant variantOf(const ado::Value& value) {
    if (value.isNull()) return {};
    if (value.type() == ado::Value::Type::Text) return value.toTextOrEmpty();
    return value.toInteger().value();
}

void prepare(const QString& path, const QString& sqlite) {
    ado::Command command;
    demand(command.setActiveConnection(connectionTo(path)));
    command.setCommandTimeout(0);
    command.setCommandText(QStringLiteral("UPDATE tb_destinatari SET id_grp = 1"));
    demand(command.execute().status());

    ado::Recordset rows;
    demand(rows.setActiveConnection(connectionTo(path)));
    rows.setSource(QStringLiteral("SELECT * FROM tb_destinatari"));
    demand(rows.open());
    openSqlite(sqlite);
    QStringList columns;
    QStringList marks;
    for (int i = 0; i < rows.fieldCount(); ++i) {
        const QString name = rows.fieldName(i);
        columns << name + (name == QStringLiteral("id") ? QStringLiteral(" INTEGER PRIMARY KEY")
                           : name == QStringLiteral("id_grp") || name == QStringLiteral("sel")
                               ? QStringLiteral(" INTEGER")
                               : QStringLiteral(" TEXT"));
        marks << QStringLiteral("?");
    }
    run(QStringLiteral("CREATE TABLE tb_destinatari (%1)").arg(columns.join(u',')));
    QSqlDatabase::database().transaction();
    QSqlQuery insert;
    insert.prepare(QStringLiteral("INSERT INTO tb_destinatari VALUES (%1)").arg(marks.join(u',')));
    for (; !rows.isEof(); demand(rows.moveNext())) {
        for (int i = 0; i < rows.fieldCount(); ++i)
            insert.bindValue(i, variantOf(rows.value(i).value()));
        run(insert);
    }
    QSqlDatabase::database().commit();
}

void query(const QString& path) {
    const Measure measure;
    const auto rows = ado::Snapshot::take(connectionTo(path), listing);
    demand(rows.status());
    measure.tell(static_cast<qint64>(rows.value().size()));
}

qint64 bytesOfRows(const QString& path) {
    auto database = jet::Database::open(path.toStdString());
    demand(database.status());
    const auto table = database.value()->table("tb_destinatari");
    demand(table.status());
    qint64 bytes = 0;
    demand(table.value()->scan([&](jet::RowId, const jet::RowView& row) {
        bytes += static_cast<qint64>(row.bytes().size());
        return true;
    }));
    return bytes;
}

/// Shows the view while it is empty, after another grid was filled from a small list: what is measured are
/// the rows, not the first use of fonts, icons and styles.
void showEmpty(QTableView& view) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("small.mdb"));
    demand(schema::CreaDatabase(path.toStdString()));
    ado::Command command;
    demand(command.setActiveConnection(connectionTo(path)));
    command.setCommandText(
        QStringLiteral("INSERT INTO tb_destinatari (id_grp, rgs, sel) VALUES (1, 'Azienda', True)"));
    demand(command.execute().status());
    ui::DataGrid other;
    ui::DataControl source;
    other.setDataSource(&source);
    source.setConnectionString(connectionTo(path));
    source.setRecordSource(listing);
    demand(source.Refresh());
    for (QTableView* table : {static_cast<QTableView*>(&other), &view}) {
        table->resize(windowSize);
        table->show();
        QCoreApplication::processEvents();
        table->viewport()->repaint();
    }
}

void grid(const QString& path) {
    ui::DataGrid view;
    ui::DataControl source;
    view.setDataSource(&source);
    showEmpty(view);
    const Measure measure;
    source.setConnectionString(connectionTo(path));
    source.setRecordSource(listing);
    demand(source.Refresh());
    view.viewport()->repaint();
    measure.tell(view.Rows() - 1, ", \"rowBytes\": ", bytesOfRows(path));
}

void model(const QString& path) {
    QTableView view;
    showEmpty(view);
    const Measure measure;
    openSqlite(path);
    QSqlTableModel rows;
    rows.setTable(QStringLiteral("tb_destinatari"));
    rows.setFilter(QStringLiteral("id_grp = 1"));
    rows.setSort(2, Qt::AscendingOrder);
    if (!rows.select()) give_up(rows.lastError().text());
    while (rows.canFetchMore())
        rows.fetchMore();
    view.setModel(&rows);
    view.viewport()->repaint();
    measure.tell(rows.rowCount());
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const QString what = arguments.value(1);
    if (what == QStringLiteral("--prepare") && argc == 4) {
        prepare(arguments[2], arguments[3]);
    } else if (what == QStringLiteral("--query") && argc == 3) {
        query(arguments[2]);
    } else if (what == QStringLiteral("--grid") && argc == 3) {
        grid(arguments[2]);
    } else if (what == QStringLiteral("--model") && argc == 3) {
        model(arguments[2]);
    } else {
        give_up(QStringLiteral(
            "--prepare DATABASE SQLITE | --query DATABASE | --grid DATABASE | --model SQLITE"));
    }
    return 0;
}
