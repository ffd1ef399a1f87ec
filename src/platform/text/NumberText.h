// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <QLocale>
#include <QString>

#include "platform/Status.h"

/// Conversions between numbers and texts.
namespace text {

/// The number that a text begins with, with "." as decimal sign in every locale: blanks, a sign, digits, a
/// point and digits; what follows is ignored. 0 where there is none.
double leadingNumber(QStringView text);

/// Reads a whole text as a number of the locale: blanks at both ends, one sign in front, digits, the locale's
/// decimal sign, and its grouping sign where groups of three make sense; nothing else. TypeMismatch
/// otherwise.
Result<double> numberFromText(QStringView text, const QLocale& locale = QLocale());

bool isNumeric(QStringView text, const QLocale& locale = QLocale());

/// Whole numbers; a half goes to the even neighbour. Overflow where the type cannot represent the result.
Result<std::int16_t> toInt16(double number);
Result<std::int32_t> toInt32(double number);

/// numberFromText(), then the conversion above.
Result<std::int16_t> int16FromText(QStringView text, const QLocale& locale = QLocale());
Result<std::int32_t> int32FromText(QStringView text, const QLocale& locale = QLocale());

/// No decimals (a half goes to the even neighbour), with the digit grouping of the locale.
QString formatGrouped(double number, const QLocale& locale = QLocale());

}  // namespace text
