#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

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
    using Entry = std::pair<std::string, jet::RowId>;
    using Iterator = std::set<Entry>::const_iterator;

    explicit RowOrder(OrderSpec spec) : m_spec(std::move(spec)) {}
    const OrderSpec& spec() const { return m_spec; }

    /// Takes over all rows of the table.
    Status fill(jet::Table& table);

    std::string keyOf(const jet::RowView& row) const;
    void add(std::string key, jet::RowId id) { m_rows.emplace(std::move(key), id); }
    void remove(const std::string& key, jet::RowId id) { m_rows.erase({key, id}); }

    Iterator begin() const { return m_rows.begin(); }
    Iterator end() const { return m_rows.end(); }
    /// The first row whose group is not below the one with that prefix.
    Iterator groupBegin(const std::string& prefix) const { return m_rows.lower_bound({prefix, {}}); }
    /// What the keys begin with of rows that hold `number` in the column they are grouped by.
    static std::string groupPrefix(jet::Type type, int64_t number);

  private:
    OrderSpec m_spec;
    std::set<Entry> m_rows;
};

}  // namespace ado
