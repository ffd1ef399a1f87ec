// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/Value.h"

#include <array>
#include <cmath>
#include <limits>

#include "platform/ado/DateText.h"

namespace ado {

namespace {

const Status nullValue{ErrorCode::InvalidNull, "Uso non valido di Null."_tr};
const Status mismatch{ErrorCode::TypeMismatch, "Tipo non corrispondente."_tr};
const Status overflow{ErrorCode::Overflow, "Overflow."_tr};

/// As many digits as the number needs: a single that was widened shows those of the single.
QString realText(double number, const QLocale& locale) {
    if (std::fabs(number) < 1e15 && number == std::trunc(number)) return locale.toString(number, 'f', 0);
    const auto narrow = static_cast<float>(number);
    if (static_cast<double>(narrow) == number)
        for (int digits = 1; digits <= std::numeric_limits<float>::max_digits10; ++digits)
            if (QString::number(number, 'g', digits).toFloat() == narrow)
                return locale.toString(number, 'G', digits);
    return locale.toString(number, 'G', 15);
}

QString currencyText(int64_t tenThousandths, const QLocale& locale) {
    const auto magnitude = tenThousandths < 0 ? 0 - static_cast<uint64_t>(tenThousandths)
                                              : static_cast<uint64_t>(tenThousandths);
    QString text = locale.toString(static_cast<qulonglong>(magnitude / 10000));
    if (tenThousandths < 0) text.prepend(locale.negativeSign());
    QString decimals = QStringLiteral("%1").arg(magnitude % 10000, 4, 10, QLatin1Char('0'));
    while (decimals.endsWith(QLatin1Char('0')))
        decimals.chop(1);
    return decimals.isEmpty() ? text : text + locale.decimalPoint() + decimals;
}

QString digitsOf(uint64_t number) {
    std::array<QChar, std::numeric_limits<uint64_t>::digits10 + 1> digits;
    size_t first = digits.size();
    do {
        digits[--first] = QChar(static_cast<char16_t>(u'0' + number % 10));
        number /= 10;
    } while (number != 0);
    return QString(&digits[first], static_cast<qsizetype>(digits.size() - first));
}

Result<qint64> rounded(double number) {
    const double whole = std::nearbyint(number);
    if (!(std::fabs(whole) < 9.2e18)) return overflow;
    return static_cast<qint64>(whole);
}

}  // namespace

Value::Value(jet::Value value) {
    if (const auto* yes = std::get_if<bool>(&value)) {
        *this = *yes;
    } else if (const auto* whole = std::get_if<int64_t>(&value)) {
        *this = static_cast<long long>(*whole);
    } else if (const auto* real = std::get_if<double>(&value)) {
        *this = *real;
    } else if (const auto* date = std::get_if<jet::Date>(&value)) {
        m_type = Type::Date;
        m_whole = bitsOf(date->days);
    } else if (const auto* amount = std::get_if<jet::Currency>(&value)) {
        m_type = Type::Currency;
        m_whole = amount->tenThousandths;
    } else if (const auto* text = std::get_if<std::string>(&value)) {
        *this = QString::fromStdString(*text);
    } else if (const auto* decimal = std::get_if<jet::Decimal>(&value)) {
        m_type = Type::Decimal;
        m_text = QString::fromStdString(decimal->text);
    } else if (auto* bytes = std::get_if<jet::Bytes>(&value)) {
        m_type = Type::Binary;
        m_bytes = std::make_shared<const jet::Bytes>(std::move(*bytes));
    }
}

bool Value::operator==(const Value& other) const {
    if (m_type != other.m_type) return false;
    switch (m_type) {
        case Type::Null:
            return true;
        case Type::Real:
        case Type::Date:
            return real() == other.real();
        case Type::Text:
        case Type::Decimal:
            return m_text == other.m_text;
        case Type::Binary:
            return *m_bytes == *other.m_bytes;
        default:
            return m_whole == other.m_whole;
    }
}

jet::Value Value::raw() const {
    switch (m_type) {
        case Type::Null:
            break;
        case Type::YesNo:
            return m_whole != 0;
        case Type::Integer:
            return m_whole;
        case Type::Real:
            return real();
        case Type::Date:
            return jet::Date{real()};
        case Type::Currency:
            return jet::Currency{m_whole};
        case Type::Text:
            return m_text.toStdString();
        case Type::Decimal:
            return jet::Decimal{m_text.toStdString()};
        case Type::Binary:
            return *m_bytes;
    }
    return {};
}

std::optional<double> readNumber(const QString& written) {
    const QString text = written.trimmed();
    bool ok = false;
    double number = text.toDouble(&ok);
    if (!ok) number = QLocale().toDouble(text, &ok);
    if (!ok || !std::isfinite(number)) return std::nullopt;
    return number;
}

/// Whether this is a whole number that is written in the digits 0 to 9; else it may be too. Asked for each
/// number of a long list, for which the locale's own way takes fifteen times as long.
bool Value::isPlainNumber(const QLocale& locale) const {
    if (m_type != Type::Integer || m_whole < 0) return false;
    const QLocale::Language language = locale.language();
    return language == QLocale::Italian || language == QLocale::English || language == QLocale::C;
}

Result<QString> Value::toText(const QLocale& userLocale) const {
    if (type() == Type::Text) return m_text;
    if (isNull()) return nullValue;
    if (type() == Type::Binary) return mismatch;
    if (isPlainNumber(userLocale)) return digitsOf(static_cast<uint64_t>(m_whole));
    if (type() == Type::YesNo) {
        if (userLocale.language() == QLocale::Italian)
            return m_whole != 0 ? QStringLiteral("Vero") : QStringLiteral("Falso");
        return m_whole != 0 ? QStringLiteral("True") : QStringLiteral("False");
    }
    QLocale locale = userLocale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    switch (type()) {
        case Type::Integer:
            return locale.toString(static_cast<qlonglong>(m_whole));
        case Type::Real:
            return realText(real(), locale);
        case Type::Currency:
            return currencyText(m_whole, locale);
        case Type::Date:
            if (auto text = dateText(real(), locale)) return *text;
            return mismatch;
        case Type::Decimal: {
            QString text = m_text;
            if (text.startsWith(u'-')) text.replace(0, 1, locale.negativeSign());
            return text.replace(u'.', locale.decimalPoint());
        }
        default:
            return mismatch;
    }
}

QString Value::otherText(const QLocale& locale) const {
    if (isNull()) return {};
    if (isPlainNumber(locale)) return digitsOf(static_cast<uint64_t>(m_whole));
    Result<QString> text = toText(locale);
    return text.ok() ? std::move(text).value() : QString();
}

Result<qint64> Value::toInteger() const {
    switch (type()) {
        case Type::Null:
            return nullValue;
        case Type::YesNo:
            return m_whole != 0 ? -1 : 0;
        case Type::Integer:
            return static_cast<qint64>(m_whole);
        case Type::Real:
            return rounded(real());
        case Type::Currency:
            return rounded(static_cast<double>(m_whole) / 10000);
        case Type::Date:
            return rounded(real());
        case Type::Text: {
            const std::optional<double> number = readNumber(m_text);
            if (!number) return mismatch;
            return rounded(*number);
        }
        case Type::Decimal:
            return rounded(readNumber(m_text).value_or(0));
        case Type::Binary:
            break;
    }
    return mismatch;
}

Result<bool> Value::toBool() const {
    switch (type()) {
        case Type::Text: {
            const QString text = m_text.trimmed();
            const auto is = [&](const char* word) {
                return text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
            };
            if (is("Vero") || is("True")) return true;
            if (is("Falso") || is("False")) return false;
            const std::optional<double> number = readNumber(text);
            if (!number) return mismatch;
            return *number != 0;
        }
        case Type::Real:
            return real() != 0;
        case Type::Currency:
            return m_whole != 0;
        case Type::Date:
            return real() != 0;
        case Type::Decimal:
            return m_text != u"0";
        default: {
            const Result<qint64> number = toInteger();
            if (!number.ok()) return number.status();
            return number.value() != 0;
        }
    }
}

}  // namespace ado
