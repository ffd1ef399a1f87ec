// SPDX-License-Identifier: GPL-3.0-or-later
// An entry appended to a leaf in place, compared with the leaf that is parsed, changed and stored.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "platform/jet/IndexPage.h"
#include "support/Repetitions.h"

namespace index_page_test {

namespace {

using jet::IndexPage;
using Entries = std::vector<std::vector<uint8_t>>;

constexpr uint32_t owner = 7, number = 9;

jet::Page stored(const Entries& entries) {
    IndexPage leaf;
    leaf.previous = 5;
    for (const auto& entry : entries)
        leaf.insert(leaf.count(), entry);
    jet::Page page;
    leaf.store(page, owner);
    return page;
}

std::vector<uint8_t> keyed(std::vector<uint8_t> key, uint32_t row) {
    for (int shift = 24; shift >= 0; shift -= 8)
        key.push_back(static_cast<uint8_t>(row >> shift));
    return key;
}

/// A long of an index as it is stored, rising.
std::vector<uint8_t> longEntry(uint32_t value) {
    return keyed({0x7F, static_cast<uint8_t>(0x80 | value >> 24), static_cast<uint8_t>(value >> 16),
                  static_cast<uint8_t>(value >> 8), static_cast<uint8_t>(value)},
                 value * 3);
}

/// Appends all in order. Where it is done in place the page has to be the one that store() writes; returns
/// how many were.
size_t appendAll(const Entries& entries) {
    Entries on;
    size_t inPlace = 0;
    for (const auto& entry : entries) {
        jet::Page page = stored(on);
        const jet::Page before = page;
        on.push_back(entry);
        IndexPage leaf;
        for (const auto& each : on)
            leaf.insert(leaf.count(), each);
        if (!jet::appendEntry(page, entry)) {
            EXPECT_EQ(page, before);
            if (!leaf.fits()) return inPlace;
            continue;
        }
        ++inPlace;
        EXPECT_TRUE(leaf.fits());
        EXPECT_EQ(page, stored(on)) << on.size();
        EXPECT_EQ(IndexPage(page, number, owner).count(), on.size());
    }
    return inPlace;
}

}  // namespace

TEST(AppendedEntry, MakesTheSamePageAsStoringIt) {
    Entries entries;
    for (uint32_t value = 0xFE00; entries.size() < 2000; ++value)
        entries.push_back(longEntry(value));
    EXPECT_GT(appendAll(entries), 380U);
}

TEST(AppendedEntry, IsAddedToALeafWithAPrefixToo) {
    Entries on;
    for (uint32_t value = 1; on.size() < 450; ++value)
        on.push_back(longEntry(value));
    jet::Page page = stored(on);
    ASSERT_GT(jet::load16(page.data() + jet::index::prefix), 0U);
    ASSERT_TRUE(jet::appendEntry(page, longEntry(451)));
    on.push_back(longEntry(451));
    EXPECT_EQ(page, stored(on));
    // The first that does not share it is left to the whole page
    jet::Page before = page;
    EXPECT_FALSE(jet::appendEntry(page, longEntry(0x01000000)));
    EXPECT_EQ(page, before);
}

TEST(AppendedEntry, MakesTheSamePageForKeysOfAnyLength) {
    std::mt19937 random(3);
    size_t inPlace = 0;
    for (int round = 0; round < 40; ++round) {
        Entries entries;
        const auto letters = 1 + random() % 3;
        for (int i = 0; i < 300; ++i) {
            std::vector<uint8_t> key{0x7F};
            for (auto left = random() % 40; left > 0; --left)
                key.push_back(static_cast<uint8_t>(0x60 + random() % letters));
            entries.push_back(keyed(key, static_cast<uint32_t>(i)));
        }
        std::sort(entries.begin(), entries.end(),
                  [](const auto& a, const auto& b) { return jet::compareEntries(a, b) < 0; });
        entries.erase(std::unique(entries.begin(), entries.end()), entries.end());
        inPlace += appendAll(entries);
    }
    EXPECT_GT(inPlace, 1000U);
}

TEST(AppendedEntry, HasToBeGreaterThanTheLastOne) {
    const jet::Page page = stored({longEntry(5), longEntry(9)});
    for (const uint32_t value : {1U, 5U, 7U, 9U}) {
        jet::Page same = page;
        EXPECT_FALSE(jet::appendEntry(same, longEntry(value))) << value;
        EXPECT_EQ(same, page);
    }
    jet::Page empty = stored({});
    EXPECT_FALSE(jet::appendEntry(empty, longEntry(1)));
    jet::Page one = stored({longEntry(5)});
    EXPECT_FALSE(jet::appendEntry(one, longEntry(5)));
    EXPECT_TRUE(jet::appendEntry(one, longEntry(6)));
    EXPECT_EQ(one, stored({longEntry(5), longEntry(6)}));
}

TEST(AppendedEntry, StaysInsideOfAPageThatNobodyWrote) {
    std::mt19937 random(11);
    for (int round = 0; round < testing_support::repetitions(20000); ++round) {
        auto page = std::make_unique<jet::Page>();  // on the heap, where sanitizers see its ends
        for (auto& byte : *page)
            byte = static_cast<uint8_t>(random() % 4 ? 0 : random());
        jet::store16(page->data() + jet::index::freeBytes, static_cast<uint32_t>(random() % 4500));
        jet::store16(page->data() + jet::index::prefix,
                     static_cast<uint32_t>(random() % 2 ? 0 : random() % 12));
        (void)jet::appendEntry(*page, longEntry(random() | 0x7F000000U));
    }
}

}  // namespace index_page_test
