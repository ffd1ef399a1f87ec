// SPDX-License-Identifier: GPL-3.0-or-later
// Every way of inserting rows into a file whose counter is below the greatest number in use.
#include "platform/ado/GroupedInserts.h"
#include "support/JetTables.h"
#include "TestDatabase.h"

namespace auto_number_test {

namespace {

class AutoNumberWaysTest : public ado::TestDatabase {
  protected:
    void SetUp() override {
        TestDatabase::SetUp();
        for (const char* id : {"1", "2", "90"})
            run(QStringLiteral("INSERT INTO [tb_destinatari] (id, id_grp, rgs) VALUES (%1, 1, 'prima')")
                    .arg(QLatin1String(id)));
        ado::closeAll();
        jettables::setCounter(path.toStdString(), "tb_destinatari", 5);
    }
    /// Runs `insertThree` twice, with the file closed in between; returns the numbers of the rows.
    template <class Insert>
    std::string numbersOf(Insert insertThree) {
        for (int round = 0; round < 2; ++round) {
            insertThree();
            ado::closeAll();
        }
        return column("SELECT id FROM tb_destinatari WHERE id_grp = 7 ORDER BY id", "id");
    }
    static constexpr const char* theNextSix = "91|92|93|94|95|96";
};

}  // namespace

TEST_F(AutoNumberWaysTest, Statements) {
    EXPECT_EQ(numbersOf([&] {
                  for (int i = 0; i < 3; ++i)
                      run("INSERT INTO [tb_destinatari] (id_grp, rgs) VALUES (7, 'nuova')");
              }),
              theNextSix);
}

TEST_F(AutoNumberWaysTest, RowsOfAnotherSelection) {
    EXPECT_EQ(numbersOf([&] {
                  run("INSERT INTO tb_destinatari (id_grp, rgs) SELECT 7, rgs FROM tb_destinatari WHERE "
                      "id_grp = 1");
              }),
              theNextSix);
}

TEST_F(AutoNumberWaysTest, Recordset) {
    EXPECT_EQ(numbersOf([&] {
                  ado::Recordset rows = open("SELECT * FROM tb_destinatari WHERE id_grp = 1");
                  for (int i = 0; i < 3; ++i) {
                      EXPECT_TRUE(rows.addNew().ok());
                      EXPECT_TRUE(rows.setValue(u"id_grp", 7).ok());
                      const Status status = rows.update();
                      EXPECT_TRUE(status.ok()) << ado::words(status);
                  }
              }),
              theNextSix);
}

TEST_F(AutoNumberWaysTest, GroupsOfAnImport) {
    EXPECT_EQ(numbersOf([&] {
                  ado::GroupedInserts inserts;
                  inserts.setGroupSize(2);
                  EXPECT_TRUE(inserts.setActiveConnection(connection).ok());
                  for (int i = 0; i < 3; ++i) {
                      const Status status = inserts.execute(
                          QStringLiteral("INSERT INTO [tb_destinatari] (id_grp, sel) VALUES (7, True) "));
                      EXPECT_TRUE(status.ok()) << ado::words(status);
                  }
                  EXPECT_TRUE(inserts.commit().ok());
                  EXPECT_EQ(inserts.committed(), 3);
              }),
              theNextSix);
}

TEST_F(AutoNumberWaysTest, ARowTypedBetweenTwoGroups) {
    ado::GroupedInserts inserts;
    EXPECT_TRUE(inserts.setActiveConnection(connection).ok());
    const QString import = QStringLiteral("INSERT INTO [tb_destinatari] (id_grp, sel) VALUES (7, True) ");
    EXPECT_TRUE(inserts.execute(import).ok());
    run("INSERT INTO [tb_destinatari] (id_grp, rgs) VALUES (7, 'digitata')");
    EXPECT_TRUE(inserts.execute(import).ok());
    EXPECT_TRUE(inserts.commit().ok());
    EXPECT_EQ(column("SELECT id FROM tb_destinatari WHERE id_grp = 7 ORDER BY id", "id"), "91|92|93");
}

}  // namespace auto_number_test
