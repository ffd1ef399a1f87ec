// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Jet3.h"

#include <algorithm>

#include "platform/jet/DefinitionWriter.h"
#include "platform/jet/Failure.h"
#include "platform/text/AnsiTable.h"

namespace jet::jet3 {

namespace {

// Row page: u16 free · u32 owner · u16 number of slots at 8 · slots from 10.
constexpr size_t slotCount = 8;
constexpr size_t slots = 10;

// Index page: u32 previous at 8, next, tail · u8 prefix at 20 · u8 level · mask of 226 bytes · entries.
constexpr size_t indexLinks = 8;
constexpr size_t indexPrefix = 20;
constexpr size_t indexLevel = 21;
constexpr size_t indexMask = 22;
constexpr size_t indexEntries = 248;

// Definition: the same fields in the same order, without what Jet 4 puts between them.
constexpr size_t rowCount = 12;
constexpr size_t autoNumber = 16;
constexpr size_t kind = 20;
constexpr size_t maxColumns = 21;
constexpr size_t variableColumns = 23;
constexpr size_t columnCount = 25;
constexpr size_t logicalIndexCount = 27;
constexpr size_t realIndexCount = 31;
constexpr size_t ownedMap = 35;
constexpr size_t indexCounts = 43;
constexpr size_t indexCountLength = 8;
constexpr size_t columnLength = 18;
constexpr size_t realIndexLength = 39;
constexpr size_t logicalIndexLength = 20;
constexpr size_t longColumnLength = 10;

// Rows go to the upper half unchanged, so each offset grows by the size of the lower one.
void widenRows(Page& page) {
    Page wide;
    wide.fill(0);
    const size_t count = load16(&page[slotCount]);
    const size_t kept = std::min(count, (pageSize - slots) / 2);
    std::copy_n(page.begin(), slotCount, wide.begin());
    std::copy_n(page.begin(), pageSize, wide.begin() + pageSize);
    store16(&wide[data::slotCount], static_cast<uint32_t>(count));
    for (size_t i = 0; i < kept; ++i) {
        const uint16_t raw = load16(&page[slots + 2 * i]);
        const size_t offset = raw & data::offsetMask;
        // One after the page stays after it.
        const size_t moved = offset <= pageSize ? offset + pageSize : data::offsetMask;
        store16(&wide[data::slots + 2 * i], static_cast<uint32_t>(moved | (raw & ~data::offsetMask)));
    }
    page = wide;
}

void widenIndex(Page& page) {
    Page wide;
    wide.fill(0);
    std::copy_n(page.begin(), indexLinks, wide.begin());
    std::copy_n(page.begin() + indexLinks, 12, wide.begin() + index::previous);
    store16(&wide[index::prefix], page[indexPrefix]);
    wide[index::level] = page[indexLevel];
    std::copy(page.begin() + indexMask, page.begin() + indexEntries, wide.begin() + index::mask);
    std::copy(page.begin() + indexEntries, page.begin() + pageSize, wide.begin() + index::entries);
    page = wide;
}

// Reads a definition from left to right.
class Source {
  public:
    explicit Source(std::span<const uint8_t> bytes) : m_rest(bytes) {}

    std::span<const uint8_t> take(size_t length) {
        if (length > m_rest.size()) failDamaged("la definizione di una tabella è incompleta"_tr);
        const auto taken = m_rest.first(length);
        m_rest = m_rest.subspan(length);
        return taken;
    }
    size_t left() const { return m_rest.size(); }

  private:
    std::span<const uint8_t> m_rest;
};

void widenName(Source& source, Writer& out) {
    const auto ansi = source.take(source.take(1)[0]);
    out.u16(static_cast<uint32_t>(2 * ansi.size()));
    for (const uint8_t byte : ansi)
        out.u16(text::ansiCharacter(byte));
}

void widenColumn(std::span<const uint8_t> from, Writer& out) {
    out.u8(from[0]);  // type
    out.zeros(4);
    out.raw(from.subspan(1, 6));  // number, variable index, display position
    out.raw(from.subspan(7, 4));
    out.u8(from[13]);  // flags
    out.zeros(5);
    out.raw(from.subspan(14, 4));  // fixed offset, length
}

void widenRealIndex(std::span<const uint8_t> from, Writer& out) {
    out.zeros(4);
    out.raw(from.first(38));  // columns, map, root
    out.zeros(4);
    out.u8(from[38]);  // flags
    out.zeros(5);
}

}  // namespace

void widenPage(Page& page) {
    if (page[0] == DataPage) widenRows(page);
    if (page[0] == NodePage || page[0] == LeafPage) widenIndex(page);
}

Bytes widenDefinition(std::span<const uint8_t> block) {
    Source source(block);
    const auto head = source.take(indexCounts);
    const size_t columns = load16(&head[columnCount]);
    const size_t logicals = load32(&head[logicalIndexCount]);
    const size_t reals = load32(&head[realIndexCount]);

    Writer out;
    out.raw(head.first(12));  // type, next page, length
    out.zeros(4);
    out.raw(head.subspan(rowCount, autoNumber - rowCount));
    out.raw(head.subspan(autoNumber, 4));
    out.zeros(16);
    out.raw(head.subspan(kind, 1));
    out.raw(head.subspan(maxColumns, 2));
    out.raw(head.subspan(variableColumns, 2));
    out.raw(head.subspan(columnCount, 2));
    out.raw(head.subspan(logicalIndexCount, 4));
    out.raw(head.subspan(realIndexCount, 4));
    out.raw(head.subspan(ownedMap, 8));
    // Each of the counted things takes bytes of the source, so what is absurd ends there.
    for (size_t i = 0; i < reals; ++i) {
        out.raw(source.take(indexCountLength));
        out.zeros(4);
    }
    for (size_t i = 0; i < columns; ++i)
        widenColumn(source.take(columnLength), out);
    for (size_t i = 0; i < columns; ++i)
        widenName(source, out);
    for (size_t i = 0; i < reals; ++i)
        widenRealIndex(source.take(realIndexLength), out);
    for (size_t i = 0; i < logicals; ++i) {
        out.zeros(4);
        out.raw(source.take(logicalIndexLength));
        out.zeros(4);
    }
    for (size_t i = 0; i < logicals; ++i)
        widenName(source, out);
    while (source.left() >= longColumnLength) {
        const auto entry = source.take(longColumnLength);
        out.raw(entry);
        if (load16(entry.data()) == 0xFFFF) break;
    }
    out.u16(0xFFFF);
    return out.bytes;
}

}  // namespace jet::jet3
