// SPDX-License-Identifier: GPL-3.0-or-later
// The page checker itself: it finds nothing in sound files and something in each kind of damage.
#include "platform/jet/Format.h"
#include "platform/jet/JetFixture.h"

namespace checker_test {

using namespace jet;

class CheckerTest : public JetTest {
  protected:
    void SetUp() override { leaveUnsound(); }

    CheckerTest() {
        DatabasePtr database = create(path());
        Table& recipients = table(*database);
        EXPECT_OK(database->begin());
        std::vector<RowId> ids(900);
        for (RowId& id : ids)
            id = insert(recipients, recipient(recipients, "riga"));
        for (size_t i = 0; i < ids.size(); i += 9) {
            const std::pair<size_t, Value> grow{12, std::string(200, 'x')};
            EXPECT_OK(recipients.update(ids[i], std::span(&grow, 1)));
        }
        EXPECT_OK(recipients.erase(ids[1]));
        EXPECT_OK(database->commit());
        database.reset();
        bytes = bytesOf(path());
        expectSound(path());
    }

    uint8_t* at(size_t page, size_t offset) {
        return reinterpret_cast<uint8_t*>(bytes.data()) + page * 4096 + offset;
    }
    void expectFinding(const std::string& part) {
        writeBytes(path(), bytes);
        std::string all;
        for (const std::string& finding : checkJetFile(path()))
            all += finding + "\n";
        EXPECT_NE(all.find(part), std::string::npos) << "found: " << all;
    }
    // The first slot of the first data page with these flags.
    size_t slotWith(uint16_t flags) {
        for (size_t i = 0; i < load16(at(dataPage, 12)); ++i)
            if ((load16(at(dataPage, 14 + 2 * i)) & 0xC000) == flags) return i;
        ADD_FAILURE() << "no such slot";
        return 0;
    }

    static constexpr size_t dataPage = 23;
    static constexpr size_t root = 21;
    std::string bytes;
};

TEST_F(CheckerTest, FreeFieldOfADataPage) {
    store16(at(dataPage, 2), load16(at(dataPage, 2)) + 1u);
    expectFinding("free bytes");
}

TEST_F(CheckerTest, OwnerOfADataPage) {
    *at(dataPage, 4) = 16;
    expectFinding("holds no rows of this table");
}

TEST_F(CheckerTest, RowCountOfADefinition) {
    store32(at(19, 16), 5);
    expectFinding("the definition says 5");
}

TEST_F(CheckerTest, PageInUseThatIsFree) {
    // The global map is the last row of page 1 from the end.
    *at(1, 4096 - 69 + 5 + dataPage / 8) |= 1 << dataPage % 8;
    expectFinding("is free but belongs to");
}

TEST_F(CheckerTest, PageOfTwoOwners) {
    *at(17, 4096 - 69 + 5 + dataPage / 8) |= 1 << dataPage % 8;  // owned by tb_gruppi as well
    expectFinding("belongs to");
}

TEST_F(CheckerTest, PageWithRoomThatIsNotOwned) {
    *at(20, 4096 - 2 * 69 + 5 + 60 / 8) |= 1 << 60 % 8;
    expectFinding("has room but is not owned");
}

TEST_F(CheckerTest, LostBodyOfAMovedRow) {
    const size_t slot = slotWith(data::pointer);
    store16(at(dataPage, 14 + 2 * slot), load16(at(dataPage, 14 + 2 * slot)) | 0xC000u);
    expectFinding("moved rows");
}

TEST_F(CheckerTest, DeletedRowThatTheIndexStillNames) {
    const size_t slot = slotWith(0);
    store16(at(dataPage, 14 + 2 * slot), load16(at(dataPage, 14 + 2 * slot)) | 0xC000u);
    expectFinding("that is not there");
}

TEST_F(CheckerTest, RowThatTheIndexDoesNotName) {
    // The last entry of the last leaf is taken out.
    const size_t leaf = load32(at(root, 20));
    size_t last = 453 * 8 - 1;
    while (!(*at(leaf, 27 + last / 8) >> last % 8 & 1))
        --last;
    *at(leaf, 27 + last / 8) &= static_cast<uint8_t>(~(1u << last % 8));
    expectFinding("is missing");
}

TEST_F(CheckerTest, KeyThatIsNotTheRowsOwn) {
    const size_t start = load16(at(dataPage, 14 + 2 * slotWith(0))) & 0x1FFFu;
    *at(dataPage, start + 2) ^= 0x40;  // the id in the row
    expectFinding("has another key");
}

TEST_F(CheckerTest, BrokenLeafChain) {
    const size_t leaf = load32(at(root, 20));
    ASSERT_EQ(*at(root, 0), 3);
    store32(at(leaf, 12), 0);
    expectFinding("the chain is broken");
}

TEST_F(CheckerTest, NodeWithoutTail) {
    store32(at(root, 20), 0);
    expectFinding("has no tail");
}

TEST_F(CheckerTest, NodeWithAnotherGreatestEntry) {
    *at(root, 480 + 4) ^= 1;
    expectFinding("does not hold the greatest entry");
}

TEST_F(CheckerTest, FreeFieldOfAnIndexPage) {
    store16(at(root, 2), 7);
    expectFinding("says 7 free bytes");
}

TEST_F(CheckerTest, IndexPageOutsideTheMap) {
    const size_t leaf = load32(at(root, 20));
    *at(20, 4096 - 3 * 69 + 5 + leaf / 8) &= static_cast<uint8_t>(~(1u << leaf % 8));
    expectFinding("its map does not hold just its pages");
}

TEST_F(CheckerTest, DefinitionOfAnotherLength) {
    store32(at(19, 8), 900);
    expectFinding("says 900");
}

TEST_F(CheckerTest, MissingEnd) {
    bytes.resize(bytes.size() - 4096);
    expectFinding("behind the end");
}

TEST_F(CheckerTest, CommitCounterOfZero) {
    store16(at(0, 0xE10), 0);
    expectFinding("commit counter");
}

TEST_F(CheckerTest, LeftoverJournal) {
    writeBytes(path("data.mdb-journal"), "x");
    expectFinding("journal");
}

TEST_F(CheckerTest, FileThatIsNone) {
    bytes = "abc";
    expectFinding("no number of pages");
}

}  // namespace checker_test
