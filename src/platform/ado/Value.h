// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <bit>
#include <cstdint>
#include <memory>
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
    Value(bool yesNo) : m_type(Type::YesNo), m_whole(yesNo) {}
    Value(int number) : m_type(Type::Integer), m_whole(number) {}
    Value(long number) : m_type(Type::Integer), m_whole(number) {}
    Value(long long number) : m_type(Type::Integer), m_whole(number) {}
    Value(double number) : m_type(Type::Real), m_whole(bitsOf(number)) {}
    Value(QString text) : m_type(Type::Text), m_text(std::move(text)) {}
    explicit Value(QLatin1String text) : m_type(Type::Text), m_text(text) {}
    template <class T>
    Value(const T*) = delete;  // would silently become a yes/no
    explicit Value(jet::Value value);

    /// A Null becomes that value, where it is: a list of cells costs as much to move as to make.
    void take(bool yesNo) {
        m_type = Type::YesNo;
        m_whole = yesNo;
    }
    void take(int64_t number) {
        m_type = Type::Integer;
        m_whole = number;
    }
    /// It becomes the text that `fill` makes of an empty one; where that returns false it is of no use.
    template <class Fill>
    bool takeText(const Fill& fill) {
        m_type = Type::Text;
        return fill(m_text);
    }

    Type type() const { return m_type; }
    bool isNull() const { return type() == Type::Null; }

    /// The value as a user of `locale` writes it: texts as they are, a yes/no as "Vero" or "Falso" in Italian
    /// and "True" or "False" elsewhere, numbers without grouping, currencies and dates in the locale's form
    /// (a date without time of day shows only the date). Fails with InvalidNull for Null, TypeMismatch for
    /// binary data.
    Result<QString> toText(const QLocale& locale = QLocale()) const;
    /// The same with the empty text for what has no text.
    QString toTextOrEmpty(const QLocale& locale = QLocale()) const& {
        return m_type == Type::Text ? m_text : otherText(locale);
    }
    QString toTextOrEmpty(const QLocale& locale = QLocale()) && {
        return m_type == Type::Text ? std::move(m_text) : otherText(locale);
    }
    /// True is -1; fractions round to the nearest, halves to even; texts are read as by readNumber(). Fails
    /// with InvalidNull, TypeMismatch or Overflow.
    Result<qint64> toInteger() const;
    /// Every number but 0 is true; texts have to be a number, "Vero", "Falso", "True" or "False". Fails like
    /// toInteger().
    Result<bool> toBool() const;

    jet::Value raw() const;
    bool operator==(const Value& other) const;

  private:
    static int64_t bitsOf(double number) { return std::bit_cast<int64_t>(number); }
    double real() const { return std::bit_cast<double>(m_whole); }
    bool isPlainNumber(const QLocale& locale) const;
    QString otherText(const QLocale& locale) const;

    // Beside each other rather than in a variant, and few of them: a list of cells is made and moved faster
    // than it is read.
    Type m_type = Type::Null;
    /// Of a yes/no 0 or 1, a whole number, ten-thousandths of a currency; the bits of a real number, or of
    /// the days of a date.
    int64_t m_whole = 0;
    QString m_text;  ///< a text, or a decimal written out
    std::shared_ptr<const jet::Bytes> m_bytes;
};

/// A number written plainly, with a point before the decimals, or else as users of the current locale write
/// it. Blanks around it do not count.
std::optional<double> readNumber(const QString& text);

}  // namespace ado
