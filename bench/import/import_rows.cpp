// SPDX-License-Identifier: GPL-3.0-or-later
// import_rows STATEMENTS DATABASE ROWS
//
// Makes an empty database and runs the file's INSERT statements, one a line, as an import does: committed in
// groups of that many rows. Prints one line of JSON with the rows in the file and the peak of memory.
#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "modules/store/NuovoDatabase.h"
#include "platform/ado/GroupedInserts.h"
#include "platform/jet/Database.h"

namespace {

void demand(const Status& status) {
    if (status.ok()) return;
    std::fprintf(stderr, "import_rows: %s\n", qPrintable(status.text()));
    std::exit(1);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fprintf(stderr, "usage: import_rows STATEMENTS DATABASE ROWS\n");
        return 2;
    }
    const QString path = QString::fromLocal8Bit(argv[2]);
    demand(schema::CreaDatabase(path.toStdString()));
    ado::GroupedInserts inserts;
    inserts.setGroupSize(std::atoi(argv[3]));
    inserts.setGroupAge(std::chrono::hours(1));
    demand(inserts.setActiveConnection(QStringLiteral("Data Source = ") + path));
    std::ifstream statements(argv[1]);
    for (std::string line; std::getline(statements, line);)
        demand(inserts.execute(QString::fromStdString(line)));
    demand(inserts.commit());
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("{\"rows\": %lld, \"kilobytes\": %ld}\n", static_cast<long long>(inserts.committed()),
                usage.ru_maxrss);
    return 0;
}
