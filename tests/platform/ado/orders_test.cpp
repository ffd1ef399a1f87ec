// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <map>
#include <random>

#include "platform/ado/StatementText.h"
#include "platform/jet/GeneralOrder.h"
#include "support/Repetitions.h"
#include "TestDatabase.h"

namespace orders_test {

namespace {

const char* const queue =
    "SELECT * FROM [tb_destinatari] WHERE [sel] = True ORDER BY rgs ASC, email ASC, nom ASC, loc ASC, ind "
    "ASC;";

constexpr int longList = testing_support::repetitions(100000);

/// Enough rows that an order of them is updated, not rebuilt, after a change from outside.
constexpr int mendedList = 15000;

class OrdersTest : public ado::TestDatabase {
  protected:
    /// Many recipients in one transaction of the engine, with few different names so that many are equal.
    void fill(int count) {
        auto database = jet::Database::open(path.toStdString());
        ASSERT_TRUE(database.ok()) << ado::words(database.status());
        auto table = database.value()->table("tb_destinatari");
        ASSERT_TRUE(table.ok());
        ASSERT_TRUE(database.value()->begin().ok());
        std::mt19937 random(7);
        for (int i = 0; i < count; ++i) {
            std::vector<jet::Value> values(22);
            values[1] = int64_t{1 + i % 3};
            for (const size_t column : {2, 3, 5, 7, 11})
                values[column] = name(random);
            values[21] = i % 4 != 0;
            const auto id = table.value()->insert(values);
            ASSERT_TRUE(id.ok()) << ado::words(id.status());
        }
        const Status status = database.value()->commit();
        ASSERT_TRUE(status.ok()) << ado::words(status);
    }

    static jet::Value name(std::mt19937& random) {
        constexpr std::array names = {"Rossi",      "ROSSI", "Ross\u00ec", "D'Angelo",
                                      "De-Angelis", "",      "Zorzi",      "Bianchi s.r.l."};
        const size_t choice = random() % (names.size() + 1);
        return choice < names.size() ? jet::Value(std::string(names[choice])) : jet::Value();
    }

    std::vector<qint64> ids(const char* statement) const {
        std::vector<qint64> result;
        ado::Recordset rows = open(statement);
        while (!rows.isEof()) {
            result.push_back(rows.value(u"id").value().toInteger().value());
            EXPECT_TRUE(rows.moveNext().ok());
        }
        return result;
    }

