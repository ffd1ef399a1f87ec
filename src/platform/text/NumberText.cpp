// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/NumberText.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/text/Blanks.h"
#include "platform/text/Words.h"

namespace text {

namespace {

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

qsizetype countDigits(QStringView text) {
    qsizetype count = 0;
    while (count < text.size() && isDigit(text[count]))
        ++count;
    return count;
}

QStringView takeDigits(QStringView& rest) {
    const auto count = countDigits(rest);
    const QStringView digits = rest.first(count);
    rest = rest.mid(count);
    return digits;
}

// Takes the sign in front; true for a minus.
bool takeSign(QStringView& rest) {
    const bool negative = rest.startsWith(u'-');
    if (negative || rest.startsWith(u'+')) rest = rest.mid(1);
    return negative;
}

double parse(bool negative, QStringView whole, QStringView decimals) {
    const double number = QString(u'0' + whole.toString() + u'.' + decimals.toString() + u'0').toDouble();
    return negative ? -number : number;
}

Status typeMismatch() {
    return {ErrorCode::TypeMismatch, Words::tr("Tipo non corrispondente")};
}
Status overflow() {
    return {ErrorCode::Overflow, Words::tr("Overflow")};
}

template <class Integer>
Result<Integer> toInteger(double number) {
    const double rounded = std::nearbyint(number);  // the default rounding mode: halves to even
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max())) {
        return overflow();
    }
    return static_cast<Integer>(rounded);
}

template <class Integer>
Result<Integer> integerFromText(QStringView text, const QLocale& locale) {
    const Result<double> number = numberFromText(text, locale);
    if (!number.ok()) return number.status();
    return toInteger<Integer>(number.value());
}

}  // namespace

double leadingNumber(QStringView text) {
    QStringView rest = trimBlanks(text);
    const bool negative = takeSign(rest);
    const QStringView whole = takeDigits(rest);
    QStringView decimals;
    if (rest.startsWith(u'.')) {
        rest = rest.mid(1);
        decimals = takeDigits(rest);
    }
    return parse(negative, whole, decimals);
}

Result<double> numberFromText(QStringView text, const QLocale& locale) {
    // A port, a switch: a whole number is the same in each locale, and exact.
    constexpr qsizetype exactDigits = 15;
    if (!text.isEmpty() && text.size() <= exactDigits && std::all_of(text.begin(), text.end(), isDigit)) {
        double number = 0;
        for (const QChar digit : text)
            number = number * 10 + (digit.unicode() - u'0');
        return number;
    }
    const QString decimalSign = locale.decimalPoint();
    const QString groupSign = locale.groupSeparator();
    QStringView rest = trimBlanks(text);
    const bool negative = takeSign(rest);
    QString whole = takeDigits(rest).toString();
    if (!groupSign.isEmpty() && !whole.isEmpty() && whole.size() <= 3) {
        while (rest.startsWith(groupSign)) {
            rest = rest.mid(groupSign.size());
            const QStringView group = takeDigits(rest);
            if (group.size() != 3) return typeMismatch();
            whole += group;
        }
    }
    QStringView decimals;
    if (rest.startsWith(decimalSign)) {
        rest = rest.mid(decimalSign.size());
        decimals = takeDigits(rest);
    }
    if (!rest.isEmpty() || (whole.isEmpty() && decimals.isEmpty())) return typeMismatch();
    const double number = parse(negative, whole, decimals);
    if (!std::isfinite(number)) return overflow();
    return number;
}

bool isNumeric(QStringView text, const QLocale& locale) {
    return numberFromText(text, locale).ok();
}

Result<std::int16_t> toInt16(double number) {
    return toInteger<std::int16_t>(number);
}
Result<std::int32_t> toInt32(double number) {
    return toInteger<std::int32_t>(number);
}

Result<std::int16_t> int16FromText(QStringView text, const QLocale& locale) {
    return integerFromText<std::int16_t>(text, locale);
}
Result<std::int32_t> int32FromText(QStringView text, const QLocale& locale) {
    return integerFromText<std::int32_t>(text, locale);
}

QString formatGrouped(double number, const QLocale& locale) {
    return locale.toString(std::nearbyint(number), 'f', 0);
}

}  // namespace text
