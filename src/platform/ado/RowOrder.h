// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/ado/OrderSpec.h"
#include "platform/jet/Database.h"
#include "platform/Status.h"

namespace ado {

/// The rows of a table that an OrderSpec takes in, in its order. Kept in memory; code that writes keeps it
/// up to date.
///
/// Of each row the identity and the first eight bytes of its key are kept, twelve bytes. Where these are
/// alike the rows themselves say which comes first: they are read again, so what changes or fills an order
/// is handed the table.
class RowOrder {
  public:
    /// A place in the order, valid until rows are added or removed.
    struct Place {
        size_t block = 0;
        size_t row = 0;
        bool operator==(const Place&) const = default;
    };

    explicit RowOrder(OrderSpec spec) : m_spec(std::move(spec)) {}
    const OrderSpec& spec() const { return m_spec; }

    /// Takes over the rows of the table that belong here.
    Status fill(jet::Table& table);
    size_t size() const;
    /// Whether its rows come in another order than that of the walk.
    bool isSorted() const { return !m_spec.parts.empty(); }
    /// Drops the rows of those pages.
    void drop(const std::vector<bool>& pages);
    /// Adds the row with that key. After a failure the order is of no use any more.
    Status add(jet::Table& table, std::string_view key, jet::RowId id);
    /// The same for a row that may belong here or not.
    Status take(jet::Table& table, const jet::RowView& row, jet::RowId id) {
        return m_spec.holds(row) ? add(table, m_spec.keyOf(row), id) : Status();
    }
    /// Removes the row that had that key when it was added; it may have another one in the table by now. The
    /// keys of all others are those of their rows.
    Status remove(jet::Table& table, std::string_view key, jet::RowId id);

    Place begin() const { return {}; }
    Place end() const { return {m_blocks.size(), 0}; }
    jet::RowId at(Place place) const { return m_blocks[place.block][place.row].row(); }
    Place next(Place place) const;

  private:
    /// Kept small: there may be millions.
    struct Entry {
        uint32_t high = 0;  ///< of the key's first eight bytes
        uint32_t low = 0;
        uint32_t id = 0;

        Entry(uint64_t prefix, uint32_t rowId)
            : high(static_cast<uint32_t>(prefix >> 32)), low(static_cast<uint32_t>(prefix)), id(rowId) {}
        uint64_t prefix() const { return uint64_t{high} << 32 | low; }
        jet::RowId row() const { return jet::RowId::fromInteger(id); }
    };
    using Block = std::vector<Entry>;

    Status walk(jet::Table& table, const std::function<bool(jet::RowId, const jet::RowView&)>& visit) const;
    void append(const Entry& entry);
    Result<Place> find(jet::Table& table, std::string_view key, uint32_t id) const;
    Result<bool> before(jet::Table& table, const Entry& entry, std::string_view key, uint32_t id) const;

    OrderSpec m_spec;
    std::vector<Block> m_blocks;  ///< none is empty
};

}  // namespace ado
