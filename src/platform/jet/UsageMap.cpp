// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/UsageMap.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <optional>

#include "platform/jet/DataPages.h"
#include "platform/jet/Failure.h"

namespace jet {

namespace {

// Longest row that a table's map grows to in form 0; other programs stop there as well.
constexpr size_t longestForm0 = 128;

void setBit(std::span<uint8_t> bits, size_t bit, bool value) {
    const uint8_t one = static_cast<uint8_t>(1u << (bit % 8));
    if (value)
        bits[bit / 8] |= one;
    else
        bits[bit / 8] &= static_cast<uint8_t>(~one);
}

bool getBit(std::span<const uint8_t> bits, size_t bit) {
    return bits[bit / 8] >> (bit % 8) & 1;
}

// Calls visit(first + bit) for each set bit whose page is not below `from`; false when visit ended the walk.
bool walkBits(std::span<const uint8_t> bits, uint32_t first, uint32_t from,
              const std::function<bool(uint32_t)>& visit) {
    for (size_t i = from > first ? (from - first) / 8 : 0; i < bits.size(); ++i)
        for (unsigned rest = bits[i]; rest != 0; rest &= rest - 1) {
            const uint32_t page =
                first + static_cast<uint32_t>(8 * i) + static_cast<uint32_t>(std::countr_zero(rest));
            if (page >= from && !visit(page)) return false;
        }
    return true;
}

// A map's row as it is in the file.
struct MapRow {
    PagePtr page;
    std::span<const uint8_t> bytes;
    size_t mostBitmaps;

