#include "platform/jet/LongValue.h"

#include <functional>
#include <set>

#include "platform/jet/DataPages.h"
#include "platform/jet/Failure.h"
#include "platform/jet/UsageMap.h"

namespace jet {

namespace {

constexpr size_t headLength = 12;
constexpr unsigned inRow = 2;
constexpr unsigned oneRow = 1;

[[noreturn]] void failBroken() {
    failDamaged("un campo memo non è leggibile");
}

DataPageView longRows(const Page& page, uint32_t number) {
    const DataPageView rows(page, number);
    if (std::memcmp(&page[data::owner], "LVAL", 4) != 0) failBroken();
    return rows;
}

struct Head {
    size_t length;
    unsigned place;
    uint32_t pointer;

    Head(const PageFile& file, std::span<const uint8_t> stored) {
        if (stored.size() < headLength) failBroken();
        length = load32(stored.data()) & 0x3FFFFFFF;
        place = stored[3] >> 6;
        pointer = load32(&stored[4]);
        if (length > size_t{file.pageCount()} * pageSize) failBroken();
        if (isInRow() && length > stored.size() - headLength) failBroken();
    }
    bool isInRow() const { return (place & inRow) != 0; }
};

// Hands out the pieces of a value that lies on long-value pages, each with its row.
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

bool isEmpty(const DataPageView& rows) {
    for (size_t slot = 0; slot < rows.count(); ++slot)
        if (rows.flags(slot) != data::deleted) return false;
    return true;
}

}  // namespace

Bytes readLongValue(PageFile& file, std::span<const uint8_t> stored) {
    const Head head(file, stored);
    if (head.isInRow()) {
        const auto bytes = stored.subspan(headLength, head.length);
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

void freeLongValueRows(PageFile& file, const Column& column, std::span<const RowId> rows) {
    if (rows.empty() || column.longOwned == 0) return;
    UsageMap owned(file, column.longOwned);
    for (const RowId id : rows) {
        if (!owned.contains(id.page)) continue;
        Page& page = file.change(id.page);
        resizeRow(page, id.page, id.slot, 0, data::deleted);
        const bool empty = isEmpty(longRows(page, id.page));
        if (column.longRoom != 0) UsageMap(file, column.longRoom).set(id.page, !empty);
        if (!empty) continue;
        owned.set(id.page, false);
        GlobalMap(file).give(id.page);
    }
}

}  // namespace jet
