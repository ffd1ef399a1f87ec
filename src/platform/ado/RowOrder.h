#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/ado/OrderBlock.h"
#include "platform/jet/Database.h"

namespace ado {

/// What an order of rows is made by: columns by position. Rows may be grouped by one column first, so that
/// those with one value of it stand together.
struct OrderSpec {
    struct Part {
        size_t column = 0;
        bool ascending = true;
        bool operator==(const Part&) const = default;
    };
    std::optional<size_t> group;
    std::vector<Part> parts;
    bool operator==(const OrderSpec&) const = default;

    bool uses(size_t column) const;
    std::string toText() const;
    static OrderSpec fromText(std::string_view text);

    /// Whether rows can be put in order by, and be grouped by, columns of that type.
    static bool canSort(jet::Type type);
    static bool canGroup(jet::Type type);
};

/// All rows of a table in one order; equal ones by their identities. Kept in memory and up to date by whoever
/// writes.
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

    /// Takes over all rows of the table.
    Status fill(jet::Table& table);

    std::string keyOf(const jet::RowView& row) const;
    void add(std::string_view key, jet::RowId id);
    void remove(std::string_view key, jet::RowId id);

    Place begin() const { return {}; }
    Place end() const { return {m_blocks.size(), 0}; }
    jet::RowId at(Place place) const;
    Place next(Place place) const;
    /// The rows that hold `number` in the column they are grouped by: the first, and the one behind the last.
    std::pair<Place, Place> group(jet::Type type, int64_t number) const;

  private:
    void appendKey(std::string& key, const jet::RowView& row) const;
    size_t blockOf(std::string_view key, OrderBlock::Id id) const;
    Place lowerBound(std::string_view key) const;

    OrderSpec m_spec;
    std::vector<OrderBlock> m_blocks;  ///< none is empty
};

}  // namespace ado
