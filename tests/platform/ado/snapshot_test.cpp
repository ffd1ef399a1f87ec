// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/Snapshot.h"

#include "platform/ado/TestDatabase.h"

namespace ado::snapshot_test {

namespace {

constexpr const char* everything = "SELECT * FROM tb_destinatari ORDER BY rgs ASC;";

class SnapshotTest : public TestDatabase {
  protected:
    void SetUp() override {
        TestDatabase::SetUp();
        add("Cedro", "c@x.it", 1);
        add("Acero", "a@x.it", 1);
        add("Betulla", "b@x.it", 2);
    }
    void add(const char* company, const char* email, int group) {
        run(QStringLiteral("INSERT INTO [tb_destinatari] (id_grp, sel, email, rgs) "
                           "VALUES (%1, True, '%2', '%3')")
                .arg(group)
                .arg(QLatin1String(email), QLatin1String(company)));
    }
    Snapshot take(const char* statement) const {
        auto rows = Snapshot::take(connection, QString::fromUtf8(statement));
        EXPECT_TRUE(rows.ok()) << words(rows.status());
        return rows.ok() ? std::move(rows).value() : Snapshot();
    }
    static size_t columnOf(const Snapshot& rows, const char* name) {
        for (size_t i = 0; i < rows.columns().size(); ++i)
            if (rows.columns()[i].name == name) return i;
        ADD_FAILURE() << name;
        return 0;
    }
    static std::string texts(const Snapshot& rows, const char* name) {
        QStringList all;
        for (size_t row = 0; row < rows.size(); ++row)
            all << rows.value(row, columnOf(rows, name)).toTextOrEmpty(QLocale::c());
        return all.join('|').toStdString();
    }
};

}  // namespace

TEST(Snapshot, NewOneHasNeitherRowsNorColumns) {
    const Snapshot empty;
    EXPECT_EQ(empty.size(), 0u);
    EXPECT_TRUE(empty.columns().empty());
}

TEST_F(SnapshotTest, ContainsTheRowsInTheStatementsOrder) {
    const Snapshot rows = take(everything);
    EXPECT_EQ(texts(rows, "rgs"), "Acero|Betulla|Cedro");
    EXPECT_EQ(texts(rows, "id"), "2|3|1");
    EXPECT_EQ(texts(take("SELECT * FROM tb_destinatari WHERE id_grp = 1 ORDER BY rgs ASC;"), "rgs"),
              "Acero|Cedro");
    EXPECT_EQ(take("SELECT * FROM tb_destinatari WHERE id_grp = 7").size(), 0u);
}

TEST_F(SnapshotTest, ColumnsAreThoseOfSelectStar) {
    const Snapshot rows = take(everything);
    ASSERT_EQ(rows.columns().size(), 22u);
    EXPECT_EQ(rows.columns()[0].name, "id");
    EXPECT_EQ(rows.columns()[21].name, "sel");
    EXPECT_EQ(rows.value(0, 21), Value(true));
    EXPECT_TRUE(rows.value(0, columnOf(rows, "campo1")).isNull());
}

TEST_F(SnapshotTest, NothingChangesItAfterwards) {
    const Snapshot rows = take(everything);
    run("UPDATE [tb_destinatari] SET email = 'new@x.it'");
    run("DELETE FROM [tb_destinatari] WHERE rgs = 'Cedro'");
    closeAll();
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(texts(rows, "email"), "a@x.it|b@x.it|c@x.it");
}

TEST_F(SnapshotTest, RemovedRowLeavesTheOthersTheirIdentity) {
    Snapshot rows = take(everything);
    const uint32_t last = rows.identity(2);
    rows.remove(0);
    EXPECT_EQ(texts(rows, "rgs"), "Betulla|Cedro");
    EXPECT_EQ(rows.identity(1), last);
    EXPECT_NE(rows.identity(0), last);
    rows.clear();
    EXPECT_EQ(rows.size(), 0u);
    EXPECT_EQ(rows.columns().size(), 22u);
}

TEST_F(SnapshotTest, RowsFillManyBlocks) {
    // about 1 MB of rows, more than any one block contains
    const QString filler(255, 'x');
    for (int i = 0; i < 9; ++i)
        run(QStringLiteral("UPDATE [tb_destinatari] SET campo%1 = '%2'").arg(i % 9 + 1).arg(filler));
    for (int doubling = 0; doubling < 8; ++doubling)
        run("INSERT INTO tb_destinatari (id_grp, rgs, campo1, campo2, campo3, campo4, campo5, email) SELECT "
            "id_grp, rgs, campo1, campo2, campo3, campo4, campo5, email FROM tb_destinatari");
    const Snapshot rows = take("SELECT * FROM tb_destinatari WHERE id_grp = 1 ORDER BY rgs ASC;");
    ASSERT_EQ(rows.size(), 512u);
    for (size_t row = 0; row < rows.size(); ++row) {
        ASSERT_EQ(rows.value(row, columnOf(rows, "rgs")),
                  Value(row < 256 ? QString("Acero") : QString("Cedro")));
        ASSERT_EQ(rows.value(row, columnOf(rows, "campo5")), Value(filler));
    }
}

TEST_F(SnapshotTest, RefusesWhatAreNoWholeRowsOfATable) {
    const auto failure = [this](const char* statement) {
        return Snapshot::take(connection, QString::fromUtf8(statement)).status().code();
    };
    EXPECT_EQ(failure("SELECT email FROM tb_destinatari"), ErrorCode::NotSupported);
    EXPECT_EQ(failure("SELECT count(*) FROM tb_destinatari"), ErrorCode::NotSupported);
    EXPECT_EQ(failure("DELETE FROM tb_destinatari"), ErrorCode::NotSupported);
    EXPECT_EQ(failure("SELECT * FROM nessuna"), ErrorCode::TableNotFound);
    EXPECT_EQ(failure("SELECT * FROM tb_destinatari WHERE nessuna = 1"), ErrorCode::ItemNotFound);
    EXPECT_EQ(run("UPDATE tb_destinatari SET sel = False"), 3);
}

TEST_F(SnapshotTest, MissingFileIsReported) {
    const auto rows = Snapshot::take(connectionTo(inFolder("assente.mdb")), QString::fromUtf8(everything));
    EXPECT_EQ(rows.status().code(), ErrorCode::FileNotFound);
}

TEST(SnapshotOfSample, LongMemoTextsComeWhole) {
    const QString sample = QStringLiteral(SHARED_DIR "/mdb/nw-Northwind-b.mdb");
    if (!QFile::exists(sample)) GTEST_SKIP() << "no sample files here";
    const QString connection = connectionTo(sample);
    Recordset recordset;
    ASSERT_TRUE(recordset.setActiveConnection(connection).ok());
    recordset.setSource(QStringLiteral("SELECT * FROM Employees"));
    ASSERT_TRUE(recordset.open().ok());
    const auto rows = Snapshot::take(connection, QStringLiteral("SELECT * FROM Employees"));
    ASSERT_TRUE(rows.ok()) << words(rows.status());
    ASSERT_GT(rows.value().size(), 0u);
    size_t notesColumn = 0;
    while (rows.value().columns().at(notesColumn).name != "Notes")
        ++notesColumn;
    for (size_t row = 0; row < rows.value().size(); ++row) {
        const auto notes = recordset.value(u"Notes");
        ASSERT_TRUE(notes.ok()) << words(notes.status());
        EXPECT_GT(notes.value().toTextOrEmpty().size(), 50);
        EXPECT_EQ(rows.value().value(row, notesColumn), notes.value());
        ASSERT_TRUE(recordset.moveNext().ok());
    }
    closeAll();
}

TEST_F(SnapshotTest, ReturnsTextsInUtf8) {
    run("UPDATE tb_destinatari SET nom = 'Niccolò' WHERE rgs = 'Acero'");
    const Snapshot rows = take(everything);
    std::string out = "<";
    rows.appendText(0, columnOf(rows, "nom"), out);
    rows.appendText(1, columnOf(rows, "nom"), out);
    rows.appendText(1, columnOf(rows, "id_grp"), out);
    EXPECT_EQ(out, "<Niccolò2");
}

TEST_F(SnapshotTest, TakesAnotherOrder) {
    Snapshot rows = take(everything);
    const std::vector<uint32_t> told = rows.identities();
    rows.arrange({told[2], told[0], told[1]});
    EXPECT_EQ(texts(rows, "rgs"), "Cedro|Acero|Betulla");
    rows.remove(1);
    EXPECT_EQ(texts(rows, "rgs"), "Cedro|Betulla");
    EXPECT_EQ(rows.identity(1), told[1]);
}

}  // namespace ado::snapshot_test
