// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/Catalog.h"

#include <algorithm>

#include "platform/ado/Session.h"
#include "platform/ado/Waiting.h"

namespace ado {

Result<std::vector<Catalog::TableEntry>> Catalog::tables() const {
    const Waiting waiting(m_timeout);
    const auto session = Session::open(m_connection);
    if (!session.ok()) return session.status();
    const auto entries = session.value()->database().catalog();
    if (!entries.ok()) return entries.status();
    std::vector<TableEntry> tables;
    for (const jet::CatalogEntry& entry : entries.value()) {
        Kind kind = entry.system ? Kind::SystemTable : Kind::Table;
        if (entry.kind == jet::CatalogEntry::Kind::Linked) kind = Kind::LinkedTable;
        if (entry.kind == jet::CatalogEntry::Kind::Query) kind = Kind::Query;
        tables.push_back({QString::fromStdString(entry.name), kind});
    }
    std::stable_sort(tables.begin(), tables.end(), [](const TableEntry& a, const TableEntry& b) {
        return a.name.compare(b.name, Qt::CaseInsensitive) < 0;
    });
    return tables;
}

Result<std::vector<Catalog::ColumnEntry>> Catalog::columns(const QString& table) const {
    const Waiting waiting(m_timeout);
    const auto session = Session::open(m_connection);
    if (!session.ok()) return session.status();
    const auto found = session.value()->database().table(table.toStdString());
    if (!found.ok()) return found.status();
    std::vector<ColumnEntry> columns;
    for (const jet::Column& column : found.value()->definition().columns) {
        const bool wide = column.type == jet::Type::Text && !column.ansi;
        const int size = wide ? column.length / 2 : column.length;
        columns.push_back({QString::fromStdString(column.name), column.type, size, column.autoNumber});
    }
    return columns;
}

}  // namespace ado
