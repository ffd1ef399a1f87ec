// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/NumberText.h"

#include <gtest/gtest.h>

#include "platform/text/DateText.h"
#include "support/Vectors.h"

namespace number_text_test {

namespace {

const QLocale italian(QLocale::Italian, QLocale::Italy);
const QLocale english(QLocale::English, QLocale::UnitedStates);

double number(QStringView text, const QLocale& locale = italian) {
    const Result<double> result = text::numberFromText(text, locale);
    EXPECT_TRUE(result.ok()) << text.toString().toStdString();
    return result.ok() ? result.value() : -999;
}

}  // namespace

TEST(LeadingNumber, StopsAtTheFirstCharacterThatIsNone) {
    EXPECT_EQ(text::leadingNumber(u"0.5"), 0.5);
    EXPECT_EQ(text::leadingNumber(u"10 "), 10);
    EXPECT_EQ(text::leadingNumber(u"5  secondi"), 5);
    EXPECT_EQ(text::leadingNumber(u"  12x9"), 12);
    EXPECT_EQ(text::leadingNumber(u"-1.5.2"), -1.5);
    EXPECT_EQ(text::leadingNumber(u"2,5"), 2);
    EXPECT_EQ(text::leadingNumber(u".5"), 0.5);
}

TEST(LeadingNumber, IsZeroWhereThereIsNone) {
    for (const QStringView text : {u"", u"   ", u"abc", u"-", u".", u"+x"})
        EXPECT_EQ(text::leadingNumber(text), 0);
}

TEST(NumberFromText, TakesSignDecimalsAndGroupsOfTheLocale) {
    EXPECT_EQ(number(u"50"), 50);
    EXPECT_EQ(number(u"  2,5 "), 2.5);
    EXPECT_EQ(number(u"-7"), -7);
    EXPECT_EQ(number(u"+7"), 7);
    EXPECT_EQ(number(u"1.234.567,25"), 1234567.25);
    EXPECT_EQ(number(u",5"), 0.5);
    EXPECT_EQ(number(u"5,"), 5);
    EXPECT_EQ(number(u"1,234.5", english), 1234.5);
    EXPECT_EQ(number(u"000012"), 12);
    EXPECT_EQ(number(u"999999999999999"), 999999999999999.0);
    EXPECT_EQ(number(u"1234567890123456789"), 1234567890123456789.0);
}

TEST(NumberFromText, RefusesEverythingElse) {
    for (const QStringView text :
         {u"",       u" ",        u"-",     u",",         u"cinque", u"5 minuti", u"1 2", u"2.5",  u"1.23",
          u"1.2345", u"1234.567", u"1,2,3", u"1,234.567", u"--1",    u"1-",       u"1e3", u"&H10", u"0x10",
          u"\t5",    u"5\n",      u"٥",     u"NaN",       u"inf",    u"€5",       u".123"}) {
        EXPECT_FALSE(text::isNumeric(text, italian)) << text.toString().toStdString();
        const Result<double> result = text::numberFromText(text, italian);
        EXPECT_EQ(result.status().code(), ErrorCode::TypeMismatch);
        EXPECT_FALSE(result.status().text().isEmpty());
    }
}

TEST(NumberFromText, TooManyDigitsOverflow) {
    EXPECT_EQ(text::numberFromText(QString(400, u'9'), italian).status().code(), ErrorCode::Overflow);
    EXPECT_TRUE(text::numberFromText(QString(400, u'0'), italian).ok());
}

TEST(WholeNumbers, HalvesGoToTheEvenNeighbour) {
    EXPECT_EQ(text::toInt32(0.5).value(), 0);
    EXPECT_EQ(text::toInt32(1.5).value(), 2);
    EXPECT_EQ(text::toInt32(2.5).value(), 2);
    EXPECT_EQ(text::toInt32(-2.5).value(), -2);
    EXPECT_EQ(text::toInt32(2.6).value(), 3);
    EXPECT_EQ(text::int32FromText(u"2,6", italian).value(), 3);
}

TEST(WholeNumbers, WhatTheTypeCannotContainOverflows) {
    EXPECT_EQ(text::toInt16(32767).value(), 32767);
    EXPECT_EQ(text::toInt16(-32768).value(), -32768);
    EXPECT_EQ(text::toInt16(32767.4).value(), 32767);
    EXPECT_EQ(text::toInt16(32768).status().code(), ErrorCode::Overflow);
    EXPECT_EQ(text::toInt16(-32769).status().code(), ErrorCode::Overflow);
    EXPECT_EQ(text::toInt32(2147483647.0).value(), 2147483647);
    EXPECT_EQ(text::toInt32(2147483648.0).status().code(), ErrorCode::Overflow);
    EXPECT_EQ(text::toInt32(std::numeric_limits<double>::quiet_NaN()).status().code(), ErrorCode::Overflow);
    EXPECT_EQ(text::int16FromText(u"40.000", italian).status().code(), ErrorCode::Overflow);
    EXPECT_EQ(text::int16FromText(u"x", italian).status().code(), ErrorCode::TypeMismatch);
}

TEST(FormatGrouped, GroupsAsTheLocaleDoesWithoutDecimals) {
    EXPECT_EQ(text::formatGrouped(0, italian), QStringLiteral("0"));
    EXPECT_EQ(text::formatGrouped(1234567, italian), QStringLiteral("1.234.567"));
    EXPECT_EQ(text::formatGrouped(1234567, english), QStringLiteral("1,234,567"));
    EXPECT_EQ(text::formatGrouped(2.5, italian), QStringLiteral("2"));
    EXPECT_EQ(text::formatGrouped(-1, italian), QStringLiteral("-1"));
}

TEST(DateTimeText, ShowsTheShortFormsToTheSecond) {
    const QDateTime moment(QDate(2026, 3, 9), QTime(7, 5, 8));
    EXPECT_EQ(text::dateTimeText(moment, italian), QStringLiteral("09/03/26 07:05:08"));
    const QString american = text::dateTimeText(moment, english);
    EXPECT_TRUE(american.startsWith(QStringLiteral("3/9/26 7:05:08"))) << american.toStdString();
}

}  // namespace number_text_test
