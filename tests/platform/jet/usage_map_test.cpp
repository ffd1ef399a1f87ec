// SPDX-License-Identifier: GPL-3.0-or-later
// Usage maps: both forms, growth at either end, and the map of free pages.
#include <random>
#include <set>

#include "platform/jet/DataPages.h"
#include "platform/jet/Failure.h"
#include "platform/jet/JetFixture.h"
#include "platform/jet/UsageMap.h"

namespace usage_map_test {

using namespace jet;

class UsageMapTest : public JetTest {
  protected:
    UsageMapTest() {
        create(path()).reset();
        file = std::make_unique<PageFile>(path(), false, PageFile::Limits{});
        file->beginWrite();
    }
    ~UsageMapTest() override { file->rollback(); }

    UsageMap map() { return UsageMap(*file, 17 << 8 | 0); }
    int form() { return DataPageView(*file->page(17), 17).bytes(0)[0]; }
    size_t rowLength() { return DataPageView(*file->page(17), 17).bytes(0).size(); }
    uint32_t firstPage() { return load32(&DataPageView(*file->page(17), 17).bytes(0)[map::firstPage]); }

    std::unique_ptr<PageFile> file;
};

TEST_F(UsageMapTest, ContainsWhatWasSet) {
    EXPECT_TRUE(map().pages().empty());
    for (uint32_t page : {30u, 7u, 511u})
        map().set(page, true);
    map().set(30, false);
    EXPECT_EQ(map().pages(), (std::vector<uint32_t>{7, 511}));
    EXPECT_TRUE(map().contains(7));
    EXPECT_FALSE(map().contains(30));
    EXPECT_FALSE(map().contains(100000));
    EXPECT_EQ(rowLength(), 69u);
}

TEST_F(UsageMapTest, EmptyMapMovesItsFirstPage) {
    map().set(5003, true);
    EXPECT_EQ(form(), 0);
    EXPECT_EQ(firstPage(), 5000u);
    EXPECT_EQ(rowLength(), 69u);
    map().set(4990, true);
    EXPECT_EQ(map().pages(), (std::vector<uint32_t>{4990, 5003}));
    EXPECT_EQ(firstPage() % 8, 0u);
}

TEST_F(UsageMapTest, RowGrowsByFourBytesAtATime) {
    map().set(10, true);
    map().set(512, true);
    EXPECT_EQ(form(), 0);
    EXPECT_EQ(rowLength(), 73u);
    EXPECT_EQ(map().pages(), (std::vector<uint32_t>{10, 512}));
    EXPECT_EQ(UsageMap(*file, 17 << 8 | 2).pages(), std::vector<uint32_t>{18}) << "the row below was hurt";
}

TEST_F(UsageMapTest, PagesSpreadTooFarTakeFormOne) {
    map().set(10, true);
    map().set(40000, true);
    EXPECT_EQ(form(), 1);
    EXPECT_EQ(map().pages(), (std::vector<uint32_t>{10, 40000}));
    map().set(10, false);
    map().set(70000, true);
    EXPECT_EQ(map().pages(), (std::vector<uint32_t>{40000, 70000}));
    EXPECT_FALSE(map().contains(10));
    EXPECT_EQ(rowLength(), 69u);
}

TEST_F(UsageMapTest, RandomSetsAgreeWithASet) {
    std::mt19937 random(3);
    std::set<uint32_t> expected;
    for (int i = 0; i < 4000; ++i) {
        const uint32_t page = static_cast<uint32_t>(random() % (i < 1000 ? 600 : i < 2000 ? 1000 : 100000));
        const bool member = random() % 3 != 0;
        map().set(page, member);
        if (member)
            expected.insert(page);
        else
            expected.erase(page);
    }
    EXPECT_EQ(map().pages(), std::vector<uint32_t>(expected.begin(), expected.end()));
}

TEST_F(UsageMapTest, NewPageComesFromTheEndWhenNoneIsFree) {
    const uint32_t end = file->pageCount();
    EXPECT_EQ(GlobalMap(*file).take(), end);
    EXPECT_FALSE(UsageMap(*file, 1 << 8).contains(end));
}

TEST_F(UsageMapTest, PageGivenBackIsTakenAgainAndZeroed) {
    const uint32_t page = GlobalMap(*file).take();
    GlobalMap(*file).take();
    file->change(page).fill(0xAA);
    GlobalMap(*file).give(page);
    EXPECT_TRUE(UsageMap(*file, 1 << 8).contains(page));
    EXPECT_EQ(GlobalMap(*file).take(), page);
    EXPECT_EQ((*file->page(page))[100], 0);
}

TEST_F(UsageMapTest, GlobalMapGrowsWithFreeBitsAndThenTakesFormOne) {
    int longest = 0;
    bool formOne = false;
    for (int i = 0; i < 34000; ++i) {
        const uint32_t page = GlobalMap(*file).take();
        const auto row = DataPageView(*file->page(1), 1).bytes(0);
        if (!formOne && row[0] == 0) {
            longest = std::max(longest, static_cast<int>(row.size()));
            ASSERT_GE(8 * (row.size() - map::bits), page);
        } else {
            formOne = true;
        }
        ASSERT_FALSE(UsageMap(*file, 1 << 8).contains(page));
        if (i % 1000 == 0) {
            ASSERT_FALSE(GlobalMap(*file).reachesBehindFile()) << i;
        }
    }
    EXPECT_GT(longest, 3900);
    EXPECT_TRUE(formOne);
    // Free pages can still be found and reported.
    GlobalMap(*file).give(31000);
    EXPECT_EQ(GlobalMap(*file).take(), 31000u);
    for (const uint32_t used : {2u, 20u, 30000u, 33000u})
        EXPECT_FALSE(UsageMap(*file, 1 << 8).contains(used));
}

TEST_F(UsageMapTest, FirstPagesAreNeverHandedOut) {
    UsageMap(*file, 1 << 8).set(2, true);  // a damaged map
    EXPECT_GE(GlobalMap(*file).take(), firstOrdinaryPage);
}

TEST_F(UsageMapTest, PageBeyondEveryMapReportsTheLimit) {
    map().set(10, true);
    map().set(16 * map::pagesPerBitmap - 1, true);
    try {
        map().set(16 * map::pagesPerBitmap, true);
        ADD_FAILURE() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.status.code(), ErrorCode::DatabaseFull);
        EXPECT_NE(failure.status.plainText().find("2 GB"), std::string::npos);
    }
}

