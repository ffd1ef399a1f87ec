// SPDX-License-Identifier: GPL-3.0-or-later
// database_work WORK FILE
//
// One piece of work on a database of recipients, through ado as the program does it. Prints one line of JSON:
// the seconds it took, on the clock and of the processor, the kilobytes that the process has gained and
// kept, and what was counted.
//     engine          the engine alone: every cell of tb_destinatari as text
//     scan            the same through a recordset
//     star, columns   a recordset of all rows, passed to the end and kept: SELECT *, a list of columns
//     order           the first ordered query of a run: all rows, of which one is read
//     select          UPDATE … SET sel = True on all rows
//     nothing         a query without rows
//     group N         the rows of one group; the database is open already
//     tick N [FAILED] N ticks' part of the database: the first selected row after those that failed is read
//     and
//                     its mark taken. The first tick, which makes the order, is not measured.
//     changed         a tick after another process has changed a row
//     preads [N]      every page, or N at random, read from the file and nothing else
#include <fcntl.h>
#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <random>
#include <string>

#include "platform/ado/Command.h"
#include "platform/ado/Recordset.h"
#include "platform/jet/Database.h"

namespace {

void demand(const Status& status) {
    if (status.ok()) return;
    std::fprintf(stderr, "database_work: %s\n", qPrintable(status.text()));
    std::exit(1);
}

template <class T>
T demand(Result<T> result) {
    demand(result.status());
    return std::move(result).value();
}

double processorSeconds() {
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& t) {
        return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// After what was freed went back to the system.
long residentKilobytes() {
    malloc_trim(0);
    long pages = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> pages >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

struct Moment {
    std::chrono::steady_clock::time_point clock;
    double processor = 0;
    long kilobytes = 0;

    /// Neither includes the time that it takes to look at the memory.
    static Moment before() {
        const long kilobytes = residentKilobytes();
        const double processor = processorSeconds();
        return {std::chrono::steady_clock::now(), processor, kilobytes};
    }
    static Moment after() {
        const auto clock = std::chrono::steady_clock::now();
        const double processor = processorSeconds();
        return {clock, processor, residentKilobytes()};
    }
};

struct Counted {
    long long rows = 0;
    long long characters = 0;
};

Counted engine(const std::string& path) {
    const auto database = demand(jet::Database::open(path, {.readOnly = true}));
    jet::Table& table = *demand(database->table("tb_destinatari"));
    const auto& columns = table.definition().columns;
    Counted counted;
    std::string text;
    demand(table.scan([&](jet::RowId, const jet::RowView& row) {
        ++counted.rows;
        for (size_t i = 0; i < columns.size(); ++i) {
            text.clear();
            if (columns[i].type == jet::Type::Text) {
                row.text(i, text);
            } else if (columns[i].type == jet::Type::YesNo) {
                text = row.yesNo(i) ? "Vero" : "Falso";
            } else if (!row.isNull(i)) {
                text = std::to_string(row.integer(i));
            }
            counted.characters += static_cast<long long>(text.size());
        }
        return true;
    }));
    return counted;
}

ado::Recordset query(const std::string& path, const QString& statement) {
    ado::Recordset rows;
    demand(rows.setActiveConnection(QStringLiteral("Data Source = ") + QString::fromStdString(path)));
    rows.setCursorType(ado::CursorType::Static);
    rows.setSource(statement);
    demand(rows.open());
    return rows;
}

long long execute(const std::string& path, const QString& statement) {
    ado::Command command;
    demand(command.setActiveConnection(QStringLiteral("Data Source = ") + QString::fromStdString(path)));
    command.setCommandTimeout(0);
    command.setCommandText(statement);
    return demand(command.execute());
}

Counted walk(ado::Recordset rows, bool readCells) {
    Counted counted;
    const QLocale locale;
    const int fields = rows.fieldCount();
    for (; !rows.isEof(); demand(rows.moveNext())) {
        ++counted.rows;
        for (int i = 0; readCells && i < fields; ++i) {
            Result<ado::Value> value = rows.value(i);
            if (!value.ok()) demand(value.status());
            counted.characters += std::move(value).value().toTextOrEmpty(locale).size();
        }
    }
    return counted;
}

const QString runQuery = QStringLiteral(
    "SELECT * FROM [tb_destinatari] WHERE [sel] = True ORDER BY rgs ASC, email ASC, nom ASC, loc ASC, ind "
    "ASC;");

long long tick(const std::string& path, long long failed) {
    ado::Recordset rows = query(path, runQuery);
    demand(rows.move(failed));
    if (rows.isEof()) return 0;
    (void)demand(rows.value(u"email"));
    const qint64 id = demand(demand(rows.value(u"id")).toInteger());
    rows.close();
    return execute(path,
                   QStringLiteral("UPDATE [tb_destinatari] SET [sel] = False WHERE [id] = %1;").arg(id));
}

/// As another process does it: through an open file of its own.
void changeOutside(const std::string& path, int number) {
    const auto database = demand(jet::Database::open(path));
    jet::Table& table = *demand(database->table("tb_destinatari"));
    const auto id = demand(table.findByPrimaryKey(number));
    const std::pair<size_t, jet::Value> change{2, "Ditta " + std::to_string(getpid())};
    demand(database->begin());
    demand(table.update(*id, {&change, 1}));
    demand(database->commit());
}

Counted preads(const std::string& path, long long atRandom) {
    constexpr size_t pageSize = 4096;
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const long long pages = ::lseek(file, 0, SEEK_END) / static_cast<long long>(pageSize);
    std::mt19937 random(1);
    Counted counted;
    char page[pageSize];
    for (long long n = 0; n < (atRandom ? atRandom : pages); ++n) {
        const long long at = atRandom ? static_cast<long long>(random()) % pages : n;
        if (::pread(file, page, pageSize, static_cast<off_t>(at) * static_cast<off_t>(pageSize)) < 0) break;
        ++counted.rows;
    }
    ::close(file);
    return counted;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: database_work WORK FILE [N]\n");
        return 2;
    }
    const std::string work = argv[1];
    const std::string path = argv[2];
    const long long number = argc > 3 ? std::atoll(argv[3]) : 0;
    const long long failed = argc > 4 ? std::atoll(argv[4]) : 0;
    if (work == "group") (void)query(path, QStringLiteral("SELECT * FROM [tb_destinatari] WHERE id = 0;"));
    if (work == "tick" || work == "changed") (void)tick(path, failed);
    if (work == "changed") changeOutside(path, 3);
    const Moment start = Moment::before();
    Counted counted;
    ado::Recordset kept;
    if (work == "engine") {
        counted = engine(path);
    } else if (work == "scan") {
        counted = walk(query(path, QStringLiteral("SELECT * FROM [tb_destinatari];")), true);
    } else if (work == "star" || work == "columns") {
        kept =
            query(path, work == "star" ? QStringLiteral("SELECT * FROM [tb_destinatari];")
                                       : QStringLiteral("SELECT id, email, rgs, nom FROM [tb_destinatari];"));
        counted.rows = kept.recordCount();
    } else if (work == "order") {
        kept = query(path, runQuery);
        counted.rows = kept.isEof() ? 0 : 1;
    } else if (work == "select") {
        counted.rows = execute(path, QStringLiteral("UPDATE [tb_destinatari] SET sel = True;"));
    } else if (work == "nothing") {
        kept = query(path, QStringLiteral("SELECT * FROM [tb_destinatari] WHERE id_grp = 0 ORDER BY rgs;"));
    } else if (work == "group") {
        const QString statement =
            QStringLiteral("SELECT * FROM [tb_destinatari] WHERE id_grp = %1 ORDER BY rgs, nom;");
        kept = query(path, statement.arg(number));
        counted.rows = kept.recordCount();
    } else if (work == "tick" || work == "changed") {
        for (long long n = 0; n < std::max(number, 1LL); ++n)
            counted.rows += tick(path, failed);
    } else if (work == "preads") {
        counted = preads(path, number);
    } else {
        std::fprintf(stderr, "database_work: %s?\n", work.c_str());
        return 2;
    }
    const Moment end = Moment::after();
    std::printf(
        "{\"seconds\": %.6f, \"processor\": %.6f, \"kilobytes\": %ld, \"rows\": %lld, \"characters\": "
        "%lld}\n",
        std::chrono::duration<double>(end.clock - start.clock).count(), end.processor - start.processor,
        end.kilobytes - start.kilobytes, counted.rows, counted.characters);
    return 0;
}
