// SPDX-License-Identifier: GPL-3.0-or-later
// What columns take of values of another type, and that each type comes back as it was kept: columns that the
// program's own tables do not have, but those of other programs do.
#include "platform/ado/FieldValue.h"
#include "platform/ado/RawValue.h"
#include "support/JetTables.h"
#include "TestDatabase.h"

namespace column_types_test {

using ado::Recordset;
using ado::Value;

namespace {

const char* const guid = "{0F8FAD5B-D9CB-469F-A165-70867728950E}";

Value money(int64_t tenThousandths) {
    return Value(jet::Value(jet::Currency{tenThousandths}));
}
Value date(double days) {
    return Value(jet::Value(jet::Date{days}));
}
Value decimal(const char* digits) {
    return Value(jet::Value(jet::Decimal{digits}));
}
Value bytes() {
    return Value(jet::Value(jet::Bytes{0, 1, 0xfe, 0xff}));
}

jet::Column columnOf(jet::Type type) {
    jet::Column made;
    made.name = "campo";
    made.type = type;
    if (type == jet::Type::Numeric) {
        made.precision = 18;
        made.scale = 2;
    }
    return made;
}

/// What a column of this type keeps of a value, as text; a failure as "error" and its code.
std::string kept(jet::Type type, const Value& value) {
    const Result<jet::Value> fitted = ado::fitToColumn(value.raw(), columnOf(type));
    if (!fitted.ok()) return "error " + std::to_string(static_cast<int>(fitted.status().code()));
    return Value(ado::readable(columnOf(type), fitted.value())).toTextOrEmpty(QLocale::c()).toStdString();
}

std::string error(ErrorCode code) {
    return "error " + std::to_string(static_cast<int>(code));
}

/// A table with one row that has a value of each type.
class ColumnTypesTest : public ado::TestDatabase {
  protected:
    void SetUp() override {
        TestDatabase::SetUp();
        using enum jet::Type;
        jettables::addTable(path.toStdString(), "misti",
                            {{"id", Long, 0, true},
                             {"importo", Currency},
                             {"saldo", Numeric, 0, false, 18, 2},
                             {"chiave", Guid},
                             {"quando", Date},
                             {"pezzi", Binary, 8}},
                            {{{{0, true}}, 0x89}});
        jettables::addRow(path.toStdString(), "misti",
                          {int64_t{1}, jet::Currency{-15000}, *ado::numericBytes("12.34", columnOf(Numeric)),
                           *ado::guidBytes(guid), jet::Date{38346.25}, jet::Bytes{0, 1, 0xfe, 0xff}});
    }

