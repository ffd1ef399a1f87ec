// SPDX-License-Identifier: GPL-3.0-or-later
// The index on a long: splits, tails, emptied leaves, other writers' forms.
#include <algorithm>
#include <numeric>
#include <random>

#include "platform/jet/Engine.h"
#include "platform/jet/IndexPage.h"
#include "platform/jet/IndexTree.h"
#include "platform/jet/JetFixture.h"
#include "platform/jet/Key.h"
#include "platform/jet/UsageMap.h"
#include "support/Repetitions.h"

namespace index_test {

using namespace jet;

constexpr int32_t manyKeys = testing_support::repetitions(100000);
constexpr int32_t someKeys = manyKeys / 5;

class IndexTest : public JetTest {
  protected:
    IndexTest() : database(create(path())) {}

    void insertIds(const std::vector<int32_t>& ids) {
        Table& groups = table(*database, "tb_gruppi");
        EXPECT_OK(database->begin());
        for (int32_t id : ids)
            insert(groups, {int64_t{id}, int64_t{0}, std::string("g")});
        EXPECT_OK(database->commit());
    }
    void eraseIds(const std::vector<int32_t>& ids) {
        Table& groups = table(*database, "tb_gruppi");
        EXPECT_OK(database->begin());
        for (int32_t id : ids) {
            const auto row = groups.findByPrimaryKey(id);
            ASSERT_TRUE(row.ok() && row.value()) << id;
            EXPECT_OK(groups.erase(*row.value()));
        }
        EXPECT_OK(database->commit());
    }
    void expectFound(int32_t id) {
        Table& groups = table(*database, "tb_gruppi");
        const auto row = groups.findByPrimaryKey(id);
        ASSERT_TRUE(row.ok() && row.value()) << id;
        EXPECT_EQ(groups.row(*row.value()).value()->integer(0), id);
    }
    uint8_t rootType() { return static_cast<uint8_t>(bytesOf(path())[18 * 4096]); }

    static std::vector<int32_t> numbers(int32_t from, int32_t to) {
        std::vector<int32_t> ids(static_cast<size_t>(to - from));
        std::iota(ids.begin(), ids.end(), from);
        return ids;
    }

