// SPDX-License-Identifier: GPL-3.0-or-later
// Numerics ("decimale") keep all their digits, through recordsets, snapshots and statements.
#include "platform/ado/RawValue.h"
#include "platform/ado/Snapshot.h"
#include "support/JetTables.h"
#include "TestDatabase.h"

namespace numeric_test {

namespace {

const char* const numbers[] = {"1234567890123456789012.345678",
                               "-1234567890123456789012.345679",
                               "9999999999999999999999.999999",
                               "0.000001",
                               "-0.5",
                               "0",
                               "12",
                               "1234.5"};

class NumericTest : public ado::TestDatabase {
  protected:
    void SetUp() override {
        TestDatabase::SetUp();
        jettables::addTable(path.toStdString(), "conti",
                            {{"id", jet::Type::Long, 0, true},
                             {"saldo", jet::Type::Numeric, 0, false, 28, 6},
                             {"intero", jet::Type::Numeric, 0, false, 28, 0}},
                            {{{{0, true}}, 0x89}});
    }
    void addAll() {
        for (const char* number : numbers)
            run(QStringLiteral("INSERT INTO [conti] (saldo) VALUES ('%1')").arg(QLatin1String(number)));
    }
};

}  // namespace

TEST_F(NumericTest, AllDigitsAreReadInEveryWay) {
    addAll();
    std::string expected;
    for (const char* number : numbers)
        expected += (expected.empty() ? "" : "|") + std::string(number);
    EXPECT_EQ(column("SELECT * FROM conti ORDER BY id", "saldo"), expected);
    EXPECT_EQ(column("SELECT saldo FROM conti ORDER BY id", "saldo"), expected);
    const auto snapshot = ado::Snapshot::take(connection, QStringLiteral("SELECT * FROM conti ORDER BY id"));
    ASSERT_TRUE(snapshot.ok());
    EXPECT_EQ(snapshot.value().value(1, 1).toTextOrEmpty(QLocale(QStringLiteral("it_IT"))).toStdString(),
              "-1234567890123456789012,345679");
}

TEST_F(NumericTest, CopiesAreExact) {
    addAll();
    EXPECT_EQ(run("INSERT INTO [conti] (saldo) SELECT saldo FROM [conti] WHERE id <= 3"), 3);
    EXPECT_EQ(column("SELECT saldo FROM conti WHERE id > 8 ORDER BY id", "saldo"),
              std::string(numbers[0]) + "|" + numbers[1] + "|" + numbers[2]);
}

TEST_F(NumericTest, OrderAndComparisonLookAtTheNumber) {
    addAll();
    EXPECT_EQ(column("SELECT id FROM conti ORDER BY saldo", "id"), "2|5|6|4|7|8|1|3");
    EXPECT_EQ(column("SELECT id FROM conti ORDER BY saldo DESC", "id"), "3|1|8|7|4|6|5|2");
    EXPECT_EQ(column("SELECT id FROM conti WHERE saldo > 1000 ORDER BY id", "id"), "1|3|8");
    EXPECT_EQ(column("SELECT id FROM conti WHERE saldo = 12", "id"), "7");
    EXPECT_EQ(column("SELECT id FROM conti WHERE saldo < 0 ORDER BY id", "id"), "2|5");
}

TEST_F(NumericTest, WholeNumbersOfAnyLength) {
    for (const char* number :
         {"7", "-9223372036854775807", "9223372036854775808", "1234567890123456789012345678"})
        run(QStringLiteral("INSERT INTO [conti] (intero) VALUES ('%1')").arg(QLatin1String(number)));
    EXPECT_EQ(column("SELECT * FROM conti ORDER BY id", "intero"),
              "7|-9223372036854775807|9223372036854775808|1234567890123456789012345678");
}

TEST_F(NumericTest, TextsAndNumbersAreTaken) {
    run("INSERT INTO [conti] (saldo) VALUES (0.1)");
    EXPECT_EQ(column("SELECT * FROM conti", "saldo"), "0.1");
    run("UPDATE [conti] SET saldo = '12345678901234567890.12'");
    EXPECT_EQ(column("SELECT * FROM conti", "saldo"), "12345678901234567890.12");
    EXPECT_EQ(failure("UPDATE [conti] SET saldo = 'dodici'"), ErrorCode::TypeMismatch);
    EXPECT_EQ(failure("UPDATE [conti] SET saldo = '12345678901234567890123'"), ErrorCode::Overflow);
}

TEST(NumericBytes, RoundHalfAwayFromZeroAndKeepTheirLimits) {
    jet::Column column;
    column.type = jet::Type::Numeric;
    column.precision = 5;
    column.scale = 2;
    const auto read = [&](const char* number) -> std::string {
        const auto bytes = ado::numericBytes(number, column);
        if (!bytes) return "refused";
        const jet::Value value = ado::readable(column, *bytes);
        return std::get<jet::Decimal>(value).text;
    };
    EXPECT_EQ(read("1.005"), "1.01");
    EXPECT_EQ(read("-1.005"), "-1.01");
    EXPECT_EQ(read("9.995"), "10");
    EXPECT_EQ(read("999.994"), "999.99");
    EXPECT_EQ(read("999.995"), "refused");
    EXPECT_EQ(read("-0.001"), "0");
    EXPECT_EQ(read(".5"), "0.5");
    EXPECT_EQ(read("00012"), "12");
    for (const char* bad : {"", ".", "-", "1e5", "1.2.3", " 1", "0x10", "1000"})
        EXPECT_EQ(read(bad), "refused") << bad;
    EXPECT_EQ(ado::plainDecimal(0.1), "0.1");
    EXPECT_EQ(ado::plainDecimal(1e22), "10000000000000000000000");
}

}  // namespace numeric_test
