// SPDX-License-Identifier: GPL-3.0-or-later
// Files made by other programs: every value is read as an independent reader reads it, and a change that
// cannot be written correctly is refused. The samples are outside the sources; where they are missing, each
// test reports it and passes.
#include "platform/jet/Header.h"
#include "platform/jet/JetFixture.h"
#include "platform/jet/OutsideReaders.h"

namespace samples_test {

using namespace jet;

using SamplesTest = JetTest;

TEST_F(SamplesTest, EveryFileIsReadAsMdbtoolsReadsIt) {
    size_t rows = 0;
    size_t oldRows = 0;
    for (const std::string& name : samples()) {
        SCOPED_TRACE(name);
        const std::string file = copyOf(name.c_str());
        DatabasePtr database = open(file, optionsFor(name));
        for (const CatalogEntry& entry : database->catalog().value()) {
            if (entry.system || entry.kind != CatalogEntry::Kind::Local) continue;
            SCOPED_TRACE(entry.name);
            Table& t = table(*database, entry.name);
            const auto expected = mdbtoolsRows(file, t.definition());
            const auto got = engineRows(t);
            (isJet3(file) ? oldRows : rows) += got.size();
            if (expected) {
                EXPECT_EQ(firstDifference(got, *expected), "");
            }
        }
        if (!isJet3(file)) expectSound(file);
        EXPECT_EQ(bytesOf(file), bytesOf(SHARED_DIR "/mdb/" + name));
    }
    if (!samples().empty()) {
        EXPECT_GT(rows, 3000u);
        EXPECT_GT(oldRows, 3000u);
    }
}

TEST_F(SamplesTest, EverySystemTableCanBeWalked) {
    for (const std::string& name : samples()) {
        SCOPED_TRACE(name);
        const std::string file = copyOf(name.c_str());
        DatabasePtr database = open(file, optionsFor(name));
        for (const CatalogEntry& entry : database->catalog().value()) {
            if (entry.kind != CatalogEntry::Kind::Local) continue;
            Table& t = table(*database, entry.name);
            size_t failures = 0;
            EXPECT_OK(t.scan([&](RowId id, const RowView&) {
                for (size_t i = 0; i < t.definition().columns.size(); ++i)
                    failures += t.value(id, i).ok() ? 0 : 1;
                return true;
            }));
            EXPECT_EQ(failures, 0u);
        }
    }
}

TEST_F(SamplesTest, Jet3FilesAreNeverWritten) {
    for (const std::string& name : samples()) {
        SCOPED_TRACE(name);
        const std::string file = copyOf(name.c_str());
        if (!isJet3(file)) continue;
        const std::string before = bytesOf(file);
        DatabasePtr database = open(file);
        EXPECT_TRUE(database->readOnly());
        const Status refused = database->begin();
        EXPECT_FAILS(ErrorCode::ReadOnlyDatabase, refused);
        EXPECT_TRUE(refused.text().contains(QStringLiteral("Access 97")));
        for (const CatalogEntry& entry : database->catalog().value()) {
            if (entry.kind != CatalogEntry::Kind::Local) continue;
            Table& t = table(*database, entry.name);
            EXPECT_FAILS(ErrorCode::ReadOnlyDatabase, t.writable());
            EXPECT_FAILS(ErrorCode::ReadOnlyDatabase, t.takeAutoNumber());
        }
        database.reset();
        EXPECT_EQ(bytesOf(file), before);
    }
}

TEST_F(SamplesTest, JournalBesideAJet3FileIsNotRolledBackIntoIt) {
    const std::string file = copyOf("qm-Books_be.mdb");
    if (file.empty()) return;
    const std::string before = bytesOf(file);
    writeBytes(file + "-journal", std::string("VJOURNAL") + std::string(5000, 'x'));
    EXPECT_OK(Database::open(file));
    EXPECT_EQ(bytesOf(file), before);
}

TEST_F(SamplesTest, RowsOfAJet3FileAreFoundThroughItsPrimaryKey) {
    const std::string file = copyOf("nw-Nwind97.mdb");
    if (file.empty()) return;
    DatabasePtr database = open(file);
    Table& orders = table(*database, "Orders");
    const size_t id = orders.definition().find("OrderID").value();
    for (int32_t key : {10248, 10600, 11077}) {
        const auto found = orders.findByPrimaryKey(key);
        ASSERT_TRUE(found.ok() && found.value()) << key;
        EXPECT_EQ(orders.row(*found.value()).value()->integer(id), key);
    }
    EXPECT_FALSE(orders.findByPrimaryKey(10247).value().has_value());
}

TEST_F(SamplesTest, PasswordOfARealFile) {
    const std::string file = copyOf("mr-V2000_with-password.mdb");
    if (file.empty()) return;
    const auto refused = Database::open(file);
    EXPECT_FAILS(ErrorCode::InvalidPassword, refused);
    EXPECT_EQ(jetTextOf(refused), "Password non valida.");
    EXPECT_FAILS(ErrorCode::InvalidPassword, Database::open(file, {.password = "Password"}));
    EXPECT_OK(Database::open(file, {.password = "password"}));
}

// No sample of Access 97 has a password, so one is put into it.
TEST_F(SamplesTest, PasswordOfAJet3File) {
    const std::string file = copyOf("qm-Books_be.mdb");
    if (file.empty()) return;
    std::string bytes = bytesOf(file);
    const auto mask = [&] {
        // Under the mask of the header, as in all of these files, the page key is 0 at 0x3E and the password
        // follows.
        Page page{};
        maskHeader(page);
        return std::string(page.begin() + header::password, page.begin() + header::password + 20);
    }();
    std::string password = "Pàss";
    password.replace(1, 2, "\xE0");
    for (size_t i = 0; i < 20; ++i)
        bytes[header::password + i] = static_cast<char>(mask[i] ^ (i < password.size() ? password[i] : 0));
    writeBytes(file, bytes);
    EXPECT_FAILS(ErrorCode::InvalidPassword, Database::open(file));
    EXPECT_FAILS(ErrorCode::InvalidPassword, Database::open(file, {.password = "pàss"}));
    EXPECT_OK(Database::open(file, {.password = "Pàss"}));
}

TEST_F(SamplesTest, LinkedTablesAndQueriesAreNamedAndRefused) {
    const std::string linked = copyOf("uc-linked.mdb");
    if (!linked.empty()) {
        DatabasePtr database = open(linked);
        size_t links = 0;
        for (const CatalogEntry& entry : database->catalog().value()) {
            if (entry.kind != CatalogEntry::Kind::Linked) continue;
            ++links;
            EXPECT_FAILS(ErrorCode::NotSupported, database->table(entry.name));
        }
        EXPECT_GT(links, 0u);
    }
    const std::string queries = copyOf("jk-queryTestV2000.mdb");
    if (!queries.empty()) {
        DatabasePtr database = open(queries);
        size_t count = 0;
        for (const CatalogEntry& entry : database->catalog().value())
            count += entry.kind == CatalogEntry::Kind::Query;
        EXPECT_GT(count, 5u);
    }
}

TEST_F(SamplesTest, EncodedFileIsReadAndWritten) {
    const std::string file = copyOf("jke-db-enc.mdb");
    if (file.empty()) return;
    const std::string before = bytesOf(file);
    {
        DatabasePtr database = open(file);
        Table& t = table(*database, "Table1");
        EXPECT_EQ(rowsOf(t).size(), 2u);
        EXPECT_OK(t.writable());
        EXPECT_OK(database->begin());
        insert(t, Row(t.definition().columns.size()));
        database->rollback();
        EXPECT_EQ(bytesOf(file), before);
        EXPECT_OK(database->begin());
        insert(t, Row(t.definition().columns.size()));
        EXPECT_OK(database->commit());
    }
    DatabasePtr database = open(file);
    EXPECT_EQ(rowsOf(table(*database, "Table1")).size(), 3u);
    expectSoundForAll(file);
}

TEST_F(SamplesTest, TextIndexesFollowInsertsUpdatesAndDeletes) {
    const std::string file = copyOf("jk-testIndexPropertiesV2000.mdb");
    if (file.empty()) return;
    DatabasePtr database = open(file);
    for (const CatalogEntry& entry : database->catalog().value()) {
        if (entry.system || entry.kind != CatalogEntry::Kind::Local) continue;
        SCOPED_TRACE(entry.name);
        Table& t = table(*database, entry.name);
        EXPECT_OK(t.writable());
        EXPECT_OK(database->begin());
        std::vector<RowId> added;
        for (const char* text : {"perù", "L'Aquila", "zeta-beta", "Straße", "ÀÉÎ"}) {
            Row row;
            for (const Column& column : t.definition().columns)
                row.push_back(column.type == Type::Text && !column.autoNumber ? Value(std::string(text))
                              : column.autoNumber                             ? Value()
                                                                              : Value(int64_t{7}));
            added.push_back(insert(t, row));
        }
        EXPECT_OK(database->commit());
        expectSoundForAll(file);
        EXPECT_OK(database->begin());
        for (size_t i = 0; i < t.definition().columns.size(); ++i) {
            if (t.definition().columns[i].type != Type::Text) continue;
            const std::pair<size_t, Value> change{i, std::string("altro testo")};
            EXPECT_OK(t.update(added[0], std::span(&change, 1)));
        }
        for (const auto& [id, row] : rowsOf(t))
            if (id != added[0]) EXPECT_OK(t.erase(id));
        EXPECT_OK(database->commit());
        expectSoundForAll(file);
    }
}

TEST_F(SamplesTest, IndexedTextWithoutCertainKeyIsRefusedAndNothingIsWritten) {
    const std::string file = copyOf("jk-bigIndexTestV2003.mdb");
    if (file.empty()) return;
    const std::string before = bytesOf(file);
    DatabasePtr database = open(file);
    Table& t = table(*database, "Table1");
    EXPECT_OK(t.writable());
    EXPECT_OK(database->begin());
    for (const char* text : {"Мир", "日本", "Großmärkte"}) {
        Row row(t.definition().columns.size());
        for (size_t i = 0; i < row.size(); ++i)
            if (t.definition().columns[i].type == Type::Text) row[i] = std::string(text);
        const auto refused = t.insert(row);
        EXPECT_FAILS(ErrorCode::NotSupported, refused);
        EXPECT_TRUE(refused.status().text().contains(QStringLiteral("indice")));
    }
    EXPECT_OK(database->commit());
    EXPECT_EQ(bytesOf(file), before);
}

TEST_F(SamplesTest, RowWithUnusualKeyIsFoundAndDeleted) {
    const std::string file = copyOf("jk-testUnicodeCompV2003.mdb");
    if (file.empty()) return;
    DatabasePtr database = open(file);
    Table& t = table(*database, "Table");
    EXPECT_OK(database->begin());
    for (const auto& [id, row] : rowsOf(t))
        EXPECT_OK(t.erase(id));
    EXPECT_OK(database->commit());
    EXPECT_TRUE(rowsOf(t).empty());
    expectSoundForAll(file);
}

TEST_F(SamplesTest, TablesInARelationRefuseChangesOfTheirIndexes) {
    const std::string file = copyOf("nw-Northwind-b.mdb");
    if (file.empty()) return;
    const std::string before = bytesOf(file);
    DatabasePtr database = open(file);
    for (const char* name : {"Customers", "Products", "Orders", "Order Details", "Suppliers"}) {
        Table& t = table(*database, name);
        const Status status = t.writable();
        EXPECT_FAILS(ErrorCode::NotSupported, status);
        EXPECT_TRUE(status.text().contains(QString::fromUtf8(name)));
        EXPECT_OK(database->begin());
        EXPECT_FAILS(ErrorCode::NotSupported, t.insert(Row(t.definition().columns.size())));
        EXPECT_FAILS(ErrorCode::NotSupported, t.erase(rowsOf(t).begin()->first));
        EXPECT_OK(database->commit());
    }
    EXPECT_EQ(bytesOf(file), before);
}

TEST_F(SamplesTest, ColumnWithoutIndexCanBeChangedInATableWithARelation) {
    const std::string file = copyOf("nw-Northwind-b.mdb");
    if (file.empty()) return;
    DatabasePtr database = open(file);
    Table& customers = table(*database, "Customers");
    const size_t fax = customers.definition().find("Fax").value();
    const size_t city = customers.definition().find("City").value();
    EXPECT_OK(customers.updatable(std::span(&fax, 1)));
    EXPECT_FAILS(ErrorCode::NotSupported, customers.updatable(std::span(&city, 1)));
    const Rows before = rowsOf(customers);
    EXPECT_OK(database->begin());
    for (const auto& [id, row] : before) {
        const std::pair<size_t, Value> change{fax, std::string("(0) 123 456 789 0123")};
        EXPECT_OK(customers.update(id, std::span(&change, 1)));
        const std::pair<size_t, Value> other{city, std::string("Roma")};
        EXPECT_FAILS(ErrorCode::NotSupported, customers.update(id, std::span(&other, 1)));
    }
    EXPECT_OK(database->commit());
    const Rows after = rowsOf(customers);
    ASSERT_EQ(after.size(), before.size());
    for (const auto& [id, row] : before)
        for (size_t i = 0; i < row.size(); ++i)
            EXPECT_EQ(after.at(id)[i], i == fax ? Value(std::string("(0) 123 456 789 0123")) : row[i]);
    expectSoundForAll(file);
}

TEST_F(SamplesTest, PropertiesOfColumnsAreKept) {
    const std::string file = copyOf("nw-Northwind-b.mdb");
    if (file.empty()) return;
    DatabasePtr database = open(file);
    Table& customers = table(*database, "Customers");
    const size_t name = customers.definition().find("CompanyName").value();
    const size_t fax = customers.definition().find("Fax").value();
    EXPECT_TRUE(customers.definition().columns[name].required);
    EXPECT_FALSE(customers.definition().columns[fax].required);
    EXPECT_FALSE(customers.definition().columns[fax].allowZeroLength);
    EXPECT_OK(database->begin());
    const RowId row = rowsOf(customers).begin()->first;
    const std::pair<size_t, Value> empty{fax, std::string()};
    const Status refused = customers.update(row, std::span(&empty, 1));
    EXPECT_FAILS(ErrorCode::ValueRequired, refused);
    EXPECT_TRUE(refused.text().contains(QStringLiteral("Fax")));
    const std::pair<size_t, Value> null{fax, Value()};
    EXPECT_OK(customers.update(row, std::span(&null, 1)));
    EXPECT_OK(database->commit());
}

TEST_F(SamplesTest, EnforcedRelationRefusesWrites) {
    const std::string file = copyOf("jk-indexTestV2000.mdb");
    if (file.empty()) return;
    DatabasePtr database = open(file);
    for (const char* name : {"Table1", "Table2", "Table3"}) {
        const Status status = table(*database, name).writable();
        EXPECT_FAILS(ErrorCode::NotSupported, status);
        EXPECT_TRUE(status.text().contains(QStringLiteral("relazione")));
    }
}

TEST_F(SamplesTest, MemoStaysUnchangedWhenAnotherColumnChanges) {
    const std::string file = copyOf("tika-testAccess2_2000.mdb");
    if (file.empty()) return;
    DatabasePtr database = open(file);
    Table& t = table(*database, "Table1");
    const auto& columns = t.definition().columns;
    const auto memos = [&] {
        std::vector<Value> all;
        for (const auto& [id, row] : rowsOf(t))
            for (size_t i = 0; i < columns.size(); ++i)
                if (columns[i].type == Type::Memo || columns[i].type == Type::Ole)
                    all.push_back(t.value(id, i).value());
        return all;
    };
    const std::vector<Value> before = memos();
    size_t text = 0;
    size_t memo = 0;
    for (size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].type == Type::Text) text = i;
        if (columns[i].type == Type::Memo) memo = i;
    }
    EXPECT_OK(database->begin());
    for (const auto& [id, row] : rowsOf(t)) {
        const std::pair<size_t, Value> change{text, std::string("altro testo, molto più lungo di prima")};
        EXPECT_OK(t.update(id, std::span(&change, 1)));
    }
    EXPECT_OK(database->commit());
    EXPECT_EQ(memos(), before);
    EXPECT_FALSE(before.empty());
    expectSound(file);
    for (const size_t length : {20, 900, 9000}) {
        const Value written = std::string(length, 'x');
        EXPECT_OK(database->begin());
        for (const auto& [id, row] : rowsOf(t)) {
            const std::pair<size_t, Value> change{memo, written};
            EXPECT_OK(t.update(id, std::span(&change, 1)));
            EXPECT_EQ(t.value(id, memo).value(), written);
        }
        EXPECT_OK(database->commit());
        expectSoundForAll(file);
        if (const auto others = mdbtoolsRows(file, t.definition())) {
            EXPECT_EQ(firstDifference(engineRows(t), *others), "");
        }
    }
}

TEST_F(SamplesTest, StoredCounterBelowTheGreatestKeyIsNotUsed) {
    const std::string file = copyOf("nw-Northwind-b.mdb");
    if (file.empty()) return;
    DatabasePtr database = open(file);
    EXPECT_EQ(table(*database, "Orders").takeAutoNumber().value(), 11078);  // 10248 is what the file says
}

}  // namespace samples_test