    DatabasePtr database;
};

TEST_F(IndexTest, ManyAscendingKeys) {
    insertIds(numbers(1, manyKeys + 1));
    for (int32_t id : {1, 2, 500, manyKeys / 2, manyKeys - 1, manyKeys})
        expectFound(id);
    EXPECT_FALSE(table(*database, "tb_gruppi").findByPrimaryKey(manyKeys + 1).value().has_value());
    EXPECT_FALSE(table(*database, "tb_gruppi").findByPrimaryKey(0).value().has_value());
    expectSound(path());
}

TEST_F(IndexTest, ManyRandomKeys) {
    constexpr int32_t half = manyKeys / 2;
    constexpr int32_t most = manyKeys * 3 / 5;
    std::mt19937 random(11);
    std::vector<int32_t> ids = numbers(-half, half);
    std::shuffle(ids.begin(), ids.end(), random);
    insertIds(ids);
    for (int32_t id : {-half, -1, 0, 1, half - 1})
        expectFound(id);
    expectSound(path());
    std::shuffle(ids.begin(), ids.end(), random);
    eraseIds({ids.begin(), ids.begin() + most});
    expectSound(path());
    expectFound(ids[most]);
    eraseIds({ids.begin() + most, ids.end()});
    expectSound(path());
    EXPECT_EQ(rootType(), LeafPage) << "the emptied index did not come back to one leaf";
    EXPECT_TRUE(rowsOf(table(*database, "tb_gruppi")).empty());
}

TEST_F(IndexTest, DescendingInsertion) {
    std::vector<int32_t> ids = numbers(1, someKeys + 1);
    std::reverse(ids.begin(), ids.end());
    insertIds(ids);
    expectSound(path());
    for (int32_t id : {1, 777, someKeys})
        expectFound(id);
}

TEST_F(IndexTest, EmptiedLeavesAreGivenBackAndUsedAgain) {
    constexpr int32_t most = someKeys * 3 / 4;
    insertIds(numbers(1, someKeys + 1));
    eraseIds(numbers(1, most + 1));
    expectSound(path());
    const size_t before = bytesOf(path()).size();
    eraseIds(numbers(most + 1, someKeys + 1));
    expectSound(path());
    insertIds(numbers(30001, 30001 + someKeys / 10));
    expectSound(path());
    EXPECT_EQ(bytesOf(path()).size(), before);
}

TEST_F(IndexTest, TailIsKeptWhenTheRightEndIsErased) {
    insertIds(numbers(1, 5001));
    std::vector<int32_t> ids = numbers(1001, 5001);
    std::reverse(ids.begin(), ids.end());
    for (size_t i = 0; i < ids.size(); i += 500) {
        eraseIds({ids.begin() + static_cast<long>(i), ids.begin() + static_cast<long>(i + 500)});
        expectSound(path());
    }
    insertIds(numbers(6001, 9001));
    expectSound(path());
    expectFound(1000);
    expectFound(9000);
}

// The root of a damaged file ends the first leaf too early. A key then comes to the second leaf although the
// first has greater ones: that is the file's fault and no broken promise of the engine.
TEST_F(IndexTest, KeyThatADamagedRootLeadsToTheWrongLeafIsInserted) {
    leaveUnsound();
    std::vector<int32_t> even = numbers(0, 4000);
    for (int32_t& id : even)
        id *= 2;
    insertIds(even);
    database.reset();
    std::string bytes = bytesOf(path());
    uint8_t* key = reinterpret_cast<uint8_t*>(bytes.data()) + 18 * 4096 + 480 + 1;
    ASSERT_EQ(rootType(), 3);
    const auto last = static_cast<int32_t>(key[0] ^ 0x80) << 24 | key[1] << 16 | key[2] << 8 | key[3];
    ASSERT_EQ(last % 2, 0);
    ASSERT_GE(key[3], 10);
    key[3] = static_cast<uint8_t>(key[3] - 10);
    writeBytes(path(), bytes);
    database = open(path());
    eraseIds({last + 100});  // room in the second leaf
    insertIds({last - 1});
    expectFound(last - 1);
}

TEST_F(IndexTest, RootPageNumberNeverChanges) {
    insertIds(numbers(1, someKeys + 1));
    EXPECT_EQ(rootType(), NodePage);
    database = open(path());
    EXPECT_EQ(table(*database, "tb_gruppi").definition().indexes[0].rootPage, 18u);
}

// Indexes of other kinds on a long: the definition of the empty database is changed before its first row.
class IndexKindTest : public IndexTest {
  protected:
    // Offsets count from the real index definition on page 16; each change is an offset and a byte.
    void redefine(const std::vector<std::pair<size_t, uint8_t>>& indexBytes, bool autoNumber) {
        database.reset();
        std::string bytes = bytesOf(path());
        const size_t page = 16 * pageSize;
        const size_t definition = bytes.find(std::string("\x83\x07\0\0", 4), page);
        ASSERT_LT(definition, page + pageSize);
        for (const auto& [offset, byte] : indexBytes)
            bytes[definition + offset] = static_cast<char>(byte);
        const size_t columnFlags = page + definition::indexCounts + definition::indexCountLength + 15;
        if (!autoNumber) bytes[columnFlags] = 0x03;
        writeBytes(path(), bytes);
        database = open(path());
    }
    void insertAll(const std::vector<Value>& ids) {
        Table& groups = table(*database, "tb_gruppi");
        EXPECT_OK(database->begin());
        for (const Value& id : ids)
            insert(groups, {id, int64_t{0}, std::string("g")});
        EXPECT_OK(database->commit());
        expectSound(path());
    }
    void changeAndEraseAll() {
        Table& groups = table(*database, "tb_gruppi");
        EXPECT_OK(database->begin());
        int64_t n = 0;
        for (const auto& [id, row] : rowsOf(groups)) {
            std::pair<size_t, Value> other{0, Value()};
            if (n++ % 3) other.second = n;
            EXPECT_OK(groups.update(id, std::span(&other, 1)));
        }
        EXPECT_OK(database->commit());
        expectSound(path());
        EXPECT_OK(database->begin());
        for (const auto& [id, row] : rowsOf(groups))
            EXPECT_OK(groups.erase(id));
        EXPECT_OK(database->commit());
        expectSound(path());
    }
    static constexpr size_t order = 6;
    static constexpr size_t flags = 46;
};

TEST_F(IndexKindTest, RequiredKeyMustNotBeNull) {
    redefine({}, false);
    Table& groups = table(*database, "tb_gruppi");
    EXPECT_OK(database->begin());
    const auto outcome = groups.insert(Row{Value(), int64_t{0}, std::string("g")});
    EXPECT_FAILS(ErrorCode::ValueRequired, outcome);
    EXPECT_TRUE(outcome.status().text().contains(QStringLiteral("id")));
    const RowId id = insert(groups, {int64_t{1}, int64_t{0}, std::string("g")});
    const std::pair<size_t, Value> null{0, Value()};
    EXPECT_FAILS(ErrorCode::ValueRequired, groups.update(id, std::span(&null, 1)));
    EXPECT_OK(database->commit());
    expectSound(path());
}

TEST_F(IndexKindTest, ChangedKeyMustNotBeTaken) {
    redefine({}, false);
    insertAll({int64_t{1}, int64_t{2}});
    Table& groups = table(*database, "tb_gruppi");
    const RowId two = groups.findByPrimaryKey(2).value().value();
    EXPECT_OK(database->begin());
    const std::pair<size_t, Value> taken{0, int64_t{1}};
    EXPECT_FAILS(ErrorCode::DuplicateKey, groups.update(two, std::span(&taken, 1)));
    const std::pair<size_t, Value> free{0, int64_t{3}};
    EXPECT_OK(groups.update(two, std::span(&free, 1)));
    EXPECT_OK(database->commit());
    EXPECT_EQ(groups.findByPrimaryKey(3).value(), two);
    EXPECT_FALSE(groups.findByPrimaryKey(2).value().has_value());
    expectSound(path());
}

TEST_F(IndexKindTest, IndexThatIgnoresNullsContainsNone) {
    redefine({{flags, 0x82}}, false);
    std::vector<Value> ids(1500);
    for (size_t i = 0; i < ids.size(); ++i)
        if (i % 4) ids[i] = static_cast<int64_t>(i / 2);
    insertAll(ids);
    changeAndEraseAll();
}

TEST_F(IndexKindTest, UniqueIndexTakesAnyNumberOfNulls) {
    redefine({{flags, 0x81}}, false);
    insertAll(std::vector<Value>(900));
}

TEST_F(IndexKindTest, DescendingIndexSortsTheOtherWayRound) {
    redefine({{order, 0}, {flags, 0x80}}, false);
    std::vector<Value> ids(3000);
    for (size_t i = 0; i < ids.size(); ++i)
        if (i % 7) ids[i] = static_cast<int64_t>(i * 37 % 1000) - 500;
    insertAll(ids);
    changeAndEraseAll();
}

// A tree over a bare page file, so that keys of any shape and pages of other writers can be tried.
class TreeTest : public JetTest {
  protected:
    TreeTest() {
        create(path()).reset();
        file = std::make_unique<PageFile>(path(), false, PageFile::Limits{});
        file->beginWrite();
        definition.name = "prova";
        definition.page = 16;
        index.rootPage = 18;
        index.mapPointer = 17 << 8 | 2;
    }
    ~TreeTest() override { file->rollback(); }

