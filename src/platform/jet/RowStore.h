// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "platform/jet/Database.h"
#include "platform/jet/DataPages.h"
#include "platform/jet/PageFile.h"
#include "platform/jet/PagePrints.h"
#include "platform/jet/PageRoom.h"
#include "platform/jet/PageWalk.h"
#include "platform/jet/UsageMap.h"

namespace jet {

/// Rows of one table as bytes on data pages: where they are, how they move. It does not know columns and
/// indexes. Members throw Failure.
///
/// A row's identity is the slot where it was first put. When it no longer fits there, its body goes to
/// another page (slot flag 0x8000) and the slot keeps 4 bytes that point to it (flag 0x4000). There is never
/// more than one hop.
class RowStore {
  public:
    RowStore(PageFile& file, const TableDefinition& definition)
        : m_file(file), m_definition(definition), m_room(file, definition.roomMap, definition.page) {}

    /// Calls `visit(RowId, std::span<const uint8_t>)` for each row from `from` on, in page order, until it
    /// returns false.
    template <class Visit>
    void scan(RowId from, const Visit& visit) const;
    template <class Visit>
    void scan(const Visit& visit) const {
        scan({}, visit);
    }

    /// What the pages contain now. Those that are as they were `before` are not looked at any further.
    PagePrints prints(const PagePrints& before) const;

    /// Bytes of a row, valid as long as the page is kept.
    struct Stored {
        PagePtr page;
        std::span<const uint8_t> bytes;
        RowId place;  ///< where the bytes are: the row's identity, or its body's place when it has moved
    };
    std::optional<Stored> find(RowId id) const;
    /// Calls `visit(std::optional<std::span<const uint8_t>>)` for each of these rows; no row there is empty.
    template <class Visit>
    void forEach(std::span<const RowId> ids, const Visit& visit) const;

    RowId insert(std::span<const uint8_t> row) { return put(row, 0); }
    /// Replaces the bytes of a row that exists, where they are if there is room.
    void update(RowId id, std::span<const uint8_t> row);
    /// Calls `patch` for each row in page order; it may change a byte of the row by saying where, and how. A
    /// page is copied for changing only when one of its rows changes, and pages may be written ahead after
    /// each.
    struct Patch {
        size_t at = 0;
        uint8_t byte = 0;
    };
    void patchAll(const std::function<std::optional<Patch>(RowId, std::span<const uint8_t>)>& patch);
    void erase(RowId id);
    /// Drops what was remembered, after pages were changed by somebody else.
    void forget() { m_room.forget(); }

  private:
    DataPageView view(const Page& page, uint32_t number) const;
    bool isOwn(const Page& page) const {
        return page[0] == DataPage && load32(&page[data::owner]) == m_definition.page;
    }
    Stored body(RowId id, std::span<const uint8_t> pointer) const;
    RowId put(std::span<const uint8_t> row, uint16_t flags);
    void remove(RowId place);
    bool replaceAt(RowId place, std::span<const uint8_t> row, uint16_t flags);

    PageFile& m_file;
    const TableDefinition& m_definition;
    PageRoom m_room;
};

template <class Visit>
void RowStore::scan(RowId from, const Visit& visit) const {
    PageWalk pages(m_file);
    UsageMap(m_file, m_definition.ownedMap).forEach(from.page, [&](uint32_t number) {
        const DataPageView rows = view(pages.page(number), number);
        for (size_t slot = number == from.page ? from.slot : 0; slot < rows.count(); ++slot) {
            const uint16_t flags = rows.flags(slot);
            if ((flags & data::notARow) != 0) continue;
            const RowId id{number, static_cast<uint8_t>(slot)};
            const std::span<const uint8_t> bytes = rows.bytes(slot);
            const bool more =
                (flags & data::pointer) != 0 ? visit(id, body(id, bytes).bytes) : visit(id, bytes);
            if (!more) return false;
        }
        return true;
    });
}

template <class Visit>
void RowStore::forEach(std::span<const RowId> ids, const Visit& visit) const {
    using Found = std::optional<std::span<const uint8_t>>;
    if (ids.size() > 1) m_file.bring(ids.front().page, ids.back().page);
    PagePtr page;
    uint32_t number = 0;
    for (const RowId id : ids) {
        if (id.page >= m_file.pageCount()) {
            visit(Found());
            continue;
        }
        if (!page || id.page != number) page = m_file.page(number = id.page);
        if (!isOwn(*page)) {
            visit(Found());
            continue;
        }
        const DataPageView rows(*page, number);
        const uint16_t flags = rows.flags(id.slot);
        if ((flags & data::notARow) != 0) {
            visit(Found());
        } else if ((flags & data::pointer) != 0) {
            visit(Found(body(id, rows.bytes(id.slot)).bytes));
        } else {
            visit(Found(rows.bytes(id.slot)));
        }
    }
}

}  // namespace jet
