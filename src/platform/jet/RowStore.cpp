// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/RowStore.h"

#include <cassert>

#include "platform/jet/DataPages.h"
#include "platform/jet/Failure.h"
#include "platform/jet/UsageMap.h"

namespace jet {

namespace {

void storePointer(Page& page, RowId slot, RowId body) {
    const std::span<uint8_t> bytes = rowBytes(page, slot.page, slot.slot);
    bytes[0] = body.slot;
    store24(&bytes[1], body.page);
}

}  // namespace

DataPageView RowStore::view(const Page& page, uint32_t number) const {
    const DataPageView view(page, number);
    if (view.owner() != m_definition.page)
        failDamaged("la pagina %1 non appartiene alla tabella \"%2\""_tr, number, m_definition.name);
    return view;
}

RowStore::Stored RowStore::body(RowId id, std::span<const uint8_t> pointer) const {
    if (pointer.size() < 4) failDamaged("la riga %1 della pagina %2 non dice dove è"_tr, id.slot, id.page);
    const RowId place{load24(&pointer[1]), pointer[0]};
    PagePtr bodyPage = m_file.page(place.page);
    const DataPageView rows = view(*bodyPage, place.page);
    if (rows.flags(place.slot) != data::notARow)
        failDamaged("la riga %1 della pagina %2 si è persa"_tr, id.slot, id.page);
    const std::span<const uint8_t> bytes = rows.bytes(place.slot);
    return {std::move(bodyPage), bytes, place};
}

std::optional<RowStore::Stored> RowStore::find(RowId id) const {
    if (id.page >= m_file.pageCount()) return std::nullopt;
    PagePtr page = m_file.page(id.page);
    if (!isOwn(*page)) return std::nullopt;
    const DataPageView rows(*page, id.page);
    const uint16_t flags = rows.flags(id.slot);
    if (id.slot >= rows.count() || (flags & data::notARow) != 0) return std::nullopt;
    const std::span<const uint8_t> bytes = rows.bytes(id.slot);
    if ((flags & data::pointer) != 0) return body(id, bytes);
    return Stored{std::move(page), bytes, id};
}

RowId RowStore::put(std::span<const uint8_t> row, uint16_t flags) {
    std::optional<uint32_t> number = m_room.find(row.size());
    if (!number) {
        number = GlobalMap(m_file).take();
        makeDataPage(m_file.change(*number), m_definition.page);
        UsageMap(m_file, m_definition.ownedMap).set(*number, true);
        m_room.noteNew(*number);
        assert(UsageMap(m_file, m_definition.ownedMap).contains(*number));  // P4
    }
    (void)view(*m_file.page(*number), *number);
    const uint8_t slot = putRow(m_file.change(*number), *number, row, flags);
    m_room.noteTaken(*number);
    assert(DataPageView(*m_file.page(*number), *number).bytes(slot).size() == row.size());
    return {*number, slot};
}

// False when the page has no room for the longer row.
bool RowStore::replaceAt(RowId place, std::span<const uint8_t> row, uint16_t flags) {
    const PagePtr page = m_file.page(place.page);
    const DataPageView rows = view(*page, place.page);
    const size_t oldLength = rows.bytes(place.slot).size();
    if (row.size() > oldLength + rows.freeBytes()) return false;
    Page& changed = m_file.change(place.page);
    if (row.size() != oldLength) resizeRow(changed, place.page, place.slot, row.size(), flags);
    const std::span<uint8_t> bytes = rowBytes(changed, place.page, place.slot);
    std::copy(row.begin(), row.end(), bytes.begin());
    if (row.size() < oldLength)
        m_room.noteFreed(place.page);
    else
        m_room.noteTaken(place.page);
    return true;
}

void RowStore::update(RowId id, std::span<const uint8_t> row) {
    const std::optional<Stored> old = find(id);
    if (!old) failInternal("una riga di \"%1\" è sparita"_tr, m_definition.name);
    const bool moved = old->place != id;
    if (replaceAt(old->place, row, moved ? data::notARow : 0)) return;
    const RowId body = put(row, data::notARow);
    // Rule P3. Only a file whose map of free pages lists a page in use leads here.
    if (body == id || body == old->place)
        failDamaged("la pagina %1 è in uso ed è segnata come libera"_tr, body.page);
    if (moved) {
        remove(old->place);
    } else {
        resizeRow(m_file.change(id.page), id.page, id.slot, 4, data::pointer);
        m_room.noteFreed(id.page);
    }
    storePointer(m_file.change(id.page), id, body);
    assert(find(id)->place == body);  // P2
}

void RowStore::patchAll(const std::function<std::optional<Patch>(RowId, std::span<const uint8_t>)>& patch) {
    UsageMap(m_file, m_definition.ownedMap).forEach([&](uint32_t number) {
        const PagePtr page = m_file.page(number);
        const DataPageView rows = view(*page, number);
        for (size_t slot = 0; slot < rows.count(); ++slot) {
            const uint16_t flags = rows.flags(slot);
            if ((flags & data::notARow) != 0) continue;
            const RowId id{number, static_cast<uint8_t>(slot)};
            // Rows keep their places, so the page before the changes names them all.
            const Stored stored = (flags & data::pointer) != 0 ? body(id, rows.bytes(slot))
                                                               : Stored{page, rows.bytes(slot), id};
            if (const std::optional<Patch> change = patch(id, stored.bytes))
                rowBytes(m_file.change(stored.place.page), stored.place.page, stored.place.slot)[change->at] =
                    change->byte;
        }
        m_file.endStatement();
        return true;
    });
}

void RowStore::erase(RowId id) {
    const std::optional<Stored> old = find(id);
    if (!old) failInternal("una riga di \"%1\" è sparita"_tr, m_definition.name);
    if (old->place != id) remove(old->place);
    remove(id);
}

// A page on which no row and no new slot is left starts again with slot 0.
void RowStore::remove(RowId place) {
    Page& page = m_file.change(place.page);
    resizeRow(page, place.page, place.slot, 0, data::deleted);
    const DataPageView rows(page, place.page);
    if (rows.count() == data::maxSlots && rows.isEmpty()) makeDataPage(page, m_definition.page);
    m_room.noteFreed(place.page);
}

}  // namespace jet
