// SPDX-License-Identifier: GPL-3.0-or-later
// list_tables FILE...
//     opens each database and prints the names of its users' tables, one a line
//
// Compared with `mdb-tables -1 FILE`.
#include <cstdio>

#include "platform/jet/Database.h"
#include "platform/jet/JetText.h"

namespace {

bool list(const char* file) {
    // One of the sample files has a password.
    const auto opened = jet::Database::open(file, {.password = "password", .readOnly = true});
    const auto catalog = opened.ok() ? opened.value()->catalog() : opened.status();
    if (!catalog.ok()) {
        std::fprintf(stderr, "list_tables: %s\n", catalog.status().plainText().c_str());
        return false;
    }
    for (const jet::CatalogEntry& entry : catalog.value())
        if (entry.kind == jet::CatalogEntry::Kind::Local && !entry.system) std::puts(entry.name.c_str());
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
        listed = list(argv[i]) && listed;
    return listed ? 0 : 1;
}
