// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/DefinitionReader.h"

#include <algorithm>
#include <tuple>

#include "platform/jet/Failure.h"
#include "platform/jet/Jet3.h"
#include "platform/jet/JetText.h"
#include "platform/jet/Names.h"

namespace jet {

namespace {

// A definition of 255 columns and 32 indexes with the longest names stays below this.
constexpr size_t maxDefinitionPages = 64;

// Access stops at 255 columns, those that were deleted included, and at 32 indexes.
constexpr size_t mostColumns = 255;
constexpr size_t mostIndexes = 64;

// Access allows names of 64 characters.
constexpr size_t mostNameUnits = 64;

// Bounds-checked reading of a definition from left to right.
class Cursor {
  public:
    Cursor(std::span<const uint8_t> bytes, size_t at, uint32_t page)
        : m_bytes(bytes), m_at(at), m_page(page) {}

    const uint8_t* take(size_t length) {
        if (length > m_bytes.size() - m_at)
            failDamaged("la definizione della tabella a pagina %1 è incompleta"_tr, m_page);
        const uint8_t* p = m_bytes.data() + m_at;
        m_at += length;
        return p;
    }

    std::string takeName() {
        const size_t length = load16(take(2)) / 2 * 2;
        std::string name;
        appendPlainUtf8({take(length), length}, name);
        return name;
    }

