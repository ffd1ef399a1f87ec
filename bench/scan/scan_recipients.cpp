// SPDX-License-Identifier: GPL-3.0-or-later
// scan_recipients --make FILE [ROWS]
//     writes a database with that many recipients (100,000) in twelve groups, in one transaction
// scan_recipients --scan FILE
//     opens it, reads every column of every recipient as UTF-8, prints the counts
//
// The second is compared with `mdb-export FILE tb_destinatari`, as whole processes on the same file.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "modules/store/NuovoDatabase.h"
#include "platform/jet/Database.h"
#include "platform/jet/JetText.h"
#include "Recipient.h"

namespace {

int failed(const Status& status) {
    std::fprintf(stderr, "scan_recipients: %s\n", status.plainText().c_str());
    return 1;
}

Status addGroups(jet::Database& database) {
    auto table = database.table("tb_gruppi");
    if (!table.ok()) return table.status();
    for (size_t n = 1; n <= bench::groups; ++n) {
        const std::vector<jet::Value> row{{}, int64_t{0}, "Gruppo " + std::to_string(n)};
        if (auto id = table.value()->insert(row); !id.ok()) return id.status();
    }
    return {};
}

int make(const std::string& path, size_t rows) {
    if (const Status status = schema::CreaDatabase(path); !status.ok()) return failed(status);
    auto opened = jet::Database::open(path);
    if (!opened.ok()) return failed(opened.status());
    jet::Database& database = *opened.value();
    auto table = database.table("tb_destinatari");
    if (!table.ok()) return failed(table.status());
    if (const Status status = database.begin(); !status.ok()) return failed(status);
    if (const Status status = addGroups(database); !status.ok()) return failed(status);
    for (size_t n = 0; n < rows; ++n)
        if (auto id = table.value()->insert(bench::recipient(n)); !id.ok()) return failed(id.status());
    if (const Status status = database.commit(); !status.ok()) return failed(status);
    return 0;
}

int scan(const std::string& path) {
    auto opened = jet::Database::open(path);
    if (!opened.ok()) return failed(opened.status());
    auto found = opened.value()->table("tb_destinatari");
    if (!found.ok()) return failed(found.status());
    jet::Table& table = *found.value();
    const auto& columns = table.definition().columns;
    size_t rows = 0;
    size_t bytes = 0;
    size_t nulls = 0;
    std::string text;
    const Status status = table.scan([&](jet::RowId, const jet::RowView& row) {
        ++rows;
        for (size_t i = 0; i < columns.size(); ++i) {
            text.clear();
            if (columns[i].type == jet::Type::Text) {
                if (!row.text(i, text)) ++nulls;
            } else if (columns[i].type == jet::Type::YesNo) {
                text = row.yesNo(i) ? "1" : "0";
            } else if (row.isNull(i)) {
                ++nulls;
            } else {
                text = std::to_string(row.integer(i));
            }
            bytes += text.size();
        }
        return true;
    });
    if (!status.ok()) return failed(status);
    std::printf("%zu rows, %zu bytes of UTF-8, %zu Null values\n", rows, bytes, nulls);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc >= 3 && std::strcmp(argv[1], "--make") == 0)
        return make(argv[2], argc > 3 ? std::strtoul(argv[3], nullptr, 10) : 100000);
    if (argc == 3 && std::strcmp(argv[1], "--scan") == 0) return scan(argv[2]);
    std::fprintf(stderr, "usage: scan_recipients --make FILE [ROWS] | --scan FILE\n");
    return 2;
}
