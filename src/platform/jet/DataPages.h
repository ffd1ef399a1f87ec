// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>

#include "platform/jet/Format.h"

namespace jet {

/// Slots of a data page. All members throw Failure when the page contradicts itself.
class DataPageView {
  public:
    /// `number` is the page's own, for the texts of failures.
    DataPageView(const Page& page, uint32_t number);

    size_t count() const { return m_count; }
    uint32_t owner() const { return load32(&m_page[data::owner]); }
    size_t freeBytes() const;
    uint16_t flags(size_t slot) const { return rawSlot(slot) & data::flagsMask; }
    /// The bytes of a slot, whatever its flags; a slot that is not there has none.
    std::span<const uint8_t> bytes(size_t slot) const;
    /// Whether a row of that length finds room with a slot of its own.
    bool fits(size_t length) const { return m_count < data::maxSlots && length + 2 <= freeBytes(); }
    /// Length of the longest row that can be put on the page, if need be into a deleted slot.
    size_t room() const;
    /// The first deleted slot; count() when there is none.
    size_t deletedSlot() const;
    /// Whether no slot contains a row, a part of one or a pointer.
    bool isEmpty() const;

  private:
    uint16_t rawSlot(size_t slot) const {
        return slot < m_count ? load16(&m_page[data::slots + 2 * slot]) : data::deleted;
    }
    const Page& m_page;
    uint32_t m_number;
    size_t m_count;
};

/// Makes `page` an empty data page.
void makeDataPage(Page& page, uint32_t owner);
/// Puts a row on a page that has room() for it and returns its slot: a new one, or where that does not fit a
/// deleted one, so that a slot's number is reused as late as possible. `flags` go into the slot.
uint8_t putRow(Page& page, uint32_t number, std::span<const uint8_t> row, uint16_t flags = 0);
/// Appends a row that fits and returns its slot. `flags` go into the slot.
uint8_t appendRow(Page& page, uint32_t number, std::span<const uint8_t> row, uint16_t flags = 0);
/// Changes length and flags of a slot, moving the rows below it. The caller ensures the room.
/// Bytes of a row that stays are kept as far as the new length reaches; new ones are zero.
void resizeRow(Page& page, uint32_t number, size_t slot, size_t length, uint16_t flags);
/// The bytes of a slot for changing.
std::span<uint8_t> rowBytes(Page& page, uint32_t number, size_t slot);

}  // namespace jet