    IndexTree tree() { return IndexTree(*file, definition, index); }

    // All entries by the leaf chain; checks order, chain, tails and greatest entries on the way.
    std::vector<Bytes> entries() {
        std::vector<Bytes> all;
        std::vector<uint32_t> leaves;
        walk(index.rootPage, all, leaves);
        for (size_t i = 1; i < all.size(); ++i)
            EXPECT_LT(all[i - 1], all[i]);
        for (size_t i = 0; i < leaves.size(); ++i) {
            const IndexPage leaf(*file->page(leaves[i]), leaves[i], definition.page);
            EXPECT_EQ(leaf.next, i + 1 < leaves.size() ? leaves[i + 1] : 0);
            EXPECT_EQ(leaf.previous, i > 0 ? leaves[i - 1] : 0);
        }
        return all;
    }
    void walk(uint32_t number, std::vector<Bytes>& all, std::vector<uint32_t>& leaves) {
        const IndexPage page(*file->page(number), number, definition.page);
        if (page.leaf) {
            leaves.push_back(number);
            for (size_t i = 0; i < page.count(); ++i)
                all.emplace_back(page.entry(i).begin(), page.entry(i).end());
            return;
        }
        for (size_t i = 0; i <= page.count(); ++i) {
            walk(page.child(i), all, leaves);
            if (i < page.count()) {
                const auto greatest = page.keyAndRow(i);
                EXPECT_TRUE(
                    std::equal(greatest.begin(), greatest.end(), all.back().begin(), all.back().end()));
            }
        }
    }

