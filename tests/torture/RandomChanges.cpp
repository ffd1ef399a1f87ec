// SPDX-License-Identifier: GPL-3.0-or-later
#include "torture/RandomChanges.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <vector>

#include "modules/store/NuovoDatabase.h"
#include "support/JetTables.h"

namespace changes {

namespace {

using jet::Type;
using jet::Value;

void require(bool fine, const char* what) {
    if (fine) return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

constexpr const char* tables[] = {"tb_destinatari", "tb_gruppi", "prova"};

size_t below(Random& random, size_t end) {
    return random() % end;
}

std::string someText(Random& random, size_t most) {
    const size_t length =
        below(random, 3) ? below(random, std::min<size_t>(most, 30) + 1) : below(random, most + 1);
    std::string text;
    for (size_t i = 0; i < length; ++i)
        text += static_cast<char>('a' + below(random, 26));
    return text;
}

Value someValue(Random& random, const jet::Column& column) {
    if (column.autoNumber || (column.type != Type::YesNo && below(random, 6) == 0)) return {};
    switch (column.type) {
        case Type::YesNo:
            return below(random, 2) == 0;
        case Type::Long:
            return static_cast<int64_t>(below(random, 500));
        case Type::Date:
            return jet::Date{static_cast<double>(below(random, 50000)) / 4};
        case Type::Currency:
            return jet::Currency{static_cast<int64_t>(random()) - 1000000000};
        case Type::Text:
            return someText(random, column.length / 2u);
        case Type::Memo:
            return someText(random, below(random, 3) ? 200 : 9000);
        default:
            return {};
    }
}

// Failures of values; everything else ends the transaction.
bool refusedValue(const Status& status) {
    const ErrorCode code = status.code();
    return code == ErrorCode::DuplicateKey || code == ErrorCode::RecordTooLarge ||
           code == ErrorCode::ValueRequired;
}

std::vector<jet::RowId> rowsOf(jet::Table& table) {
    std::vector<jet::RowId> rows;
    (void)table.scan([&](jet::RowId id, const jet::RowView&) {
        rows.push_back(id);
        return true;
    });
    return rows;
}

Status insertOne(Random& random, jet::Table& table, std::vector<jet::RowId>& rows) {
    std::vector<Value> row;
    for (const jet::Column& column : table.definition().columns)
        row.push_back(someValue(random, column));
    const auto id = table.insert(row);
    if (id.ok()) rows.push_back(id.value());
    return id.ok() || refusedValue(id.status()) ? Status() : id.status();
}

Status changeOne(Random& random, jet::Table& table, jet::RowId row) {
    std::vector<std::pair<size_t, Value>> values;
    const auto& columns = table.definition().columns;
    for (size_t i = 0; i < columns.size(); ++i)
        if (!columns[i].autoNumber && below(random, 3) == 0)
            values.emplace_back(i, someValue(random, columns[i]));
    const Status status = table.update(row, values);
    return refusedValue(status) ? Status() : status;
}

Status change(Random& random, jet::Table& table, std::vector<jet::RowId>& rows) {
    const size_t what = below(random, 100);
    if (what < 45 || rows.empty()) return insertOne(random, table, rows);
    if (what < 75) return changeOne(random, table, rows[below(random, rows.size())]);
    if (what < 97) {
        const size_t chosen = below(random, rows.size());
        const jet::RowId row = rows[chosen];
        rows.erase(rows.begin() + static_cast<ptrdiff_t>(chosen));
        return table.erase(row);
    }
    for (const jet::RowId row : rows)
        if (Status status = changeOne(random, table, row); !status.ok()) return status;
    return {};
}

Status changeSome(Random& random, jet::Database& database, int count) {
    if (Status status = database.begin(); !status.ok()) return status;
    const auto run = [&]() -> Status {
        const auto table = database.table(tables[below(random, std::size(tables))]);
        if (!table.ok()) return table.status();
        std::vector<jet::RowId> rows = rowsOf(*table.value());
        for (int i = 0; i < count; ++i)
            if (Status status = change(random, *table.value(), rows); !status.ok()) return status;
        return {};
    };
    if (Status status = run(); !status.ok()) {
        database.rollback();
        return status;
    }
    return database.commit();
}

}  // namespace

void makeDatabase(const std::string& path, unsigned seed, int mostRows) {
    require(schema::CreaDatabase(path).ok(), "no database can be made");
    jettables::addTable(path, "prova",
                        {{"testo", Type::Text, 50},
                         {"data", Type::Date},
                         {"euro", Type::Currency},
                         {"si", Type::YesNo},
                         {"numero", Type::Long},
                         {"nota", Type::Memo}},
                        {{{{0, true}, {1, false}}, 0x80},
                         {{{4, true}}, 0x80},
                         {{{2, true}}, 0x81},
                         {{{3, true}, {0, true}}, 0x82}});
    Random random(seed);
    auto database = jet::Database::open(path);
    require(database.ok(), "the new database does not open");
    require(changeSome(random, *database.value(), 1).ok(), "the new database cannot be changed");
    for (const char* name : tables) {
        jet::Table& table = *database.value()->table(name).value();
        std::vector<jet::RowId> rows;
        require(database.value()->begin().ok(), "no transaction");
        for (size_t left = below(random, static_cast<size_t>(mostRows)); left > 0; --left)
            require(insertOne(random, table, rows).ok(), "a row cannot be inserted");
        require(database.value()->commit().ok(), "the rows cannot be committed");
    }
}

Status runTransaction(const std::string& path, unsigned seed, int most,
                      const jet::Database::Options& options) {
    Random random(seed);
    auto database = jet::Database::open(path, options);
    if (!database.ok()) return database.status();
    return changeSome(random, *database.value(),
                      1 + static_cast<int>(below(random, static_cast<size_t>(most))));
}

}  // namespace changes
