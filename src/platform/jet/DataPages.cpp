// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/DataPages.h"

#include <algorithm>
#include <cassert>

#include "platform/jet/Failure.h"

namespace jet {

namespace {

size_t lowestStart(const Page& page, size_t count) {
    return count == 0 ? pageSize : load16(&page[data::slots + 2 * (count - 1)]) & data::offsetMask;
}

void storeFree(Page& page) {
    const size_t count = load16(&page[data::slotCount]);
    assert(count <= data::maxSlots && lowestStart(page, count) >= data::slots + 2 * count);  // P1
    store16(&page[data::freeBytes],
            static_cast<uint32_t>(lowestStart(page, count) - data::slots - 2 * count));
}

}  // namespace

DataPageView::DataPageView(const Page& page, uint32_t number)
    : m_page(page), m_number(number), m_count(load16(&page[data::slotCount])) {
    if (page[0] != DataPage) failDamaged("la pagina %1 non contiene righe"_tr, number);
    if (m_count > data::maxSlots) failDamaged("la pagina %1 ha troppe righe"_tr, number);
}

size_t DataPageView::freeBytes() const {
    const size_t lowest = lowestStart(m_page, m_count);
    const size_t slotsEnd = data::slots + 2 * m_count;
    if (lowest < slotsEnd || lowest > pageSize)
        failDamaged("le righe della pagina %1 si sovrappongono"_tr, m_number);
    return lowest - slotsEnd;
}

std::span<const uint8_t> DataPageView::bytes(size_t slot) const {
    if (slot >= m_count) return {};
    const size_t start = rawSlot(slot) & data::offsetMask;
    const size_t end = slot == 0 ? pageSize : rawSlot(slot - 1) & data::offsetMask;
    if (start > end || end > pageSize || start < data::slots + 2 * m_count)
        failDamaged("la riga %1 della pagina %2 è fuori posto"_tr, slot, m_number);
    return std::span(m_page).subspan(start, end - start);
}

size_t DataPageView::deletedSlot() const {
    size_t slot = 0;
    while (slot < m_count && flags(slot) != data::deleted)
        ++slot;
    return slot;
}

size_t DataPageView::room() const {
    const size_t free = freeBytes();
    if (deletedSlot() < m_count) return free;
    return m_count < data::maxSlots && free > 2 ? free - 2 : 0;
}

bool DataPageView::isEmpty() const {
    for (size_t slot = 0; slot < m_count; ++slot)
        if (flags(slot) != data::deleted) return false;
    return true;
}

void makeDataPage(Page& page, uint32_t owner) {
    page.fill(0);
    page[0] = DataPage;
    page[1] = 1;
    store32(&page[data::owner], owner);
    storeFree(page);
}

uint8_t appendRow(Page& page, uint32_t number, std::span<const uint8_t> row, uint16_t flags) {
    const DataPageView view(page, number);
    if (!view.fits(row.size())) failInternal("la pagina %1 non ha posto"_tr, number);
    const size_t count = view.count();
    const size_t start = lowestStart(page, count) - row.size();
    std::copy(row.begin(), row.end(), page.begin() + static_cast<ptrdiff_t>(start));
    store16(&page[data::slots + 2 * count], static_cast<uint32_t>(start | flags));
    store16(&page[data::slotCount], static_cast<uint32_t>(count + 1));
    storeFree(page);
    return static_cast<uint8_t>(count);
}

uint8_t putRow(Page& page, uint32_t number, std::span<const uint8_t> row, uint16_t flags) {
    const DataPageView view(page, number);
    const size_t slot = view.deletedSlot();
    if (view.fits(row.size()) || slot == view.count()) return appendRow(page, number, row, flags);
    resizeRow(page, number, slot, row.size(), flags);
    const std::span<uint8_t> bytes = rowBytes(page, number, slot);
    std::copy(row.begin(), row.end(), bytes.begin());
    return static_cast<uint8_t>(slot);
}

void resizeRow(Page& page, uint32_t number, size_t slot, size_t length, uint16_t flags) {
    const DataPageView view(page, number);
    const size_t count = view.count();
    const size_t oldLength = view.bytes(slot).size();
    for (size_t i = slot; i < count; ++i)
        (void)view.bytes(i);  // nothing is moved on a damaged page
    if (slot >= count || length > oldLength + view.freeBytes())
        failInternal("la pagina %1 non ha posto"_tr, number);

    const size_t lowest = lowestStart(page, count);
    const size_t start = load16(&page[data::slots + 2 * slot]) & data::offsetMask;
    const size_t newStart = start + oldLength - length;
    uint8_t* p = page.data();
    // The rows below, then this row's own first bytes.
    const size_t kept = std::min(oldLength, length);
    if (newStart < start) {
        std::memmove(p + lowest + newStart - start, p + lowest, start - lowest);
        std::memmove(p + newStart, p + start, kept);
        std::memset(p + newStart + kept, 0, length - kept);
    } else {
        std::memmove(p + newStart, p + start, kept);
        std::memmove(p + lowest + newStart - start, p + lowest, start - lowest);
    }
    for (size_t i = slot; i < count; ++i) {
        uint8_t* entry = p + data::slots + 2 * i;
        const uint16_t raw = load16(entry);
        const size_t offset = (raw & data::offsetMask) + newStart - start;
        const uint16_t slotFlags = i == slot ? flags : raw & ~data::offsetMask;
        store16(entry, static_cast<uint32_t>(offset | slotFlags));
    }
    storeFree(page);
}

std::span<uint8_t> rowBytes(Page& page, uint32_t number, size_t slot) {
    const std::span<const uint8_t> bytes = DataPageView(page, number).bytes(slot);
    return std::span(page).subspan(static_cast<size_t>(bytes.data() - page.data()), bytes.size());
}

}  // namespace jet
