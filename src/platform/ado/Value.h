// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QLocale>
#include <QString>
#include <utility>

#include "platform/jet/Value.h"
#include "platform/Status.h"

namespace ado {

/// One field of a row, as a Recordset returns and takes it. Null is a value of its own, distinct from
/// the empty text.
class Value {
  public:
    enum class Type { Null, YesNo, Integer, Real, Currency, Date, Text, Binary, Decimal };

    Value() = default;  ///< Null
    Value(bool yesNo) : m_value(yesNo) {}
    Value(int number) : m_value(static_cast<int64_t>(number)) {}
    Value(long number) : m_value(static_cast<int64_t>(number)) {}
    Value(long long number) : m_value(static_cast<int64_t>(number)) {}
    Value(double number) : m_value(number) {}
    Value(QString text) : m_value(std::string()), m_text(std::move(text)) {}
    explicit Value(QLatin1String text) : m_value(std::string()), m_text(text) {}
    template <class T>
    Value(const T*) = delete;  // would silently become a yes/no
    explicit Value(jet::Value value);

    Type type() const {
        // in the order of the alternatives of jet::Value
        static constexpr Type types[] = {Type::Null,     Type::YesNo, Type::Integer, Type::Real,   Type::Date,
                                         Type::Currency, Type::Text,  Type::Binary,  Type::Decimal};
        return types[m_value.index()];
    }
    bool isNull() const { return type() == Type::Null; }

    /// The value as a user of `locale` writes it: texts as they are, a yes/no as "Vero" or "Falso" in Italian
    /// and "True" or "False" elsewhere, numbers without grouping, currencies and dates in the locale's form
    /// (a date without time of day shows only the date). Fails with InvalidNull for Null, TypeMismatch for
    /// binary data.
    Result<QString> toText(const QLocale& locale = QLocale()) const;
    /// The same with the empty text for what has no text.
    QString toTextOrEmpty(const QLocale& locale = QLocale()) const&;
    QString toTextOrEmpty(const QLocale& locale = QLocale()) &&;
    /// True is -1; fractions round to the nearest, halves to even; texts are read as by readNumber(). Fails
    /// with InvalidNull, TypeMismatch or Overflow.
    Result<qint64> toInteger() const;
    /// Every number but 0 is true; texts have to be a number, "Vero", "Falso", "True" or "False". Fails like
    /// toInteger().
    Result<bool> toBool() const;

    jet::Value raw() const;
    bool operator==(const Value&) const = default;

  private:
    jet::Value m_value;  ///< of a text: the empty one
    QString m_text;      ///< is shown far more often than it is written
};

/// A number written plainly, with a point before the decimals, or else as users of the current locale write
/// it. Blanks around it do not count.
std::optional<double> readNumber(const QString& text);

}  // namespace ado