TEST_F(UsageMapTest, FileOfTheGreatestSizeTakesNoMorePages) {
    file->rollback();
    std::filesystem::resize_file(path(), uint64_t{maxPages} * pageSize);
    file->beginWrite();
    EXPECT_EQ(file->pageCount(), maxPages);
    try {
        file->append();
        ADD_FAILURE() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.status.code(), ErrorCode::DatabaseFull);
    }
    file->rollback();
    std::filesystem::resize_file(path(), uint64_t{maxPages} * pageSize + pageSize);
    EXPECT_FAILS(ErrorCode::DatabaseFull, Database::open(path()));
    std::filesystem::resize_file(path(), 23 * pageSize);
    file->beginWrite();
}

TEST_F(UsageMapTest, RowThatDoesNotFitIsAnErrorOfTheEngineAndNotOfTheFile) {
    try {
        appendRow(file->change(17), 17, Bytes(4050));
        ADD_FAILURE() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.status.code(), ErrorCode::Internal);
        EXPECT_TRUE(failure.status.plainText().starts_with("Errore interno"));
    }
}

TEST_F(UsageMapTest, MapThatCannotBeReadIsDamage) {
    rowBytes(file->change(17), 17, 0)[0] = 9;
    EXPECT_THROW(map().pages(), Failure);
    EXPECT_THROW(UsageMap(*file, 17 << 8 | 200).pages(), Failure);
    EXPECT_THROW(UsageMap(*file, 0xFFFFFF00).pages(), Failure);
    rowBytes(file->change(17), 17, 0)[0] = 1;
    store32(&rowBytes(file->change(17), 17, 0)[map::pages], 18);  // an index page
    EXPECT_THROW(map().pages(), Failure);
}

}  // namespace usage_map_test
