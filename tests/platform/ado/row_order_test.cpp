#include <random>
#include <set>

#include "platform/ado/OrderBlock.h"
#include "TestDatabase.h"

namespace row_order_test {

using ado::OrderBlock;

namespace {

using Rows = std::set<std::pair<std::string, OrderBlock::Id>>;

/// Keys as orders have them: bytes of every value, long common beginnings, empty ones.
std::string randomKey(std::mt19937& random) {
    static const std::string beginnings[] = {"", "\x7f", std::string("\x7f\0\0\0", 4), std::string(300, 'a')};
    std::string key = beginnings[random() % 4];
    for (auto length = random() % 4; length > 0; --length)
        key.push_back(static_cast<char>(random() % 3 == 0 ? random() % 256 : 'a'));
    return key;
}

void expectSame(const OrderBlock& block, const Rows& rows) {
    ASSERT_EQ(block.count(), rows.size());
    if (!rows.empty()) {
        EXPECT_EQ(block.firstKey(), rows.begin()->first);
    }
    size_t i = 0;
    for (const auto& [key, id] : rows) {
        EXPECT_EQ(block.id(i), id);
        EXPECT_EQ(block.lowerBound(key, id), i);
        ++i;
    }
}

}  // namespace

TEST(OrderBlock, AgreesWithASetThroughRandomChangesAndSplits) {
    std::mt19937 random(5);
    for (int round = 0; round < 40; ++round) {
        OrderBlock block;
        Rows rows;
        for (int step = 0; step < 150; ++step) {
            const std::string key = randomKey(random);
            const OrderBlock::Id id = random() % 3;
            if (random() % 3 != 0) {
                block.insert(key, id);
                rows.emplace(key, id);
            } else {
                EXPECT_EQ(block.erase(key, id), rows.erase({key, id}) == 1);
            }
        }
        expectSame(block, rows);
        EXPECT_EQ(block.lowerBound(std::string(400, '\xff'), 0), block.count());
        if (rows.size() < 2) continue;
        const OrderBlock second = block.split();
        const auto middle = std::next(rows.begin(), static_cast<std::ptrdiff_t>(rows.size() / 2));
        expectSame(block, Rows(rows.begin(), middle));
        expectSame(second, Rows(middle, rows.end()));
    }
}

TEST(OrderBlock, AppendedRowsStandAsInserted) {
    OrderBlock appended;
    OrderBlock inserted;
    std::string previous;
    for (int i = 0; i < 64; ++i) {
        const std::string key = "Ditta " + std::to_string(100 + i);
        appended.append(key, static_cast<OrderBlock::Id>(i), previous);
        inserted.insert(key, static_cast<OrderBlock::Id>(i));
        previous = key;
    }
    Rows rows;
    for (int i = 0; i < 64; ++i)
        rows.emplace("Ditta " + std::to_string(100 + i), i);
    expectSame(appended, rows);
    expectSame(inserted, rows);
}

}  // namespace row_order_test
