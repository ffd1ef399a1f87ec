// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace ado {

/// A sort of identities by keys: bytewise, those of one key by themselves. Meanwhile it keeps all keys.
class KeySort {
  public:
    void add(std::string_view key, uint32_t id);
    void sort();

    size_t count() const { return m_items.size(); }
    uint32_t id(size_t i) const { return m_items[i].id; }
    std::string_view key(size_t i) const { return {m_items[i].key, m_items[i].length}; }

    /// The eight bytes of a key from `at` on as a number that sorts as they do; zeros after its end.
    static uint64_t word(std::string_view key, size_t at);

  private:
    struct Item {
        uint64_t word;  ///< of the key, where the sort has come to
        const char* key;
        uint32_t length;
        uint32_t id;
    };
    using Place = std::vector<Item>::iterator;
    static void sortFrom(Place first, Place last, size_t at);

    std::vector<Item> m_items;
    std::vector<std::unique_ptr<char[]>> m_blocks;  ///< the keys
    size_t m_used = 0;                              ///< of the last block
    size_t m_longest = 0;
};

}  // namespace ado
