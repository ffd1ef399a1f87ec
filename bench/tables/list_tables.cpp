// list_tables FILE...
//     opens each database and prints the names of its users' tables, one a line
//
// Held against `mdb-tables -1 FILE`.
#include <cstdio>

#include "platform/jet/Database.h"

namespace {

// One of the sample files has a password.
const QString samplePassword = QStringLiteral("password");

bool list(const QString& file) {
    const auto opened = jet::Database::open(file, {.password = samplePassword, .readOnly = true});
    const auto catalog = opened.ok() ? opened.value()->catalog() : opened.status();
    if (!catalog.ok()) {
        std::fprintf(stderr, "list_tables: %s\n", qPrintable(catalog.status().text()));
        return false;
    }
    for (const jet::CatalogEntry& entry : catalog.value())
        if (entry.kind == jet::CatalogEntry::Kind::Local && !entry.system)
            std::puts(qUtf8Printable(entry.name));
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: list_tables FILE...\n");
        return 2;
    }
    bool listed = true;
    for (int i = 1; i < argc; ++i)
        listed = list(QString::fromLocal8Bit(argv[i])) && listed;
    return listed ? 0 : 1;
}
