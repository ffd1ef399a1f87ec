// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/JetTables.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <optional>

#include "platform/jet/Catalog.h"
#include "platform/jet/DataPages.h"
#include "platform/jet/DefinitionReader.h"
#include "platform/jet/DefinitionWriter.h"
#include "platform/jet/Failure.h"
#include "platform/jet/Header.h"
#include "platform/jet/IndexPage.h"
#include "platform/jet/IndexTree.h"
#include "platform/jet/Key.h"
#include "platform/jet/Row.h"
#include "platform/jet/RowStore.h"
#include "platform/jet/UsageMap.h"
#include "platform/jet/ValueCodec.h"

using namespace jet;

namespace jettables {

namespace {

void change(const std::string& path, const std::function<void(PageFile&)>& work) {
    PageFile file(path, false, {});
    file.beginWrite();
    work(file);
    file.commit();
}

TableDefinition definitionAt(PageFile& file, const std::string& name, uint32_t page) {
    return parseDefinition(readDefinition(file, page), name, page, false);
}

CatalogEntry entryOf(PageFile& file, const std::string& name) {
    for (const CatalogEntry& entry : readCatalog(file))
        if (entry.name == name) return entry;
    fail(ErrorCode::TableNotFound, Phrase::literal(name));
}

// Pages for a map row: none yet, or the one given.
void addMap(Page& page, uint32_t number, std::optional<uint32_t> member = std::nullopt) {
    Bytes row(map::ordinaryLength);
    if (member) row[map::bits + *member / 8] |= static_cast<uint8_t>(1u << *member % 8);
    appendRow(page, number, row);
}

ColumnPlan plan(const Column& column, uint16_t number, uint16_t& variables, uint16_t& offset) {
    jet::Column probe;
    probe.type = column.type;
    const bool fixed = column.type != Type::Text && column.type != Type::Binary &&
                       column.type != Type::Memo && column.type != Type::Ole;
    const uint16_t length = fixed                       ? static_cast<uint16_t>(fixedLength(probe))
                            : column.type == Type::Text ? static_cast<uint16_t>(2 * column.length)
                                                        : column.length;
    ColumnPlan plan{column.name,
                    column.type,
                    number,
                    variables,
                    static_cast<uint8_t>((fixed ? 0x03 : 0x02) | (column.autoNumber ? 0x04 : 0)),
                    fixed && column.type != Type::YesNo ? offset : uint16_t{0},
                    length,
                    static_cast<uint8_t>(column.type == Type::Text || column.type == Type::Memo),
                    number};
    if (fixed)
        offset = static_cast<uint16_t>(offset + length);
    else
        ++variables;
    return plan;
}

// Definitions are planned with ascending indexes; their order bytes follow each column number.
void setOrders(Page& page, const TablePlan& table, const std::vector<Index>& indexes) {
    size_t at = definition::indexCounts + definition::indexCountLength * indexes.size() +
                definition::columnLength * table.columns.size();
    for (const ColumnPlan& column : table.columns)
        at += 2 + 2 * column.name.size();
    for (const Index& index : indexes) {
        for (size_t i = 0; i < index.parts.size(); ++i)
            page[at + 4 + 3 * i + 2] = index.parts[i].second ? 1 : 0;
        at += definition::realIndexLength;
    }
}

// Definitions are planned with the text's language in the place of a numeric's digits and decimals.
void setDigits(Page& page, const std::vector<Column>& columns, size_t indexes) {
    size_t at = definition::indexCounts + definition::indexCountLength * indexes;
    for (const Column& column : columns) {
        if (column.type == Type::Numeric) {
            page[at + 11] = column.precision;
            page[at + 12] = column.scale;
        }
        at += definition::columnLength;
    }
}

// Adds a row, its index entries and its part of the row count.
void addRowTo(PageFile& file, const TableDefinition& table, const jet::Row& row) {
    const RowId id = RowStore(file, table).insert(row.bytes());
    for (const jet::Index& index : table.indexes)
        IndexTree(file, table, index).insert(keyToWrite(table, index, fieldsOf(row)), id);
    uint8_t* count = &file.change(table.page)[definition::rowCount];
    store32(count, load32(count) + 1);
}

void addToCatalog(PageFile& file, const std::string& name, uint32_t page) {
    const TableDefinition objects = definitionAt(file, "MSysObjects", catalogPage);
    jet::Row row(objects);
    const auto set = [&](const char* column, const Value& value) {
        row.set(objects.columns[objects.find(column).value()], value);
    };
    set("Id", int64_t{page});
    set("ParentId", int64_t{0x0F000001});
    set("Name", name);
    set("Type", int64_t{1});
    set("Flags", int64_t{0});
    set("DateCreate", Date{38143});
    set("DateUpdate", Date{38143});
    set("Owner", Bytes{0xA6, 0x33});
    addRowTo(file, objects, row);
}

Bytes head(size_t length, unsigned place, uint32_t pointer) {
    Bytes bytes(12);
    store32(bytes.data(), static_cast<uint32_t>(length | place << 30));
    store32(&bytes[4], pointer);
    return bytes;
}

// A new long-value page of the column with one row.
uint32_t longRow(PageFile& file, const jet::Column& column, const Bytes& row) {
    const uint32_t page = GlobalMap(file).take();
    makeDataPage(file.change(page), load32(reinterpret_cast<const uint8_t*>("LVAL")));
    UsageMap(file, column.longOwned).set(page, true);
    return pointerTo(page, appendRow(file.change(page), page, row));
}

Bytes stored(PageFile& file, const jet::Column& column, const Bytes& bytes, Place place) {
    if (place == Place::InRow) {
        Bytes whole = head(bytes.size(), 2, 0);
        whole.insert(whole.end(), bytes.begin(), bytes.end());
        return whole;
    }
    if (place == Place::OneRow) return head(bytes.size(), 1, longRow(file, column, bytes));
    constexpr size_t piece = 3000;
    uint32_t next = 0;
    for (size_t from = (bytes.size() - 1) / piece * piece + piece; from > 0;) {
        from -= piece;
        Bytes row(4);
        store32(row.data(), next);
        row.insert(row.end(), bytes.begin() + static_cast<long>(from),
                   bytes.begin() + static_cast<long>(std::min(from + piece, bytes.size())));
        next = longRow(file, column, row);
    }
    return head(bytes.size(), 0, next);
}

// Stores the 12 bytes and what follows as if the column were a binary one.
void setStored(PageFile& file, TableDefinition table, RowId id, size_t position, const Bytes& bytes) {
    RowStore rows(file, table);
    jet::Column& column = table.columns[position];
    column.type = Type::Binary;
    column.length = data::maxRow;
    jet::Row row(table, rows.find(id).value().bytes);
    row.set(column, bytes);
    rows.update(id, row.bytes());
}

}  // namespace

void addTable(const std::string& path, const std::string& name, const std::vector<Column>& columns,
              const std::vector<Index>& indexes) {
    change(path, [&](PageFile& file) {
        const uint32_t page = GlobalMap(file).take();
        const uint32_t maps = GlobalMap(file).take();
        TablePlan table{page, 'N', 0, 0, pointerTo(maps, 0), {}, {}, {}};
        Page& mapPage = file.change(maps);
        makeDataPage(mapPage, 0);
        addMap(mapPage, maps);
        addMap(mapPage, maps);
        uint32_t row = 2;
        uint16_t offset = 0;
        for (const Column& column : columns)
            table.columns.push_back(
                plan(column, static_cast<uint16_t>(table.columns.size()), table.variables, offset));
        for (const Index& index : indexes) {
            const uint32_t root = GlobalMap(file).take();
            IndexPage().store(file.change(root), page);
            addMap(file.change(maps), maps, root);
            std::vector<uint16_t> numbers;
            for (const auto& part : index.parts)
                numbers.push_back(part.first);
            table.logicals.push_back({"indice" + std::to_string(table.indexes.size()),
                                      static_cast<uint32_t>(table.indexes.size()), false});
            table.indexes.push_back({numbers, index.flags, pointerTo(maps, row++), root});
        }
        for (const ColumnPlan& column : table.columns) {
            if (column.type != Type::Memo && column.type != Type::Ole) continue;
            table.longs.push_back({column.number, pointerTo(maps, row)});
            addMap(file.change(maps), maps);
            addMap(file.change(maps), maps);
            row += 2;
        }
        const Bytes bytes = definitionBytes(table);
        Page& definition = file.change(page);
        std::copy(bytes.begin(), bytes.end(), definition.begin());
        setOrders(definition, table, indexes);
        setDigits(definition, columns, indexes.size());
        addToCatalog(file, name, page);
    });
}

void setLongValue(const std::string& path, const std::string& name, RowId id, size_t position,
                  const Bytes& bytes, Place place) {
    change(path, [&](PageFile& file) {
        const TableDefinition table = definitionAt(file, name, entryOf(file, name).definitionPage);
        setStored(file, table, id, position, stored(file, table.columns[position], bytes, place));
    });
}

void addRow(const std::string& path, const std::string& name, const std::vector<Value>& values) {
    change(path, [&](PageFile& file) {
        const TableDefinition table = definitionAt(file, name, entryOf(file, name).definitionPage);
        jet::Row row(table);
        for (size_t i = 0; i < values.size(); ++i)
            row.set(table.columns[i], values[i]);
        addRowTo(file, table, row);
    });
}

void setCounter(const std::string& path, const std::string& name, int32_t last) {
    change(path, [&](PageFile& file) {
        const uint32_t page = entryOf(file, name).definitionPage;
        store32(&file.change(page)[definition::autoNumber], static_cast<uint32_t>(last));
    });
}

void setProperties(const std::string& path, const std::string& name, const Bytes& list) {
    change(path, [&](PageFile& file) {
        const TableDefinition objects = definitionAt(file, "MSysObjects", catalogPage);
        const size_t position = objects.find("LvProp").value();
        setStored(file, objects, entryOf(file, name).place, position,
                  stored(file, objects.columns[position], list, Place::InRow));
    });
}

void setPassword(const std::string& path, std::u16string_view password) {
    std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
    Page page{};
    auto* bytes = reinterpret_cast<char*>(page.data());
    if (!file.read(bytes, pageSize)) fail(ErrorCode::DeviceIo, Phrase::literal(path));
    maskHeader(page);
    for (size_t i = 0; i < password.size(); ++i) {
        page[header::password + 2 * i] ^= static_cast<uint8_t>(password[i]);
        page[header::password + 2 * i + 1] ^= static_cast<uint8_t>(password[i] >> 8);
    }
    maskHeader(page);
    if (!file.seekp(0).write(bytes, pageSize).flush()) fail(ErrorCode::DeviceIo, Phrase::literal(path));
}

}  // namespace jettables
