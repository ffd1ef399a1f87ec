// SPDX-License-Identifier: GPL-3.0-or-later
// Importing and deleting again and again leaves the file about as large as it was.
#include <random>

#include "platform/ado/GroupedInserts.h"
#include "TestDatabase.h"

namespace room_test {

namespace {

class RoomOfImportsTest : public ado::TestDatabase {
  protected:
    void import(int rows) {
        std::mt19937 random(5);
        ado::GroupedInserts inserts;
        EXPECT_TRUE(inserts.setActiveConnection(connection).ok());
        for (int i = 0; i < rows; ++i) {
            const QString address(static_cast<int>(200 + random() % 55), QLatin1Char('v'));
            const QString field(static_cast<int>(200 + random() % 55), QLatin1Char('c'));
            const Status status = inserts.execute(
                QStringLiteral(
                    "INSERT INTO [tb_destinatari] (id_grp, sel, rgs, ind, campo1, campo2) VALUES (1, True, "
                    "'Ditta %1', '%2', '%3', '%4') ")
                    .arg(i)
                    .arg(address, field, field.left(180)));
            ASSERT_TRUE(status.ok()) << ado::words(status);
        }
        EXPECT_TRUE(inserts.commit().ok());
        EXPECT_EQ(inserts.committed(), rows);
    }
    qint64 size() const { return QFileInfo(path).size(); }
};

/// The place of the only recipient's row.
jet::RowId placeOfRow(const QString& file) {
    jet::RowId place;
    auto database = jet::Database::open(file.toStdString());
    EXPECT_TRUE(database.value()
                    ->table("tb_destinatari")
                    .value()
                    ->scan([&](jet::RowId id, const jet::RowView&) {
                        place = id;
                        return true;
                    })
                    .ok());
    return place;
}

}  // namespace

TEST_F(RoomOfImportsTest, RowInThePlaceOfADeletedOneIsNotChangedInItsStead) {
    import(1);
    const jet::RowId place = placeOfRow(path);
    ado::Recordset rows = open("SELECT * FROM tb_destinatari");
    run("DELETE FROM [tb_destinatari]");
    bool again = false;
    for (int round = 0; round < 400 && !again; ++round) {
        run("INSERT INTO [tb_destinatari] (id_grp, rgs) VALUES (1, 'Altra ditta')");
        again = placeOfRow(path) == place;
        if (!again) run("DELETE FROM [tb_destinatari]");
    }
    ASSERT_TRUE(again);
    EXPECT_TRUE(rows.setValue(u"rgs", QStringLiteral("Ditta 0 e figli")).ok());
    EXPECT_EQ(rows.update().code(), ErrorCode::NoCurrentRecord);
    EXPECT_EQ(column("SELECT rgs FROM tb_destinatari", "rgs"), "Altra ditta");
}

TEST_F(RoomOfImportsTest, SixRoundsOfImportAndDeletion) {
    qint64 first = 0;
    for (int round = 0; round < 6; ++round) {
        import(3000);
        if (round == 0) first = size();
        EXPECT_EQ(run("DELETE FROM [tb_destinatari] WHERE id_grp = 1 ;"), 3000);
    }
    std::printf("[ ROOM     ] %lld bytes after the first round, %lld after the last\n", first, size());
    EXPECT_LT(static_cast<double>(size()), 1.3 * static_cast<double>(first));
}

}  // namespace room_test