    std::unique_ptr<PageFile> file;
    TableDefinition definition;
    Index index;
};

TEST_F(TreeTest, RandomKeysOfManyLengthsAgreeWithASet) {
    std::mt19937 random(5);
    std::set<std::pair<Bytes, RowId>> expected;
    for (int step = 0; step < 20000; ++step) {
        if (random() % 100 < 60 || expected.empty()) {
            Bytes key(1 + random() % 200);
            for (uint8_t& byte : key)
                byte = static_cast<uint8_t>(1 + random() % 3);
            key.push_back(0);  // no key is the beginning of another
            const RowId row{static_cast<uint32_t>(random() % 1000 + 1), static_cast<uint8_t>(random() % 200)};
            if (!expected.emplace(key, row).second) continue;
            tree().insert(key, row);
        } else {
            auto chosen = expected.lower_bound({Bytes(2, static_cast<uint8_t>(1 + random() % 3)), {}});
            if (chosen == expected.end()) chosen = expected.begin();
            std::advance(chosen, std::min<long>(random() % 20, std::distance(chosen, expected.end()) - 1));
            EXPECT_TRUE(tree().erase(chosen->first, chosen->second));
            expected.erase(chosen);
        }
    }
    EXPECT_EQ(entries().size(), expected.size());
    for (const auto& [key, row] : expected)
        ASSERT_TRUE(tree().find(key).has_value());
    while (!expected.empty()) {
        EXPECT_TRUE(tree().erase(expected.begin()->first, expected.begin()->second));
        expected.erase(expected.begin());
    }
    EXPECT_TRUE(entries().empty());
}

TEST_F(TreeTest, SparseLeavesJoinTheirNeighbours) {
    // Of each five keys one stays, in the order of an import.
    const auto key = [](uint32_t i) { return longKey(static_cast<int32_t>(i)); };
    constexpr uint32_t count = 20000;
    for (uint32_t i = 0; i < count; ++i)
        tree().insert(key(i), {100 + i, 0});
    const size_t full = UsageMap(*file, index.mapPointer).pages().size();
    for (uint32_t i = 0; i < count; ++i)
        if (i % 5 != 0) {
            EXPECT_TRUE(tree().erase(key(i), {100 + i, 0}));
        }
    EXPECT_EQ(entries().size(), count / 5);
    const size_t sparse = UsageMap(*file, index.mapPointer).pages().size();
    EXPECT_LT(3 * sparse, 2 * full);
    for (uint32_t i = 0; i < count; i += 5)
        EXPECT_EQ(tree().find(key(i)), (RowId{100 + i, 0}));
    for (uint32_t i = count; i-- > 0;)
        if (i % 5 == 0) {
            EXPECT_TRUE(tree().erase(key(i), {100 + i, 0}));
        }
    EXPECT_TRUE(entries().empty());
    EXPECT_EQ(UsageMap(*file, index.mapPointer).pages(), std::vector<uint32_t>{index.rootPage});
}

TEST_F(TreeTest, ManyEqualKeysShareALongPrefix) {
    const Bytes key = longKey(1);
    for (uint32_t page = 1; page <= 40; ++page)
        for (uint32_t slot = 0; slot < 250; ++slot)
            tree().insert(key, {page, static_cast<uint8_t>(slot)});
    EXPECT_EQ(entries().size(), 10000u);
    // A key without the common prefix, into leaves that are so full only because of their prefix.
    tree().insert(longKey(-1000000), {1, 0});
    tree().insert(longKey(2000000000), {1, 0});
    EXPECT_EQ(entries().size(), 10002u);
    for (uint32_t page = 1; page <= 40; ++page)
        for (uint32_t slot = 0; slot < 250; ++slot)
            EXPECT_TRUE(tree().erase(key, {page, static_cast<uint8_t>(slot)}));
    EXPECT_EQ(entries().size(), 2u);
}

TEST_F(TreeTest, NodesWithAPrefixAreReadAndCutUpWhenChanged) {
    for (int32_t i = 0; i < 400000; i += 4)
        tree().insert(longKey(i), {5, 1});
    // Rewrites each node as another writer would, with a prefix; makes one fuller than is possible without.
    const std::vector<Bytes> before = entries();
    const IndexPage root(*file->page(index.rootPage), index.rootPage, definition.page);
    ASSERT_FALSE(root.leaf);
    ASSERT_GT(root.count(), 100u);
    Page& page = file->change(index.rootPage);
    const size_t shared = 2;  // 7F 80
    std::fill(page.begin() + index::mask, page.end(), uint8_t{0});
    store16(&page[index::prefix], shared);
    size_t at = 0;
    for (size_t i = 0; i < root.count(); ++i) {
        const auto own = root.entry(i).subspan(i == 0 ? 0 : shared);
        ASSERT_LE(at + own.size(), index::room);
        std::copy(own.begin(), own.end(), page.begin() + static_cast<long>(index::entries + at));
        at += own.size();
        page[index::mask + at / 8] |= static_cast<uint8_t>(1u << at % 8);
    }
    store16(&page[index::freeBytes], static_cast<uint32_t>(index::room - at));
    EXPECT_EQ(entries(), before);
    for (int32_t i = 1; i < 4000; i += 4)
        tree().insert(longKey(i), {5, 1});
    for (int32_t i = 100000; i < 120000; i += 4)
        EXPECT_TRUE(tree().erase(longKey(i), {5, 1}));
    EXPECT_EQ(entries().size(), before.size() + 1000 - 5000);
}

TEST_F(TreeTest, EntryThatIsMissingIsNotErasedAndNoneIsInsertedTwice) {
    tree().insert(longKey(1), {5, 1});
    EXPECT_FALSE(tree().erase(longKey(1), {5, 2}));
    EXPECT_FALSE(tree().erase(longKey(2), {5, 1}));
    EXPECT_EQ(entries().size(), 1u);
    EXPECT_THROW(tree().insert(longKey(1), {5, 1}), Failure);
}

TEST(IndexPage, LeafTakesAPrefixOnlyWhenItNeedsOne) {
    IndexPage leaf;
    for (uint8_t i = 0; i < 100; ++i)
        leaf.insert(i, Bytes{0x7F, 0x80, 0, 0, i, 0, 0, 5, 1});
    Page page;
    leaf.store(page, 16);
    EXPECT_EQ(load16(&page[index::prefix]), 0);
    while (leaf.fits() && leaf.count() < 600) {
        const size_t n = leaf.count();
        leaf.insert(n,
                    Bytes{0x7F, 0x80, 0, static_cast<uint8_t>(n >> 8), static_cast<uint8_t>(n), 0, 0, 5, 1});
    }
    ASSERT_EQ(leaf.count(), 600u);
    leaf.store(page, 16);
    EXPECT_EQ(load16(&page[index::prefix]), 3);
    const IndexPage again(page, 21, 16);
    ASSERT_EQ(again.count(), leaf.count());
    for (size_t i = 0; i < leaf.count(); ++i)
        EXPECT_TRUE(std::equal(leaf.entry(i).begin(), leaf.entry(i).end(), again.entry(i).begin(),
                               again.entry(i).end()));
}

}  // namespace index_test