    static void expectTheRow(const Recordset& rows) {
        ASSERT_FALSE(rows.isEof());
        EXPECT_EQ(rows.value(u"importo").value(), money(-15000));
        EXPECT_EQ(rows.value(u"saldo").value(), decimal("12.34"));
        EXPECT_EQ(rows.value(u"chiave").value(), Value(QString::fromLatin1(guid)));
        EXPECT_EQ(rows.value(u"quando").value(), date(38346.25));
        EXPECT_EQ(rows.value(u"pezzi").value(), bytes());
    }
};

}  // namespace

TEST(FitToColumn, NumbersOfEveryKindBecomeMoney) {
    using enum jet::Type;
    EXPECT_EQ(kept(Currency, Value(true)), "-1");
    EXPECT_EQ(kept(Currency, Value(3)), "3");
    EXPECT_EQ(kept(Currency, Value(0.00004)), "0");
    EXPECT_EQ(kept(Currency, decimal("1.25")), "1.25");
    EXPECT_EQ(kept(Currency, date(2.5)), "2.5");
    EXPECT_EQ(kept(Currency, money(-1)), "-0.0001");
    EXPECT_EQ(kept(Currency, Value(1e300)), error(ErrorCode::Overflow));
    EXPECT_EQ(kept(Currency, bytes()), error(ErrorCode::TypeMismatch));
    EXPECT_EQ(kept(Currency, Value(QStringLiteral("dodici"))), error(ErrorCode::TypeMismatch));
}

TEST(FitToColumn, NumbersOfEveryKindBecomeRealOnesNumericsAndDates) {
    using enum jet::Type;
    EXPECT_EQ(kept(Double, money(12500)), "1.25");
    EXPECT_EQ(kept(Double, decimal("-0.5")), "-0.5");
    EXPECT_EQ(kept(Numeric, Value(7)), "7");
    EXPECT_EQ(kept(Numeric, Value(true)), "-1");
    EXPECT_EQ(kept(Numeric, money(12345)), "1.23");
    EXPECT_EQ(kept(Numeric, decimal("1234567890123456.78")), "1234567890123456.78");
    EXPECT_EQ(kept(Numeric, decimal("12345678901234567")), error(ErrorCode::Overflow));
    EXPECT_EQ(kept(Date, decimal("2.5")), kept(Date, date(2.5)));
    EXPECT_EQ(kept(Date, bytes()), error(ErrorCode::TypeMismatch));
}

TEST(FitToColumn, WholeNumbersAndMarksRefuseWhatIsNone) {
    using enum jet::Type;
    EXPECT_EQ(kept(Long, decimal("41.6")), "42");
    EXPECT_EQ(kept(Long, date(3)), "3");
    EXPECT_EQ(kept(Long, bytes()), error(ErrorCode::TypeMismatch));
    EXPECT_EQ(kept(YesNo, money(1)), "True");
    EXPECT_EQ(kept(YesNo, decimal("0")), "False");
    EXPECT_EQ(kept(YesNo, Value(QStringLiteral("forse"))), error(ErrorCode::TypeMismatch));
}

TEST(FitToColumn, GuidsAreTakenInTheirUsualForm) {
    using enum jet::Type;
    EXPECT_EQ(kept(Guid, Value(QString::fromLatin1(guid).toLower())), guid);
    EXPECT_EQ(kept(Guid, Value(QStringLiteral("{00000000-0000-0000-0000-000000000000}"))),
              "{00000000-0000-0000-0000-000000000000}");
    EXPECT_EQ(kept(Guid, Value(QStringLiteral("0F8FAD5B"))), error(ErrorCode::TypeMismatch));
    EXPECT_EQ(kept(Guid, Value(1)), error(ErrorCode::TypeMismatch));
}

TEST_F(ColumnTypesTest, EveryTypeIsTheSameBesideAnExpression) {
    expectTheRow(open("SELECT * FROM [misti]"));
    const Recordset beside = open("SELECT importo, saldo, chiave, quando, pezzi, id + 1 AS n FROM [misti]");
    expectTheRow(beside);
    EXPECT_EQ(beside.value(u"n").value(), Value(2));
}

TEST_F(ColumnTypesTest, StatementsCopyEveryType) {
    EXPECT_EQ(run("INSERT INTO [misti] (importo, saldo, chiave, quando, pezzi) "
                  "SELECT importo, saldo, chiave, quando, pezzi FROM [misti]"),
              1);
    Recordset rows = open("SELECT * FROM [misti] ORDER BY id");
    expectTheRow(rows);
    ASSERT_TRUE(rows.moveNext().ok());
    expectTheRow(rows);
}

TEST_F(ColumnTypesTest, StatementsWriteGuidsAndMoney) {
    run("UPDATE [misti] SET chiave = '{00000000-0000-0000-0000-000000000001}', importo = 2.5");
    const Recordset rows = open("SELECT * FROM [misti]");
    EXPECT_EQ(rows.value(u"chiave").value(), Value(QStringLiteral("{00000000-0000-0000-0000-000000000001}")));
    EXPECT_EQ(rows.value(u"importo").value(), money(25000));
    EXPECT_EQ(failure("UPDATE [misti] SET chiave = 'nessuna'"), ErrorCode::TypeMismatch);
}

TEST_F(ColumnTypesTest, BinaryValueTooLongForItsColumnIsRefused) {
    jettables::addTable(path.toStdString(), "stretti", {{"pezzi", jet::Type::Binary, 3}}, {});
    EXPECT_EQ(failure("INSERT INTO [stretti] (pezzi) SELECT pezzi FROM [misti]"), ErrorCode::FieldTooSmall);
    EXPECT_EQ(column("SELECT pezzi FROM [stretti]", "pezzi"), "");
}

TEST_F(ColumnTypesTest, TableThatUsesEveryNameOfARowsIdentityIsReadAll) {
    jettables::addTable(path.toStdString(), "nomi",
                        {{"rowid", jet::Type::Long}, {"oid", jet::Type::Long}, {"_rowid_", jet::Type::Long}},
                        {});
    run("INSERT INTO [nomi] (rowid, oid, _rowid_) VALUES (7, 8, 9)");
    run("INSERT INTO [nomi] (rowid, oid, _rowid_) VALUES (1, 2, 3)");
    EXPECT_EQ(column("SELECT * FROM [nomi] ORDER BY oid", "rowid"), "1|7");
    EXPECT_EQ(column("SELECT * FROM [nomi] ORDER BY oid", "_rowid_"), "3|9");
    EXPECT_EQ(column("SELECT oid FROM [nomi] WHERE rowid = 7", "oid"), "8");
}

}  // namespace column_types_test
