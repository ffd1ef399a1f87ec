#include "platform/jet/LongValue.h"

#include "platform/jet/DataPages.h"
#include "platform/jet/Failure.h"

namespace jet {

namespace {

constexpr size_t headLength = 12;

[[noreturn]] void failBroken() {
    failDamaged(QStringLiteral("un campo memo non è leggibile"));
}

// A row of a long-value page; the page keeps its bytes alive.
std::span<const uint8_t> longRow(PageFile& file, uint32_t pointer, PagePtr& page) {
    const uint32_t number = pointer >> 8;
    page = file.page(number);
    const DataPageView rows(*page, number);
    if (std::memcmp(&(*page)[data::owner], "LVAL", 4) != 0) failBroken();
    return rows.bytes(pointer & 0xFF);
}

}  // namespace

Bytes readLongValue(PageFile& file, std::span<const uint8_t> stored) {
    if (stored.size() < headLength) failBroken();
    const size_t length = load32(stored.data()) & 0x3FFFFFFF;
    const unsigned place = stored[3] >> 6;
    uint32_t pointer = load32(&stored[4]);
    if (length > size_t{file.pageCount()} * pageSize) failBroken();
    if (place & 2) {
        if (length > stored.size() - headLength) failBroken();
        const auto bytes = stored.subspan(headLength, length);
        return {bytes.begin(), bytes.end()};
    }
    PagePtr page;
    if (place == 1) {
        const auto row = longRow(file, pointer, page);
        if (row.size() < length) failBroken();
        return {row.begin(), row.begin() + static_cast<ptrdiff_t>(length)};
    }
    Bytes bytes;
    while (bytes.size() < length) {
        if (pointer == 0) failBroken();
        const auto row = longRow(file, pointer, page);
        if (row.size() <= 4) failBroken();  // each row brings the end nearer
        pointer = load32(row.data());
        bytes.insert(bytes.end(), row.begin() + 4, row.end());
    }
    bytes.resize(length);
    return bytes;
}

}  // namespace jet
