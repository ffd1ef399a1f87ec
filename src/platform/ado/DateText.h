// SPDX-License-Identifier: GPL-3.0-or-later
// Dates as texts that a user of a locale writes, and back.
#pragma once

#include <optional>
#include <QLocale>
#include <QString>

namespace ado {

/// Dates are days since 1899-12-30, the time of day in the fraction (also of a negative number, where it
/// still counts upwards from midnight).

/// The date as a user of `locale` writes it: the year in four digits, the time only where there is one, the
/// date only where it is not the first day. Nothing for what lies outside the years 100 to 9999.
std::optional<QString> dateText(double days, const QLocale& locale);

/// Which of two numbers is the month; a text where only the other way round is possible is read so.
enum class DateOrder { MonthFirst, DayFirst };

/// How users of `locale` write dates.
DateOrder dateOrder(const QLocale& locale);

/// Reads `d/m/y`, `m/d/y` or `y/m/d` with slashes, hyphens or points, then a time, or either alone: `h:m`,
/// `h:m:s`, with points as well, with AM or PM. Years of two digits are those from 1930 to 2029.
std::optional<double> readDate(const QString& text, DateOrder order);

}  // namespace ado
