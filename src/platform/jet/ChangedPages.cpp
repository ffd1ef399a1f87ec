// SPDX-License-Identifier: GPL-3.0-or-later
// Which pages of a table have changed, and the rows on them.
#include <array>
#include <cstring>

#include "platform/jet/Engine.h"
#include "platform/jet/Failure.h"
#include "platform/jet/PagePrints.h"

namespace jet {

namespace {

__extension__ using Product = unsigned __int128;

// Sixteen bytes for one multiplication, eight of which run beside each other in registers: faster than the
// page can be read. It distinguishes versions of a page and is no guard against forgery.
uint64_t digestOf(const Page& page) {
    constexpr uint64_t factor = 0x9E3779B97F4A7C15u;
    std::array<uint64_t, 8> lanes = {1, 2, 3, 4, 5, 6, 7, 8};
    const auto take = [](uint64_t& lane, uint64_t one, uint64_t other) {
        const Product product = Product{one ^ factor} * (other ^ lane);
        lane = static_cast<uint64_t>(product) ^ static_cast<uint64_t>(product >> 64);
    };
    const auto word = [&](size_t at) {
        uint64_t bytes = 0;
        std::memcpy(&bytes, &page[at], 8);
        return bytes;
    };
    for (size_t at = 0; at < pageSize; at += 16 * lanes.size()) {
#pragma GCC unroll 8
        for (size_t i = 0; i < lanes.size(); ++i)
            take(lanes[i], word(at + 16 * i), word(at + 16 * i + 8));
    }
    uint64_t digest = 0;
    for (const uint64_t lane : lanes)
        take(digest, lane, factor);
    return digest;
}

}  // namespace

PagePrints RowStore::prints(const PagePrints& before) const {
    PagePrints now;
    PageWalk pages(m_file);
    UsageMap(m_file, m_definition.ownedMap).forEach([&](uint32_t number) {
        const Page& page = pages.page(number);
        now.set(number, digestOf(page));
        if (now.sameAs(before, number)) return true;
        const DataPageView rows = view(page, number);
        for (size_t slot = 0; slot < rows.count(); ++slot) {
            if (rows.flags(slot) != data::pointer) continue;
            const std::span<const uint8_t> bytes = rows.bytes(slot);
            if (bytes.size() >= 4) now.addMoved({number, load24(&bytes[1])});
        }
        return true;
    });
    for (const PagePrints::Moved& row : before.moved())
        if (now.sameAs(before, row.page)) now.addMoved(row);
    return now;
}

Result<std::vector<bool>> Table::scanChanged(PagePrints& prints,
                                             const std::function<bool(RowId, const RowView&)>& visit) {
    return guarded([&]() -> Result<std::vector<bool>> {
        const Reading reading(m_state->file);
        m_state->ensureCurrent();
        PagePrints now = m_state->rows.prints(prints);
        std::vector<bool> changed(std::max(now.size(), prints.size()));
        for (uint32_t page = 0; page < changed.size(); ++page)
            changed[page] = !now.sameAs(prints, page);
        for (const PagePrints::Moved& row : now.moved())
            if (row.body < changed.size() && changed[row.body]) changed[row.page] = true;
        prints = std::move(now);
        for (uint32_t page = 0; page < changed.size(); ++page) {
            if (!changed[page] || !prints.has(page)) continue;
            for (size_t slot = 0; slot < data::maxSlots; ++slot) {
                const RowId id{page, static_cast<uint8_t>(slot)};
                const std::optional<RowStore::Stored> row = m_state->rows.find(id);
                if (row && !visit(id, RowView(&m_state->definition, row->bytes))) return changed;
            }
        }
        return changed;
    });
}

}  // namespace jet
