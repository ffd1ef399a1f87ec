// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/KeySort.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace ado {

namespace {

// Blocks of their own instead of one text: that would be copied as it grows, and take twice the memory
// meanwhile.
constexpr size_t keyBlockSize = size_t{1} << 20;
constexpr size_t wordSize = sizeof(uint64_t);

}  // namespace

uint64_t KeySort::word(std::string_view key, size_t at) {
    uint64_t bytes = 0;
    if (at < key.size()) std::memcpy(&bytes, key.data() + at, std::min(wordSize, key.size() - at));
    static_assert(std::endian::native == std::endian::little);
    return __builtin_bswap64(bytes);
}

void KeySort::add(std::string_view key, uint32_t id) {
    if (m_blocks.empty() || key.size() > keyBlockSize - m_used) {
        m_blocks.push_back(std::make_unique_for_overwrite<char[]>(std::max(keyBlockSize, key.size())));
        m_used = 0;
    }
    char* place = m_blocks.back().get() + m_used;
    if (!key.empty()) std::memcpy(place, key.data(), key.size());
    m_used = std::min(keyBlockSize, m_used + key.size());
    m_longest = std::max(m_longest, key.size());
    m_items.push_back({0, place, static_cast<uint32_t>(key.size()), id});
}

/// Sorts items whose keys are alike before `at`: by the next eight bytes, which are in the item while it is
/// moved, and then those that are alike in these.
void KeySort::sortFrom(Place first, Place last, size_t at) {
    size_t longest = 0;
    for (Place item = first; item != last; ++item) {
        item->word = word({item->key, item->length}, at);
        longest = std::max<size_t>(longest, item->length);
    }
    if (longest <= at) {
        std::sort(first, last, [](const Item& a, const Item& b) {
            return a.length != b.length ? a.length < b.length : a.id < b.id;
        });
        return;
    }
    std::sort(first, last, [](const Item& a, const Item& b) { return a.word < b.word; });
    while (first != last) {
        const Place other =
            std::find_if(first, last, [&](const Item& item) { return item.word != first->word; });
        if (other - first > 1) sortFrom(first, other, at + wordSize);
        first = other;
    }
}

void KeySort::sort() {
    const auto before = [](const Item& a, const Item& b) { return a.id < b.id; };
    if (m_longest == 0 && std::is_sorted(m_items.begin(), m_items.end(), before)) return;
    sortFrom(m_items.begin(), m_items.end(), 0);
}

}  // namespace ado
