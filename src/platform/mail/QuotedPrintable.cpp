// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/QuotedPrintable.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "platform/mail/OctetGroup.h"

namespace mail {
namespace {

constexpr int lineRoom = 75;  // one less than the limit: room for the "=" of a soft line break

enum class Kind : unsigned char { Literal, Blank, LineEnd, Encoded };

constexpr std::array<Kind, 256> kinds = [] {
    std::array<Kind, 256> table{};
    table.fill(Kind::Encoded);
    for (int c = '!'; c <= '~'; ++c)
        table[static_cast<std::size_t>(c)] = Kind::Literal;
    table['='] = Kind::Encoded;
    table[' '] = table['\t'] = table['\0'] = Kind::Blank;
    table['\r'] = table['\n'] = Kind::LineEnd;
    return table;
}();

Kind kindOf(char c) {
    return kinds[static_cast<unsigned char>(c)];
}

// Copies sixteen octets; returns how many of them come before the first that is outside the range from the
// blank to "~" or is "=".
std::ptrdiff_t copyGroup(char* to, const char* from) {
    const Group octets = groupAt(from);
    std::memcpy(to, &octets, groupSize);
    // Those with the highest bit are negative. Each octet of the result is all ones or zero.
    const Group others = (octets < Group{} + ' ') | (octets == Group{} + '\x7F') | (octets == Group{} + '=');
    const auto halves = halvesOf(others);
    if ((halves[0] | halves[1]) == 0) return groupSize;
    constexpr auto before = [](std::uint64_t half) {
        return (std::endian::native == std::endian::big ? std::countl_zero(half) : std::countr_zero(half)) /
               8;
    };
    return halves[0] != 0 ? before(halves[0]) : 8 + before(halves[1]);
}

bool isPlain(char c) {
    return kindOf(c) == Kind::Literal || c == ' ';
}

// Copies what is plain up to `limit`, and octets of the same groups after it; returns its end.
const char* copyPlain(char* to, const char* at, const char* limit, const char* end) {
    while (at < limit && end - at >= groupSize) {
        const std::ptrdiff_t plain = copyGroup(to, at);
        at += plain;
        to += plain;
        if (plain != groupSize) return std::min(at, limit);
    }
    if (at >= limit) return limit;
    for (; at != limit && isPlain(*at); ++at)
        *to++ = *at;
    return at;
}

/// Writes into room that is large enough for the whole text, with a group to spare.
class Writer {
  public:
    explicit Writer(char* to) : m_to(to) {}

    void literal(char c) {
        makeRoom(1);
        *m_to++ = c;
        ++m_column;
    }

    void encoded(char c) {
        static constexpr char digits[] = "0123456789ABCDEF";
        const auto value = static_cast<unsigned char>(c);
        makeRoom(3);
        *m_to++ = '=';
        *m_to++ = digits[value >> 4];
        *m_to++ = digits[value & 15];
        m_column += 3;
    }

    /// Copies what is literal from `at` on, as far as the line has room; returns its end.
    const char* plain(const char* at, const char* end) {
        makeRoom(1);
        const char* const limit = at + std::min<std::ptrdiff_t>(lineRoom - m_column, end - at);
        const char* to = copyPlain(m_to, at, limit, end);
        // A blank in front of a line end is encoded
        const bool endsLine = to == end || kindOf(*to) == Kind::LineEnd;
        if (endsLine && to != at && to[-1] == ' ') --to;
        m_to += to - at;
        m_column += static_cast<int>(to - at);
        return to;
    }

    void lineEnd() {
        *m_to++ = '\r';
        *m_to++ = '\n';
        m_column = 0;
    }

    bool breaksBefore(int length) const { return m_column + length > lineRoom; }
    bool startsLine() const { return m_column == 0 || breaksBefore(1); }
    char* end() const { return m_to; }

  private:
    void makeRoom(int length) {
        if (!breaksBefore(length)) return;
        *m_to++ = '=';
        lineEnd();
    }

    char* m_to;
    int m_column = 0;
};

bool mustNotStartLine(const char* at, const char* end) {
    // a NUL becomes a blank
    return *at == '.' ||
           (end - at >= 5 && std::memcmp(at, "From", 4) == 0 && (at[4] == ' ' || at[4] == '\0'));
}

}  // namespace

void appendQuotedPrintable(QByteArray& out, const QByteArray& text) {
    const qsizetype before = out.size();
    // each octet three, and three more for a soft line break after each 24 of them
    out.resize(before + text.size() * 3 + text.size() / 8 + groupSize);
    Writer writer(out.data() + before);
    const char* const end = text.constData() + text.size();
    for (const char* at = text.constData(); at != end; ++at) {
        switch (kindOf(*at)) {
            case Kind::Literal:
                if (writer.startsLine() && mustNotStartLine(at, end))
                    writer.encoded(*at);
                else
                    at = writer.plain(at, end) - 1;
                break;
            case Kind::Blank: {
                const char blank = *at == '\0' ? ' ' : *at;
                if (at + 1 == end || kindOf(at[1]) == Kind::LineEnd) {
                    writer.encoded(blank);
                } else {
                    writer.literal(blank);
                }
                break;
            }
            case Kind::LineEnd:
                if (*at == '\r' && at + 1 != end && at[1] == '\n') ++at;
                writer.lineEnd();
                break;
            case Kind::Encoded:
                writer.encoded(*at);
                break;
        }
    }
    out.resize(writer.end() - out.constData());
}

}  // namespace mail