  private:
    std::span<const uint8_t> m_bytes;
    size_t m_at;
    uint32_t m_page;
};

Column parseColumn(const uint8_t* p) {
    Column column;
    column.type = static_cast<Type>(p[0]);
    column.number = load16(p + 5);
    column.variableIndex = load16(p + 7);
    column.displayPosition = load16(p + 9);
    const uint8_t flags = p[15];
    column.fixed = flags & 0x01;
    column.autoNumber = flags & 0x04;
    column.autoGuid = flags & 0x40;
    column.compressed = p[16] & 0x01;
    if (column.type == Type::Numeric) {
        column.precision = p[11];
        column.scale = p[12];
    }
    column.generalOrder = load16(p + 11) == 0x0409 && p[14] == 0;
    column.fixedOffset = load16(p + 21);
    column.length = load16(p + 23);
    return column;
}

Index parseIndex(const uint8_t* p) {
    Index index;
    for (size_t i = 0; i < 10; ++i) {
        const uint8_t* part = p + 4 + 3 * i;
        if (load16(part) != 0xFFFF) index.parts.push_back({load16(part), part[2] != 0});
    }
    index.mapPointer = load32(p + 34);
    index.rootPage = load32(p + 38);
    const uint8_t flags = p[46];
    index.unique = flags & 0x01;
    index.ignoreNulls = flags & 0x02;
    index.required = flags & 0x08;
    return index;
}

bool isControl(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

// A name that can be asked for: not empty, not too long, without control characters.
void requireName(const std::string& name, uint32_t page) {
    if (name.empty() || toUtf16(name).size() > mostNameUnits ||
        std::any_of(name.begin(), name.end(), isControl))
        failDamaged("un nome nella definizione della tabella a pagina %1 non è valido"_tr, page);
}

void requireColumnNames(const std::vector<Column>& columns, uint32_t page) {
    std::vector<std::string_view> names;
    for (const Column& column : columns) {
        requireName(column.name, page);
        names.push_back(column.name);
    }
    std::sort(names.begin(), names.end(),
              [](std::string_view a, std::string_view b) { return compareNames(a, b) < 0; });
    const auto twice = std::adjacent_find(names.begin(), names.end(), sameName);
    if (twice != names.end())
        failDamaged("la definizione della tabella a pagina %1 ha due campi con il nome \"%2\""_tr, page,
                    *twice);
}

}  // namespace

std::vector<uint8_t> readDefinition(PageFile& file, uint32_t page) {
    std::vector<uint8_t> block;
    uint32_t next = page;
    const size_t pageEnd = file.bytesPerPage();
    for (size_t pages = 0; pages == 0 || next != 0; ++pages) {
        const PagePtr bytes = file.page(next);
        if ((*bytes)[0] != DefinitionPage)
            failDamaged("la pagina %1 non è la definizione di una tabella"_tr, next);
        if (pages == maxDefinitionPages)
            failDamaged("la definizione della tabella a pagina %1 non finisce"_tr, page);
        const auto own = std::span(*bytes).first(pageEnd).subspan(pages == 0 ? 0 : definition::joined);
        block.insert(block.end(), own.begin(), own.end());
        next = load32(bytes->data() + definition::next);
    }
    return file.header().jet3 ? jet3::widenDefinition(block) : block;
}

TableDefinition parseDefinition(std::span<const uint8_t> block, const std::string& name, uint32_t page,
                                bool jet3) {
    TableDefinition table;
    table.jet3 = jet3;
    table.name = name;
    table.page = page;
    const uint8_t* p = block.data();
    table.system = p[definition::kind] == 'S';
    table.maxColumns = load16(p + definition::maxColumns);
    table.variableColumns = load16(p + definition::variableColumns);
    table.ownedMap = load32(p + definition::ownedMap);
    table.roomMap = load32(p + definition::roomMap);
    const size_t columns = load16(p + definition::columns);
    const size_t logicalIndexes = load32(p + definition::logicalIndexes);
    const size_t realIndexes = load32(p + definition::realIndexes);
    if (columns > mostColumns || realIndexes > mostIndexes ||
        logicalIndexes > block.size() / definition::logicalIndexLength)
        failDamaged("la definizione della tabella a pagina %1 non è leggibile"_tr, page);

    Cursor cursor(block, definition::indexCounts, page);
    cursor.take(realIndexes * definition::indexCountLength);
    for (size_t i = 0; i < columns; ++i)
        table.columns.push_back(parseColumn(cursor.take(definition::columnLength)));
    for (Column& column : table.columns) {
        column.name = cursor.takeName();
        column.ansi = jet3;
        if (column.number >= table.maxColumns ||
            (!column.fixed && column.type != Type::YesNo && column.variableIndex >= table.variableColumns))
            failDamaged("un campo della tabella a pagina %1 non ha posto nelle righe"_tr, page);
    }
    requireName(name, page);
    requireColumnNames(table.columns, page);
    for (size_t i = 0; i < realIndexes; ++i)
        table.indexes.push_back(parseIndex(cursor.take(definition::realIndexLength)));

    std::vector<size_t> realOf(logicalIndexes);
    for (size_t i = 0; i < logicalIndexes; ++i) {
        const uint8_t* logical = cursor.take(definition::logicalIndexLength);
        realOf[i] = load32(logical + 8);
        const uint32_t otherTable = load32(logical + 17);
        const uint8_t kind = logical[23];
        if (realOf[i] >= realIndexes) failDamaged("un indice della tabella a pagina %1 non esiste"_tr, page);
        if (kind == 1) table.indexes[realOf[i]].primaryKey = true;
        if (kind == 2 || otherTable != 0) table.enforcedRelation = true;
    }
    const auto setMaps = [&](uint16_t number, uint32_t owned, uint32_t room) {
        for (Column& column : table.columns)
            if (column.number == number) std::tie(column.longOwned, column.longRoom) = std::tie(owned, room);
    };
    for (size_t i = 0; i < logicalIndexes; ++i) {
        const std::string logicalName = cursor.takeName();
        if (table.indexes[realOf[i]].name.empty()) table.indexes[realOf[i]].name = logicalName;
    }
    for (uint16_t number; (number = load16(cursor.take(2))) != 0xFFFF;) {
        const uint8_t* maps = cursor.take(8);
        setMaps(number, load32(maps), load32(maps + 4));
    }
    std::stable_sort(table.columns.begin(), table.columns.end(), [](const Column& a, const Column& b) {
        return std::pair(a.displayPosition, a.number) < std::pair(b.displayPosition, b.number);
    });
    return table;
}

void clearCounters(std::vector<uint8_t>& block) {
    std::fill_n(block.begin() + definition::rowCount, 8, uint8_t{0});
    const size_t counts =
        std::min<size_t>(load32(&block[definition::realIndexes]), 255) * definition::indexCountLength;
    std::fill_n(block.begin() + definition::indexCounts, counts, uint8_t{0});
}

std::optional<size_t> TableDefinition::find(std::string_view columnName) const {
    for (size_t i = 0; i < columns.size(); ++i)
        if (sameName(columnName, columns[i].name)) return i;
    return std::nullopt;
}

std::optional<size_t> TableDefinition::longPrimaryKey() const {
    for (const Index& index : indexes) {
        if (!index.primaryKey || index.parts.size() != 1 || !index.parts[0].ascending) continue;
        for (size_t i = 0; i < columns.size(); ++i)
            if (columns[i].number == index.parts[0].column && columns[i].type == Type::Long) return i;
    }
    return std::nullopt;
}

}  // namespace jet
