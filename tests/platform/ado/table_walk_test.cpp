// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/TableWalk.h"

#include <map>

#include "platform/ado/TestDatabase.h"

namespace ado::table_walk_test {

namespace {

using std::chrono::hours;
using std::chrono::microseconds;

class TableWalkTest : public TestDatabase {
  protected:
    void add(int rows, const char* company = "Acero") const {
        for (int i = 0; i < rows; ++i)
            run(QStringLiteral("INSERT INTO [tb_destinatari] (id_grp, sel, rgs) VALUES (7, True, '%1')")
                    .arg(QString::fromUtf8(company)));
    }
    /// Walks one part; counts how often each number occurs.
    bool step(TableWalk& walk, microseconds most = microseconds(0)) {
        const Result<bool> ended = walk.step(
            most, [this](const WalkedRow& row) { ++met[row.integer(*row.definition().find("id"))]; });
        EXPECT_TRUE(ended.ok()) << words(ended.status());
        return !ended.ok() || ended.value();
    }

    std::map<int64_t, int> met;
};

}  // namespace

TEST_F(TableWalkTest, MeetsEachRowOnceInParts) {
    add(100);
    TableWalk walk(connection, QStringLiteral("tb_destinatari"));
    int parts = 1;
    while (!step(walk))
        ++parts;
    EXPECT_GT(parts, 2);
    EXPECT_EQ(met.size(), 100u);
    for (const auto& [id, times] : met)
        EXPECT_EQ(times, 1) << id;
    EXPECT_TRUE(step(walk));
    EXPECT_EQ(met.size(), 100u);
}

TEST_F(TableWalkTest, TheTableMayChangeBetweenTwoParts) {
    add(100);
    TableWalk walk(connection, QStringLiteral("tb_destinatari"));
    ASSERT_FALSE(step(walk));
    const size_t before = met.size();
    ASSERT_LT(before, 90u);
    run("DELETE FROM tb_destinatari WHERE id = 95");
    run("UPDATE tb_destinatari SET campo1 = 'una nota molto più lunga di prima' WHERE id = 96");
    run("UPDATE tb_destinatari SET campo1 = 'una nota molto più lunga di prima' WHERE id = 2");
    while (!step(walk)) {
    }
    EXPECT_EQ(met.size(), 99u);
    EXPECT_EQ(met.count(95), 0u);
    EXPECT_EQ(met[96], 1);
    EXPECT_EQ(met[2], 1);
}

TEST_F(TableWalkTest, ReturnsTheFieldsOfARow) {
    run("INSERT INTO [tb_destinatari] (id_grp, sel, nom) VALUES (7, True, 'Niccolò')");
    TableWalk walk(connection, QStringLiteral("tb_destinatari"));
    std::string out = "<";
    const Result<bool> ended = walk.step(hours(1), [&](const WalkedRow& row) {
        const jet::TableDefinition& table = row.definition();
        EXPECT_TRUE(row.yesNo(*table.find("sel")));
        EXPECT_EQ(row.integer(*table.find("id_grp")), 7);
        EXPECT_TRUE(row.isNull(*table.find("rgs")));
        for (const char* column : {"nom", "rgs", "id_grp"})
            row.appendText(*table.find(column), out);
    });
    EXPECT_TRUE(ended.ok() && ended.value());
    EXPECT_EQ(out, "<Niccolò7");
}

TEST_F(TableWalkTest, FailsForAMissingTableOrFile) {
    const auto nothing = [](const WalkedRow&) {};
    EXPECT_EQ(TableWalk(connection, QStringLiteral("tb_altro")).step(hours(1), nothing).status().code(),
              ErrorCode::TableNotFound);
    EXPECT_EQ(TableWalk(connectionTo(inFolder("manca.mdb")), QStringLiteral("tb_destinatari"))
                  .step(hours(1), nothing)
                  .status()
                  .code(),
              ErrorCode::FileNotFound);
}

}  // namespace ado::table_walk_test
