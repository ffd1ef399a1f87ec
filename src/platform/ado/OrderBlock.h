#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ado {

/// A few rows of an order: their keys rise bytewise, equal ones by row id. What a key shares with the one
/// before it is not stored, so that a row costs little more than what tells it from its neighbour.
class OrderBlock {
  public:
    using Id = uint32_t;

    size_t count() const { return m_ids.size(); }
    Id id(size_t i) const { return m_ids[i]; }
    /// Key of the first row. The block is not empty.
    std::string_view firstKey() const;
    /// Index of the first row that does not stand before that key and id; count() if there is none.
    size_t lowerBound(std::string_view key, Id id) const;

    /// Adds a row behind all others; `previous` is the key of the last one.
    void append(std::string_view key, Id id, std::string_view previous);
    /// Adds a row at its place; one that is there already stays.
    void insert(std::string_view key, Id id);
    /// Removes a row. False when it is not there.
    bool erase(std::string_view key, Id id);
    /// Cuts off the second half of the rows.
    OrderBlock split();
    void shrinkToFit();

  private:
    /// One row's key in m_keys: what it shares with the key before it, and its own rest.
    struct Entry {
        size_t at = 0;
        size_t end = 0;
        size_t shared = 0;
        std::string_view rest;
    };
    Entry entryAt(size_t at) const;
    /// A walk to a place, and what is needed to change it.
    struct Walk {
        size_t index = 0;
        size_t at = 0;         ///< of the entry in m_keys
        std::string previous;  ///< key of the row before
        std::string key;       ///< of the row there, if there is one
    };
    template <class Stop>
    Walk walk(Stop stop) const;
    Walk find(std::string_view key, Id id) const;

    std::string m_keys;
    std::vector<Id> m_ids;
};

}  // namespace ado
