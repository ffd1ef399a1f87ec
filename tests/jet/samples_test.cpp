// Files made by other programs: every value is read as an independent reader reads it, and what cannot be
// kept right is refused. The samples lie outside the sources; where they are missing, each test says so and
// passes.
#include "jet/JetFixture.h"
#include "jet/OutsideReaders.h"

using namespace jet;

class SamplesTest : public JetTest {
  protected:
    // A copy of the sample, so that nothing can happen to it; empty when there is none.
    QString copyOf(const char* name) {
        const std::string file = sample(name);
        if (file.empty()) return {};
        std::filesystem::copy_file(file, local(path(name)));
        std::filesystem::permissions(local(path(name)), std::filesystem::perms(0644));
        return path(name);
    }
    static std::vector<std::string> allSamples() {
        std::vector<std::string> names;
        if (!std::filesystem::exists(SHARED_DIR "/mdb"))
            std::printf("[ SAMPLES  ] the samples are not here: this part of the test was skipped\n");
        else
            for (const auto& entry : std::filesystem::directory_iterator(SHARED_DIR "/mdb"))
                if (entry.path().extension() == ".mdb") names.push_back(entry.path().filename());
        std::sort(names.begin(), names.end());
        return names;
    }
    static bool isJet3(const QString& file) { return bytesOf(file)[0x14] == 0; }
    static bool hasPassword(const std::string& name) {
        return name.find("with-password") != std::string::npos;
    }
    static Database::Options optionsFor(const std::string& name) {
        return {.password = hasPassword(name) ? QStringLiteral("password") : QString()};
    }
};

TEST_F(SamplesTest, EveryJet4FileIsReadAsMdbtoolsReadsIt) {
    size_t rows = 0;
    for (const std::string& name : allSamples()) {
        SCOPED_TRACE(name);
        const QString file = copyOf(name.c_str());
        if (isJet3(file)) continue;
        DatabasePtr database = open(file, optionsFor(name));
        for (const CatalogEntry& entry : database->catalog().value()) {
            if (entry.system || entry.kind != CatalogEntry::Kind::Local) continue;
            SCOPED_TRACE(entry.name.toStdString());
            Table& t = table(*database, entry.name);
            const auto expected = mdbtoolsRows(file, t.definition());
            const auto got = engineRows(t);
            rows += got.size();
            if (expected) {
                EXPECT_EQ(firstDifference(got, *expected), "");
            }
        }
        expectSound(file);
        EXPECT_EQ(bytesOf(file), bytesOf(QString::fromStdString(SHARED_DIR "/mdb/" + name)));
    }
    if (!allSamples().empty()) {
        EXPECT_GT(rows, 3000u);
    }
}

