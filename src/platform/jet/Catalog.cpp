// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Catalog.h"

#include <algorithm>

#include "platform/jet/DefinitionReader.h"
#include "platform/jet/Failure.h"
#include "platform/jet/LongValue.h"
#include "platform/jet/Names.h"
#include "platform/jet/Row.h"
#include "platform/jet/RowStore.h"

namespace jet {

namespace {

CatalogEntry::Kind kindOf(int64_t type) {
    return type == 1   ? CatalogEntry::Kind::Local
           : type == 5 ? CatalogEntry::Kind::Query
                       : CatalogEntry::Kind::Linked;
}

bool isListed(int64_t type) {
    return type == 1 || type == 4 || type == 5 || type == 6;
}

TableDefinition objectsDefinition(PageFile& file) {
    return parseDefinition(readDefinition(file, catalogPage), "MSysObjects", catalogPage, file.header().jet3);
}

size_t columnOf(const TableDefinition& objects, std::string_view name) {
    const std::optional<size_t> found = objects.find(name);
    if (!found) failDamaged("il catalogo non è leggibile"_tr);
    return *found;
}

}  // namespace

std::vector<CatalogEntry> readCatalog(PageFile& file) {
    const TableDefinition objects = objectsDefinition(file);
    const size_t id = columnOf(objects, "Id");
    const size_t name = columnOf(objects, "Name");
    const size_t type = columnOf(objects, "Type");
    const size_t flags = columnOf(objects, "Flags");

    std::vector<CatalogEntry> entries;
    RowStore(file, objects).scan([&](RowId place, std::span<const uint8_t> bytes) {
        const RowView row(&objects, bytes);
        const int64_t kind = row.integer(type);
        if (!isListed(kind)) return true;
        CatalogEntry entry;
        row.text(name, entry.name);
        entry.kind = kindOf(kind);
        entry.system = (row.integer(flags) & 0x80000002) != 0 || sameName(entry.name.substr(0, 4), "MSys");
        entry.definitionPage = static_cast<uint32_t>(row.integer(id)) & 0xFFFFFF;
        entry.place = place;
        entries.push_back(std::move(entry));
        return true;
    });
    std::stable_sort(entries.begin(), entries.end(), [](const CatalogEntry& a, const CatalogEntry& b) {
        return compareNames(a.name, b.name) < 0;
    });
    return entries;
}

Bytes readProperties(PageFile& file, const CatalogEntry& entry) {
    const TableDefinition objects = objectsDefinition(file);
    const std::optional<RowStore::Stored> row = RowStore(file, objects).find(entry.place);
    if (!row) return {};
    const Column& column = objects.columns[columnOf(objects, "LvProp")];
    const StoredField field = storedField(objects, column, row->bytes);
    if (field.null) return {};
    try {
        return readLongValue(file, field.bytes);
    } catch (const Failure&) {
        return {};
    }
}

}  // namespace jet
