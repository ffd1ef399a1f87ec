// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/LongValue.h"

#include <algorithm>
#include <cassert>
#include <functional>
#include <set>

#include "platform/jet/DataPages.h"
#include "platform/jet/Failure.h"
#include "platform/jet/UsageMap.h"

namespace jet {

namespace {

constexpr unsigned inRow = 2;
constexpr unsigned oneRow = 1;
constexpr unsigned chain = 0;

// Access keeps values of up to so many bytes in their rows.
constexpr size_t longestInRow = 64;

// The mark on a long-value page in place of its owner.
uint32_t longValueOwner() {
    return load32(reinterpret_cast<const uint8_t*>("LVAL"));
}

[[noreturn]] void failBroken() {
    failDamaged("un campo memo non è leggibile"_tr);
}

DataPageView longRows(const Page& page, uint32_t number) {
    const DataPageView rows(page, number);
    if (rows.owner() != longValueOwner()) failBroken();
    return rows;
}

struct Head {
    size_t length;
    unsigned place;
    uint32_t pointer;

    Head(const PageFile& file, std::span<const uint8_t> stored) {
        if (stored.size() < longValueHead) failBroken();
        length = longValueLength(stored);
        place = stored[3] >> 6;
        pointer = load32(&stored[4]);
        if (length > size_t{file.pageCount()} * pageSize) failBroken();
        if (isInRow() && length > stored.size() - longValueHead) failBroken();
    }
    bool isInRow() const { return (place & inRow) != 0; }
};

// Visits the pieces of a value that is on long-value pages, each with its row.
void forEachPiece(PageFile& file, const Head& head,
                  const std::function<void(RowId, std::span<const uint8_t>)>& visit) {
    std::set<uint32_t> met;
    size_t left = head.length;
    for (uint32_t pointer = head.pointer; left > 0;) {
        if (pointer == 0 || !met.insert(pointer).second) failBroken();
        const RowId id = RowId::fromInteger(pointer);
        const PagePtr page = file.page(id.page);
        const DataPageView rows = longRows(*page, id.page);
        if (rows.flags(id.slot) == data::deleted) failBroken();
        std::span<const uint8_t> bytes = rows.bytes(id.slot);
        if (head.place == oneRow) {
            if (bytes.size() < left) failBroken();
        } else {
            if (bytes.size() <= 4) failBroken();  // each row brings the end nearer
            pointer = load32(bytes.data());
            bytes = bytes.subspan(4);
        }
        const size_t taken = std::min(left, bytes.size());
        visit(id, bytes.first(taken));
        left -= taken;
    }
}

Bytes headOf(size_t length, unsigned place, uint32_t pointer) {
    Bytes head(longValueHead);
    store32(head.data(), static_cast<uint32_t>(length | size_t{place} << 30));
    store32(&head[4], pointer);
    return head;
}

}  // namespace

size_t longValueLength(std::span<const uint8_t> stored) {
    return stored.size() < longValueHead ? 0 : load32(stored.data()) & 0x3FFFFFFF;
}

Bytes readLongValue(PageFile& file, std::span<const uint8_t> stored) {
    const Head head(file, stored);
    if (head.isInRow()) {
        const auto bytes = stored.subspan(longValueHead, head.length);
        return {bytes.begin(), bytes.end()};
    }
    Bytes whole;
    forEachPiece(file, head, [&](RowId, std::span<const uint8_t> piece) {
        whole.insert(whole.end(), piece.begin(), piece.end());
    });
    return whole;
}

std::vector<RowId> longValueRows(PageFile& file, std::span<const uint8_t> stored) {
    const Head head(file, stored);
    std::vector<RowId> rows;
    if (!head.isInRow())
        forEachPiece(file, head, [&](RowId id, std::span<const uint8_t>) { rows.push_back(id); });
    return rows;
}

std::optional<Bytes> longValueInRow(std::span<const uint8_t> content) {
    if (content.size() > longestInRow) return std::nullopt;
    Bytes bytes = headOf(content.size(), inRow, 0);
    bytes.insert(bytes.end(), content.begin(), content.end());
    return bytes;
}

LongValuePages::LongValuePages(PageFile& file, const Column& column)
    : m_file(file), m_owned(column.longOwned), m_room(file, column.longRoom, longValueOwner()) {}

// The pointer to the row.
uint32_t LongValuePages::put(std::span<const uint8_t> row) {
    std::optional<uint32_t> number = m_room.find(row.size());
    if (!number) {
        number = GlobalMap(m_file).take();
        makeDataPage(m_file.change(*number), longValueOwner());
        UsageMap(m_file, m_owned).set(*number, true);
        m_room.noteNew(*number);
    }
    const uint8_t slot = putRow(m_file.change(*number), *number, row);
    m_room.noteTaken(*number);
    return *number << 8 | slot;
}

Bytes LongValuePages::store(std::span<const uint8_t> content) {
    if (m_owned == 0)
        fail(ErrorCode::NotSupported, "Il database non ha posto per i testi lunghi di un campo memo."_tr);
    if (content.size() <= data::maxRow) return headOf(content.size(), oneRow, put(content));
    // From the end, since each row names the next.
    constexpr size_t piece = data::maxRow - 4;
    uint32_t next = 0;
    for (size_t from = (content.size() - 1) / piece * piece;; from -= piece) {
        Bytes row(4);
        store32(row.data(), next);
        const auto bytes = content.subspan(from, std::min(piece, content.size() - from));
        row.insert(row.end(), bytes.begin(), bytes.end());
        next = put(row);
        if (from == 0) return headOf(content.size(), chain, next);
    }
}

void LongValuePages::free(std::span<const RowId> rows) {
    if (rows.empty() || m_owned == 0) return;
    UsageMap owned(m_file, m_owned);
    for (const RowId id : rows) {
        if (!owned.contains(id.page)) continue;
        Page& page = m_file.change(id.page);
        resizeRow(page, id.page, id.slot, 0, data::deleted);
        if (!longRows(page, id.page).isEmpty()) {
            m_room.noteFreed(id.page);
            continue;
        }
        m_room.noteGone(id.page);
        owned.set(id.page, false);
        GlobalMap(m_file).give(id.page);
    }
    assert(std::all_of(rows.begin(), rows.end(), [&](RowId id) {  // V2
        return !owned.contains(id.page) ||
               longRows(*m_file.page(id.page), id.page).flags(id.slot) == data::deleted;
    }));
}

}  // namespace jet
