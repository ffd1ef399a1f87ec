// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/DateText.h"

#include <cmath>
#include <QDate>
#include <QRegularExpression>
#include <QTime>

namespace ado {

namespace {

constexpr int secondsOfDay = 24 * 60 * 60;
const QDate firstDay(1899, 12, 30);

QDate dateOf(int first, int second, int third, bool yearFirst, DateOrder order) {
    int year = yearFirst ? first : third;
    if (!yearFirst && year < 100) year += year < 30 ? 2000 : 1900;
    if (yearFirst) return QDate(year, second, third);
    const QDate monthFirst(year, first, second);
    const QDate dayFirst(year, second, first);
    const QDate& wanted = order == DateOrder::MonthFirst ? monthFirst : dayFirst;
    return wanted.isValid() ? wanted : order == DateOrder::MonthFirst ? dayFirst : monthFirst;
}

}  // namespace

std::optional<QString> dateText(double days, const QLocale& locale) {
    constexpr double earliest = -657434;  // 100-01-01
    constexpr double behind = 2958466;    // the day after 9999-12-31
    if (!(days >= earliest && days < behind)) return std::nullopt;
    auto wholeDays = static_cast<qint64>(days);
    auto seconds =
        static_cast<int>(std::lround(std::fabs(days - static_cast<double>(wholeDays)) * secondsOfDay));
    if (seconds == secondsOfDay) {
        seconds = 0;
        ++wholeDays;
    }
    QString dateFormat = locale.dateFormat(QLocale::ShortFormat);
    if (!dateFormat.contains(QLatin1String("yyyy")))
        dateFormat.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    QString timeFormat = locale.timeFormat(QLocale::LongFormat);
    timeFormat.remove(QLatin1Char('t'));
    const QString date = locale.toString(firstDay.addDays(wholeDays), dateFormat);
    const QString time = locale.toString(QTime(0, 0).addSecs(seconds), timeFormat).trimmed();
    if (seconds == 0) return date;
    return wholeDays == 0 ? time : date + QLatin1Char(' ') + time;
}

DateOrder dateOrder(const QLocale& locale) {
    const QString format = locale.dateFormat(QLocale::ShortFormat);
    return format.indexOf(QLatin1Char('M')) < format.indexOf(QLatin1Char('d')) ? DateOrder::MonthFirst
                                                                               : DateOrder::DayFirst;
}

std::optional<double> readDate(const QString& text, DateOrder order) {
    static const QRegularExpression shape(
        QStringLiteral("\\A\\s*(?:([0-9]{1,4})([-/.])([0-9]{1,2})\\2([0-9]{1,4}))?"
                       "(?:(?:\\A|(?<=[0-9])[ T]|\\s)\\s*([0-9]{1,2})[:.]([0-9]{2})(?:[:.]([0-9]{2}))?"
                       "\\s*([AaPp][Mm])?)?\\s*\\z"));
    const QRegularExpressionMatch match = shape.match(text);
    const bool hasDate = match.hasMatch() && !match.captured(1).isEmpty();
    const bool hasTime = match.hasMatch() && !match.captured(5).isEmpty();
    if (!hasDate && !hasTime) return std::nullopt;
    const auto number = [&](int group) { return match.captured(group).toInt(); };

    double days = 0;
    if (hasDate) {
        const bool yearFirst = match.captured(1).size() > 2;
        const QDate date = dateOf(number(1), number(3), number(4), yearFirst, order);
        if (!date.isValid() || date.year() < 100 || date.year() > 9999) return std::nullopt;
        days = static_cast<double>(firstDay.daysTo(date));
    }
    int hour = number(5);
    if (const QString half = match.captured(8).toUpper(); !half.isEmpty()) {
        if (hour < 1 || hour > 12) return std::nullopt;
        hour = hour % 12 + (half == QLatin1String("PM") ? 12 : 0);
    }
    const QTime time(hour, number(6), number(7));
    if (!time.isValid()) return std::nullopt;
    const double fraction = static_cast<double>(QTime(0, 0).secsTo(time)) / secondsOfDay;
    return days < 0 ? days - fraction : days + fraction;
}

}  // namespace ado
