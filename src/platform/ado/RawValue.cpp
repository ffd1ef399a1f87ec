#include "platform/ado/RawValue.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <QUuid>

namespace ado {

namespace {

constexpr size_t guidLength = 16;

// A numeric: 0x80 or 0 for the sign, then the digits as a whole number of four groups, the highest first,
// each little endian.
constexpr size_t numericLength = 17;
constexpr size_t groups = 4;
constexpr size_t groupLength = 4;
constexpr uint8_t negative = 0x80;

/// In a stored GUID the first three parts are little endian numbers.
QByteArray swapped(const char* bytes) {
    QByteArray guid(bytes, guidLength);
    std::reverse(guid.begin(), guid.begin() + 4);
    std::reverse(guid.begin() + 4, guid.begin() + 6);
    std::reverse(guid.begin() + 6, guid.begin() + 8);
    return guid;
}

jet::Value numericValue(const jet::Bytes& bytes, int scale) {
    long double number = 0;
    uint64_t whole = 0;
    bool fits = true;
    for (size_t group = 0; group < groups; ++group) {
        const uint8_t* p = &bytes[1 + group * groupLength];
        const uint32_t digits = p[0] | p[1] << 8 | p[2] << 16 | static_cast<uint32_t>(p[3]) << 24;
        fits = fits && whole >> 31 == 0;
        whole = whole << 32 | digits;
        number = number * 4294967296.0L + digits;
    }
    const bool minus = bytes[0] & negative;
    if (scale == 0 && fits) {
        const auto value = static_cast<int64_t>(whole);
        return minus ? -value : value;
    }
    number /= std::pow(10.0L, static_cast<long double>(scale));
    return static_cast<double>(minus ? -number : number);
}

}  // namespace

jet::Value readable(const jet::Column& column, jet::Value stored) {
    const auto* bytes = std::get_if<jet::Bytes>(&stored);
    if (!bytes) return stored;
    if (column.type == jet::Type::Guid && bytes->size() == guidLength)
        return QUuid::fromRfc4122(swapped(reinterpret_cast<const char*>(bytes->data())))
            .toString()
            .toUpper()
            .toStdString();
    if (column.type == jet::Type::Numeric && bytes->size() == numericLength)
        return numericValue(*bytes, column.scale);
    return stored;
}

std::optional<jet::Bytes> guidBytes(const std::string& text) {
    const QUuid guid = QUuid::fromString(QString::fromStdString(text).trimmed());
    if (guid.isNull() && !QString::fromStdString(text).contains(QLatin1String("00000000-0000")))
        return std::nullopt;
    const QByteArray bytes = swapped(guid.toRfc4122().constData());
    return jet::Bytes(bytes.begin(), bytes.end());
}

std::optional<jet::Bytes> numericBytes(double number, const jet::Column& column) {
    const long double scaled =
        std::round(std::fabs(static_cast<long double>(number)) * std::pow(10.0L, column.scale));
    constexpr uint8_t mostDigits = 28;
    if (!(scaled < std::pow(10.0L, std::min(column.precision, mostDigits)))) return std::nullopt;
    jet::Bytes bytes(numericLength);
    bytes[0] = number < 0 && scaled > 0 ? negative : 0;
    long double rest = scaled;
    for (size_t group = groups; group-- > 0;) {
        const long double above = std::floor(rest / 4294967296.0L);
        const auto digits = static_cast<uint32_t>(rest - above * 4294967296.0L);
        for (size_t i = 0; i < groupLength; ++i)
            bytes[1 + group * groupLength + i] = static_cast<uint8_t>(digits >> 8 * i);
        rest = above;
    }
    return bytes;
}

}  // namespace ado
