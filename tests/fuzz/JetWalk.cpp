// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "fuzz/JetExercise.h"
#include "platform/jet/Database.h"

namespace exercise {

namespace {

// Bounds the cost of one input; a loop in the file would reach the time limit earlier.
constexpr size_t mostRowsWalked = 20000;
constexpr size_t mostChanged = 4;

// A value that fits a column.
jet::Value someValue(const jet::Column& column, size_t length) {
    switch (column.type) {
        case jet::Type::Text:
            return std::string(std::min<size_t>(length, column.length / 2u), 'x');
        case jet::Type::YesNo:
            return length % 2 == 0;
        case jet::Type::Byte:
        case jet::Type::Integer:
        case jet::Type::Long:
            return static_cast<int64_t>(length % 100);
        case jet::Type::Single:
        case jet::Type::Double:
            return static_cast<double>(length) / 8;
        case jet::Type::Date:
            return jet::Date{static_cast<double>(length)};
        case jet::Type::Currency:
            return jet::Currency{static_cast<int64_t>(length)};
        case jet::Type::Guid:
            return jet::Bytes(16, static_cast<uint8_t>(length));
        case jet::Type::Binary:
            return jet::Bytes(column.fixed ? column.length : std::min<size_t>(length, column.length), 1);
        default:
            return {};
    }
}

void readAll(jet::Table& table, std::vector<jet::RowId>& some) {
    const size_t columns = table.definition().columns.size();
    size_t seen = 0;
    std::string text;
    (void)table.scan([&](jet::RowId id, const jet::RowView& row) {
        for (size_t i = 0; i < columns; ++i) {
            (void)row.value(i);
            (void)row.integer(i);
            text.clear();
            (void)row.text(i, text);
        }
        if (some.size() < mostChanged) some.push_back(id);
        return ++seen < mostRowsWalked;
    });
    for (jet::RowId id : some)
        for (size_t i = 0; i < columns; ++i)
            (void)table.value(id, i);
    for (int32_t key : {-1, 0, 1, 40})
        (void)table.findByPrimaryKey(key);
}

void changeSome(jet::Database& database, jet::Table& table, const std::vector<jet::RowId>& some) {
    if (!database.begin().ok()) return;
    const auto& columns = table.definition().columns;
    (void)table.takeAutoNumber();
    std::vector<jet::Value> row(columns.size());
    for (size_t i = 0; i < columns.size(); ++i)
        if (!columns[i].autoNumber) row[i] = someValue(columns[i], 5);
    (void)table.insert(row);
    for (jet::RowId id : some) {
        for (size_t i = 0; i < columns.size(); ++i) {
            const std::pair<size_t, jet::Value> grow{i, someValue(columns[i], 300)};
            (void)table.update(id, std::span(&grow, 1));
        }
    }
    for (jet::RowId id : some)
        (void)table.erase(id);
    (void)database.commit();
}

}  // namespace

bool walkAndChange(const std::string& file) {
    const jet::Database::Options options{.password = "password"};  // that of a sample
    auto opened = jet::Database::open(file, options);
    if (!opened.ok()) return false;
    jet::Database& database = *opened.value();
    if (const auto catalog = database.catalog(); catalog.ok())
        for (const jet::CatalogEntry& entry : catalog.value()) {
            const auto table = database.table(entry.name);
            if (!table.ok()) continue;
            std::vector<jet::RowId> some;
            readAll(*table.value(), some);
            changeSome(database, *table.value(), some);
        }
    return true;
}

}  // namespace exercise