    MapRow(PageFile& file, uint32_t number, uint8_t slot)
        : page(file.page(number)), mostBitmaps(map::mostBitmaps * (pageSize / file.bytesPerPage())) {
        const DataPageView view(*page, number);
        bytes = view.bytes(slot);
        const size_t least = form() == 0 ? map::bits : map::pages + 4;
        if ((view.flags(slot) & data::deleted) != 0 || bytes.size() < least || form() > 1)
            failDamaged("la mappa delle pagine %1/%2 non è leggibile"_tr, number, slot);
        if (form() == 0 && first() >= maxPages)
            failDamaged("la mappa delle pagine %1/%2 comincia oltre il file"_tr, number, slot);
    }
    int form() const { return bytes.empty() ? -1 : bytes[0]; }
    uint32_t first() const { return load32(&bytes[map::firstPage]); }
    std::span<const uint8_t> bits() const { return bytes.subspan(map::bits); }
    size_t bitmaps() const { return std::min((bytes.size() - map::pages) / 4, mostBitmaps); }
    uint32_t bitmap(size_t k) const { return load32(&bytes[map::pages + 4 * k]); }
};

uint32_t pagesPerBitmap(const PageFile& file) {
    return static_cast<uint32_t>(8 * (file.bytesPerPage() - map::bitmap));
}

std::span<const uint8_t> bitsOf(const PageFile& file, const Page& bitmap) {
    return std::span(bitmap).first(file.bytesPerPage()).subspan(map::bitmap);
}

PagePtr bitmapPage(PageFile& file, uint32_t number) {
    PagePtr page = file.page(number);
    if ((*page)[0] != BitmapPage) failDamaged("la pagina %1 non è una mappa"_tr, number);
    return page;
}

void makeBitmapPage(Page& page, uint8_t content) {
    page.fill(content);
    page[0] = BitmapPage;
    page[1] = 1;
    page[2] = page[3] = 0;
}

// Turns a map's row into an empty form 1 of the ordinary length, as far as its page has room.
void clearToForm1(PageFile& file, uint32_t number, uint8_t slot) {
    Page& page = file.change(number);
    const DataPageView view(page, number);
    const size_t length = view.bytes(slot).size();
    if (length < map::ordinaryLength && map::ordinaryLength - length <= view.freeBytes())
        resizeRow(page, number, slot, map::ordinaryLength, 0);
    const std::span<uint8_t> row = rowBytes(page, number, slot);
    std::fill(row.begin(), row.end(), uint8_t{0});
    row[0] = 1;
}

}  // namespace

bool UsageMap::contains(uint32_t page) const {
    const MapRow row(m_file, m_page, m_slot);
    if (row.form() == 0) {
        const uint32_t first = row.first();
        return page >= first && page - first < 8 * row.bits().size() && getBit(row.bits(), page - first);
    }
    const size_t k = page / map::pagesPerBitmap;
    if (k >= row.bitmaps() || row.bitmap(k) == 0) return false;
    const PagePtr bits = bitmapPage(m_file, row.bitmap(k));
    return getBit(std::span(*bits).subspan(map::bitmap), page % map::pagesPerBitmap);
}

void UsageMap::forEach(uint32_t from, const std::function<bool(uint32_t)>& visit) const {
    const MapRow row(m_file, m_page, m_slot);
    if (row.form() == 0) {
        walkBits(row.bits(), row.first(), from, visit);
        return;
    }
    for (size_t k = from / pagesPerBitmap(m_file); k < row.bitmaps(); ++k) {
        if (row.bitmap(k) == 0) continue;
        const PagePtr bits = bitmapPage(m_file, row.bitmap(k));
        const uint32_t first = static_cast<uint32_t>(k) * pagesPerBitmap(m_file);
        if (!walkBits(bitsOf(m_file, *bits), first, from, visit)) return;
    }
}

std::vector<uint32_t> UsageMap::pages() const {
    std::vector<uint32_t> all;
    forEach([&](uint32_t page) {
        all.push_back(page);
        return true;
    });
    return all;
}

std::span<uint8_t> UsageMap::changeRow() {
    return rowBytes(m_file.change(m_page), m_page, m_slot);
}

void UsageMap::set(uint32_t page, bool member) {
    if (contains(page) == member) return;
    MapRow row(m_file, m_page, m_slot);
    if (row.form() == 0) {
        if (page >= row.first() && page - row.first() < 8 * row.bits().size()) {
            setBit(changeRow().subspan(map::bits), page - row.first(), member);
            return;
        }
        if (grow(page)) return set(page, member);
        takeForm1();
    }
    const size_t k = page / map::pagesPerBitmap;
    const MapRow now(m_file, m_page, m_slot);
    if (k >= map::mostBitmaps) failFull();
    if (k >= now.bitmaps())
        fail(ErrorCode::NotSupported, "Una mappa delle pagine del database non può crescere oltre."_tr);
    uint32_t bitmap = now.bitmap(k);
    if (bitmap == 0) {
        bitmap = GlobalMap(m_file).take();
        makeBitmapPage(m_file.change(bitmap), 0);
        store32(&changeRow()[map::pages + 4 * k], bitmap);
    }
    (void)bitmapPage(m_file, bitmap);
    setBit(std::span(m_file.change(bitmap)).subspan(map::bitmap), page % map::pagesPerBitmap, member);
    assert(contains(page) == member);
}

// Makes a form 0 row reach `page`: an empty one by moving its first page, another one by growing at either
// end.
bool UsageMap::grow(uint32_t page) {
    const MapRow row(m_file, m_page, m_slot);
    const std::vector<uint32_t> members = pages();
    const uint32_t lowest = std::min(page, members.empty() ? page : members.front());
    const uint32_t highest = std::max(page, members.empty() ? page : members.back());
    // The first page stays unless the new one lies before it or only moving it makes room.
    uint32_t first = std::min(row.first(), lowest / 8 * 8);
    if (members.empty() || (highest - first) / 8 + map::bits >= longestForm0) first = lowest / 8 * 8;
    const size_t needed = map::bits + (highest - first) / 32 * 4 + 4;
    const size_t length = row.bytes.size();
    const DataPageView view(*row.page, m_page);
    if (needed > length && (needed > longestForm0 || needed - length > view.freeBytes())) return false;

    Page& changed = m_file.change(m_page);
    if (needed > length) resizeRow(changed, m_page, m_slot, needed, 0);
    const std::span<uint8_t> bytes = rowBytes(changed, m_page, m_slot);
    std::fill(bytes.begin(), bytes.end(), uint8_t{0});
    store32(&bytes[map::firstPage], first);
    for (uint32_t member : members)
        setBit(bytes.subspan(map::bits), member - first, true);
    assert(std::max(length, needed) == bytes.size() && (needed <= length || needed <= longestForm0));  // M1
    assert(pages() == members);
    return true;
}

void UsageMap::takeForm1() {
    const std::vector<uint32_t> members = pages();
    clearToForm1(m_file, m_page, m_slot);
    for (uint32_t member : members)
        set(member, true);
}

uint32_t GlobalMap::take() {
    std::optional<uint32_t> free;
    m_map.forEach([&](uint32_t page) {
        if (page >= m_file.pageCount()) return false;
        if (page < firstOrdinaryPage) return true;
        free = page;
        return false;
    });
    if (free) {
        assert(*free >= firstOrdinaryPage && *free < m_file.pageCount());  // M3
        assert(m_file.noteTaken(*free));
        m_file.change(*free).fill(0);
        m_map.set(*free, false);
        assert(!m_map.contains(*free));  // M2
        return *free;
    }
    const uint32_t page = m_file.append();
    markUsed(page);
    return page;
}

void GlobalMap::give(uint32_t page) {
    assert(page < m_file.pageCount());
    Page& wiped = m_file.change(page);
    wiped.fill(0);
    const MapRow row(m_file, globalMapPage, 0);
    // A page that the map does not reach cannot be marked free; it stays unused.
    if (row.form() == 0 && page - row.first() >= 8 * row.bits().size()) return;
    if (row.form() == 1) {
        const size_t k = page / map::pagesPerBitmap;
        if (k >= row.bitmaps() || row.bitmap(k) == 0) return;
    }
    m_map.set(page, true);
    assert(m_map.contains(page));  // M2
}

// A new page's bit is cleared. The map reaches every page of the file: its row grows with set bits.
void GlobalMap::markUsed(uint32_t page) {
    const MapRow row(m_file, globalMapPage, 0);
    if (row.form() == 0 && page >= row.first() && page - row.first() >= 8 * row.bits().size()) {
        if (!grow(page)) takeForm1();
    }
    m_map.set(page, false);
}

bool GlobalMap::grow(uint32_t page) {
    const MapRow row(m_file, globalMapPage, 0);
    const size_t length = row.bytes.size();
    const size_t needed = map::bits + (page - row.first()) / 32 * 4 + 4;
    if (needed - length > DataPageView(*row.page, globalMapPage).freeBytes()) return false;
    Page& changed = m_file.change(globalMapPage);
    resizeRow(changed, globalMapPage, 0, needed, 0);
    const std::span<uint8_t> bytes = rowBytes(changed, globalMapPage, 0);
    std::fill(bytes.begin() + static_cast<ptrdiff_t>(length), bytes.end(), uint8_t{0xFF});
    return true;
}

// The bitmap pages come from the end of the file, which the map that is being rebuilt does not decide.
void GlobalMap::takeForm1() {
    const uint32_t end = m_file.pageCount();
    const std::vector<uint32_t> members = m_map.pages();
    clearToForm1(m_file, globalMapPage, 0);
    const size_t count = (end + 16) / map::pagesPerBitmap + 1;
    for (size_t k = 0; k < count; ++k) {
        const uint32_t bitmap = m_file.append();
        makeBitmapPage(m_file.change(bitmap), 0);
        store32(&m_map.changeRow()[map::pages + 4 * k], bitmap);
    }
    for (uint32_t member : members)
        if (member < m_file.pageCount()) m_map.set(member, true);
    const uint32_t covered = static_cast<uint32_t>(count) * map::pagesPerBitmap;
    for (uint32_t page = m_file.pageCount(); page < covered; ++page)
        m_map.set(page, true);
}

bool GlobalMap::reachesBehindFile() const {
    const MapRow row(m_file, globalMapPage, 0);
    const uint32_t end = m_file.pageCount();
    const auto usedBehind = [end](std::span<const uint8_t> bits, uint32_t first) {
        for (size_t bit = end > first ? end - first : 0; bit < 8 * bits.size(); ++bit)
            if (!getBit(bits, bit)) return true;
        return false;
    };
    if (row.form() == 0) return usedBehind(row.bits(), row.first());
    for (size_t k = 0; k < row.bitmaps(); ++k) {
        if (row.bitmap(k) == 0) continue;
        const PagePtr bits = bitmapPage(m_file, row.bitmap(k));
        if (usedBehind(bitsOf(m_file, *bits), static_cast<uint32_t>(k) * pagesPerBitmap(m_file))) return true;
    }
    return false;
}

}  // namespace jet
