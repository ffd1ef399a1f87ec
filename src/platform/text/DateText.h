// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

namespace text {

/// Date and time of day, to the second, in the short form of the locale, such as "21/11/26 07:22:45".
QString dateTimeText(const QDateTime& moment, const QLocale& locale = QLocale());

}  // namespace text
