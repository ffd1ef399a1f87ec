// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/Value.h"

#include <gtest/gtest.h>

namespace value_test {

namespace {

using ado::Value;

const QLocale italian(QStringLiteral("it_IT"));
const QLocale english(QStringLiteral("en_US"));

std::string text(const Value& value, const QLocale& locale) {
    const Result<QString> result = value.toText(locale);
    return result.ok() ? result.value().toStdString()
                       : "error " + std::to_string(static_cast<int>(result.status().code()));
}

Value date(double days) {
    return Value(jet::Value(jet::Date{days}));
}
Value money(int64_t tenThousandths) {
    return Value(jet::Value(jet::Currency{tenThousandths}));
}
Value decimal(const char* digits) {
    return Value(jet::Value(jet::Decimal{digits}));
}

}  // namespace

TEST(Value, NullIsNotTheEmptyText) {
    EXPECT_TRUE(Value().isNull());
    EXPECT_FALSE(Value(QString()).isNull());
    EXPECT_NE(Value(), Value(QString()));
}

TEST(Value, ReadingNullAsTextOrNumberFails) {
    EXPECT_EQ(Value().toText(italian).status().code(), ErrorCode::InvalidNull);
    EXPECT_EQ(Value().toInteger().status().code(), ErrorCode::InvalidNull);
    EXPECT_EQ(Value().toBool().status().code(), ErrorCode::InvalidNull);
    EXPECT_EQ(Value().toTextOrEmpty(italian), QString());
}

TEST(Value, AYesNoIsWordedInTheUsersLanguage) {
    EXPECT_EQ(text(Value(true), italian), "Vero");
    EXPECT_EQ(text(Value(false), italian), "Falso");
    EXPECT_EQ(text(Value(true), english), "True");
    EXPECT_EQ(text(Value(false), QLocale(QStringLiteral("fr_FR"))), "False");
}

TEST(Value, TrueIsMinusOne) {
    EXPECT_EQ(Value(true).toInteger().value(), -1);
    EXPECT_EQ(Value(false).toInteger().value(), 0);
}

TEST(Value, NumbersFollowTheLocaleWithoutGrouping) {
    EXPECT_EQ(text(Value(1234567), italian), "1234567");
    EXPECT_EQ(text(Value(-1234.5), italian), "-1234,5");
    EXPECT_EQ(text(Value(-1234.5), english), "-1234.5");
    EXPECT_EQ(text(Value(0.1), italian), "0,1");
    EXPECT_EQ(text(Value(1.0 / 3), italian), "0,333333333333333");
    EXPECT_EQ(text(Value(static_cast<double>(0.1f)), italian), "0,1");
    EXPECT_EQ(text(Value(1e20), english), "1E+20");
}

TEST(Value, CurrencyShowsOnlyTheDecimalsItHas) {
    EXPECT_EQ(text(money(125000), italian), "12,5");
    EXPECT_EQ(text(money(-1), italian), "-0,0001");
    EXPECT_EQ(text(money(120000), english), "12");
    EXPECT_EQ(text(money(std::numeric_limits<int64_t>::min()), english), "-922337203685477.5808");
}

TEST(Value, DatesShowTheTimeOnlyWhereThereIsOne) {
    EXPECT_EQ(text(date(38346), italian), "25/12/2004");
    EXPECT_EQ(text(date(38346.604166666664), italian), "25/12/2004 14:30:00");
    EXPECT_EQ(text(date(0.25), italian), "06:00:00");
    EXPECT_EQ(text(date(-1.25), italian), "29/12/1899 06:00:00");
    EXPECT_EQ(text(date(38345.9999999), italian), "25/12/2004");
    EXPECT_EQ(date(1e300).toText(italian).status().code(), ErrorCode::TypeMismatch);
    EXPECT_EQ(date(std::nan("")).toText(italian).status().code(), ErrorCode::TypeMismatch);
}

TEST(Value, HalvesRoundToEven) {
    EXPECT_EQ(Value(0.5).toInteger().value(), 0);
    EXPECT_EQ(Value(1.5).toInteger().value(), 2);
    EXPECT_EQ(money(25000).toInteger().value(), 2);
    EXPECT_EQ(Value(1e300).toInteger().status().code(), ErrorCode::Overflow);
}

TEST(Value, MoneyDatesAndLongNumbersBecomeTheNearestWholeNumber) {
    EXPECT_EQ(money(-35000).toInteger().value(), -4);
    EXPECT_EQ(date(38346.75).toInteger().value(), 38347);
    EXPECT_EQ(decimal("-12.5").toInteger().value(), -12);
    EXPECT_EQ(decimal("99999999999999999999").toInteger().status().code(), ErrorCode::Overflow);
    EXPECT_EQ(date(1e300).toInteger().status().code(), ErrorCode::Overflow);
}

TEST(Value, EveryNumberButZeroIsTrue) {
    for (const Value& some : {Value(0.25), money(1), date(-0.5), decimal("0.1"), Value(QStringLiteral("-2"))})
        EXPECT_TRUE(some.toBool().value()) << text(some, english);
    for (const Value& none : {Value(0.0), money(0), date(0), decimal("0"), Value(QStringLiteral(" 0 "))})
        EXPECT_FALSE(none.toBool().value()) << text(none, english);
    EXPECT_EQ(Value(QStringLiteral("dodici")).toBool().status().code(), ErrorCode::TypeMismatch);
}

TEST(Value, EveryKindComesBackAsItWasRead) {
    for (const jet::Value& read :
         {jet::Value(), jet::Value(true), jet::Value(int64_t{7}), jet::Value(2.5), jet::Value(jet::Date{1.5}),
          jet::Value(jet::Currency{-1}), jet::Value(std::string("a")), jet::Value(jet::Bytes{0, 255}),
          jet::Value(jet::Decimal{"1234567890123456789.5"})})
        EXPECT_EQ(Value(read).raw(), read);
}

TEST(Value, TextsAreReadAsNumbers) {
    EXPECT_EQ(Value(QStringLiteral(" 12 ")).toInteger().value(), 12);
    EXPECT_EQ(Value(QStringLiteral("dodici")).toInteger().status().code(), ErrorCode::TypeMismatch);
    EXPECT_TRUE(Value(QStringLiteral("Vero")).toBool().value());
    EXPECT_FALSE(Value(QStringLiteral("false")).toBool().value());
    EXPECT_TRUE(Value(-1).toBool().value());
}

TEST(Value, BinaryDataIsNeitherTextNorNumber) {
    const Value binary(jet::Value(jet::Bytes{1, 2}));
    EXPECT_EQ(binary.toText(italian).status().code(), ErrorCode::TypeMismatch);
    EXPECT_EQ(binary.toInteger().status().code(), ErrorCode::TypeMismatch);
    EXPECT_EQ(binary.toBool().status().code(), ErrorCode::TypeMismatch);
}

}  // namespace value_test