    /// The expected rows of a recordset, computed from the file without any cached order.
    std::vector<qint64> expected(int selected, int group) const {
        using Key = std::pair<std::vector<std::string>, jet::RowId>;
        std::vector<std::pair<Key, qint64>> rows;
        auto database = jet::Database::open(path.toStdString());
        EXPECT_TRUE(database.ok());
        auto table = database.value()->table("tb_destinatari");
        EXPECT_TRUE(table.ok());
        const Status status = table.value()->scan([&](jet::RowId id, const jet::RowView& row) {
            if (selected >= 0 && row.yesNo(21) != (selected == 1)) return true;
            if (group >= 0 && row.integer(1) != group) return true;
            std::vector<std::string> key;
            const std::vector<size_t> columns =
                group >= 0 ? std::vector<size_t>{2} : std::vector<size_t>{2, 11, 3, 7, 5};
            for (const size_t column : columns) {
                std::string text;
                std::string part;
                if (row.text(column, text)) {
                    part = "+";
                    jet::appendSortKey(part, text);
                }
                key.push_back(part);
            }
            rows.push_back({{key, id}, row.integer(0)});
            return true;
        });
        EXPECT_TRUE(status.ok());
        std::sort(rows.begin(), rows.end());
        std::vector<qint64> result;
        for (const auto& row : rows)
            result.push_back(row.second);
        return result;
    }
};

}  // namespace

TEST_F(OrdersTest, OneTickAfterAnotherServesTheListInOrderAndSkipsTheFailed) {
    fill(200);
    const std::vector<qint64> order = ids(queue);
    ASSERT_EQ(order, expected(1, -1));
    std::vector<qint64> served;
    int failed = 0;
    for (size_t tick = 0; tick < order.size(); ++tick) {
        ado::Recordset rows = open(queue);
        ASSERT_TRUE(rows.move(failed).ok());
        const auto id = rows.value(u"id");
        ASSERT_TRUE(id.ok()) << ado::words(id.status());
        served.push_back(id.value().toInteger().value());
        rows.close();
        if (tick % 3 == 1) {
            ++failed;
        } else {
            EXPECT_EQ(run(QStringLiteral("UPDATE [tb_destinatari] SET [sel] = False WHERE [id] = %1;")
                              .arg(served.back())),
                      1);
        }
    }
    EXPECT_EQ(served, order);
    EXPECT_EQ(open("SELECT * FROM [tb_destinatari] WHERE sel = True ;").recordCount(), failed);
}

TEST_F(OrdersTest, ALongListKeepsItsOrderThroughRandomChanges) {
    fill(longList);
    ASSERT_EQ(ids(queue), expected(1, -1));
    const char* groupListing = "SELECT * FROM tb_destinatari WHERE id_grp = 2 ORDER BY rgs ASC;";
    ASSERT_EQ(ids(groupListing), expected(-1, 2));
    std::mt19937 random(11);
    for (int i = 0; i < 300; ++i) {
        const auto id = 1 + random() % longList;
        switch (random() % 5) {
            case 0:
                run(QStringLiteral("UPDATE [tb_destinatari] SET [sel] = False WHERE [id] = %1;").arg(id));
                break;
            case 1:
                run(QStringLiteral("UPDATE [tb_destinatari] SET sel = True, rgs = 'Mario''s', nom = Null "
                                   "WHERE id = %1 ;")
                        .arg(id));
                break;
            case 2:
                run(QStringLiteral("DELETE FROM [tb_destinatari] WHERE id = %1 ;").arg(id));
                break;
            case 3:
                run(QStringLiteral("INSERT INTO [tb_destinatari] (id_grp, sel, email, rgs) VALUES (2, True, "
                                   "'x%1@y.it', 'Ross')")
                        .arg(id));
                break;
            default:
                run(QStringLiteral("UPDATE [tb_destinatari] SET id_grp = 2 WHERE id = %1 ;").arg(id));
        }
    }
    const std::vector<qint64> kept = ids(queue);
    const std::vector<qint64> keptGroup = ids(groupListing);
    EXPECT_EQ(kept, expected(1, -1));
    EXPECT_EQ(keptGroup, expected(-1, 2));
    ado::closeAll();
    EXPECT_EQ(ids(queue), kept);
    EXPECT_EQ(ids(groupListing), keptGroup);
    EXPECT_EQ(open("SELECT * FROM [tb_destinatari] WHERE sel = True ;").recordCount(),
              static_cast<qint64>(kept.size()));
}

TEST_F(OrdersTest, WhatAnotherProgramWritesIsSeenByTheNextRecordset) {
    fill(50);
    const std::vector<qint64> before = ids(queue);
    auto other = jet::Database::open(path.toStdString());
    ASSERT_TRUE(other.ok());
    auto table = other.value()->table("tb_destinatari");
    ASSERT_TRUE(table.ok());
    const auto row = table.value()->findByPrimaryKey(static_cast<int32_t>(before[0]));
    ASSERT_TRUE(row.ok() && row.value());
    ASSERT_TRUE(other.value()->begin().ok());
    const std::pair<size_t, jet::Value> change{21, false};
    ASSERT_TRUE(table.value()->update(*row.value(), {&change, 1}).ok());
    ASSERT_TRUE(other.value()->commit().ok());
    const std::vector<qint64> after = ids(queue);
    EXPECT_EQ(after, std::vector<qint64>(before.begin() + 1, before.end()));
    run(QStringLiteral("UPDATE [tb_destinatari] SET [sel] = False WHERE [id] = %1;").arg(after[0]));
    EXPECT_EQ(ids(queue), std::vector<qint64>(before.begin() + 2, before.end()));
}

TEST_F(OrdersTest, ALongListIsRightWhateverTwoProgramsChange) {
    fill(mendedList);
    const char* groupListing = "SELECT * FROM tb_destinatari WHERE id_grp = 2 ORDER BY rgs ASC;";
    std::mt19937 random(17);
    const auto some = [&] { return static_cast<int32_t>(1 + random() % 300); };
    for (int round = 0; round < testing_support::repetitions(20); ++round) {
        if (round % 4 != 3)
            ids(groupListing);  // else a change from outside reaches the orders before it is noticed
        ASSERT_EQ(ids(queue), expected(1, -1)) << round;
        // The other program puts back what this one takes out of the queue: the page is then as before.
        const int32_t taken = some();
        run(QStringLiteral("UPDATE [tb_destinatari] SET [sel] = False WHERE [id] = %1;").arg(taken));
        auto other = jet::Database::open(path.toStdString());
        ASSERT_TRUE(other.ok());
        auto table = other.value()->table("tb_destinatari");
        ASSERT_TRUE(table.ok());
        ASSERT_TRUE(other.value()->begin().ok());
        const auto change = [&](int32_t id, size_t column, const jet::Value& value) {
            const auto row = table.value()->findByPrimaryKey(id);
            if (!row.ok() || !row.value()) return;
            const std::pair<size_t, jet::Value> one{column, value};
            const Status status = table.value()->update(*row.value(), {&one, 1});
            EXPECT_TRUE(status.ok()) << ado::words(status);
        };
        const size_t longest = table.value()->definition().columns[2].length / 2u;
        change(taken, 21, true);
        for (int i = 0; i < 10; ++i)
            change(some(), 21, random() % 2 == 0);
        change(some(), 2, std::string(longest, 'l'));  // moves a row, or the body of one
        change(some(), 2, "Corta " + std::to_string(round));
        change(some(), 1, int64_t{2});
        if (const auto row = table.value()->findByPrimaryKey(some()); row.ok() && row.value()) {
            EXPECT_TRUE(table.value()->erase(*row.value()).ok());
        }
        std::vector<jet::Value> added(22);
        added[1] = int64_t{2};
        added[2] = "Nuova " + std::to_string(round);
        added[21] = true;
        EXPECT_TRUE(table.value()->insert(added).ok());
        ASSERT_TRUE(other.value()->commit().ok());
        other.value().reset();
        if (round % 2 == 0) {
            run(QStringLiteral("UPDATE [tb_destinatari] SET [sel] = False WHERE [id] = %1;").arg(taken));
            run(QStringLiteral("UPDATE [tb_destinatari] SET rgs = 'Qui' WHERE [id] = %1;").arg(some()));
        }
        ASSERT_EQ(ids(queue), expected(1, -1)) << round;
        ASSERT_EQ(ids(groupListing), expected(-1, 2)) << round;
    }
}

TEST_F(OrdersTest, ANameThatLeadsToAnotherFileNowIsFollowedAtOnce) {
    fill(10);
    const QString other = inFolder("altra.mdb");
    ado::closeAll();
    ASSERT_TRUE(QFile::copy(path, other));
    const QString link = inFolder("nome.mdb");
    for (const QString& target : {path, other, path, other}) {
        QFile::remove(link);
        ASSERT_TRUE(QFile::link(target, link));
        connection = ado::connectionTo(link);
        ado::Recordset rows = open("SELECT * FROM tb_destinatari ORDER BY id");
        run(QStringLiteral("UPDATE [tb_destinatari] SET rgs = '%1' WHERE id = 1").arg(target.right(9)));
        connection = ado::connectionTo(target);
        EXPECT_EQ(column("SELECT * FROM tb_destinatari WHERE id = 1", "rgs"), target.right(9).toStdString());
    }
}

TEST_F(OrdersTest, ARecordsetThatIsOpenOutlivesAChangeFromOutside) {
    fill(50);
    ado::Recordset rows = open(queue);
    const std::vector<qint64> before = ids(queue);
    auto other = jet::Database::open(path.toStdString());
    ASSERT_TRUE(other.ok());
    auto table = other.value()->table("tb_destinatari");
    ASSERT_TRUE(table.ok());
    const auto row = table.value()->findByPrimaryKey(static_cast<int32_t>(before[1]));
    ASSERT_TRUE(row.ok() && row.value());
    ASSERT_TRUE(other.value()->begin().ok());
    ASSERT_TRUE(table.value()->erase(*row.value()).ok());
    ASSERT_TRUE(other.value()->commit().ok());
    ASSERT_TRUE(rows.moveNext().ok());
    EXPECT_EQ(rows.value(u"id").status().code(), ErrorCode::NoCurrentRecord);
    ASSERT_TRUE(rows.moveNext().ok());
    EXPECT_EQ(rows.value(u"id").value().toInteger().value(), before[2]);
}

TEST_F(OrdersTest, ARecordsetThatIsOpenKeepsItsRowsWhileTheOrderIsMended) {
    fill(mendedList);
    const std::vector<qint64> before = ids(queue);
    ado::Recordset rows = open(queue);
    auto other = jet::Database::open(path.toStdString());
    ASSERT_TRUE(other.ok());
    auto table = other.value()->table("tb_destinatari");
    ASSERT_TRUE(table.ok());
    const size_t gone = before.size() / 2;
    const auto row = table.value()->findByPrimaryKey(static_cast<int32_t>(before[gone]));
    ASSERT_TRUE(row.ok() && row.value());
    ASSERT_TRUE(other.value()->begin().ok());
    ASSERT_TRUE(table.value()->erase(*row.value()).ok());
    ASSERT_TRUE(other.value()->commit().ok());
    std::vector<qint64> after = before;
    after.erase(after.begin() + static_cast<std::ptrdiff_t>(gone));
    ASSERT_EQ(ids(queue), after);
    for (size_t i = 0; i < before.size(); ++i) {
        const auto id = rows.value(u"id");
        if (i == gone)
            EXPECT_EQ(id.status().code(), ErrorCode::NoCurrentRecord);
        else
            ASSERT_EQ(id.value().toInteger().value(), before[i]) << i;
        ASSERT_TRUE(rows.moveNext().ok());
    }
    EXPECT_TRUE(rows.isEof());
}

TEST_F(OrdersTest, WhatAPlainStatementFindsIsWhatSqliteFinds) {
    fill(60);
    run("UPDATE tb_destinatari SET id_grp = Null WHERE id = 7");
    const struct {
        const char* clauses;
        bool plain;
    } statements[] = {
        {"", true},
        {"ORDER BY rgs DESC, nom", true},
        {"ORDER BY [Rgs] ASC, id DESC", true},
        {"WHERE sel = True ORDER BY rgs", true},
        {"where [SEL] = false", true},
        {"WHERE sel = 1", true},
        {"WHERE sel = 0 ORDER BY sel, email", true},
        {"WHERE id_grp = 2 ORDER BY rgs ASC, email DESC", true},
        {"WHERE id_grp = 002", true},
        {"WHERE id_grp = 0", true},
        {"WHERE id_grp = 9999999999", true},
        {"WHERE id = 3 ORDER BY rgs", true},
        {"WHERE sel = -1", false},
        {"WHERE id_grp = 2.0", false},
        {"WHERE id_grp = '2'", false},
        {"WHERE id_grp = 2 AND sel = True ORDER BY rgs", false},
        {"WHERE id_grp > 2", false},
        {"WHERE id_grp = id", false},
        {"WHERE (id_grp = 2)", false},
    };
    for (const auto& [clauses, plain] : statements) {
        const std::string statement = std::string("SELECT * FROM tb_destinatari ") + clauses;
        const auto text = ado::StatementText::read(QString::fromStdString(statement));
        ASSERT_TRUE(text.ok()) << statement;
        EXPECT_EQ(text.value().plain.has_value(), plain) << statement;
        const std::string limited = statement + " LIMIT 1000";
        EXPECT_FALSE(ado::StatementText::read(QString::fromStdString(limited)).value().plain) << limited;
        EXPECT_EQ(ids(statement.c_str()), ids(limited.c_str())) << statement;
    }
    for (const char* text :
         {"SELECT * FROM tb_destinatari ORDER BY group", "SELECT * FROM tb_destinatari WHERE order = 1"}) {
        ado::Recordset rows;
        ASSERT_TRUE(rows.setActiveConnection(connection).ok());
        rows.setSource(QString::fromLatin1(text));
        EXPECT_EQ(rows.open().code(), ErrorCode::SyntaxError) << text;
    }
}

TEST_F(OrdersTest, ManyDifferentOrdersOfOneTableAreAllRight) {
    fill(300);
    const char* columns[] = {"rgs", "nom", "ind", "loc", "email", "id_grp", "sel", "id", "cap", "prov"};
    std::map<std::string, std::vector<qint64>> first;
    for (int round = 0; round < 2; ++round) {
        for (const char* column : columns) {
            const std::string statement =
                std::string("SELECT * FROM tb_destinatari ORDER BY ") + column + " DESC, id ASC";
            const std::vector<qint64> rows = ids(statement.c_str());
            EXPECT_EQ(rows.size(), 300u) << statement;
            if (round == 0) first[column] = rows;
            EXPECT_EQ(rows, first[column]) << statement;
        }
    }
}

}  // namespace orders_test
