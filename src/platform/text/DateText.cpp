// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/DateText.h"

namespace text {

QString dateTimeText(const QDateTime& moment, const QLocale& locale) {
    // The short time of most locales ends at the minutes: the seconds follow with the same separator.
    QString timeFormat = locale.timeFormat(QLocale::ShortFormat);
    const auto minutes = timeFormat.indexOf(QLatin1String("mm"));
    if (minutes > 0 && !timeFormat.contains(u's')) {
        timeFormat.insert(minutes + 2, timeFormat.at(minutes - 1) + QLatin1String("ss"));
    }
    return locale.toString(moment.date(), QLocale::ShortFormat) + u' ' +
           locale.toString(moment.time(), timeFormat);
}

}  // namespace text
