// SPDX-License-Identifier: GPL-3.0-or-later
// Memo and OLE values: in the row, in one row elsewhere, in a chain of rows.
#include "platform/jet/Catalog.h"
#include "platform/jet/DefinitionReader.h"
#include "platform/jet/JetFixture.h"
#include "platform/jet/Row.h"
#include "platform/jet/RowStore.h"
#include "platform/jet/UsageMap.h"
#include "support/JetTables.h"

namespace long_value_test {

using namespace jet;

class LongValueTest : public JetTest {
  protected:
    static constexpr size_t note = 1;
    static constexpr size_t object = 2;
    static constexpr size_t places = 3;

    LongValueTest() {
        create(path()).reset();
        jettables::addTable(path(), "prova",
                            {{"nome", Type::Text, 255}, {"nota", Type::Memo}, {"oggetto", Type::Ole}}, {});
        database = open(path());
        EXPECT_OK(database->begin());
        for (size_t i = 0; i < places; ++i)
            ids.push_back(insert(prova(), {"riga " + std::to_string(i), {}, {}}));
        EXPECT_OK(database->commit());
        database.reset();
        const auto place = [](size_t i) { return static_cast<jettables::Place>(i); };
        for (size_t i = 0; i < places; ++i) {
            jettables::setLongValue(path(), "prova", ids[i], note, utf16(text(i)), place(i));
            jettables::setLongValue(path(), "prova", ids[i], object, bytes(i), place(i));
        }
        database = open(path());
    }

    Table& prova() { return table(*database, "prova"); }
    static std::string text(size_t i) {
        return "città " + std::to_string(i) + std::string(i == 2 ? 40000 : i * 100, 'x');
    }
    static Bytes bytes(size_t i) { return Bytes(i == 2 ? 9001 : 10, static_cast<uint8_t>(i + 1)); }
    static Bytes utf16(const std::string& utf8) {
        Bytes all;
        for (const QChar unit : QString::fromStdString(utf8)) {
            all.push_back(static_cast<uint8_t>(unit.unicode()));
            all.push_back(static_cast<uint8_t>(unit.unicode() >> 8));
        }
        return all;
    }
    void expectValues() {
        for (size_t i = 0; i < places; ++i) {
            EXPECT_EQ(prova().value(ids[i], note).value(), Value(text(i))) << i;
            EXPECT_EQ(prova().value(ids[i], object).value(), Value(bytes(i))) << i;
        }
    }
    // Pages that the map of free ones names inside the file.
    size_t freePages() {
        database.reset();
        PageFile file(path(), true, {});
        const Reading reading(file);
        size_t count = 0;
        UsageMap(file, globalMapPage << 8).forEach([&](uint32_t page) {
            count += page < file.pageCount();
            return true;
        });
        return count;
    }
    // Changes the 12 bytes of the memo that is stored in a chain.
    void damageHead(const std::function<void(uint8_t*)>& damage) {
        change([&](PageFile& file, const TableDefinition& t, std::span<const uint8_t> head, RowId place) {
            const size_t at = static_cast<size_t>(head.data() - RowStore(file, t).find(ids[2])->bytes.data());
            const auto row = RowStore(file, t).find(ids[2]);
            const size_t start = static_cast<size_t>(row->bytes.data() - row->page->data());
            damage(&file.change(place.page)[start + at]);
        });
    }
    // Changes the first row of the chain.
    void damageChain(const std::function<void(PageFile&, uint8_t*, uint32_t)>& damage) {
        change([&](PageFile& file, const TableDefinition&, std::span<const uint8_t> head, RowId) {
            const uint32_t pointer = load32(&head[4]);
            Page& page = file.change(pointer >> 8);
            const size_t start = load16(&page[data::slots + 2 * (pointer & 0xFF)]) & data::offsetMask;
            damage(file, &page[start], pointer);
        });
    }
    void change(
        const std::function<void(PageFile&, const TableDefinition&, std::span<const uint8_t>, RowId)>& work) {
        database.reset();
        {
            PageFile file(path(), false, {});
            file.beginWrite();
            for (const CatalogEntry& entry : readCatalog(file)) {
                if (entry.name != "prova") continue;
                const TableDefinition t = parseDefinition(readDefinition(file, entry.definitionPage),
                                                          entry.name, entry.definitionPage, false);
                const auto row = RowStore(file, t).find(ids[2]);
                work(file, t, storedField(t, t.columns[note], row->bytes).bytes, row->place);
            }
            file.commit();
        }
        database = open(path());
    }
    // Reading and deleting the row fail as damage, and the file is unchanged.
    void expectDamage() {
        EXPECT_FAILS(ErrorCode::DamagedDatabase, prova().value(ids[2], note));
        const std::string before = bytesOf(path());
        EXPECT_OK(database->begin());
        EXPECT_FAILS(ErrorCode::DamagedDatabase, prova().erase(ids[2]));
        EXPECT_OK(database->commit());
        EXPECT_EQ(bytesOf(path()), before);
    }

    DatabasePtr database;
    std::vector<RowId> ids;
};

TEST_F(LongValueTest, ValuesAreReadWholeInAllThreePlaces) {
    expectValues();
    expectSoundForAll(path());
}

TEST_F(LongValueTest, ValuesSurviveChangesOfOtherColumns) {
    EXPECT_OK(database->begin());
    for (const size_t length : {250u, 1u, 255u, 0u})
        for (const RowId id : ids) {
            const std::pair<size_t, Value> longer{0, std::string(length, 'n')};
            EXPECT_OK(prova().update(id, std::span(&longer, 1)));
        }
    for (int i = 0; i < 200; ++i)
        insert(prova(), {std::string(200, 'r'), {}, {}});
    EXPECT_OK(database->commit());
    expectValues();
    expectSoundForAll(path());
}

TEST_F(LongValueTest, DeletingARowFreesThePagesOfItsValues) {
    const size_t before = freePages();
    database = open(path());
    EXPECT_OK(database->begin());
    EXPECT_OK(prova().erase(ids[2]));
    EXPECT_OK(database->commit());
    expectSoundForAll(path());
    // 80,000 bytes of memo and 9,001 of OLE in pieces of 3,000, each on a page of its own
    EXPECT_EQ(freePages(), before + 27 + 4);
    database = open(path());
    EXPECT_OK(database->begin());
    EXPECT_OK(prova().erase(ids[0]));
    EXPECT_OK(prova().erase(ids[1]));
    EXPECT_OK(database->commit());
    expectSoundForAll(path());
    EXPECT_EQ(freePages(), before + 27 + 4 + 2);
}

TEST_F(LongValueTest, ChainThatLoopsIsDamage) {
    leaveUnsound();
    damageChain([](PageFile&, uint8_t* row, uint32_t pointer) { store32(row, pointer); });
    expectDamage();
}

TEST_F(LongValueTest, ChainThatEndsTooEarlyIsDamage) {
    leaveUnsound();
    damageChain([](PageFile&, uint8_t* row, uint32_t) { store32(row, 0); });
    expectDamage();
}

TEST_F(LongValueTest, PointerToAnotherKindOfPageIsDamage) {
    leaveUnsound();
    damageChain([](PageFile&, uint8_t* row, uint32_t) { store32(row, 14 << 8); });
    expectDamage();
    damageHead([](uint8_t* head) { store32(head + 4, 0xFFFFFF00); });
    expectDamage();
}

TEST_F(LongValueTest, LengthBeyondTheFileIsDamage) {
    leaveUnsound();
    damageHead([](uint8_t* head) { store32(head, 0x3FFFFFFF); });
    expectDamage();
}

}  // namespace long_value_test
