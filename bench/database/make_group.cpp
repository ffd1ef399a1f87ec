// SPDX-License-Identifier: GPL-3.0-or-later
// make_group FILE ROWS [indexed]
//
// Writes a database whose table tb_destinatari has that many rows, in twelve groups but for every thousandth
// row, which is in group 13; on request with an index on the group, as other programs make one.
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "../scan/Recipient.h"
#include "platform/jet/Database.h"
#include "platform/jet/JetText.h"
#include "platform/jet/NewDatabase.h"
#include "support/JetTables.h"

namespace {

int failed(const Status& status) {
    std::fprintf(stderr, "make_group: %s\n", status.plainText().c_str());
    return 1;
}

std::vector<jettables::Column> columns() {
    std::vector<jettables::Column> all = {{"id", jet::Type::Long}, {"id_grp", jet::Type::Long}};
    for (const char* name :
         {"rgs", "nom", "piva", "ind", "cap", "loc", "prov", "tel", "fax", "email", "campo1", "campo2",
          "campo3", "campo4", "campo5", "campo6", "campo7", "campo8", "campo9"})
        all.push_back({name, jet::Type::Text, 255});
    all.push_back({"sel", jet::Type::YesNo});
    return all;
}

Status make(const std::string& path, int64_t rows, bool indexed) {
    if (Status status = jet::createDatabase(path, {}); !status.ok()) return status;
    jettables::addTable(
        path, "tb_destinatari", columns(),
        indexed ? std::vector<jettables::Index>{{{{1, true}}}} : std::vector<jettables::Index>());
    auto opened = jet::Database::open(path);
    if (!opened.ok()) return opened.status();
    const auto table = opened.value()->table("tb_destinatari");
    if (!table.ok()) return table.status();
    if (Status status = opened.value()->begin(); !status.ok()) return status;
    for (int64_t n = 0; n < rows; ++n) {
        std::vector<jet::Value> row = bench::recipient(static_cast<size_t>(n));
        row[0] = n + 1;
        if (n % 1000 == 0) row[1] = int64_t{13};
        if (const auto id = table.value()->insert(row); !id.ok()) return id.status();
    }
    return opened.value()->commit();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3 && argc != 4) {
        std::fprintf(stderr, "usage: make_group FILE ROWS [indexed]\n");
        return 2;
    }
    const Status status = make(argv[1], std::atoll(argv[2]), argc == 4);
    return status.ok() ? 0 : failed(status);
}
