// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <random>

#include "platform/ado/KeySort.h"
#include "TestDatabase.h"

namespace row_order_test {

using ado::KeySort;

namespace {

/// Keys as orders have them: bytes of every value, long common beginnings, empty ones.
std::string randomKey(std::mt19937& random) {
    static const std::string beginnings[] = {"", "\x7f", std::string("\x7f\0\0\0", 4), std::string(300, 'a')};
    std::string key = beginnings[random() % 4];
    for (auto length = random() % 12; length > 0; --length)
        key.push_back(static_cast<char>(random() % 3 == 0 ? random() % 256 : random() % 5 == 0 ? 0 : 'a'));
    return key;
}

}  // namespace

TEST(KeySort, SortsByBytesOfTheKeyAndThenById) {
    std::mt19937 random(5);
    for (const size_t count : {size_t{0}, size_t{1}, size_t{2}, size_t{40}, size_t{5000}}) {
        KeySort sort;
        std::vector<std::pair<std::string, uint32_t>> rows;
        for (size_t i = 0; i < count; ++i) {
            rows.emplace_back(randomKey(random), random() % 1000);
            sort.add(rows.back().first, rows.back().second);
        }
        std::sort(rows.begin(), rows.end());
        sort.sort();
        ASSERT_EQ(sort.count(), count);
        for (size_t i = 0; i < count; ++i) {
            EXPECT_EQ(sort.key(i), rows[i].first) << i;
            EXPECT_EQ(sort.id(i), rows[i].second) << i;
        }
    }
}

TEST(KeySort, KeysBeyondABlockAreKept) {
    KeySort sort;
    const std::string longest(3 << 20, 'z');
    sort.add(longest, 1);
    sort.add("a", 2);
    sort.sort();
    EXPECT_EQ(sort.id(0), 2u);
    EXPECT_EQ(sort.key(1), longest);
}

TEST(KeySort, AWordSortsAsItsBytesDo) {
    EXPECT_EQ(KeySort::word("\x01\x02", 0), 0x0102000000000000u);
    EXPECT_EQ(KeySort::word("12345678\xff", 8), 0xff00000000000000u);
    EXPECT_EQ(KeySort::word("1", 8), 0u);
}

}  // namespace row_order_test