TEST_F(SamplesTest, EverySystemTableCanBeWalked) {
    for (const std::string& name : allSamples()) {
        SCOPED_TRACE(name);
        const QString file = copyOf(name.c_str());
        if (isJet3(file)) continue;
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

TEST_F(SamplesTest, Jet3FilesAreRefusedByName) {
    size_t refused = 0;
    for (const std::string& name : allSamples()) {
        const QString file = copyOf(name.c_str());
        if (!isJet3(file)) continue;
        const auto outcome = Database::open(file);
        EXPECT_FAILS(ErrorCode::UnrecognizedFormat, outcome);
        EXPECT_TRUE(outcome.status().text().contains(QStringLiteral("Access 97")));
        ++refused;
    }
    if (!allSamples().empty()) {
        EXPECT_GT(refused, 5u);
    }
}

TEST_F(SamplesTest, PasswordOfARealFile) {
    const QString file = copyOf("mr-V2000_with-password.mdb");
    if (file.isEmpty()) return;
    EXPECT_FAILS(ErrorCode::InvalidPassword, Database::open(file));
    EXPECT_FAILS(ErrorCode::InvalidPassword, Database::open(file, {.password = QStringLiteral("Password")}));
    EXPECT_OK(Database::open(file, {.password = QStringLiteral("password")}));
}

TEST_F(SamplesTest, LinkedTablesAndQueriesAreNamedAndRefused) {
    const QString linked = copyOf("uc-linked.mdb");
    if (!linked.isEmpty()) {
        DatabasePtr database = open(linked);
        size_t links = 0;
        for (const CatalogEntry& entry : database->catalog().value()) {
            if (entry.kind != CatalogEntry::Kind::Linked) continue;
            ++links;
            EXPECT_FAILS(ErrorCode::NotSupported, database->table(entry.name));
        }
        EXPECT_GT(links, 0u);
    }
    const QString queries = copyOf("jk-queryTestV2000.mdb");
    if (!queries.isEmpty()) {
        DatabasePtr database = open(queries);
        size_t count = 0;
        for (const CatalogEntry& entry : database->catalog().value())
            count += entry.kind == CatalogEntry::Kind::Query;
        EXPECT_GT(count, 5u);
    }
}

TEST_F(SamplesTest, EncodedFileIsReadAndRefusesWrites) {
    const QString file = copyOf("jke-db-enc.mdb");
    if (file.isEmpty()) return;
    DatabasePtr database = open(file);
    Table& t = table(*database, u"Table1");
    EXPECT_EQ(rowsOf(t).size(), 2u);
    EXPECT_FAILS(ErrorCode::NotSupported, t.writable());
    EXPECT_FAILS(ErrorCode::NotSupported, database->begin());
}

TEST_F(SamplesTest, TextIndexRefusesInsertsAndNamesIndexAndColumn) {
    const QString file = copyOf("nw-Northwind-b.mdb");
    if (file.isEmpty()) return;
    const std::string before = bytesOf(file);
    DatabasePtr database = open(file);
    for (const char16_t* name : {u"Customers", u"Products", u"Orders", u"Order Details", u"Suppliers"}) {
        Table& t = table(*database, name);
        const Status status = t.writable();
        EXPECT_FAILS(ErrorCode::NotSupported, status);
        EXPECT_TRUE(status.text().contains(QString::fromUtf16(name)));
        EXPECT_OK(database->begin());
        EXPECT_FAILS(ErrorCode::NotSupported, t.insert(Row(t.definition().columns.size())));
        EXPECT_FAILS(ErrorCode::NotSupported, t.erase(rowsOf(t).begin()->first));
        EXPECT_OK(database->commit());
    }
    EXPECT_EQ(bytesOf(file), before);
}

TEST_F(SamplesTest, ColumnWithoutIndexCanBeChangedBesideATextIndex) {
    const QString file = copyOf("nw-Northwind-b.mdb");
    if (file.isEmpty()) return;
    DatabasePtr database = open(file);
    Table& customers = table(*database, u"Customers");
    const size_t fax = customers.definition().find(u"Fax").value();
    const size_t city = customers.definition().find(u"City").value();
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
    expectSound(file);
    if (const auto findings = sharedCheckerFindings(file)) {
        EXPECT_EQ(*findings, "");
    }
}

TEST_F(SamplesTest, EnforcedRelationRefusesWrites) {
    const QString file = copyOf("jk-indexTestV2000.mdb");
    if (file.isEmpty()) return;
    DatabasePtr database = open(file);
    for (const char16_t* name : {u"Table1", u"Table2", u"Table3"}) {
        const Status status = table(*database, name).writable();
        EXPECT_FAILS(ErrorCode::NotSupported, status);
        EXPECT_TRUE(status.text().contains(QStringLiteral("relazione")));
    }
}

TEST_F(SamplesTest, MemoStaysUntouchedWhenAnotherColumnChanges) {
    const QString file = copyOf("tika-testAccess2_2000.mdb");
    if (file.isEmpty()) return;
    DatabasePtr database = open(file);
    Table& t = table(*database, u"Table1");
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
        const std::pair<size_t, Value> refused{memo, std::string("x")};
        const Status status = t.update(id, std::span(&refused, 1));
        EXPECT_FAILS(ErrorCode::NotSupported, status);
        EXPECT_TRUE(status.text().contains(QStringLiteral("memo")));
    }
    EXPECT_OK(database->commit());
    EXPECT_EQ(memos(), before);
    EXPECT_FALSE(before.empty());
    expectSound(file);
}

TEST_F(SamplesTest, StoredCounterBelowTheGreatestKeyIsNotUsed) {
    const QString file = copyOf("nw-Northwind-b.mdb");
    if (file.isEmpty()) return;
    DatabasePtr database = open(file);
    EXPECT_EQ(table(*database, u"Orders").takeAutoNumber().value(), 11078);  // 10248 is what the file says
}
