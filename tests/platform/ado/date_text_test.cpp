// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/DateText.h"

#include <gtest/gtest.h>

namespace date_text_test {

namespace {

using ado::DateOrder;

std::optional<double> read(const char* text, DateOrder order = DateOrder::DayFirst) {
    return ado::readDate(QString::fromLatin1(text), order);
}

}  // namespace

TEST(DateText, DatesAreReadInTheUsersOrderAndTheOtherWayWhereThatFails) {
    EXPECT_EQ(read("31/12/1899"), 1);
    EXPECT_EQ(read("1/2/1900"), 33);
    EXPECT_EQ(read("1/2/1900", DateOrder::MonthFirst), 3);
    EXPECT_EQ(read("12/31/1899"), 1);
    EXPECT_EQ(read("31.12.1899", DateOrder::MonthFirst), 1);
    EXPECT_EQ(read("1899-12-31"), 1);
    EXPECT_EQ(read(" 1899/12/31 "), 1);
    EXPECT_EQ(read("29/02/2000"), 36585);
}

TEST(DateText, YearsOfTwoDigitsAreThoseFrom1930To2029) {
    EXPECT_EQ(read("1/1/30"), read("1/1/1930"));
    EXPECT_EQ(read("1/1/29"), read("1/1/2029"));
}

TEST(DateText, TheTimeIsTheFractionOfTheDay) {
    EXPECT_EQ(read("31/12/1899 06:00"), 1.25);
    EXPECT_EQ(read("31/12/1899 6.00.00"), 1.25);
    EXPECT_EQ(read("18:00"), 0.75);
    EXPECT_EQ(read("6:00 PM"), 0.75);
    EXPECT_EQ(read("12:00 am"), 0);
    EXPECT_EQ(read("1899-12-31T12:00:00"), 1.5);
    EXPECT_EQ(read("29/12/1899 6:00"), -1.25);
}

TEST(DateText, WhatIsNoDateIsNotRead) {
    for (const char* text :
         {"", "x", "31/12", "31/02/2000", "1/13/2000 25:00", "31-12/1899", "1/1/99999", "1.5", "24:00",
          "13:00 PM", "0:00 PM", "31/12/1899 6", "31/12/1899x", "12/31/189912:00"})
        EXPECT_FALSE(read(text)) << text;
}

TEST(DateText, WhatWasShownIsReadBack) {
    for (const QLocale& locale : {QLocale(QLocale::Italian, QLocale::Italy),
                                  QLocale(QLocale::English, QLocale::UnitedStates), QLocale(QLocale::German)})
        for (const double days : {1.0, 36585.0, 36585.75, 2958465.0, -657434.0}) {
            const auto text = ado::dateText(days, locale);
            ASSERT_TRUE(text);
            EXPECT_EQ(ado::readDate(*text, ado::dateOrder(locale)), days) << text->toStdString();
        }
    EXPECT_FALSE(ado::dateText(2958466, QLocale()));
    EXPECT_FALSE(ado::dateText(-657435, QLocale()));
}

}  // namespace date_text_test
