// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/FileEnd.h"

#include <algorithm>
#include <optional>

#include "platform/jet/DefinitionReader.h"
#include "platform/jet/Failure.h"
#include "platform/jet/UsageMap.h"

namespace jet {

namespace {

bool namesMissingPage(PageFile& file, uint32_t map) {
    if (map == 0) return false;
    const std::vector<uint32_t> pages = UsageMap(file, map).pages();
    return !pages.empty() && pages.back() >= file.pageCount();
}

// A definition that contradicts itself is reported when its table is opened.
std::optional<TableDefinition> parsed(const Bytes& block, const CatalogEntry& entry, bool jet3) {
    try {
        return parseDefinition(block, entry.name, entry.definitionPage, jet3);
    } catch (const Failure&) {
        return std::nullopt;
    }
}

bool ownsMissingPage(PageFile& file, const CatalogEntry& entry) {
    const Bytes block = readDefinition(file, entry.definitionPage);
    const std::optional<TableDefinition> table = parsed(block, entry, file.header().jet3);
    if (!table) return false;
    const auto missing = [&](uint32_t map) { return namesMissingPage(file, map); };
    return missing(table->ownedMap) || missing(table->roomMap) ||
           std::any_of(table->indexes.begin(), table->indexes.end(),
                       [&](const Index& index) {
                           return index.rootPage >= file.pageCount() || missing(index.mapPointer);
                       }) ||
           std::any_of(table->columns.begin(), table->columns.end(), [&](const Column& column) {
               return missing(column.longOwned) || missing(column.longRoom);
           });
}

}  // namespace

bool lacksItsEnd(PageFile& file, const std::vector<CatalogEntry>& catalog) {
    return GlobalMap(file).reachesBehindFile() &&
           std::any_of(catalog.begin(), catalog.end(), [&](const CatalogEntry& entry) {
               return entry.kind == CatalogEntry::Kind::Local && ownsMissingPage(file, entry);
           });
}

}  // namespace jet
